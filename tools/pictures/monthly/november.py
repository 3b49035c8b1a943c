# SPDX-License-Identifier: GPL-3.0-or-later
"""November: fog, reeds and wild geese."""

import numpy as np

from . import details, noise, plants, sky, terrain, trees, water
from .canvas import W, YY, Canvas, Layer
from .noise import smoothstep
from .palette import Ramp, mix, rgb
from .terrain import ridge


def november():
    c = Canvas(1111)
    rng = c.rng
    c.sky(Ramp((0, "#8c98a6"), (0.45, "#b3b8bb"), (0.8, "#d9d0c4"), (1, "#e6d5c2")), 640)
    sky.streaks(c, "#7c8a9c", 0.40, -80, 420, (60, 460), 0.46, 0.8)
    sky.streaks(c, "#efe3d3", 0.45, 60, 520, (36, 520), 0.52, 0.82)
    sky.sun(c, 1080, 400, 46, "#fdf0da", "#f6dcb8", 0.62)

    specs = (
        (610, 40, 330, 26, "#b9bab8", 30),
        (652, 36, 360, 44, "#a3a8a8", -50),
        (704, 30, 380, 74, "#878f90", 60),
    )
    for i, (base, amp, cell, size, tint, tilt) in enumerate(specs):
        edge = ridge(rng, base, amp, cell, 4, 0.4, tilt=tilt)
        layer = Layer()
        dark = mix(rgb(tint), rgb("#59636a"), 0.30 + 0.14 * i)
        dense = noise.line(rng, W, 210, 3)
        trees.wood_edge(
            layer.ctx,
            rng,
            edge,
            0,
            W,
            size * 0.32,
            size * 0.6,
            size * 1.25,
            Ramp(dark, mix(dark, rgb(tint), 0.5)),
            trees.fir,
            4,
            dense,
            light=1,
        )
        for x in rng.uniform(0, W, 34 - 8 * i):
            if dense[int(x)] < 0.05:
                trees.bare(
                    layer.ctx, rng, x, edge[int(x)] + 3, size * rng.uniform(0.9, 1.5), dark, dark, 5
                )
        c.put(layer)
        terrain.hill(
            c,
            edge,
            Ramp(tint, mix(rgb(tint), rgb("#d9d2c8"), 0.7)),
            90,
            (1080, 420, "#f3dfc4", 0.5),
            0.12,
            0.02,
        )
        terrain.mist(c, 34, 44, "#dcd6cd", 0.85, edge=edge)
    level = 792
    terrain.mist(c, level - 20, 46, "#dfd9d0", 0.9)
    water.mirror(c, level, "#7d8a92", 0.34, 0.8, 1.0, soft=2)
    c.glow(1080, level + 130, 260, "#f6dcb8", 0.28, 0.7)
    layer = Layer()
    water.ripples(layer.ctx, rng, level + 8, 1120, 170, rgb("#f6efe4"), 0.20)
    water.ripples(layer.ctx, rng, level + 40, 1120, 110, rgb("#5f6b74"), 0.15)
    c.put(layer)
    terrain.mist(c, level + 4, 30, "#e3ddd4", 0.85)
    _spit(c, level)
    _geese(c)
    _november_bank(c)
    terrain.mist(c, 905, 70, "#dcd8d2", 0.45)
    c.bloom(0.84, 30, 0.25)
    return c


def _spit(c, level):
    """A tongue of land with two old trees, doubled in the still water."""
    rng = c.rng
    x = np.arange(W)
    edge = 868 + 14 * noise.line(rng, W, 200, 3) * 0.5 + 40 * smoothstep(420, 760, x) ** 2
    thick = 26 * smoothstep(760, 300, x)
    layer = Layer()
    ctx = layer.ctx
    wood, twig = rgb("#4f5359"), rgb("#6b6a6c")
    for tx, h, lean in ((190, 420, 0.06), (395, 300, -0.05), (70, 330, -0.03)):
        y = edge[tx] + 4
        state = rng.bit_generator.state
        trees.bare(ctx, rng, tx, y, h, wood, twig, 7, lean)
        # the same tree again, upside down, for its reflection
        rng.bit_generator.state = state
        ctx.save()
        ctx.translate(0, 2 * y + 10)
        ctx.scale(1, -0.92)
        ctx.push_group()
        trees.bare(ctx, rng, tx, y, h, wood, twig, 7, lean)
        ctx.pop_group_to_source()
        ctx.paint_with_alpha(0.26)
        ctx.restore()
    c.put(layer)
    d = YY - edge[None, :]
    body = smoothstep(0, 1.2, d) * smoothstep(thick[None, :] + 1.5, thick[None, :] - 1, d)
    c.blend(Ramp("#8d846f", "#5f5c55").array(d / 26), body)
    layer = Layer()
    for k in range(330):
        px = rng.uniform(0, 560)
        plants.grass(
            layer.ctx,
            rng,
            [(px, edge[int(px)] + rng.uniform(1, max(2, thick[int(px)])), 0.5)],
            Ramp("#6f6650", "#a8977a", "#d3c3a4"),
            14,
            30,
            0.1,
        )
    c.put(layer)


def _geese(c):
    rng, layer = c.rng, Layer()
    tint = rgb("#4a525c")
    for x, y, size, count, arm, alpha in (
        (620, 200, 25, 7, (46, 21), 0.95),
        (1180, 150, 13, 6, (24, 11), 0.65),
    ):
        for side, many in ((1, count), (-1, count - 2)):
            for k in range(0 if side > 0 else 1, many):
                px = x + k * arm[0] + rng.uniform(-4, 4)
                py = y + side * k * arm[1] * (1.0 if side > 0 else 0.62) + rng.uniform(-4, 4)
                details.goose(
                    layer.ctx,
                    px,
                    py,
                    size * rng.uniform(0.93, 1.05),
                    rng.choice([-0.55, 0.35, 0.7, 0.95]),
                    tint,
                    alpha,
                    -1,
                )
    c.put(layer)


def _november_bank(c):
    rng = c.rng
    bank = ridge(rng, 1120, 12, 420, 3, 0.35, bumps=((1560, 420, 150), (0, 260, 40)))
    terrain.hill(
        c,
        bank,
        Ramp("#8d7f68", "#6a6156", "#4a4845"),
        200,
        (1080, 420, "#e6cfae", 0.4),
        0.2,
        0.05,
        rim=0.3,
        rim_colour="#e9dcc6",
    )
    layer = Layer()
    ctx = layer.ctx
    straw = Ramp("#4f483e", "#80715a", "#b59f7a", "#e0cda6")
    trees.bare(ctx, rng, 1475, bank[1475] + 40, 760, rgb("#3b3a3d"), rgb("#5c5354"), 8, -0.05)
    plants.footing(ctx, rng, [(1475, bank[1475] + 40, 760)], straw, 0.06, 0.06)
    for x, y, t in plants.drift(rng, 2900, 0, W, 960, 1235):
        if y > bank[int(x)] + 3:
            plants.grass(ctx, rng, [(x, y, t)], straw, 16, 62, 0.16)
    for k in range(150):
        x = rng.choice(
            [rng.normal(1280, 130), rng.normal(120, 130), rng.uniform(0, W)], p=[0.5, 0.35, 0.15]
        )
        y = bank[int(np.clip(x, 0, W - 1))] + rng.uniform(0, 70)
        plants.reed(
            ctx,
            rng,
            x,
            y,
            rng.uniform(90, 230),
            rng.uniform(0, 50),
            straw(rng.uniform(0.1, 0.7)),
            mix(rgb("#54402f"), rgb("#8f7658"), rng.random()),
            1.9,
        )
    c.put(layer)
