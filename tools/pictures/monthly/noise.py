# SPDX-License-Identifier: GPL-3.0-or-later
"""Smooth random fields in one and two dimensions."""

import numpy as np
from PIL import Image


def smoothstep(low, high, value):
    t = np.clip((value - low) / (high - low), 0, 1)
    return t * t * (3 - 2 * t)


def value2(rng, height, width, cell_y, cell_x):
    grid = rng.random((int(height / cell_y) + 4, int(width / cell_x) + 4))
    image = Image.fromarray(grid.astype(np.float32))
    box = (1, 1, 1 + width / cell_x, 1 + height / cell_y)
    return np.asarray(image.resize((width, height), Image.BICUBIC, box=box))


def fbm2(rng, height, width, cell_y, cell_x, octaves=4, gain=0.5):
    """Fractal noise around 0.5."""
    total = np.zeros((height, width), np.float32)
    weight, amount = 0.0, 1.0
    for octave in range(octaves):
        part = 2**octave
        total += amount * value2(
            rng, height, width, max(1.0, cell_y / part), max(1.0, cell_x / part)
        )
        weight += amount
        amount *= gain
    return total / weight


def ridged2(rng, height, width, cell_y, cell_x, octaves=4, gain=0.5):
    """Fractal noise with sharp crests, 0 to 1."""
    total = np.zeros((height, width), np.float32)
    weight, amount = 0.0, 1.0
    for octave in range(octaves):
        part = 2**octave
        field = value2(rng, height, width, max(1.0, cell_y / part), max(1.0, cell_x / part))
        total += amount * (1 - np.abs(2 * field - 1))
        weight += amount
        amount *= gain
    return total / weight


def line(rng, length, cell, octaves=4, gain=0.5):
    """One-dimensional fractal noise around 0, about -1 to 1."""
    x = np.arange(length, dtype=float)
    total, weight, amount = np.zeros(length), 0.0, 1.0
    for octave in range(octaves):
        size = cell / 2**octave
        if size < 1.5:
            break
        nodes = rng.random(int(length / size) + 5) * 2 - 1
        place = x / size + rng.random()
        i = place.astype(int)
        f = place - i
        a, b, c, d = nodes[i], nodes[i + 1], nodes[i + 2], nodes[i + 3]
        total += amount * (
            b + 0.5 * f * (c - a + f * (2 * a - 5 * b + 4 * c - d + f * (3 * (b - c) + d - a)))
        )
        weight += amount
        amount *= gain
    return total / weight


def blur(field, radius):
    """Three box blurs, near enough to a Gaussian; edges are held."""
    size = int(max(1, round(radius)))
    for axis in (0, 1):
        for _ in range(3):
            pad = [(0, 0)] * field.ndim
            pad[axis] = (size + 1, size)
            total = np.cumsum(np.pad(field, pad, mode="edge"), axis=axis, dtype=np.float64)
            n = field.shape[axis]
            high = np.take(total, range(2 * size + 1, 2 * size + 1 + n), axis=axis)
            low = np.take(total, range(0, n), axis=axis)
            field = ((high - low) / (2 * size + 1)).astype(np.float32)
    return field
