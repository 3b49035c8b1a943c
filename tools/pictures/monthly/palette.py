# SPDX-License-Identifier: GPL-3.0-or-later
"""Colours and colour ramps. Colours are tuples of three floats, 0 to 1, sRGB."""

import numpy as np

_TO_LMS = np.array(
    [
        [0.4122214708, 0.5363325363, 0.0514459929],
        [0.2119034982, 0.6806995451, 0.1073969566],
        [0.0883024619, 0.2817188376, 0.6299787005],
    ]
)
_TO_LAB = np.array(
    [
        [0.2104542553, 0.7936177850, -0.0040720468],
        [1.9779984951, -2.4285922050, 0.4505937099],
        [0.0259040371, 0.7827717662, -0.8086757660],
    ]
)


def rgb(code):
    """The colour for "#rrggbb"."""
    return tuple(int(code[i : i + 2], 16) / 255 for i in (1, 3, 5))


def colour(value):
    """Accept a colour as code or as tuple."""
    return rgb(value) if isinstance(value, str) else tuple(value)


def mix(a, b, t):
    return tuple(x + (y - x) * t for x, y in zip(a, b))


def _to_oklab(c):
    c = np.asarray(c, float)
    linear = np.where(c <= 0.04045, c / 12.92, ((c + 0.055) / 1.055) ** 2.4)
    return np.cbrt(linear @ _TO_LMS.T) @ _TO_LAB.T


def _from_oklab(lab):
    lms = (lab @ np.linalg.inv(_TO_LAB).T) ** 3
    linear = np.clip(lms @ np.linalg.inv(_TO_LMS).T, 0, 1)
    return np.where(linear <= 0.0031308, linear * 12.92, 1.055 * linear ** (1 / 2.4) - 0.055)


class Ramp:
    """A gradient through colours, even to the eye.

    Interpolating in OKLab keeps the middle of a sky from going grey, which
    plain sRGB interpolation does between warm and cold colours.
    """

    SIZE = 512

    def __init__(self, *stops):
        places, colours = [], []
        for i, stop in enumerate(stops):
            if isinstance(stop, tuple) and len(stop) == 2:
                places.append(stop[0])
                colours.append(colour(stop[1]))
            else:
                places.append(i / max(1, len(stops) - 1))
                colours.append(colour(stop))
        labs = np.array([_to_oklab(c) for c in colours])
        t = np.linspace(0, 1, self.SIZE)
        table = np.stack([np.interp(t, places, labs[:, k]) for k in range(3)], axis=1)
        self.table = np.clip(_from_oklab(table), 0, 1).astype(np.float32)
        self._tuples = [tuple(map(float, row)) for row in self.table]

    def __call__(self, t):
        return self._tuples[min(self.SIZE - 1, max(0, int(t * (self.SIZE - 1))))]

    def array(self, t):
        place = np.clip(t, 0, 1) * (self.SIZE - 1)
        low = np.minimum(place.astype(np.int32), self.SIZE - 2)
        part = (place - low)[..., None].astype(np.float32)
        return self.table[low] * (1 - part) + self.table[low + 1] * part

    def toward(self, other, amount):
        """This ramp seen through air of the given colour."""
        other = colour(other)
        new = Ramp.__new__(Ramp)
        new.table = (self.table * (1 - amount) + np.array(other, np.float32) * amount).astype(
            np.float32
        )
        new._tuples = [tuple(map(float, row)) for row in new.table]
        return new
