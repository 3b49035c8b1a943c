# SPDX-License-Identifier: GPL-3.0-or-later
"""Still and moving water."""

import numpy as np

from . import noise
from .canvas import H, W, XX, YY
from .noise import smoothstep
from .brush import oval
from .palette import colour


def mirror(canvas, level, tint, depth=0.35, ripple=1.0, stretch=1.0, mask=None, soft=2):
    """Reflect what stands above a row into the water below it.

    tint is the colour of the water itself, which wins towards the viewer by
    depth. Ripples grow with nearness, as they do on a lake.
    """
    rng = canvas.rng
    below = H - level
    near = np.clip((YY[level:] - level) / below, 0, 1)
    rows = 6.0 + 26.0 * near
    waves = noise.fbm2(rng, H, W, 5, 70, 3)[:below] - 0.5
    wide = noise.fbm2(rng, H, W, 16, 240, 3)[:below] - 0.5
    perspective = (near**0.7 * (H * 0.9)).astype(np.float32)
    wave_rows = np.clip(perspective, 0, below - 1).astype(np.int32)
    columns = XX[level:].astype(np.int32)
    wobble = waves[wave_rows, columns] * 1.5 + wide[wave_rows, columns]
    source_y = level - 1 - (YY[level:] - level) * stretch + wobble * rows * ripple * 1.6
    source_x = XX[level:] + wobble * rows * ripple * 0.5
    source_y = np.clip(source_y, 0, level - 1)
    source_x = np.clip(source_x, 0, W - 1)
    picture = canvas.px[:level]
    if soft:
        picture = np.stack([noise.blur(picture[..., k], soft) for k in range(3)], axis=-1)
    low = np.floor(source_y).astype(np.int32)
    part = (source_y - low)[..., None]
    sx = source_x.astype(np.int32)
    image = picture[low, sx] * (1 - part) + picture[np.minimum(low + 1, level - 1), sx] * part
    amount = (0.10 + depth * near**0.8 + 0.10 * wobble * ripple)[..., None]
    image = image + (np.array(colour(tint), np.float32) - image) * np.clip(amount, 0, 1)
    area = np.ones((below, W), np.float32) if mask is None else mask[level:]
    canvas.px[level:] += (image - canvas.px[level:]) * area[..., None]


def shore_line(canvas, level, tint, strength, thickness=2.2):
    """The bright thread where far water meets land."""
    d = np.abs(YY - level) / thickness
    wave = 0.5 + 0.5 * noise.line(canvas.rng, W, 240, 3)
    canvas.blend(tint, np.exp(-d * d) * strength * wave[None, :])


def glitter(ctx, rng, x, top, bottom, width, count, tint, alpha=0.8, size=1.0):
    """Sparks of light on water below the sun; they widen towards the viewer."""
    for _ in range(count):
        t = rng.random() ** 1.25
        y = top + (bottom - top) * t
        spread = width * (0.22 + 0.9 * t)
        px = x + rng.normal(0, spread * 0.5)
        near = np.exp(-(((px - x) / spread) ** 2))
        oval(
            ctx,
            px,
            y,
            size * (1.5 + 11 * t) * rng.uniform(0.5, 1.5),
            size * (0.5 + 1.3 * t) * rng.uniform(0.5, 1),
            tint,
            alpha * near * rng.uniform(0.35, 1),
        )


def ripples(ctx, rng, top, bottom, count, tint, alpha=0.2, x0=0, x1=W):
    """Calm horizontal strokes, finer with distance."""
    for _ in range(count):
        t = rng.random() ** 1.1
        y = top + (bottom - top) * t
        oval(
            ctx,
            rng.uniform(x0, x1),
            y,
            (8 + 60 * t) * rng.uniform(0.4, 1.4),
            0.4 + 1.5 * t,
            tint,
            alpha * rng.uniform(0.3, 1),
        )


def sea(canvas, level, bottom, ramp, swell=0.05):
    """Open water from the horizon down to a row, with foreshortened swell."""
    rng = canvas.rng
    t = np.clip((YY - level) / (bottom - level), 0, 1)
    far = noise.fbm2(rng, H, W, 9, 130, 4, 0.55)
    rows = np.clip((t**0.55) * (H * 0.95), 0, H - 1).astype(np.int32)
    wave = np.take_along_axis(far, rows, axis=0) - 0.5
    broad = noise.fbm2(rng, H, W, 60, 700, 3) - 0.5
    pixels = ramp.array(t + 0.16 * broad * (0.3 + t))
    pixels = pixels * (1 + (swell * 2.4) * wave * (0.5 + t))[..., None]
    alpha = smoothstep(level - 0.8, level + 0.8, YY)
    canvas.blend(np.clip(pixels, 0, 1), alpha)
    return wave
