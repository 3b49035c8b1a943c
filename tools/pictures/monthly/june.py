# SPDX-License-Identifier: GPL-3.0-or-later
"""June: poppies by a lake, late evening."""

import numpy as np

from . import details, noise, plants, sky, terrain, trees, water
from .canvas import H, W, Canvas, Layer
from .noise import smoothstep
from .palette import Ramp, mix, rgb
from .terrain import ridge


def june():
    c = Canvas(606)
    rng = c.rng
    c.sky(
        Ramp(
            (0, "#5d7fb4"), (0.36, "#a3a4c4"), (0.66, "#f2bda6"), (0.86, "#ffd79a"), (1, "#ffe9b4")
        ),
        600,
    )
    sky.streaks(c, "#ff9f86", 0.55, 60, 470, (22, 460), 0.50, 0.78, tilt=0.05)
    sky.streaks(c, "#fff0cd", 0.55, 250, 560, (12, 420), 0.55, 0.8, tilt=0.03)
    sky.sun(c, 1010, 508, 46, "#fff6d6", "#ffcb78", 0.95)

    terrain.mountains(
        c,
        610,
        [
            (130, 380, 400, 150),
            (420, 300, 330, 205),
            (700, 300, 330, 130),
            (1390, 420, 360, 180),
            (1580, 260, 240, 210),
        ],
        "#d9a9a4",
        "#9a8fae",
        "#f4c9a4",
        240,
        side=1,
        contrast=0.8,
    )
    terrain.mist(c, 610, 40, "#ffdca8", 0.65)
    specs = (
        (590, 30, 300, "#b59aa0", "#e0b69a", 30),
        (612, 26, 260, "#84868e", "#b8a088", -40),
        (632, 18, 220, "#55695f", "#8a8a60", 36),
    )
    for i, (base, amp, cell, top, low, tilt) in enumerate(specs):
        edge = ridge(rng, base, amp, cell, 5, 0.42, tilt=tilt)
        layer = Layer()
        ramp = (
            Ramp("#a08f9c", "#c8a79e"),
            Ramp("#6d7a80", "#a89c84"),
            Ramp("#2f4f48", "#6d8458", "#c8b068"),
        )[i]
        trees.wood_edge(
            layer.ctx,
            rng,
            edge,
            -10,
            W + 10,
            6 + 3 * i,
            10 + 8 * i,
            24 + 17 * i,
            ramp,
            trees.leafy,
            5,
            noise.line(rng, W, 230, 3) + 0.22,
            light=0.5,
        )
        c.put(layer)
        terrain.hill(c, edge, Ramp(top, low), 60, (1010, 360, "#ffd88e", 0.6), 0.1, 0.02)
        terrain.mist(c, 30, 20, "#ffdfae", 0.35, edge=edge)

    level = 668
    water.mirror(c, level, "#47648c", 0.42, 1.0, 1.0, soft=1)
    c.glow(1010, level + 60, 330, "#ffc676", 0.34, 1.1)
    layer = Layer()
    water.ripples(layer.ctx, rng, level + 6, 1010, 190, rgb("#ffeccb"), 0.20)
    water.ripples(layer.ctx, rng, level + 30, 1010, 130, rgb("#4a5f88"), 0.16)
    water.glitter(layer.ctx, rng, 1010, level + 2, 1010, 120, 900, rgb("#fff1c4"), 0.85)
    c.put(layer)
    terrain.mist(c, level + 2, 12, "#ffe3b4", 0.7)

    bank = ridge(rng, 965, 12, 520, 3, 0.35, tilt=-120, bumps=((60, 330, 70),))
    layer = Layer()
    for x in np.concatenate([rng.uniform(0, 420, 70), rng.uniform(620, 900, 16)]):
        y = bank[int(x)] + 12
        plants.reed(
            layer.ctx,
            rng,
            x,
            y,
            rng.uniform(60, 150),
            rng.uniform(-6, 26),
            mix(rgb("#3f5a45"), rgb("#7d8a50"), rng.random()),
            rgb("#6a4a38"),
            1.6,
        )
    c.put(layer)
    terrain.hill(
        c,
        bank,
        Ramp("#8d9a4c", "#5d8044", "#33603e", "#1f4638"),
        300,
        (1010, 620, "#f6cf74", 0.5),
        0.2,
        0.05,
        slope=0.2,
        rim=0.5,
        rim_colour="#ffe39a",
    )
    layer = Layer()
    ctx = layer.ctx
    trees.leafy(
        ctx,
        rng,
        90,
        bank[90] + 40,
        700,
        Ramp("#0f2629", "#183a33", "#2b5238", "#4f6d3c", "#97904a", "#eccb6c"),
        rgb("#3a2c2a"),
        light=0.95,
        width=0.86,
        crown=0.82,
        gaps=0.05,
    )
    plants.footing(
        ctx, rng, [(90, bank[90] + 40, 700)], Ramp("#2c5a38", "#6d8a42", "#c9b860"), 0.07, 0.05
    )
    c.put(layer)
    layer = Layer()
    ctx = layer.ctx
    inside = lambda spots, m: [s for s in spots if s[1] > bank[int(np.clip(s[0], 0, W - 1))] + m]
    plants.grass(
        ctx,
        rng,
        inside(plants.drift(rng, 7600, 0, W, 900, 1240), 4),
        Ramp("#234c38", "#4d7a42", "#94a850", "#e6cf7c"),
        12,
        78,
        0.14,
    )
    patch = smoothstep(0.38, 0.58, noise.fbm2(rng, H, W, 90, 240, 3))
    plants.speckle(
        ctx,
        rng,
        inside(plants.drift(rng, 900, 0, W, 930, 1060, patch), 8),
        [rgb("#f0503a"), rgb("#e23a30"), rgb("#ff7a54"), rgb("#fbe7c8")],
        1.4,
        4,
    )
    red = Ramp("#3a0f1c", "#a81c22", "#dd3526", "#f7603a", "#ffb27c")
    blue = Ramp("#3a48a8", "#6577dc", "#b4bff8")
    for x, y, t in inside(plants.drift(rng, 210, -20, W + 20, 985, 1245, patch, 0.9), 16):
        size, kind = (9 + 25 * t) * rng.uniform(0.75, 1.1), rng.random()
        if kind < 0.74:
            plants.poppy(ctx, rng, x, y, size, red, rgb("#5a7d44"), kind < 0.10)
        elif kind < 0.88:
            plants.bell(ctx, rng, x, y, size * 0.55, blue, rgb("#4d7844"))
        else:
            plants.daisy(
                ctx,
                rng,
                x,
                y,
                size * 0.55,
                rgb("#fff6e2"),
                rgb("#f2b62e"),
                rgb("#557d44"),
                rgb("#d9b8b0"),
            )
    for k in range(5):
        details.bird(
            ctx,
            610 + k * 46 + rng.uniform(-14, 14),
            300 + rng.uniform(-40, 40),
            rng.uniform(9, 14),
            rng.uniform(0, 1),
            rng.uniform(-0.3, 0.3),
            rgb("#5f5878"),
            0.8,
        )
    c.put(layer)
    c.bloom(0.80, 30, 0.35)
    return c
