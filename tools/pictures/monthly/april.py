# SPDX-License-Identifier: GPL-3.0-or-later
"""April: blossom and a rainbow."""

import numpy as np

from . import details, ground, noise, plants, sky, terrain, trees
from .brush import oval
from .canvas import H, W, XX, YY, Canvas, Layer
from .noise import smoothstep
from .palette import Ramp, mix, rgb
from .terrain import ridge


def april():
    c = Canvas(404)
    rng = c.rng
    c.sky(Ramp((0, "#5876a4"), (0.40, "#83a1c2"), (0.75, "#bfd3dd"), (1, "#eef0de")), 660)
    sky.streaks(c, "#54698f", 0.45, -160, 300, (70, 330), 0.46, 0.8)
    for x, base, wide, high in ((1180, 250, 900, 240), (1500, 360, 560, 160), (760, 170, 640, 170)):
        sky.cumulus(
            c,
            x,
            base,
            wide,
            high,
            "#b9c3d2",
            "#566887",
            light=(-0.8, -0.45),
            opacity=0.85,
            puffs=44,
        )
    _shower(c, 900, 1600, 280, 690, "#8495ad", 0.5)
    sky.gradient_light(c, "#fff3cf", (150, 330), (620, 420), 0.55)
    for x, base, wide, high in ((190, 330, 520, 150), (480, 470, 300, 70), (60, 520, 260, 64)):
        sky.cumulus(c, x, base, wide, high, "#fffaf0", "#b4bfd0", light=(-0.7, -0.7), puffs=40)
    sky.rainbow(c, 860, 930, 640, 62, 0.43, 700)

    fresh = ("#9fc86a", "#86b85a", "#c3d576", "#77a855", "#e6d95e", "#a9c97c")
    specs = (
        (652, 36, 380, "#9db7a9", "#b4cba0", 60),
        (700, 36, 480, "#8fb383", "#a5c47c", -80),
        (768, 32, 600, "#7fb05c", "#9ac35c", 60),
    )
    for i, (base, amp, cell, top, low, tilt) in enumerate(specs):
        edge = ridge(rng, base, amp, cell, 4, 0.36, tilt=tilt)
        if i == 1:
            layer = Layer()
            trees.wood_edge(
                layer.ctx,
                rng,
                edge,
                0,
                W,
                13,
                20,
                40,
                Ramp("#6d9470", "#a9cc86"),
                trees.leafy,
                5,
                noise.line(rng, W, 240, 3) - 0.05,
                light=-0.7,
            )
            c.put(layer)
        terrain.hill(
            c,
            edge,
            Ramp(top, low),
            220,
            (330, 620, "#f6f2b4", 0.55),
            0.16,
            0.03,
            slope=-0.25,
            rim=0.3,
            rim_colour="#fbf7d0",
        )
        terrain.fields(
            c,
            edge,
            [mix(rgb(b), rgb("#cfdccf"), 0.40 - 0.17 * i) for b in fresh],
            0.65,
            (180 + 50 * i, 24 + 8 * i),
            150 + 40 * i,
        )
        layer = Layer()
        haze = 0.42 - 0.18 * i
        greens = Ramp("#4d8046", "#83b552", "#c5dc7c").toward("#cddccf", haze)
        bloom = Ramp("#c98fa4", "#f1c3d0", "#fff4f4").toward("#d8dcd8", haze)
        spots = trees.scatter(rng, edge, 34 - 6 * i, 0, W, 4, 80 + 30 * i)
        ground.tree_shadows(c, [(x, y, (20 + 18 * i)) for x, y, t in spots], "#55785a", 0.6, 1, 3)
        for x, y, t in spots:
            trees.leafy(
                layer.ctx,
                rng,
                x,
                y,
                (20 + 18 * i) * rng.uniform(0.7, 1.25),
                bloom if rng.random() < 0.45 else greens,
                rgb("#5d5048"),
                light=-0.8,
            )
        c.put(layer)
        terrain.mist(c, 66, 42, "#e3eadb", 0.30, edge=edge)
    layer = Layer()
    for k, x in enumerate((486, 520, 548, 585)):
        details.house(
            layer.ctx,
            rng,
            x,
            772 + (k % 2) * 6,
            20,
            rgb("#f3ead8"),
            rgb("#cdbfae"),
            rgb("#a85f4a"),
            rgb("#b96a52"),
            rgb("#6d7a8c"),
            None,
            1 if k % 2 else -1,
            1.0,
            1,
        )
    details.church(
        layer.ctx, 560, 768, 74, rgb("#f5eedf"), rgb("#cfc4b4"), rgb("#7d5a58"), rgb("#6d7a8c")
    )
    c.put(layer)

    meadow = ridge(rng, 862, 20, 700, 3, 0.3, tilt=40, bumps=((200, 330, 36),))
    terrain.hill(
        c,
        meadow,
        Ramp("#a8cf5c", "#82b848", "#569a40", "#36783a"),
        350,
        (330, 700, "#f3f3a4", 0.55),
        0.2,
        0.05,
        slope=-0.2,
        rim=0.35,
        rim_colour="#f6f7bc",
    )
    _orchard(c, meadow)
    return c


def _shower(c, x0, x1, top, bottom, tint, strength):
    """Slanting veils of distant rain."""
    sheared = np.clip(XX + (YY - top) * 0.28, 0, W + 400)
    veil = noise.line(c.rng, W + 500, 150, 5, 0.6)[sheared.astype(np.int32)]
    side = smoothstep(x0, x0 + 320, XX) * smoothstep(x1 + 500, x1, XX)
    band = smoothstep(top - 40, top + 140, YY) * smoothstep(bottom + 40, bottom - 160, YY)
    c.blend(
        tint,
        np.clip(smoothstep(-0.35, 0.6, veil) * side * band * strength, 0, 1).astype(np.float32),
    )


def _orchard(c, meadow):
    """Two loose rows of blossoming trees, petals in the grass below them."""
    rng = c.rng
    pink = (
        Ramp("#a8607c", "#e09cb3", "#f7cbd6", "#fff3f3"),
        Ramp("#a87c92", "#dfb3c2", "#f7dde0", "#fff8f4"),
        Ramp("#a0607c", "#dc90aa", "#f7c6d4", "#fff3f4"),
    )
    places = [
        (905, 893, 84),
        (990, 890, 78),
        (1075, 894, 88),
        (800, 897, 98),
        (690, 903, 112),
        (1180, 902, 112),
        (560, 916, 140),
        (1300, 922, 160),
        (395, 936, 190),
        (1420, 962, 280),
        (1570, 1010, 420),
        (170, 985, 330),
        (-30, 1030, 430),
    ]
    ground.tree_shadows(c, places, "#3d6a48", 0.62, 1, 7)
    layer = Layer()
    plants.grass(
        layer.ctx,
        rng,
        [s for s in plants.drift(rng, 5200, 0, W, 880, 1080) if s[1] > meadow[int(s[0])] + 8],
        Ramp("#3f8038", "#74ae45", "#b3d666", "#dcea92"),
        6,
        26,
        0.12,
    )
    c.put(layer)
    layer = Layer()
    for i, (x, y, h) in enumerate(places):
        trees.leafy(
            layer.ctx,
            rng,
            x,
            y,
            h,
            pink[i % 3],
            rgb("#55423f"),
            light=-0.8,
            width=1.06,
            crown=0.74,
            gaps=0.10,
        )
    plants.footing(layer.ctx, rng, places, Ramp("#35773a", "#6fae44", "#b3d666"))
    c.put(layer)
    layer = Layer()
    ctx = layer.ctx
    plants.grass(
        ctx,
        rng,
        plants.drift(rng, 4200, 0, W, 1050, 1225),
        Ramp("#2f7034", "#5c9e40", "#a2cc5a", "#d8e88c"),
        24,
        58,
        0.14,
    )
    patch = smoothstep(0.35, 0.6, noise.fbm2(rng, H, W, 130, 240, 3))
    plants.speckle(
        ctx,
        rng,
        plants.drift(rng, 900, 0, W, 900, 1070, patch),
        [rgb("#fff0f2"), rgb("#f9d9e0"), rgb("#ffe873"), rgb("#ffffff")],
        0.9,
        2.8,
    )
    for x, y, t in plants.drift(rng, 150, 0, W, 1070, 1225, patch):
        if rng.random() < 0.55:
            plants.dandelion(ctx, rng, x, y, 8 + 9 * t)
        else:
            plants.daisy(
                ctx,
                rng,
                x,
                y,
                8 + 8 * t,
                rgb("#ffffff"),
                rgb("#f6c634"),
                rgb("#4f8f3c"),
                rgb("#d8d0e0"),
            )
    for _ in range(120):
        x, y = rng.uniform(0, W), rng.uniform(620, 1180)
        oval(
            ctx,
            x,
            y,
            rng.uniform(1.6, 3.6),
            rng.uniform(1.0, 2.0),
            mix(rgb("#ffffff"), rgb("#f6bccb"), rng.random()),
            0.85,
            rng.uniform(0, 3),
        )
    c.put(layer)
    c.bloom(0.86, 26, 0.25)
