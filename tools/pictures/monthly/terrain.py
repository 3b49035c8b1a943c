# SPDX-License-Identifier: GPL-3.0-or-later
"""Hills, mountains, mist: everything that follows a ridge line."""

import numpy as np

from . import noise
from .canvas import H, W, XX, YY
from .noise import smoothstep
from .palette import colour

X = np.arange(W, dtype=float)


def ridge(rng, base, amp, cell, octaves=4, gain=0.42, tilt=0.0, bumps=()):
    """The upper edge of a hill as one height for each column.

    tilt raises the right end; bumps are (centre, half width, height).
    """
    y = base - amp * noise.line(rng, W, cell, octaves, gain) - tilt * (X / W - 0.5)
    for centre, half, height in bumps:
        y = y - height * np.exp(-(((X - centre) / half) ** 2))
    return y


def summit_line(rng, base, summit, rough=0.16):
    """The outline of one mountain; summit is (column, left half, right half, height)."""
    column, left, right, height = summit
    away = X + 10 * noise.line(rng, W, 150, 3) - column
    away = np.where(away < 0, -away / left, away / right)
    crags = np.abs(noise.line(rng, W, 130, 2)) + 0.55 * np.abs(noise.line(rng, W, 52, 3)) - 0.33
    fine = noise.line(rng, W, 22, 4, 0.6)
    near = np.minimum(1, np.abs(X - column) / 34)
    body = np.maximum(0, 1 - away**0.94) * (1 + rough * 2.2 * crags * near)
    return base - height * body - 5 * fine * near * (body > 0)


def under(edge):
    """Depth below the ridge for every pixel, negative above it."""
    return YY - edge[None, :].astype(np.float32)


def along(field, depth):
    """Look up a (depth, column) texture so that it follows the ridge."""
    rows = np.clip(depth, 0, field.shape[0] - 1).astype(np.int32)
    return np.take_along_axis(field, rows, axis=0)


def hill(
    canvas,
    edge,
    ramp,
    span,
    light=None,
    form=0.10,
    grain=0.05,
    cell=(60, 420),
    slope=0.0,
    rim=0.0,
    rim_colour="#ffffff",
):
    """Paint one hill down to the lower edge of the picture.

    ramp runs from the ridge downwards over span pixels. light is (column,
    width, colour, strength): the place where the sun catches the ground.
    """
    rng = canvas.rng
    d = under(edge)
    alpha = np.clip(d + 0.5, 0, 1)
    big = noise.fbm2(rng, H, W, cell[0], cell[1], 4) - 0.5
    small = noise.fbm2(rng, H, W, 4, 26, 3) - 0.5
    t = d / span + form * 2 * along(big, d)
    pixels = ramp.array(t)
    tone = 1 + grain * 2 * along(small, d) * (0.35 + 0.65 * smoothstep(0, 260, d))
    if slope:
        lean = np.gradient(noise.blur(edge[None, :].astype(np.float32), 22)[0])
        tone = tone + slope * np.clip(lean, -0.6, 0.6)[None, :] * np.exp(-d / 190)
    pixels = np.clip(pixels * tone[..., None], 0, 1)
    if light:
        column, width, tint, strength = light
        near = np.exp(-(((XX - column) / width) ** 2)) * np.exp(-np.maximum(d, 0) / (span * 0.55))
        near = near * strength * (0.75 + 0.9 * along(big, d))
        pixels = (
            pixels + (np.array(colour(tint), np.float32) - pixels) * np.clip(near, 0, 1)[..., None]
        )
    if rim:
        line = np.exp(-np.maximum(d, 0) / 3.2) * rim
        pixels = pixels + (np.array(colour(rim_colour), np.float32) - pixels) * line[..., None]
    canvas.blend(pixels, alpha)
    return d


def mountains(canvas, base, summits, lit, shade, foot, span, side=-1, snow=None, contrast=1.0):
    """A range of peaks, the highest behind, each fading into air at its foot.

    Gullies fan out from each summit, and one main spur runs down from it to
    part light from shade. side is where the light comes from; snow is
    (lit, shade, depth): its colours and how far down it lies.
    """
    rng = canvas.rng
    lit, shade, foot = (np.array(colour(c), np.float32) for c in (lit, shade, foot))
    for summit in sorted(summits, key=lambda s: -s[3]):
        column = summit[0]
        edge = summit_line(rng, base, summit)
        top = edge[int(np.clip(column, 0, W - 1))]
        d = under(edge)
        drop = np.maximum(YY - top, 0) + 16
        warp = noise.fbm2(rng, H, W, 60, 60, 4) - 0.5
        u = (XX - column + 54 * warp * np.minimum(1, drop / 120)) / drop
        zigzag = noise.line(rng, H, 58, 4, 0.6)[:, None].astype(np.float32)
        main = u - rng.uniform(0.05, 0.32) * -side - 0.30 * zigzag
        gully = noise.line(rng, 1200, 44, 4, 0.62)[
            np.clip(600 + u * 150 + 30 * warp, 0, 1199).astype(np.int32)
        ]
        rough = noise.ridged2(rng, H, W, 60, 44, 4, 0.55) - 0.62
        face = np.tanh(side * main * 5) * 0.62 + gully * 1.0 + rough * 0.9
        bright = 1 / (1 + np.exp(np.clip(-5.2 * contrast * face, -30, 30)))
        bright = noise.blur(bright.astype(np.float32), 1)
        fade = np.clip((d * 0.45 + (YY - base + span) * 0.75) / span, 0, 1)[..., None] ** 1.3
        rock = shade + (lit - shade) * bright[..., None]
        if snow:
            low = np.array(colour(snow[1]), np.float32)
            cover = smoothstep(30, -30, d - snow[2] + 130 * gully + 110 * rough)
            white = low + (np.array(colour(snow[0]), np.float32) - low) * bright[..., None]
            rock = rock + (white - rock) * cover[..., None]
        canvas.blend(
            (rock + (foot - rock) * fade).astype(np.float32),
            np.clip(d + 0.5, 0, 1) * (edge < base)[None, :],
        )


def mist(canvas, level, thickness, tint, strength, cell=(70, 520), edge=None):
    """A bank of mist around a height; with edge it clings to that ridge."""
    rng = canvas.rng
    centre = level if edge is None else edge[None, :] + level
    cloud = noise.fbm2(rng, H, W, cell[0], cell[1], 5, 0.5)
    band = np.exp(-(((YY - centre) / thickness) ** 2))
    canvas.blend(tint, np.clip(strength * band * smoothstep(0.24, 0.72, cloud + 0.12), 0, 1))


def fields(canvas, edge, tints, strength, cell=(150, 26), depth=260, start=3):
    """A patchwork of fields on a hill, each its own colour, furrowed."""
    rng = canvas.rng
    d = under(edge)
    inside = np.clip(d - start, 0, 1) * smoothstep(depth, depth * 0.6, d)
    bend = noise.fbm2(rng, H, W, 160, 300, 2) - 0.5
    v = np.sqrt(np.maximum(d, 0) / cell[1]) + along(bend, d) * 0.9
    row = np.floor(v).astype(int) % 64
    u = (
        XX / cell[0] * (1.6 / (0.6 + v * 0.4))
        + rng.random(64)[row] * 7
        + along(bend, d) * 1.6
        + v * 0.5
    )
    plot = (np.floor(u).astype(int) * 7 + row * 31) % 97
    order = rng.integers(0, len(tints), 97)
    shades = np.array([colour(c) for c in tints], np.float32)[order][plot]
    furrow = np.sin((u + v * 0.2 * rng.choice([-1, 1], 97)[plot]) * rng.uniform(26, 60, 97)[plot])
    shades = shades * (1 + 0.035 * furrow * (rng.random(97)[plot] > 0.35))[..., None]
    canvas.blend(noise.blur(shades.astype(np.float32), 1), inside * strength)
    border = np.minimum(np.abs(u - np.round(u)) * cell[0] * 0.55, np.abs(v - np.round(v)) * 30)
    return np.where((border < 1.2) & (inside > 0.3) & (d < depth * 0.85))
