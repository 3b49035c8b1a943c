# SPDX-License-Identifier: GPL-3.0-or-later
"""August: ripe wheat under the stars."""

import numpy as np

from . import details, noise, plants, sky, terrain, trees
from .brush import blade, dot, leaf, oval
from .canvas import W, XX, YY, Canvas, Layer
from .noise import smoothstep
from .palette import Ramp, mix, rgb
from .terrain import ridge


def august():
    c = Canvas(808)
    rng = c.rng
    c.sky(
        Ramp(
            (0, "#152a57"),
            (0.34, "#2a568a"),
            (0.60, "#5b93a4"),
            (0.80, "#e0bd84"),
            (0.93, "#ffb45c"),
            (1, "#ff9a50"),
        ),
        720,
    )
    sky.milky_way(c, (1500, -120), (840, 560), 140, "#c9cdf4", 0.46, 2400)
    sky.stars(c, 560, 560)
    sky.streaks(c, "#ff8e62", 0.6, 430, 690, (14, 560), 0.52, 0.78)
    sky.streaks(c, "#46607f", 0.5, 400, 610, (18, 620), 0.54, 0.78)
    _meteors(
        c, ((300, 110, 470, 190, 1.0), (660, 210, 742, 262, 0.55), (1130, 330, 1070, 380, 0.4))
    )
    sky.gradient_light(c, "#ffcf7a", (560, 716), (760, 130), 0.65)

    specs = (
        (700, 26, 380, "#80658c", "#dc946c", 40),
        (726, 24, 420, "#5b4f7c", "#bd7660", -50),
        (752, 22, 520, "#3f3d60", "#96644c", 40),
    )
    for i, (base, amp, cell, top, low, tilt) in enumerate(specs):
        edge = ridge(rng, base, amp, cell, 4, 0.38, tilt=tilt)
        layer = Layer()
        ramp = (Ramp("#77647f", "#a27b78"), Ramp("#454a66", "#7f6866"), Ramp("#26303f", "#5d5548"))[
            i
        ]
        trees.wood_edge(
            layer.ctx,
            rng,
            edge,
            0,
            W,
            8 + 3 * i,
            9 + 6 * i,
            20 + 14 * i,
            ramp,
            trees.leafy,
            4,
            noise.line(rng, W, 200, 3) - 0.02,
            light=-0.4,
        )
        c.put(layer)
        terrain.hill(c, edge, Ramp(top, low), 90, (560, 420, "#ffb866", 0.6), 0.12, 0.02)
        terrain.mist(c, 34, 22, "#ffc27e", 0.30, edge=edge)
    layer = Layer()
    for k, x in enumerate((1190, 1222, 1250)):
        spots = details.house(
            layer.ctx,
            rng,
            x,
            776 - k * 2,
            19,
            rgb("#a8808a"),
            rgb("#4a4760"),
            rgb("#4d3a48"),
            rgb("#553f4c"),
            rgb("#ffdf8e"),
            None,
            1,
            0.9,
            1,
        )
        for px, py in spots[:2]:
            c.glow(px, py, 14, "#ffbf66", 0.3)
    c.put(layer)
    _wheat(c)
    c.bloom(0.80, 26, 0.3)
    return c


def _meteors(c, paths):
    for x0, y0, x1, y1, power in paths:
        length = np.hypot(x1 - x0, y1 - y0)
        ax, ay = (x1 - x0) / length, (y1 - y0) / length
        t = ((XX - x0) * ax + (YY - y0) * ay) / length
        off = (XX - x0) * -ay + (YY - y0) * ax
        width = 0.5 + 1.3 * np.clip(t, 0, 1)
        shape = np.exp(-((off / width) ** 2)) * np.clip(t, 0, 1) ** 1.6 * smoothstep(1.02, 0.99, t)
        c.screen("#fff6e2", shape * power)
        c.glow(x1, y1, 14, "#ffffff", 0.4 * power)


def _wheat(c):
    """Ripe corn in the afterglow, with a mown part, bales and a lone oak."""
    rng = c.rng
    field = ridge(rng, 806, 12, 700, 3, 0.3, tilt=50)
    d = terrain.hill(
        c,
        field,
        Ramp("#f2b95c", "#dd9c40", "#b97a30", "#865324"),
        400,
        (560, 760, "#ffd684", 0.65),
        0.14,
        0.05,
        (60, 520),
        slope=0.15,
        rim=0.5,
        rim_colour="#ffdf9a",
    )
    lanes = np.sin((XX - 620) / (np.maximum(d, 0) + 60) * 26 + 0.5)
    mown = smoothstep(170, 130, d) * smoothstep(0, 12, d)
    c.multiply("#a8743c", smoothstep(0.2, 1, lanes) * mown * 0.35)
    shadow, layer = Layer(), Layer()
    for x, y, s in (
        (300, 846, 17),
        (520, 858, 21),
        (742, 842, 16),
        (930, 872, 25),
        (1120, 850, 18),
        (1165, 868, 20),
        (150, 880, 27),
        (660, 905, 33),
    ):
        _bale(layer.ctx, shadow.ctx, rng, x, y, s)
    y = field[1330] + 30
    oval(shadow.ctx, 1420, y + 8, 190, 16, (0, 0, 0))
    c.shadow(shadow, "#6a4030", 0.6, 4)
    trees.leafy(
        layer.ctx,
        rng,
        1350,
        y,
        330,
        Ramp("#131c2a", "#253438", "#4d5036", "#a07f3c", "#f6bd5e"),
        rgb("#2a2224"),
        light=-0.85,
        width=1.1,
        crown=0.78,
        gaps=0.06,
    )
    plants.footing(layer.ctx, rng, [(1350, y, 330)], Ramp("#8a5c2a", "#d29a48"), 0.06, 0.05)
    c.put(layer)
    layer = Layer()
    ctx = layer.ctx
    gold = Ramp("#6b3d1c", "#a8692a", "#dd9f3e", "#f7c968", "#fff0b4")
    for x, y, t in plants.drift(rng, 5200, 0, W, 950, 1120, None, 0.9):
        top = 26 + 40 * t
        blade(
            ctx,
            x,
            y + 20,
            top * rng.uniform(0.8, 1.15),
            1.0 + t,
            top * rng.uniform(0.0, 0.4),
            gold(0.15 + 0.34 * t + rng.normal(0.12, 0.12)),
        )
        oval(
            ctx,
            x + top * 0.25,
            y + 20 - top * 0.95,
            1.3 + 1.4 * t,
            4 + 5 * t,
            gold(0.5 + 0.25 * t + rng.normal(0, 0.1)),
            1,
            0.4,
        )
    for x, y, t in plants.drift(rng, 1050, -30, W + 30, 1100, 1440):
        length = 110 + 130 * t
        plants.ear(
            ctx, rng, x, y + 60, length, length * rng.uniform(0.02, 0.30), gold, 1.6 + 1.7 * t
        )
    red, blue = Ramp("#3a0f1c", "#a81c22", "#d83a26", "#f26a3c", "#ffb27c"), rgb("#6f86e6")
    for x, t in ((140, 0.3), (205, 0.5), (1490, 0.4), (1180, 0.2), (820, 0.5)):
        plants.poppy(ctx, rng, x, 1130 + 60 * t, 13 + 9 * t, red, rgb("#7d7a3c"))
    for x, y in ((330, 1120), (372, 1142), (980, 1128), (1395, 1136), (1050, 1150)):
        for k in range(9):
            leaf(
                ctx,
                x,
                y,
                rng.uniform(8, 12),
                3,
                k * 0.7 + rng.uniform(-0.2, 0.2),
                mix(blue, rgb("#b8c6ff"), rng.random() * 0.5),
            )
        dot(ctx, x, y, 3, rgb("#3f4aa0"))
    c.put(layer)


def _bale(ctx, shade, rng, x, y, s):
    oval(shade, x + s * 1.0, y + s * 0.1, s * 2.0, s * 0.28, (0, 0, 0))
    deep = s * 1.25
    for k in range(12):
        oval(
            ctx,
            x + deep * (1 - k / 11),
            y - s,
            s * 0.72,
            s,
            mix(rgb("#8a5a2e"), rgb("#c88f48"), k / 11 * 0.7 + rng.uniform(0, 0.1)),
        )
    for r in (1.0, 0.8, 0.6, 0.4, 0.2):
        oval(
            ctx,
            x,
            y - s,
            s * 0.72 * r,
            s * r,
            mix(rgb("#f2c06a"), rgb("#c98a42"), (0.15, 0.5, 0.2, 0.55, 0.3)[int(5 - r * 5)]),
        )
