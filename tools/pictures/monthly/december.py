# SPDX-License-Identifier: GPL-3.0-or-later
"""December: a village on a winter night."""

import numpy as np

from . import details, plants, sky, terrain, trees
from .brush import dot, oval
from .canvas import H, W, XX, YY, Canvas, Layer
from .palette import Ramp, mix, rgb
from .terrain import ridge


# y, house size, count, first and last column of each row of houses
STREETS = (
    (838, 17, 11, 560, 1010),
    (858, 22, 12, 510, 1070),
    (882, 28, 11, 475, 1110),
    (914, 36, 9, 470, 1120),
    (956, 46, 6, 540, 1060),
)


def december():
    c = Canvas(1212)
    rng = c.rng
    c.sky(Ramp((0, "#0b1636"), (0.45, "#18305f"), (0.8, "#33598a"), (1, "#7396b4")), 700)
    sky.milky_way(c, (150, -60), (760, 640), 150, "#a9bdf0", 0.22, 1500)
    sky.stars(c, 620, 640, clear=((1230, 210, 120),))
    sky.moon(c, 1230, 210, 46, "#fdf6e0", "#b9c0cf", 1, "#cfe0ff", 0.55)

    far = [
        (60, 260, 240, 190),
        (395, 300, 210, 268),
        (560, 150, 330, 190),
        (1010, 330, 300, 300),
        (1220, 170, 240, 206),
        (1560, 300, 200, 240),
    ]
    terrain.mountains(
        c,
        680,
        far,
        "#7c98c4",
        "#2f4d7e",
        "#5f82a8",
        340,
        side=1,
        snow=("#c6d8f2", "#4a6a9c", 230),
        contrast=1.4,
    )
    terrain.mist(c, 655, 60, "#7f9fbe", 0.5)

    snow = (rgb("#c0d3ee"), rgb("#5b7bb0"))
    groves = (
        ((120, 14, 190, 50), (520, 12, 160, 40), (1130, 12, 240, 70), (1500, 12, 120, 24)),
        ((260, 22, 150, 26), (900, 18, 110, 16), (1330, 26, 190, 34)),
    )
    for base, amp, size, top, low, tilt, grove in (
        (664, 36, 30, "#7f9cc6", "#5f80b0", 40, groves[0]),
        (730, 34, 52, "#86a3ce", "#4d70a8", -60, groves[1]),
    ):
        edge = ridge(rng, base, amp, 420, 4, 0.35, tilt=tilt)
        terrain.hill(
            c,
            edge,
            Ramp(top, low),
            220,
            (1230, 520, "#cfe0f8", 0.4),
            0.16,
            0.014,
            slope=0.14,
            rim=0.3,
            rim_colour="#dbe8ff",
        )
        layer = Layer()
        trees.copse(
            layer.ctx,
            rng,
            edge,
            grove,
            Ramp("#152c52", "#3a5a90"),
            trees.fir,
            size * 0.6,
            size * 1.35,
            light=1,
            snow=snow,
        )
        c.put(layer)
        terrain.mist(c, 40, 30, "#7593bd", 0.3, edge=edge)

    valley = ridge(rng, 812, 14, 620, 3, 0.3, bumps=((100, 280, 50), (1560, 330, 60)))
    terrain.hill(
        c,
        valley,
        Ramp("#8fabd8", "#5c7fba", "#2f5292"),
        420,
        (1180, 620, "#d3e2fa", 0.35),
        0.16,
        0.014,
        cell=(80, 520),
        slope=0.16,
    )
    _village(c, valley)

    front = ridge(rng, 1030, 20, 560, 3, 0.3, tilt=60, bumps=((1500, 480, 120), (40, 260, 130)))
    layer = Layer()
    for x, size in (
        (300, 190),
        (225, 300),
        (1290, 215),
        (1385, 330),
        (150, 410),
        (1470, 430),
        (40, 560),
        (1560, 610),
        (1330, 150),
    ):
        trees.fir(
            layer.ctx,
            rng,
            x,
            front[min(W - 1, x)] + 12,
            size,
            Ramp("#081a38", "#23447a"),
            rgb("#15162c"),
            1 if x < 1230 else -1,
            (rgb("#d6e4f8"), rgb("#5577b2")),
        )
    c.put(layer)
    terrain.hill(
        c,
        front,
        Ramp("#9db7e0", "#5f82be", "#2a4a8a"),
        300,
        (900, 520, "#dbe6fa", 0.35),
        0.18,
        0.014,
        cell=(80, 420),
        slope=0.2,
        rim=0.3,
        rim_colour="#e6f0ff",
    )
    layer = Layer()
    for x, y, t in plants.drift(rng, 240, 0, W, 980, 1200):
        if y > front[int(x)] + 14:
            dot(layer.ctx, x, y, rng.uniform(0.6, 1.6), rgb("#f2f8ff"), rng.uniform(0.3, 0.9))
    c.put(layer)
    c.bloom(0.82, 20, 0.3)
    return c


def _village(c, valley):
    """Houses around a church, far ones first, each window throwing its light on the snow."""
    rng = c.rng
    layer, spots = Layer(), []
    ctx = layer.ctx
    firs, needles = Ramp("#0e2347", "#2f5186"), (rgb("#c3d5f0"), rgb("#5b7bb0"))
    for row, (y, size, count, x0, x1) in enumerate(STREETS):
        if row == 3:
            _church(ctx, rng, spots)
        places = np.linspace(x0, x1, count) + rng.uniform(-size * 0.3, size * 0.3, count)
        for x in places:
            if row > 2 and 730 < x < 880:
                continue
            foot = y - 26 * ((x - 800) / 330) ** 2 * (row < 4) + rng.uniform(-4, 4)
            if rng.random() < 0.6:
                trees.fir(
                    ctx,
                    rng,
                    x - size * rng.uniform(0.4, 0.9),
                    foot - 3,
                    size * rng.uniform(1.6, 2.6),
                    firs,
                    rgb("#1a1c30"),
                    1,
                    needles,
                )
            wall = mix(
                rgb("#6d6488"),
                rgb(("#9a7466", "#66719a", "#866f88", "#a88a70")[int(rng.integers(4))]),
                0.7,
            )
            for p in details.house(
                ctx,
                rng,
                x,
                foot,
                size * rng.uniform(0.9, 1.15),
                wall,
                mix(wall, rgb("#16224c"), 0.62),
                rgb("#3a456e"),
                rgb("#34406c"),
                rgb("#ffd27c"),
                (rgb("#dce8fa"), rgb("#93aedb")),
                1 if rng.random() < 0.6 else -1,
                0.85,
                2,
            ):
                spots.append((*p, size))
            for _ in range(7):
                oval(
                    ctx,
                    x + rng.uniform(-0.3, 1.6) * size,
                    foot + rng.uniform(-0.02, 0.07) * size,
                    size * 0.32,
                    size * 0.07,
                    mix(rgb("#7e9bd0"), rgb("#d8c8c4"), rng.uniform(0, 0.5)),
                )
    c.put(layer)
    warm = np.zeros((H, W), np.float32)
    for x, y, size in spots:
        r = size * 0.8
        warm += 0.10 * np.exp(-(((XX - x) / r) ** 2 + ((YY - y) / r) ** 2))
        warm += 0.15 * np.exp(-(((XX - x) / r) ** 2 + ((YY - y - size * 0.72) / (r * 0.36)) ** 2))
    c.screen("#ffa850", np.clip(warm, 0, 0.6))
    c.glow(800, 880, 400, "#ff9c4a", 0.07, 2.4)
    for x, y in ((640, 800), (905, 806), (1010, 818)):
        details.smoke(c, x, y, 150, 46, "#b5c6de", 0.9, 4)


def _church(ctx, rng, spots):
    white, dim, roof = rgb("#7f7e9f"), rgb("#3f4a7c"), rgb("#31477c")
    details.church(ctx, 770, 916, 215, white, dim, roof, rgb("#ffdb90"))
    for p in details.house(
        ctx,
        rng,
        800,
        922,
        58,
        white,
        dim,
        rgb("#3a456e"),
        rgb("#34406c"),
        rgb("#ffd27c"),
        (rgb("#dce8fa"), rgb("#93aedb")),
        1,
        1.0,
        3,
    ):
        spots.append((*p, 40))
    spots.append((790, 818, 22))
    for _ in range(16):
        oval(ctx, 770 + rng.uniform(-10, 140), 921 + rng.uniform(-2, 4), 20, 4, rgb("#8ea8d8"))
