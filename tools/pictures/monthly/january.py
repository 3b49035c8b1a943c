# SPDX-License-Identifier: GPL-3.0-or-later
"""January: a cabin in the snow, blue hour."""

import numpy as np

from . import details, sky, terrain, trees
from .brush import oval, poly, stroke
from .canvas import W, XX, YY, Canvas, Layer
from .noise import smoothstep
from .palette import Ramp, mix, rgb
from .terrain import ridge


def january():
    c = Canvas(101)
    rng = c.rng
    c.sky(
        Ramp(
            (0, "#2f4a7d"), (0.35, "#5a72a8"), (0.62, "#a594bd"), (0.82, "#eeb2ac"), (1, "#fcd3ac")
        ),
        720,
    )
    sky.streaks(c, "#f7b9b6", 0.5, 130, 520, (22, 520), 0.52, 0.8)
    sky.gradient_light(c, "#ffe2b8", (1130, 640), (620, 210), 0.6)
    sky.stars(c, 90, 330, power=0.55)
    sky.moon(c, 330, 190, 30, "#fff6e2", "#7d88b5", 0.36, "#dfe3ff", 0.35)

    far = [
        (90, 300, 330, 205),
        (505, 300, 340, 330),
        (690, 160, 300, 232),
        (985, 240, 230, 176),
        (1310, 330, 260, 290),
        (1490, 190, 330, 214),
    ]
    terrain.mountains(
        c,
        672,
        far,
        "#b7a0b8",
        "#5d6c9c",
        "#dcc0cc",
        330,
        side=1,
        snow=("#ffd6c8", "#7c86bc", 210),
        contrast=1.5,
    )
    terrain.mist(c, 640, 70, "#f3cfcb", 0.75)

    snow = (rgb("#f0dbe2"), rgb("#a3a8d2"))
    groves = (
        ((150, 16, 170, 46), (560, 10, 220, 60), (900, 12, 120, 26), (1420, 14, 230, 60)),
        ((60, 22, 120, 26), (420, 26, 150, 30), (760, 20, 90, 12), (1500, 26, 150, 22)),
    )
    for base, amp, top, low, size, tilt, grove in (
        (668, 34, "#cbb9d3", "#b9b4d6", 30, -20, groves[0]),
        (732, 40, "#c3bfe0", "#a9b2dc", 58, 46, groves[1]),
    ):
        edge = ridge(rng, base, amp, 420, 4, tilt=tilt)
        _snow_hill(c, edge, top, low, 230, "#ffd6c4", 1130)
        layer = Layer()
        ramp = Ramp("#465684", "#8088b2") if size < 40 else Ramp("#2c4270", "#5a6d9e")
        trees.copse(
            layer.ctx,
            rng,
            edge,
            grove,
            ramp,
            trees.fir,
            size * 0.6,
            size * 1.35,
            light=1,
            snow=snow,
        )
        c.put(layer)
        terrain.mist(c, 40, 34, "#e6cbd8", 0.35, edge=edge)

    edge = ridge(rng, 838, 30, 620, 3, 0.3, tilt=-60, bumps=((330, 260, 40),))
    layer = Layer()
    for x in np.sort(rng.uniform(-30, 480, 16)):
        trees.fir(
            layer.ctx,
            rng,
            x,
            edge[int(np.clip(x, 0, W - 1))] + 6,
            rng.uniform(70, 150),
            Ramp("#1d3460", "#4a6292"),
            rgb("#2a2f4d"),
            1,
            (rgb("#e9dcec"), rgb("#97a5d6")),
        )
    c.put(layer)
    _snow_hill(c, edge, "#d3cfec", "#95a6da", 300, "#ffd9c6", 1160)

    # the cabin stands on its own soft rise, in front of a dark wood that sets off its light
    edge2 = ridge(rng, 930, 16, 700, 3, 0.3, bumps=((1110, 360, 62),))
    layer = Layer()
    for x, size in (
        (840, 210),
        (905, 270),
        (1000, 235),
        (1330, 300),
        (1410, 250),
        (1475, 330),
        (1545, 270),
        (1598, 350),
        (1260, 215),
    ):
        trees.fir(
            layer.ctx,
            rng,
            x,
            edge2[min(W - 1, x)] + 4,
            size,
            Ramp("#142a52", "#3f5a8c"),
            rgb("#2a2540"),
            1,
            (rgb("#efe3f0"), rgb("#8496cf")),
        )
    c.put(layer)
    details.smoke(c, 1163, 722, 360, -110, "#f6e3e4", 1.5, 9)
    _snow_hill(c, edge2, "#c9cdf0", "#7f96d2", 330, "#ffdccb", 1120)
    layer = Layer()
    ctx = layer.ctx
    poly(ctx, [(1152, 790), (1174, 786), (1174, 728), (1152, 730)], rgb("#5b4a5c"))
    poly(ctx, [(1149, 732), (1177, 730), (1177, 719), (1149, 721)], rgb("#eee6f4"))
    spots = details.house(
        ctx,
        rng,
        1052,
        880,
        96,
        rgb("#7a5048"),
        rgb("#523a4c"),
        rgb("#4a3a4c"),
        rgb("#43395a"),
        rgb("#ffd27a"),
        (rgb("#f7e9ee"), rgb("#b5bce6")),
        1,
        1.0,
        2,
    )
    for k in range(7):
        stroke(ctx, [(1053, 876 - k * 8.4), (1147, 876 - k * 8.4)], 1.0, rgb("#3b2433"), 0.35)
    for k in range(9):
        x = 1030 + k * 17 + rng.uniform(-4, 4)
        oval(
            ctx,
            x,
            884 + rng.uniform(-3, 2),
            22,
            6.5,
            mix(rgb("#cfd0f0"), rgb("#ffd9b0"), rng.uniform(0.1, 0.5)),
        )
    c.put(layer)
    for x, y in spots:
        c.glow(x, y, 42, "#ffb65c", 0.34)
        _spill(c, x + (x - 1100) * 0.3, 900, 60, 42, "#ff9d4a", 0.30)
    c.glow(1110, 850, 230, "#ff9a52", 0.20)

    # a trodden path leads the eye from the corner to the door
    layer = Layer()
    t = np.linspace(0, 1, 46)
    px = 470 + 600 * t**0.9 + 70 * np.sin(t * 5.0)
    py = 1205 - 310 * t**0.72
    for i, (x, y) in enumerate(zip(px, py)):
        s = 1.2 - t[i] * 0.95
        off = (8 if i % 2 else -8) * s
        oval(
            layer.ctx, x + off, y + rng.uniform(-2, 2), 9.5 * s, 4.6 * s, rgb("#5468b4"), 0.85, -0.5
        )
        oval(layer.ctx, x + off + 2 * s, y + 2.5 * s, 8 * s, 2.6 * s, rgb("#f0e8fa"), 0.7, -0.5)
    c.put(layer, soft=1)

    front = ridge(rng, 1120, 18, 520, 3, 0.3, bumps=((60, 330, 74), (1560, 300, 60)))
    layer = Layer()
    for x, y, size in ((70, 1075, 420), (205, 1082, 285), (-30, 1100, 330)):
        trees.fir(
            layer.ctx,
            rng,
            x,
            y,
            size,
            Ramp("#10244a", "#34507f"),
            rgb("#231f38"),
            1,
            (rgb("#f4e6ee"), rgb("#7d92d0")),
        )
    c.put(layer)
    _snow_hill(c, front, "#b9c3ee", "#6883c8", 300, "#f3d3dc", 800)
    layer = Layer()
    details.snowfall(layer.ctx, rng, 300, rgb("#ffffff"))
    c.put(layer, 0.75)
    c.bloom(0.80, 26, 0.35)
    return c


def _snow_hill(canvas, edge, top, low, span, warm, at):
    return terrain.hill(
        canvas,
        edge,
        Ramp(top, mix(rgb(top), rgb(low), 0.55), low),
        span,
        (at, 520, warm, 0.55),
        form=0.16,
        grain=0.014,
        cell=(90, 520),
        slope=0.16,
        rim=0.35,
        rim_colour=warm,
    )


def _spill(canvas, x, y, wide, high, tint, strength):
    """Window light lying on the snow in front of a house."""
    d = ((XX - x) / wide) ** 2 + ((YY - y) / high) ** 2
    canvas.screen(tint, np.exp(-d * 1.6) * strength * smoothstep(y - high * 0.5, y, YY))
