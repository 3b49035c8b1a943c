# SPDX-License-Identifier: GPL-3.0-or-later
"""March: wind, a kite and the first flowers."""

from . import details, ground, noise, plants, sky, terrain, trees
from .brush import oval, taper
from .canvas import H, W, Canvas, Layer
from .noise import smoothstep
from .palette import Ramp, mix, rgb
from .terrain import ridge


def march():
    c = Canvas(303)
    rng = c.rng
    c.sky(Ramp((0, "#4d8ec6"), (0.45, "#8dbfe0"), (0.8, "#cfe5ea"), (1, "#eef0e2")), 660)
    sky.streaks(c, "#ffffff", 0.65, -60, 420, (34, 380), 0.52, 0.8, tilt=-0.12)
    for x, base, wide, high in (
        (1290, 300, 560, 150),
        (260, 255, 420, 110),
        (760, 420, 360, 74),
        (1480, 470, 420, 80),
        (120, 500, 460, 76),
    ):
        sky.cumulus(c, x, base, wide, high, "#ffffff", "#a9c0d6", ragged=0.5, puffs=40)

    terrain.mountains(
        c,
        650,
        [(250, 420, 380, 130), (700, 380, 420, 175), (1120, 330, 300, 120), (1450, 380, 300, 160)],
        "#a9bac6",
        "#8ba3ba",
        "#cddbdd",
        260,
        side=-1,
        snow=("#f6f8f6", "#b6cbdd", 100),
    )
    terrain.mist(c, 640, 46, "#e6eeea", 0.6)
    specs = (
        (664, 30, 360, "#a9b79a", "#b9c19c", 40),
        (716, 34, 460, "#98a878", "#a8b27e", -70),
        (782, 30, 560, "#8c9c58", "#a3a962", 70),
    )
    brown = ("#b3a37c", "#a3b472", "#9a8a66", "#bcb184", "#8fae62", "#c3b994")
    for i, (base, amp, cell, top, low, tilt) in enumerate(specs):
        edge = ridge(rng, base, amp, cell, 4, 0.36, tilt=tilt)
        terrain.hill(
            c,
            edge,
            Ramp(top, low),
            220,
            (500, 700, "#f3efc6", 0.35),
            0.16,
            0.03,
            slope=-0.22,
            rim=0.25,
        )
        terrain.fields(
            c,
            edge,
            [mix(rgb(b), rgb("#dfe6d6"), 0.42 - 0.16 * i) for b in brown],
            0.55,
            (170 + 50 * i, 22 + 8 * i),
            150 + 40 * i,
        )
        ground.snow_patches(c, edge, 60 + 40 * i, 0.85 - 0.3 * i)
        layer = Layer()
        wood, twig = mix(rgb("#6d6258"), rgb("#cfdadb"), 0.55 - 0.2 * i), mix(
            rgb("#947466"), rgb("#cfdadb"), 0.45 - 0.2 * i
        )
        for x, y, t in trees.scatter(rng, edge, 26 - 6 * i, 0, W, 3, 60 + 30 * i):
            trees.bare(
                layer.ctx, rng, x, y, (24 + 22 * i) * rng.uniform(0.7, 1.2), wood, twig, 4 + (i > 1)
            )
        c.put(layer, 0.9)
        terrain.mist(c, 60, 40, "#dfe8e0", 0.30, edge=edge)
    ground.cloud_shadows(c, 690, 960, 0.5)

    meadow = ridge(rng, 878, 22, 700, 3, 0.3, tilt=-50, bumps=((1330, 360, 60),))
    terrain.hill(
        c,
        meadow,
        Ramp("#a9b356", "#8aa04a", "#5d8040", "#3f6636"),
        340,
        (520, 700, "#eceaa0", 0.45),
        0.2,
        0.05,
        slope=-0.2,
        rim=0.3,
        rim_colour="#f0f0b8",
    )
    ground.snow_patches(c, meadow, 60, 0.75)
    layer = Layer()
    ends = trees.bare(
        layer.ctx, rng, 1370, meadow[1370] + 10, 400, rgb("#4d4038"), rgb("#86604f"), 7, 0.08
    )
    for x, y in ends:
        if rng.random() < 0.6:
            oval(
                layer.ctx,
                x,
                y,
                2.0,
                1.3,
                mix(rgb("#c9d488"), rgb("#e7d9a8"), rng.random()),
                0.95,
                rng.uniform(-1, 1),
            )
    shadow = Layer()
    taper(
        shadow.ctx,
        [(1370, meadow[1370] + 8), (1450, meadow[1450] + 26), (1600, meadow[1590] + 46)],
        20,
        10,
        (0, 0, 0),
    )
    c.shadow(shadow, "#5d6f4a", 0.6, 5)
    c.put(layer)
    layer = Layer()
    details.kite(
        layer.ctx,
        rng,
        520,
        240,
        62,
        0.62,
        [rgb(k) for k in ("#e8503a", "#f6b23c", "#fff3dd")],
        (1046, meadow[1046] - 14),
        rgb("#5d6a78"),
    )
    details.fence(
        layer.ctx,
        rng,
        [(x, meadow[x] + 12 + 0.02 * (x - 980), 1.0) for x in range(962, 1340, 42)],
        30,
        rgb("#76685c"),
    )
    for _ in range(5):
        details.bird(
            layer.ctx,
            rng.uniform(820, 1010),
            rng.uniform(190, 300),
            rng.uniform(9, 14),
            rng.uniform(0.2, 1),
            rng.uniform(-0.3, 0.1),
            rgb("#4d6178"),
            0.85,
        )
    c.put(layer)

    layer = Layer()
    ctx = layer.ctx
    patch = smoothstep(0.34, 0.54, noise.fbm2(rng, H, W, 130, 260, 3))
    plants.grass(
        ctx,
        rng,
        [s for s in plants.drift(rng, 7000, 0, W, 885, 1215) if s[1] > meadow[int(s[0])] + 6],
        Ramp("#4d7336", "#7f9d46", "#b5bd62", "#d9cf8a"),
        7,
        46,
        0.42,
        1.1,
    )
    violet, lilac, gold = (
        Ramp("#4b2a86", "#7a4fc0", "#b593ea"),
        Ramp("#8d6cc4", "#c3a6ea", "#f0e3ff"),
        Ramp("#c98a16", "#f2b92e", "#ffe58a"),
    )
    green, orange = rgb("#4f7d3c"), rgb("#f49a1f")
    plants.speckle(
        ctx,
        rng,
        plants.drift(rng, 1200, 0, W, 905, 985, patch),
        [rgb("#8a63cc"), rgb("#b493e6"), rgb("#f4f1fa"), rgb("#f2c33f")],
        1.0,
        3.2,
    )
    for x, y, t in plants.drift(rng, 700, -20, W + 20, 975, 1215, patch, 0.85):
        size = 9 + 31 * t
        kind = rng.random()
        if kind < 0.26:
            plants.snowdrop(
                ctx, rng, x, y, size * 1.05, rgb("#ffffff"), rgb("#d3dfe6"), rgb("#55844a")
            )
        else:
            plants.crocus(
                ctx,
                rng,
                x,
                y,
                size,
                violet if kind < 0.62 else lilac if kind < 0.86 else gold,
                green,
                orange,
            )
    c.put(layer)
    c.bloom(0.86, 26, 0.25)
    return c
