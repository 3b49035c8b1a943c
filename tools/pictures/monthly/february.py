# SPDX-License-Identifier: GPL-3.0-or-later
"""February: a frozen lake and birches at dawn."""

import numpy as np

from . import noise, plants, sky, terrain, trees, water
from .brush import taper
from .canvas import H, W, YY, Canvas, Layer
from .noise import smoothstep
from .palette import Ramp, mix, rgb
from .terrain import ridge


def february():
    c = Canvas(202)
    rng = c.rng
    c.sky(
        Ramp((0, "#8fb4cf"), (0.4, "#bcd3da"), (0.7, "#f0dfc8"), (0.88, "#fbcfa4"), (1, "#f9b98f")),
        610,
    )
    sky.streaks(c, "#fbe3cf", 0.7, 60, 480, (18, 560), 0.5, 0.76, tilt=0.03)
    sky.streaks(c, "#e9a894", 0.35, 330, 560, (12, 600), 0.55, 0.8)
    sky.sun(c, 690, 548, 38, "#fff3d2", "#ffcf8e", 0.9)

    tints = (
        ("#c7c3cc", "#e8cdbd", 560, 44, 300),
        ("#a9b4c4", "#dccdc6", 588, 30, 260),
        ("#8ba0b4", "#cfcfcf", 606, 24, 220),
    )
    for i, (top, low, base, amp, cell) in enumerate(tints):
        edge = ridge(rng, base, amp, cell, 5, 0.45, tilt=(-30, 40, -16)[i])
        if i:
            layer = Layer()
            ramp = Ramp(top, mix(rgb(top), rgb("#5f7488"), 0.55))
            trees.wood_edge(
                layer.ctx,
                rng,
                edge,
                0,
                W,
                6 + i * 2,
                10 + 8 * i,
                24 + 14 * i,
                ramp,
                trees.fir,
                3,
                noise.line(rng, W, 200, 3) + 0.15,
                light=1,
            )
            c.put(layer)
        terrain.hill(c, edge, Ramp(top, low), 70, (690, 330, "#ffe0b8", 0.7), 0.1, 0.02, slope=0.1)
        terrain.mist(c, base + 36, 26, "#fbe2cb", 0.7)

    level = 640
    _frozen_lake(c, level)

    bank = ridge(rng, 925, 14, 420, 4, 0.4, tilt=150, bumps=((1480, 430, 120), (150, 260, 40)))
    layer = Layer()
    ctx = layer.ctx
    bark, shade, mark, twig, frost = (
        rgb(k) for k in ("#fff4e8", "#9db0c4", "#3b4350", "#6a5362", "#f3eef0")
    )
    for x, y, h, lean in ((1350, 745, 430, -0.03), (1300, 765, 330, 0.05)):
        trees.birch(
            ctx,
            rng,
            x,
            y,
            h,
            -1,
            mix(bark, rgb("#cfd8e0"), 0.35),
            mix(shade, rgb("#cfd8e0"), 0.4),
            mix(mark, rgb("#9fb0c0"), 0.4),
            mix(twig, rgb("#b9c0cc"), 0.4),
            frost,
            lean,
        )
    c.put(layer)
    terrain.hill(
        c,
        bank,
        Ramp("#eef0f2", "#c4d4e2", "#93b1cc"),
        330,
        (690, 520, "#ffe6cd", 0.75),
        0.18,
        0.02,
        cell=(70, 420),
        slope=0.22,
        rim=0.5,
        rim_colour="#fff3e4",
    )
    layer = Layer()
    ctx = layer.ctx
    for x, h, lean in (
        (1440, 800, -0.05),
        (1515, 690, 0.03),
        (1575, 860, -0.02),
        (80, 760, 0.05),
        (20, 640, 0.0),
    ):
        trees.birch(
            ctx, rng, x, bank[x] + 30, h, 1 if x < 690 else -1, bark, shade, mark, twig, frost, lean
        )
    shadow = Layer()
    for x, lean in ((1440, 0.6), (1515, 0.75), (1575, 0.8), (80, -0.6), (20, -0.7)):
        y = bank[x] + 30
        taper(
            shadow.ctx,
            [(x, y), (x + lean * 180, y + 130), (x + lean * 420, y + 330)],
            16,
            26,
            (0, 0, 0),
        )
    c.shadow(shadow, "#7fa0c8", 0.55, 5)
    c.put(layer)
    layer = Layer()
    ctx = layer.ctx
    for x, y, t in plants.drift(rng, 150, 0, W, 930, 1230):
        if y > bank[int(x)] + 20 and (x < 300 - 160 * t or x > 900 + 250 * t):
            plants.tuft(ctx, rng, x, y, 26 + 70 * t, Ramp("#a58a78", "#d9c3a8", "#fdf4ea"), 0.10)
    c.put(layer)
    c.bloom(0.82, 30, 0.4)
    return c


def _frozen_lake(c, level):
    """Ice that shows the sky dimly, with drifts of snow and a few fine cracks."""
    rng = c.rng
    water.mirror(c, level, "#b9d3e2", 0.5, 0.10, 1.0, soft=7)
    near = np.clip((YY - level) / (H - level), 0, 1)
    rows = np.clip(near**0.55 * H * 0.95, 0, H - 1).astype(np.int32)
    field = noise.fbm2(rng, H, W, 46, 330, 5, 0.55)
    drift = smoothstep(0.46, 0.62, np.take_along_axis(field, rows, axis=0)) * (YY >= level)
    c.blend("#f3f2f2", drift * (0.35 + 0.4 * near))
    edge = np.clip(np.roll(drift, -3, axis=0) - drift, 0, 1)
    c.blend("#86a9c6", edge * 0.35)
    layer = Layer()
    for _ in range(26):
        x, t = rng.uniform(250, 1350), rng.random() ** 1.2
        y = level + 12 + (H - level) * 0.75 * t
        points = [(x, y)]
        for _ in range(int(rng.integers(3, 8))):
            x += rng.uniform(20, 90) * (0.3 + t) * rng.choice([-1, 1, 1])
            y += rng.uniform(-5, 12) * (0.2 + t)
            points.append((x, y))
        for a, b in zip(points, points[1:]):
            layer.ctx.move_to(*a)
            layer.ctx.line_to(*b)
        layer.ctx.set_line_width(0.5 + 1.1 * t)
        layer.ctx.set_source_rgba(1, 1, 1, 0.45)
        layer.ctx.stroke()
    water.glitter(layer.ctx, rng, 690, level + 2, 980, 70, 420, rgb("#fff0cf"), 0.55, 0.8)
    c.put(layer)
    c.glow(690, level + 60, 260, "#ffcf96", 0.35, 1.2)
    terrain.mist(c, level + 2, 22, "#fff0e0", 0.75)
