# SPDX-License-Identifier: GPL-3.0-or-later
"""May: a meadow in full flower."""

import numpy as np

from . import details, ground, noise, plants, sky, terrain, trees
from .brush import oval
from .canvas import H, W, Canvas, Layer
from .noise import smoothstep
from .palette import Ramp, mix, rgb
from .terrain import ridge


def may():
    c = Canvas(505)
    rng = c.rng
    c.sky(Ramp((0, "#57a8d8"), (0.45, "#97d0e8"), (0.8, "#d6ecea"), (1, "#fbf3d4")), 650)
    for x, base, wide, high in (
        (420, 330, 620, 210),
        (1210, 250, 460, 130),
        (1010, 440, 420, 100),
        (90, 480, 380, 84),
        (1500, 470, 420, 110),
        (700, 520, 330, 56),
    ):
        sky.cumulus(c, x, base, wide, high, "#ffffff", "#a3c4e0", light=(0.6, -0.75), puffs=44)

    specs = (
        (612, 44, 360, "#8db9c4", "#b0d3c6", -40),
        (658, 44, 430, "#7db494", "#a3cd94", 80),
        (722, 40, 520, "#62a653", "#93c858", -90),
        (796, 30, 640, "#58a23c", "#8cc648", 70),
    )
    tints = ("#8ecb52", "#6cb544", "#b5dc62", "#58a544", "#f3e04a", "#9bd060", "#78bf4e")
    for i, (base, amp, cell, top, low, tilt) in enumerate(specs):
        edge = ridge(rng, base, amp, cell, 4, 0.36, tilt=tilt)
        haze = 0.62 - 0.2 * i
        greens = Ramp("#225f33", "#3f8a3a", "#84bf4a", "#bfe070").toward("#bfe0dc", haze)
        if i:
            layer = Layer()
            trees.wood_edge(
                layer.ctx,
                rng,
                edge,
                0,
                W,
                9 + 3 * i,
                16 + 9 * i,
                30 + 15 * i,
                greens,
                trees.leafy,
                5,
                noise.line(rng, W, 260, 3) - 0.12,
                light=0.7,
            )
            c.put(layer)
        terrain.hill(
            c,
            edge,
            Ramp(top, low),
            220,
            (1250, 620, "#f6fabc", 0.45),
            0.15,
            0.03,
            slope=0.25,
            rim=0.3,
            rim_colour="#f3fbc8",
        )
        if i:
            terrain.fields(
                c,
                edge,
                [mix(rgb(b), rgb("#cfe8dc"), haze * 0.8) for b in tints],
                0.6,
                (170 + 50 * i, 22 + 8 * i),
                130 + 36 * i,
            )
        layer = Layer()
        spots = trees.scatter(rng, edge, 40 - 5 * i, 0, W, 4, 60 + 26 * i)
        size = 14 + 15 * i
        ground.tree_shadows(c, [(x, y, size) for x, y, t in spots], "#3d7a50", 0.6, -1, 3)
        for x, y, t in spots:
            trees.leafy(
                layer.ctx,
                rng,
                x,
                y,
                size * rng.uniform(0.7, 1.3),
                greens,
                rgb("#4d4034"),
                light=0.7,
            )
        c.put(layer)
        terrain.mist(c, 60, 40, "#d9eee4", 0.28 - 0.05 * i, edge=edge)
    ground.cloud_shadows(c, 690, 900, 0.35)
    meadow = ridge(rng, 850, 16, 760, 3, 0.3, tilt=-36, bumps=((240, 420, 40),))
    terrain.hill(
        c,
        meadow,
        Ramp("#9fd44c", "#78bd40", "#4a9a3a", "#2c7434"),
        360,
        (1200, 760, "#f3f79a", 0.5),
        0.2,
        0.05,
        slope=0.2,
        rim=0.35,
        rim_colour="#f3f9b4",
    )
    _may_meadow(c, meadow)
    return c


def _may_meadow(c, meadow):
    """A broad lime tree over a meadow in full flower."""
    rng = c.rng
    x, y, h = 300, meadow[300] + 46, 560
    shadow = Layer()
    oval(shadow.ctx, x - 70, y + 8, 360, 40, (0, 0, 0))
    c.shadow(shadow, "#25603c", 0.6, 12)
    layer = Layer()
    plants.grass(
        layer.ctx,
        rng,
        [s for s in plants.drift(rng, 6000, 0, W, 862, 1080) if s[1] > meadow[int(s[0])] + 8],
        Ramp("#3a8a34", "#66ad3e", "#a2d255", "#d4ea80"),
        6,
        30,
        0.10,
    )
    c.put(layer)
    layer = Layer()
    trees.leafy(
        layer.ctx,
        rng,
        x,
        y,
        h,
        Ramp("#154a2c", "#2a7034", "#57a03c", "#9fd052", "#dcf08c"),
        rgb("#46382e"),
        light=0.75,
        width=1.06,
        crown=0.80,
        gaps=0.04,
    )
    plants.footing(layer.ctx, rng, [(x, y, h)], Ramp("#2f7d33", "#5fa63c", "#a2d255"), 0.08, 0.05)
    c.put(layer)
    layer = Layer()
    ctx = layer.ctx
    patch = smoothstep(0.28, 0.52, noise.fbm2(rng, H, W, 120, 260, 3))
    reds = smoothstep(0.46, 0.6, noise.fbm2(rng, H, W, 120, 300, 2))
    plants.speckle(
        ctx,
        rng,
        plants.drift(rng, 4200, 0, W, 872, 1050, patch),
        [rgb(k) for k in ("#ffffff", "#ffe14d", "#f6f1c9", "#e97fb0", "#8f78e0", "#ffffff")],
        0.8,
        3.4,
    )
    plants.grass(
        ctx,
        rng,
        plants.drift(rng, 3600, 0, W, 1030, 1235),
        Ramp("#25702f", "#4d9a38", "#93c94c", "#d2ea7c"),
        30,
        92,
        0.12,
    )
    violet, rose = Ramp("#4a3fae", "#7a6fe0", "#c0b8fa"), Ramp("#b03a7c", "#e572a8", "#fbc3da")
    for px, py, t in plants.drift(rng, 760, -20, W + 20, 1000, 1240, patch, 0.85):
        size, kind = 6 + 12 * t, rng.random()
        red = reds[min(H - 1, int(py)), int(np.clip(px, 0, W - 1))]
        if kind < 0.40:
            plants.daisy(
                ctx,
                rng,
                px,
                py,
                size * 1.15,
                rgb("#ffffff"),
                rgb("#f8c62e"),
                rgb("#4f9a3c"),
                rgb("#d5d3ea"),
            )
        elif kind < 0.62:
            plants.dandelion(ctx, rng, px, py, size * 1.05)
        elif kind < 0.62 + 0.38 * red:
            plants.bell(ctx, rng, px, py, size * 0.95, rose, rgb("#3f8a38"))
        else:
            plants.bell(ctx, rng, px, py, size, violet, rgb("#3f8a38"))
    for px, py, size, turn, tint in (
        (930, 930, 15, 0.5, "#ffb53a"),
        (1010, 965, 11, -0.4, "#fff6d0"),
        (1290, 905, 13, 0.2, "#7fb8ff"),
        (680, 985, 12, -0.2, "#ffd84a"),
    ):
        details.butterfly(ctx, px, py, size, turn, rgb(tint), rgb("#5d3a2a"))
    c.put(layer)
    layer = Layer()
    for _ in range(7):
        details.bird(
            layer.ctx,
            rng.uniform(900, 1200),
            rng.uniform(150, 330),
            rng.uniform(8, 13),
            rng.uniform(0.1, 1),
            rng.uniform(-0.3, 0.3),
            rgb("#3a5f86"),
            0.85,
        )
    c.put(layer)
    c.bloom(0.88, 26, 0.22)
