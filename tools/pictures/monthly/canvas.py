# SPDX-License-Identifier: GPL-3.0-or-later
"""The picture while it is being painted.

Pixels are kept as floats until the very end, so that wide gradients stay
smooth; vector shapes come in as Cairo layers.
"""

import cairo
import numpy as np
from PIL import Image

from .noise import blur, smoothstep
from .palette import colour

W, H = 1600, 1200
YY, XX = np.mgrid[0:H, 0:W].astype(np.float32)


class Layer:
    """A transparent sheet with a Cairo context, put on the canvas as a whole."""

    def __init__(self):
        self.surface = cairo.ImageSurface(cairo.FORMAT_ARGB32, W, H)
        self.ctx = cairo.Context(self.surface)
        self.ctx.set_line_cap(cairo.LINE_CAP_ROUND)
        self.ctx.set_line_join(cairo.LINE_JOIN_ROUND)

    def pixels(self):
        self.surface.flush()
        data = np.ndarray((H, W, 4), np.uint8, self.surface.get_data())
        return data.astype(np.float32) / 255


class Canvas:
    def __init__(self, seed):
        self.rng = np.random.default_rng(seed)
        self.px = np.zeros((H, W, 3), np.float32)

    def sky(self, ramp, bottom, warp=None):
        """Fill from the top down to a row; warp bends the bands a little."""
        t = YY / bottom
        if warp is not None:
            t = t + warp
        self.px[:] = ramp.array(t)

    def blend(self, value, alpha):
        value = np.asarray(colour(value) if isinstance(value, (str, tuple)) else value, np.float32)
        alpha = alpha[..., None]
        self.px += (value - self.px) * alpha

    def screen(self, value, alpha):
        light = np.asarray(colour(value), np.float32) * alpha[..., None]
        self.px = 1 - (1 - self.px) * (1 - np.clip(light, 0, 1))

    def multiply(self, value, alpha):
        shade = 1 - (1 - np.asarray(colour(value), np.float32)) * alpha[..., None]
        self.px *= shade

    def glow(self, x, y, radius, value, strength, squash=1.0):
        """Light spreading from a point: bright core, long soft tail."""
        d2 = ((XX - x) ** 2 + ((YY - y) * squash) ** 2) / radius**2
        self.screen(value, strength * (0.65 * np.exp(-d2 * 2.2) + 0.35 / (1 + d2 * 3) ** 2))

    def put(self, layer, opacity=1.0, soft=0, mask=None):
        data = layer.pixels()
        if soft:
            data = blur(data, soft)
        if mask is not None:
            data *= mask[..., None]
        data *= opacity
        self.px = self.px * (1 - data[..., 3:4]) + data[..., 2::-1]

    def shadow(self, layer, value, opacity, soft):
        """Use only the shape of a layer, softened, to darken what lies below."""
        self.multiply(value, blur(layer.pixels()[..., 3], soft) * opacity)

    def bloom(self, threshold=0.72, radius=26, strength=0.25):
        """Let the brightest parts bleed into their surroundings."""
        bright = np.clip(self.px - threshold, 0, 1) / (1 - threshold)
        small = bright[::4, ::4]
        soft = blur(small, max(1, radius // 4)).repeat(4, 0).repeat(4, 1)
        soft = blur(soft, 4)
        self.px = 1 - (1 - self.px) * (1 - soft * strength * 0.5)

    def finish(self, grain=0.011, vignette=0.16):
        """Darken the corners a little and add paper grain, which also dithers."""
        far = np.hypot((XX - W / 2) / (W * 0.62), (YY - H * 0.48) / (H * 0.66))
        self.px *= (1 - vignette * smoothstep(0.62, 1.35, far))[..., None]
        fine = self.rng.normal(0, 1, (H, W)).astype(np.float32)
        coarse = blur(self.rng.normal(0, 1, (H, W)).astype(np.float32), 1) * 2.2
        self.px += (grain * (0.45 * fine + 0.75 * coarse))[..., None]
        return Image.fromarray((np.clip(self.px, 0, 1) * 255 + 0.5).astype(np.uint8))
