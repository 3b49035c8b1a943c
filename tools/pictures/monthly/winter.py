# SPDX-License-Identifier: GPL-3.0-or-later
"""December, January, February."""

import numpy as np

from . import details, noise, plants, sky, terrain, trees, water
from .brush import dot, oval, poly, stroke, taper
from .canvas import H, W, XX, YY, Canvas, Layer
from .noise import smoothstep
from .palette import Ramp, mix, rgb
from .terrain import ridge


def _snow_hill(canvas, edge, top, low, span, warm, at):
    return terrain.hill(canvas, edge, Ramp(top, mix(rgb(top), rgb(low), 0.55), low), span,
                        (at, 520, warm, 0.55), form=0.16, grain=0.014, cell=(90, 520), slope=0.16,
                        rim=0.35, rim_colour=warm)


def _spill(canvas, x, y, wide, high, tint, strength):
    """Window light lying on the snow in front of a house."""
    d = ((XX - x) / wide) ** 2 + ((YY - y) / high) ** 2
    canvas.screen(tint, np.exp(-d * 1.6) * strength * smoothstep(y - high * 0.5, y, YY))


def january():
    c = Canvas(101)
    rng = c.rng
    c.sky(Ramp((0, "#2f4a7d"), (0.35, "#5a72a8"), (0.62, "#a594bd"), (0.82, "#eeb2ac"), (1, "#fcd3ac")), 720)
    sky.streaks(c, "#f7b9b6", 0.5, 130, 520, (22, 520), 0.52, 0.8)
    sky.gradient_light(c, "#ffe2b8", (1130, 640), (620, 210), 0.6)
    sky.stars(c, 90, 330, power=0.55)
    sky.moon(c, 330, 190, 30, "#fff6e2", "#7d88b5", 0.36, "#dfe3ff", 0.35)

    far = [(90, 300, 330, 205), (505, 300, 340, 330), (690, 160, 300, 232), (985, 240, 230, 176),
           (1310, 330, 260, 290), (1490, 190, 330, 214)]
    terrain.mountains(c, 672, far, "#b7a0b8", "#5d6c9c", "#dcc0cc", 330, side=1, snow=("#ffd9cd", "#8790c2", 200))
    terrain.mist(c, 640, 70, "#f3cfcb", 0.75)

    snow = (rgb("#f0dbe2"), rgb("#a3a8d2"))
    groves = (((150, 16, 170, 46), (560, 10, 220, 60), (900, 12, 120, 26), (1420, 14, 230, 60)),
              ((60, 22, 120, 26), (420, 26, 150, 30), (760, 20, 90, 12), (1500, 26, 150, 22)))
    for base, amp, top, low, size, tilt, grove in ((668, 34, "#cbb9d3", "#b9b4d6", 30, -20, groves[0]),
                                                   (732, 40, "#c3bfe0", "#a9b2dc", 58, 46, groves[1])):
        edge = ridge(rng, base, amp, 420, 4, tilt=tilt)
        _snow_hill(c, edge, top, low, 230, "#ffd6c4", 1130)
        layer = Layer()
        ramp = Ramp("#465684", "#8088b2") if size < 40 else Ramp("#2c4270", "#5a6d9e")
        trees.copse(layer.ctx, rng, edge, grove, ramp, trees.fir, size * 0.6, size * 1.35, light=1, snow=snow)
        c.put(layer)
        terrain.mist(c, 40, 34, "#e6cbd8", 0.35, edge=edge)

    edge = ridge(rng, 838, 30, 620, 3, 0.3, tilt=-60, bumps=((330, 260, 40),))
    layer = Layer()
    for x in np.sort(rng.uniform(-30, 480, 16)):
        trees.fir(layer.ctx, rng, x, edge[int(np.clip(x, 0, W - 1))] + 6, rng.uniform(70, 150), Ramp("#1d3460", "#4a6292"),
                  rgb("#2a2f4d"), 1, (rgb("#e9dcec"), rgb("#97a5d6")))
    c.put(layer)
    _snow_hill(c, edge, "#d3cfec", "#95a6da", 300, "#ffd9c6", 1160)

    # the cabin stands on its own soft rise, in front of a dark wood that sets off its light
    edge2 = ridge(rng, 930, 16, 700, 3, 0.3, bumps=((1110, 360, 62),))
    layer = Layer()
    for x, size in ((840, 210), (905, 270), (1000, 235), (1330, 300), (1410, 250), (1475, 330), (1545, 270), (1598, 350), (1260, 215)):
        trees.fir(layer.ctx, rng, x, edge2[min(W - 1, x)] + 4, size, Ramp("#142a52", "#3f5a8c"),
                  rgb("#2a2540"), 1, (rgb("#efe3f0"), rgb("#8496cf")))
    c.put(layer)
    details.smoke(c, 1163, 722, 360, -110, "#f6e3e4", 1.5, 9)
    _snow_hill(c, edge2, "#c9cdf0", "#7f96d2", 330, "#ffdccb", 1120)
    layer = Layer()
    ctx = layer.ctx
    poly(ctx, [(1152, 790), (1174, 786), (1174, 728), (1152, 730)], rgb("#5b4a5c"))
    poly(ctx, [(1149, 732), (1177, 730), (1177, 719), (1149, 721)], rgb("#eee6f4"))
    spots = details.house(ctx, rng, 1052, 880, 96, rgb("#7a5048"), rgb("#523a4c"), rgb("#4a3a4c"), rgb("#43395a"),
                          rgb("#ffd27a"), (rgb("#f7e9ee"), rgb("#b5bce6")), 1, 1.0, 2)
    for k in range(7):
        stroke(ctx, [(1053, 876 - k * 8.4), (1147, 876 - k * 8.4)], 1.0, rgb("#3b2433"), 0.35)
    for k in range(9):
        x = 1030 + k * 17 + rng.uniform(-4, 4)
        oval(ctx, x, 884 + rng.uniform(-3, 2), 22, 6.5, mix(rgb("#cfd0f0"), rgb("#ffd9b0"), rng.uniform(0.1, 0.5)))
    c.put(layer)
    for x, y in spots:
        c.glow(x, y, 42, "#ffb65c", 0.34)
        _spill(c, x + (x - 1100) * 0.3, 900, 60, 42, "#ff9d4a", 0.30)
    c.glow(1110, 850, 230, "#ff9a52", 0.20)

    # a trodden path leads the eye from the corner to the door
    layer = Layer()
    t = np.linspace(0, 1, 46)
    px = 470 + 600 * t ** 0.9 + 70 * np.sin(t * 5.0)
    py = 1205 - 310 * t ** 0.72
    for i, (x, y) in enumerate(zip(px, py)):
        s = 1.2 - t[i] * 0.95
        off = (8 if i % 2 else -8) * s
        oval(layer.ctx, x + off, y + rng.uniform(-2, 2), 9.5 * s, 4.6 * s, rgb("#5468b4"), 0.85, -0.5)
        oval(layer.ctx, x + off + 2 * s, y + 2.5 * s, 8 * s, 2.6 * s, rgb("#f0e8fa"), 0.7, -0.5)
    c.put(layer, soft=1)

    front = ridge(rng, 1120, 18, 520, 3, 0.3, bumps=((60, 330, 74), (1560, 300, 60)))
    layer = Layer()
    for x, y, size in ((70, 1075, 420), (205, 1082, 285), (-30, 1100, 330)):
        trees.fir(layer.ctx, rng, x, y, size, Ramp("#10244a", "#34507f"), rgb("#231f38"), 1, (rgb("#f4e6ee"), rgb("#7d92d0")))
    c.put(layer)
    _snow_hill(c, front, "#b9c3ee", "#6883c8", 300, "#f3d3dc", 800)
    layer = Layer()
    details.snowfall(layer.ctx, rng, 300, rgb("#ffffff"))
    c.put(layer, 0.75)
    c.bloom(0.80, 26, 0.35)
    return c


def february():
    c = Canvas(202)
    rng = c.rng
    c.sky(Ramp((0, "#8fb4cf"), (0.4, "#bcd3da"), (0.7, "#f0dfc8"), (0.88, "#fbcfa4"), (1, "#f9b98f")), 610)
    sky.streaks(c, "#fbe3cf", 0.7, 60, 480, (18, 560), 0.5, 0.76, tilt=0.03)
    sky.streaks(c, "#e9a894", 0.35, 330, 560, (12, 600), 0.55, 0.8)
    sky.sun(c, 690, 548, 38, "#fff3d2", "#ffcf8e", 0.9)

    tints = (("#c7c3cc", "#e8cdbd", 560, 44, 300), ("#a9b4c4", "#dccdc6", 588, 30, 260), ("#8ba0b4", "#cfcfcf", 606, 24, 220))
    for i, (top, low, base, amp, cell) in enumerate(tints):
        edge = ridge(rng, base, amp, cell, 5, 0.45, tilt=(-30, 40, -16)[i])
        if i:
            layer = Layer()
            ramp = Ramp(top, mix(rgb(top), rgb("#5f7488"), 0.55))
            trees.wood_edge(layer.ctx, rng, edge, 0, W, 6 + i * 2, 10 + 8 * i, 24 + 14 * i, ramp, trees.fir, 3,
                            noise.line(rng, W, 200, 3) + 0.15, light=1, snow=(rgb("#f0e0da"), rgb("#b9c4d0")))
            c.put(layer)
        terrain.hill(c, edge, Ramp(top, low), 70, (690, 330, "#ffe0b8", 0.7), 0.1, 0.02, slope=0.1)
        terrain.mist(c, base + 36, 26, "#fbe2cb", 0.7)

    level = 640
    _frozen_lake(c, level)

    bank = ridge(rng, 925, 14, 420, 4, 0.4, tilt=150, bumps=((1480, 430, 120), (150, 260, 40)))
    layer = Layer()
    ctx = layer.ctx
    bark, shade, mark, twig, frost = (rgb(k) for k in ("#fff4e8", "#9db0c4", "#3b4350", "#6a5362", "#f3eef0"))
    for x, y, h, lean in ((1350, 745, 430, -0.03), (1300, 765, 330, 0.05)):
        trees.birch(ctx, rng, x, y, h, -1, mix(bark, rgb("#cfd8e0"), 0.35), mix(shade, rgb("#cfd8e0"), 0.4), mix(mark, rgb("#9fb0c0"), 0.4), mix(twig, rgb("#b9c0cc"), 0.4), frost, lean)
    c.put(layer)
    terrain.hill(c, bank, Ramp("#eef0f2", "#c4d4e2", "#93b1cc"), 330, (690, 520, "#ffe6cd", 0.75), 0.18, 0.02, cell=(70, 420), slope=0.22, rim=0.5, rim_colour="#fff3e4")
    layer = Layer()
    ctx = layer.ctx
    for x, h, lean in ((1440, 800, -0.05), (1515, 690, 0.03), (1575, 860, -0.02), (80, 760, 0.05), (20, 640, 0.0)):
        trees.birch(ctx, rng, x, bank[x] + 30, h, 1 if x < 690 else -1, bark, shade, mark, twig, frost, lean)
    shadow = Layer()
    for x, lean in ((1440, 0.6), (1515, 0.75), (1575, 0.8), (80, -0.6), (20, -0.7)):
        y = bank[x] + 30
        taper(shadow.ctx, [(x, y), (x + lean * 180, y + 130), (x + lean * 420, y + 330)], 16, 26, (0, 0, 0))
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
    rows = np.clip(near ** 0.55 * H * 0.95, 0, H - 1).astype(np.int32)
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


def december():
    c = Canvas(1212)
    rng = c.rng
    c.sky(Ramp((0, "#0b1636"), (0.45, "#18305f"), (0.8, "#33598a"), (1, "#7396b4")), 700)
    sky.milky_way(c, (150, -60), (760, 640), 150, "#a9bdf0", 0.22, 1500)
    sky.stars(c, 620, 640, clear=((1230, 210, 120),))
    sky.moon(c, 1230, 210, 46, "#fdf6e0", "#b9c0cf", 1, "#cfe0ff", 0.55)

    far = [(60, 260, 240, 190), (395, 300, 210, 268), (560, 150, 330, 190), (1010, 330, 300, 300),
           (1220, 170, 240, 206), (1560, 300, 200, 240)]
    terrain.mountains(c, 680, far, "#7c98c4", "#2f4d7e", "#5f82a8", 340, side=1, snow=("#c6d8f2", "#4a6a9c", 230))
    terrain.mist(c, 655, 60, "#7f9fbe", 0.5)

    snow = (rgb("#c0d3ee"), rgb("#5b7bb0"))
    groves = (((120, 14, 190, 50), (520, 12, 160, 40), (1130, 12, 240, 70), (1500, 12, 120, 24)),
              ((260, 22, 150, 26), (900, 18, 110, 16), (1330, 26, 190, 34)))
    for base, amp, size, top, low, tilt, grove in ((664, 36, 30, "#7f9cc6", "#5f80b0", 40, groves[0]),
                                                   (730, 34, 52, "#86a3ce", "#4d70a8", -60, groves[1])):
        edge = ridge(rng, base, amp, 420, 4, 0.35, tilt=tilt)
        terrain.hill(c, edge, Ramp(top, low), 220, (1230, 520, "#cfe0f8", 0.4), 0.16, 0.014, slope=0.14, rim=0.3, rim_colour="#dbe8ff")
        layer = Layer()
        trees.copse(layer.ctx, rng, edge, grove, Ramp("#152c52", "#3a5a90"), trees.fir, size * 0.6, size * 1.35, light=1, snow=snow)
        c.put(layer)
        terrain.mist(c, 40, 30, "#7593bd", 0.3, edge=edge)

    valley = ridge(rng, 812, 14, 620, 3, 0.3, bumps=((100, 280, 50), (1560, 330, 60)))
    terrain.hill(c, valley, Ramp("#8fabd8", "#5c7fba", "#2f5292"), 420, (1180, 620, "#d3e2fa", 0.35), 0.16, 0.014, cell=(80, 520), slope=0.16)
    _village(c, valley)

    front = ridge(rng, 1030, 20, 560, 3, 0.3, tilt=60, bumps=((1500, 480, 120), (40, 260, 130)))
    layer = Layer()
    for x, size in ((300, 190), (225, 300), (1290, 215), (1385, 330), (150, 410), (1470, 430), (40, 560), (1560, 610), (1330, 150)):
        trees.fir(layer.ctx, rng, x, front[min(W - 1, x)] + 12, size, Ramp("#081a38", "#23447a"), rgb("#15162c"), 1 if x < 1230 else -1,
                  (rgb("#d6e4f8"), rgb("#5577b2")))
    c.put(layer)
    terrain.hill(c, front, Ramp("#9db7e0", "#5f82be", "#2a4a8a"), 300, (900, 520, "#dbe6fa", 0.35), 0.18, 0.014, cell=(80, 420), slope=0.2, rim=0.3, rim_colour="#e6f0ff")
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
    rows = ((846, 17, 10, 520, 1100), (872, 23, 8, 470, 1150), (908, 31, 7, 440, 1180), (956, 42, 4, 520, 1080))
    for row, (y, size, count, x0, x1) in enumerate(rows):
        if row == 2:
            details.church(ctx, 770, 900, 190, rgb("#8c8fae"), rgb("#4c5888"), rgb("#2c4274"), rgb("#ffd98c"))
            spots.append((784, 812, 26))
        places = np.linspace(x0, x1, count) + rng.uniform(-size * 0.5, size * 0.5, count)
        for x in places:
            if rng.random() < 0.55:
                trees.fir(ctx, rng, x - size * 0.7, y + 1, size * rng.uniform(1.5, 2.4), Ramp("#0e2347", "#2f5186"), rgb("#1a1c30"), 1, (rgb("#c3d5f0"), rgb("#5b7bb0")))
            wall = mix(rgb("#8a7f98"), rgb(("#a8836f", "#7c86a8", "#9a8aa0")[int(rng.integers(3))]), 0.6)
            for p in details.house(ctx, rng, x, y + rng.uniform(-5, 5), size, wall, mix(wall, rgb("#1d2c58"), 0.55), rgb("#3a456e"), rgb("#34406c"),
                                   rgb("#ffcf74"), (rgb("#d5e2f6"), rgb("#8fa9d6")), 1 if rng.random() < 0.6 else -1, 0.82, 2):
                spots.append((*p, size))
    c.put(layer)
    warm = np.zeros((H, W), np.float32)
    for x, y, size in spots:
        r = size * 0.9
        warm += 0.13 * np.exp(-(((XX - x) / r) ** 2 + ((YY - y) / r) ** 2))
        warm += 0.15 * np.exp(-(((XX - x) / (r * 1.1)) ** 2 + ((YY - y - size * 0.75) / (r * 0.45)) ** 2))
    c.screen("#ffae55", np.clip(warm, 0, 0.75))
    c.glow(800, 890, 420, "#ff9c4a", 0.10, 2.2)
    for x in (610, 880, 1010):
        details.smoke(c, x + 12, 842, 150, 46, "#a9bcd8", 0.5, 4)
