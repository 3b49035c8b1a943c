# SPDX-License-Identifier: GPL-3.0-or-later
"""September: a vineyard in low sun."""

import numpy as np

from . import details, noise, plants, sky, terrain, trees
from .brush import dot, leaf, oval, stroke, taper
from .canvas import H, W, Canvas, Layer
from .palette import Ramp, mix, rgb
from .terrain import ridge


VINE = Ramp("#2c4424", "#55702e", "#8f9a3a", "#cdb044", "#f4d676")

VINE_GOLD = Ramp("#5a3a20", "#96662a", "#cf9a36", "#efc656", "#fde79a")


def september():
    c = Canvas(909)
    rng = c.rng
    c.sky(Ramp((0, "#6fa3c4"), (0.4, "#a9c8d0"), (0.72, "#eddfb8"), (1, "#ffe0a0")), 620)
    sky.streaks(c, "#fff3da", 0.6, 20, 420, (26, 480), 0.52, 0.8, tilt=0.04)
    for x, base, wide, high in ((1190, 300, 440, 92), (640, 380, 360, 64), (1490, 420, 320, 60)):
        sky.cumulus(
            c, x, base, wide, high, "#fff6e0", "#c9c0bc", light=(-0.8, -0.4), opacity=0.9, puffs=40
        )
    sky.sun(c, 330, 420, 44, "#fffbe8", "#ffd98a", 0.9)

    specs = (
        (572, 44, 330, "#b9b8b0", "#dccca0", 30),
        (612, 46, 380, "#a3a68c", "#d2bf84", -80),
        (668, 44, 440, "#8d965f", "#c4b464", 90),
        (744, 38, 520, "#7d8a44", "#bda650", -70),
    )
    tints = ("#a8a24c", "#8a9a48", "#cdb45c", "#b98f4c", "#96a250", "#d6c274")
    for i, (base, amp, cell, top, low, tilt) in enumerate(specs):
        edge = ridge(rng, base, amp, cell, 4, 0.36, tilt=tilt)
        haze = 0.60 - 0.18 * i
        greens = Ramp("#3a4f2c", "#6d7a38", "#b5a44a", "#e2c568").toward("#ead6a4", haze)
        layer = Layer()
        if i:
            trees.wood_edge(
                layer.ctx,
                rng,
                edge,
                0,
                W,
                9 + 3 * i,
                14 + 8 * i,
                28 + 13 * i,
                greens,
                trees.leafy,
                5,
                noise.line(rng, W, 240, 3) - 0.14,
                light=-0.7,
            )
        c.put(layer)
        terrain.hill(
            c,
            edge,
            Ramp(top, low),
            220,
            (330, 620, "#ffe9a8", 0.65),
            0.15,
            0.03,
            slope=-0.28,
            rim=0.4,
            rim_colour="#fff0bc",
        )
        terrain.fields(
            c,
            edge,
            [mix(rgb(b), rgb("#ead6a4"), haze * 0.85) for b in tints],
            0.6,
            (150 + 50 * i, 22 + 8 * i),
            130 + 36 * i,
        )
        layer = Layer()
        _far_vines(layer.ctx, rng, edge, i, haze)
        size = 14 + 14 * i
        for x, y, t in trees.scatter(rng, edge, 26 - 3 * i, 0, W, 4, 60 + 26 * i):
            grow = trees.poplar if rng.random() < 0.25 else trees.leafy
            grow(
                layer.ctx,
                rng,
                x,
                y,
                size * rng.uniform(0.8, 1.3) * (1.5 if grow is trees.poplar else 1),
                greens,
                rgb("#4d4034"),
                light=-0.7,
            )
        c.put(layer)
        terrain.mist(c, 62, 44, "#f6e3b0", 0.34 - 0.05 * i, edge=edge)
        if i == 2:
            _hamlet(c, edge)
    slope = ridge(rng, 862, 14, 700, 3, 0.3, tilt=90, bumps=((1250, 480, 60),))
    terrain.hill(
        c,
        slope,
        Ramp("#b3a04c", "#a08244", "#80603a", "#5a4030"),
        380,
        (330, 760, "#ffe09a", 0.55),
        0.18,
        0.06,
        slope=-0.2,
        rim=0.3,
        rim_colour="#ffeab0",
    )
    _vineyard(c, slope)
    c.bloom(0.82, 28, 0.3)
    return c


def _hamlet(c, edge):
    rng, layer = c.rng, Layer()
    for k, (x, dy) in enumerate(
        ((1012, 26), (1046, 20), (1082, 30), (1150, 22), (1184, 30), (1116, 38))
    ):
        details.house(
            layer.ctx,
            rng,
            x,
            edge[x] + dy,
            21,
            rgb("#fbeccb"),
            rgb("#d3b68e"),
            rgb("#b8623e"),
            rgb("#c9744a"),
            rgb("#75655c"),
            None,
            -1 if k % 2 else 1,
            1.0,
            1,
        )
    details.church(
        layer.ctx,
        1100,
        edge[1100] + 20,
        92,
        rgb("#fdf1d4"),
        rgb("#cdb393"),
        rgb("#8a4f3e"),
        rgb("#75655c"),
    )
    for x in (990, 1072, 1140, 1216, 1232):
        trees.leafy(
            layer.ctx,
            rng,
            x,
            edge[x] + 40,
            30,
            Ramp("#45562e", "#8a8c40", "#d9bf60"),
            rgb("#4d4034"),
            light=-0.7,
        )
    c.put(layer)


def _far_vines(ctx, rng, edge, i, haze):
    """Striped plots on the farther slopes."""
    for _ in range(5):
        x0, wide, depth = rng.uniform(0, W - 200), rng.uniform(110, 230), 24 + 20 * i
        lean, start = rng.uniform(-0.9, 0.9), rng.uniform(6, 30)
        tint = mix(VINE(rng.uniform(0.2, 0.5)), rgb("#ead6a4"), haze)
        for x in np.arange(x0, x0 + wide, 5 + 2.2 * i):
            a, b = int(np.clip(x, 0, W - 1)), int(np.clip(x + lean * depth, 0, W - 1))
            y0, y1 = edge[a] + start, edge[a] * 0.5 + edge[b] * 0.5 + start + depth
            for k in np.linspace(0, 1, 5 + 4 * i):
                oval(
                    ctx,
                    x + lean * depth * k + rng.uniform(-1, 1),
                    y0 + (y1 - y0) * k,
                    1.6 + 0.6 * i,
                    1.3 + 0.55 * i,
                    mix(tint, VINE(rng.random()), 0.15),
                    0.85,
                )


def _vineyard(c, slope):
    """Rows of vines running over the brow of the hill, grapes in the nearest."""
    rng = c.rng
    vanish_x, vanish_y = 930, 790
    shadow, layer = Layer(), Layer()
    feet = sorted(np.arange(-2600, 4400, 300), key=lambda v: -abs(v - vanish_x))
    for foot in feet:
        marks = []
        for t in np.linspace(0, 1, 130) ** 1.7:
            s = 0.065 + 0.935 * t
            x, y = vanish_x + (foot - vanish_x) * s, vanish_y + 480 * s
            if -140 < x < W + 140 and y > slope[int(np.clip(x, 0, W - 1))] + 3 and y < H + 190:
                marks.append((x, y, s))
        _row(layer.ctx, shadow.ctx, rng, marks, 1 if foot > vanish_x else -1)
    c.shadow(shadow, "#4a3830", 0.55, 4)
    ground = Layer()
    for x, y, t in plants.drift(rng, 3000, 0, W, 870, 1215):
        if y > slope[int(x)] + 6:
            plants.grass(
                ground.ctx,
                rng,
                [(x, y, t)],
                Ramp("#5d5a2c", "#94873c", "#cdb55a", "#f0dc8c"),
                4,
                26,
                0.1,
            )
    c.put(ground)
    c.put(layer)


def _row(ctx, shade, rng, marks, side):
    tall = 150
    for i, (x, y, s) in enumerate(marks):
        h = tall * s
        if s > 0.12:
            oval(shade, x + h * 0.35, y, h * 0.42, h * 0.10, (0, 0, 0))
        if i % 9 == 4:
            taper(
                ctx,
                [(x, y), (x + rng.uniform(-0.02, 0.02) * h, y - h * 1.12)],
                h * 0.055,
                h * 0.045,
                rgb("#6f5844"),
            )
        if i % 3 == 0 and s > 0.2:
            stroke(
                ctx,
                [(x, y), (x + rng.uniform(-0.06, 0.06) * h, y - h * 0.2), (x, y - h * 0.42)],
                h * 0.03,
                rgb("#4a3828"),
            )
        gold = noise.line(rng, 4, 2, 1)[0] * 0.2 + 0.35
        for _ in range(int(16 + 46 * s)):
            v = rng.random()
            px = x + rng.normal(0, 0.17) * h * (1.1 - 0.3 * v)
            py = y - h * (0.26 + 0.80 * v) + rng.normal(0, 0.03) * h
            tone = 0.12 + 0.62 * v + 0.16 * (-(px - x) / (0.3 * h)) + rng.normal(0, 0.09)
            ramp = VINE_GOLD if rng.random() < gold else VINE
            size = max(1.0, h * 0.050 * (0.55 + 0.45 * s**0.3)) * rng.uniform(0.7, 1.3)
            if s > 0.4:
                a = rng.uniform(0, 6.28)
                for off in (-0.8, 0, 0.8):
                    leaf(ctx, px, py, size * 1.5, size * 0.75, a + off, ramp(tone + 0.04 * off))
            else:
                oval(ctx, px, py, size * 1.2, size * 0.9, ramp(tone), 1, rng.uniform(0, 3))
        if s > 0.33 and rng.random() < 0.5:
            _grapes(
                ctx, rng, x + rng.normal(0, 0.13) * h, y - h * rng.uniform(0.34, 0.52), h * 0.026
            )


def _grapes(ctx, rng, x, y, r):
    for row in range(6):
        for k in range(max(1, 4 - abs(row - 1) if row < 3 else 6 - row)):
            n = max(1, 4 - abs(row - 1) if row < 3 else 6 - row)
            px = x + (k - (n - 1) / 2) * r * 1.6 + rng.uniform(-0.3, 0.3) * r
            py = y + row * r * 1.5
            tint = mix(rgb("#3a2358"), rgb("#5d3a80"), rng.random())
            dot(ctx, px, py, r, tint)
            dot(ctx, px - r * 0.32, py - r * 0.34, r * 0.34, rgb("#a58cc8"), 0.8)
