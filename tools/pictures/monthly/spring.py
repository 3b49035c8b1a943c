# SPDX-License-Identifier: GPL-3.0-or-later
"""March, April, May."""

import math

import numpy as np

from . import details, noise, plants, sky, terrain, trees
from .brush import dot, oval, stroke, taper
from .canvas import H, W, XX, YY, Canvas, Layer
from .noise import smoothstep
from .palette import Ramp, mix, rgb
from .terrain import ridge


def _shade_trees(c, places, tint, strength, side=1, soft=6):
    """Soft shadows lying on the ground away from the light."""
    layer = Layer()
    for x, y, h in places:
        oval(layer.ctx, x + side * h * 0.22, y + h * 0.015, h * 0.46, h * 0.065, (0, 0, 0))
    c.shadow(layer, tint, strength, soft)


def _cloud_shadows(c, top, bottom, strength):
    field = noise.fbm2(c.rng, H, W, 70, 520, 3)
    band = smoothstep(top, top + 60, YY) * smoothstep(bottom, bottom - 120, YY)
    c.multiply("#6d86a8", smoothstep(0.50, 0.66, field) * band * strength)


def march():
    c = Canvas(303)
    rng = c.rng
    c.sky(Ramp((0, "#4d8ec6"), (0.45, "#8dbfe0"), (0.8, "#cfe5ea"), (1, "#eef0e2")), 660)
    sky.streaks(c, "#ffffff", 0.65, -60, 420, (34, 380), 0.52, 0.8, tilt=-0.12)
    for x, base, wide, high in ((1290, 300, 560, 150), (260, 255, 420, 110), (760, 420, 360, 74), (1480, 470, 420, 80), (120, 500, 460, 76)):
        sky.cumulus(c, x, base, wide, high, "#ffffff", "#a9c0d6", ragged=0.5, puffs=40)

    terrain.mountains(c, 650, [(250, 420, 380, 130), (700, 380, 420, 175), (1120, 330, 300, 120), (1450, 380, 300, 160)],
                      "#a9bac6", "#8ba3ba", "#cddbdd", 260, side=-1, snow=("#f6f8f6", "#b6cbdd", 100))
    terrain.mist(c, 640, 46, "#e6eeea", 0.6)
    specs = ((664, 30, 360, "#a9b79a", "#b9c19c", 40), (716, 34, 460, "#98a878", "#a8b27e", -70), (782, 30, 560, "#8c9c58", "#a3a962", 70))
    brown = ("#b3a37c", "#a3b472", "#9a8a66", "#bcb184", "#8fae62", "#c3b994")
    for i, (base, amp, cell, top, low, tilt) in enumerate(specs):
        edge = ridge(rng, base, amp, cell, 4, 0.36, tilt=tilt)
        terrain.hill(c, edge, Ramp(top, low), 220, (500, 700, "#f3efc6", 0.35), 0.16, 0.03, slope=-0.22, rim=0.25)
        terrain.fields(c, edge, [mix(rgb(b), rgb("#dfe6d6"), 0.42 - 0.16 * i) for b in brown], 0.55, (170 + 50 * i, 22 + 8 * i), 150 + 40 * i)
        _snow_patches(c, edge, 60 + 40 * i, 0.85 - 0.3 * i)
        layer = Layer()
        wood, twig = mix(rgb("#6d6258"), rgb("#cfdadb"), 0.55 - 0.2 * i), mix(rgb("#947466"), rgb("#cfdadb"), 0.45 - 0.2 * i)
        for x, y, t in trees.scatter(rng, edge, 26 - 6 * i, 0, W, 3, 60 + 30 * i):
            trees.bare(layer.ctx, rng, x, y, (24 + 22 * i) * rng.uniform(0.7, 1.2), wood, twig, 4 + (i > 1))
        c.put(layer, 0.9)
        terrain.mist(c, 60, 40, "#dfe8e0", 0.30, edge=edge)
    _cloud_shadows(c, 690, 960, 0.5)

    meadow = ridge(rng, 878, 22, 700, 3, 0.3, tilt=-50, bumps=((1330, 360, 60),))
    terrain.hill(c, meadow, Ramp("#a9b356", "#8aa04a", "#5d8040", "#3f6636"), 340, (520, 700, "#eceaa0", 0.45), 0.2, 0.05, slope=-0.2, rim=0.3, rim_colour="#f0f0b8")
    _snow_patches(c, meadow, 60, 0.75)
    layer = Layer()
    ends = trees.bare(layer.ctx, rng, 1370, meadow[1370] + 10, 400, rgb("#4d4038"), rgb("#86604f"), 7, 0.08)
    for x, y in ends:
        if rng.random() < 0.6:
            oval(layer.ctx, x, y, 2.6, 1.7, mix(rgb("#c9d488"), rgb("#e7d9a8"), rng.random()), 0.95, rng.uniform(-1, 1))
    shadow = Layer()
    taper(shadow.ctx, [(1370, meadow[1370] + 8), (1450, meadow[1450] + 26), (1600, meadow[1590] + 46)], 20, 10, (0, 0, 0))
    c.shadow(shadow, "#5d6f4a", 0.6, 5)
    c.put(layer)
    layer = Layer()
    details.kite(layer.ctx, rng, 520, 240, 62, 0.62, [rgb(k) for k in ("#e8503a", "#f6b23c", "#fff3dd")], (1085, meadow[1085] + 20), rgb("#5d6a78"))
    for _ in range(5):
        details.bird(layer.ctx, rng.uniform(820, 1010), rng.uniform(190, 300), rng.uniform(9, 14), rng.uniform(0.2, 1), rng.uniform(-0.3, 0.1), rgb("#4d6178"), 0.85)
    c.put(layer)

    layer = Layer()
    ctx = layer.ctx
    patch = smoothstep(0.40, 0.60, noise.fbm2(rng, H, W, 150, 260, 3))
    plants.grass(ctx, rng, [s for s in plants.drift(rng, 7000, 0, W, 885, 1215) if s[1] > meadow[int(s[0])] + 6],
                 Ramp("#4d7336", "#7f9d46", "#b5bd62", "#d9cf8a"), 7, 46, 0.42, 1.1)
    violet, lilac, gold = Ramp("#4b2a86", "#7a4fc0", "#b593ea"), Ramp("#8d6cc4", "#c3a6ea", "#f0e3ff"), Ramp("#c98a16", "#f2b92e", "#ffe58a")
    green, orange = rgb("#4f7d3c"), rgb("#f49a1f")
    plants.speckle(ctx, rng, plants.drift(rng, 800, 0, W, 905, 985, patch), [rgb("#8a63cc"), rgb("#b493e6"), rgb("#f4f1fa"), rgb("#f2c33f")], 1.0, 3.2)
    for x, y, t in plants.drift(rng, 520, -20, W + 20, 975, 1215, patch, 0.85):
        size = 9 + 31 * t
        kind = rng.random()
        if kind < 0.26:
            plants.snowdrop(ctx, rng, x, y, size * 1.05, rgb("#ffffff"), rgb("#d3dfe6"), rgb("#55844a"))
        else:
            plants.crocus(ctx, rng, x, y, size, violet if kind < 0.62 else lilac if kind < 0.86 else gold, green, orange)
    c.put(layer)
    c.bloom(0.86, 26, 0.25)
    return c


def _snow_patches(c, edge, depth, strength):
    """Last snow in the hollows, level patches that thin out downhill."""
    d = terrain.under(edge)
    field = noise.fbm2(c.rng, H, W, 13, 120, 4, 0.5)
    cover = smoothstep(0.60, 0.66, terrain.along(field, d) - 0.05 * d / depth) * (d > 2) * smoothstep(depth * 2, depth, d)
    c.blend("#f2f6f8", cover * strength)


def april():
    c = Canvas(404)
    rng = c.rng
    c.sky(Ramp((0, "#5b6f92"), (0.40, "#8296b0"), (0.75, "#bccbd3"), (1, "#e9ead9")), 660)
    sky.streaks(c, "#4f6083", 0.6, -160, 330, (70, 330), 0.42, 0.75)
    for x, base, wide, high in ((1180, 250, 900, 240), (1500, 360, 560, 160), (760, 170, 640, 170)):
        sky.cumulus(c, x, base, wide, high, "#b9c3d2", "#566887", light=(-0.8, -0.45), opacity=0.85, puffs=44)
    _shower(c, 900, 1600, 280, 690, "#8495ad", 0.5)
    sky.gradient_light(c, "#fff3cf", (150, 330), (620, 420), 0.55)
    for x, base, wide, high in ((190, 330, 520, 150), (480, 470, 300, 70), (60, 520, 260, 64)):
        sky.cumulus(c, x, base, wide, high, "#fffaf0", "#b4bfd0", light=(-0.7, -0.7), puffs=40)
    sky.rainbow(c, 860, 930, 640, 62, 0.50, 700)

    fresh = ("#9fc86a", "#86b85a", "#c3d576", "#77a855", "#e6d95e", "#a9c97c")
    specs = ((652, 36, 380, "#9db7a9", "#b4cba0", 60), (700, 36, 480, "#8fb383", "#a5c47c", -80), (768, 32, 600, "#7fb05c", "#9ac35c", 60))
    for i, (base, amp, cell, top, low, tilt) in enumerate(specs):
        edge = ridge(rng, base, amp, cell, 4, 0.36, tilt=tilt)
        if i == 1:
            layer = Layer()
            trees.wood_edge(layer.ctx, rng, edge, 0, W, 13, 20, 40, Ramp("#6d9470", "#a9cc86"), trees.leafy, 5, noise.line(rng, W, 240, 3) - 0.05, light=-0.7)
            c.put(layer)
        terrain.hill(c, edge, Ramp(top, low), 220, (330, 620, "#f6f2b4", 0.55), 0.16, 0.03, slope=-0.25, rim=0.3, rim_colour="#fbf7d0")
        terrain.fields(c, edge, [mix(rgb(b), rgb("#cfdccf"), 0.40 - 0.17 * i) for b in fresh], 0.65, (180 + 50 * i, 24 + 8 * i), 150 + 40 * i)
        layer = Layer()
        haze = 0.42 - 0.18 * i
        greens = Ramp("#4d8046", "#83b552", "#c5dc7c").toward("#cddccf", haze)
        bloom = Ramp("#c98fa4", "#f1c3d0", "#fff4f4").toward("#d8dcd8", haze)
        spots = trees.scatter(rng, edge, 34 - 6 * i, 0, W, 4, 80 + 30 * i)
        _shade_trees(c, [(x, y, (20 + 18 * i)) for x, y, t in spots], "#55785a", 0.6, 1, 3)
        for x, y, t in spots:
            trees.leafy(layer.ctx, rng, x, y, (20 + 18 * i) * rng.uniform(0.7, 1.25), bloom if rng.random() < 0.45 else greens, rgb("#5d5048"), light=-0.8)
        c.put(layer)
        terrain.mist(c, 66, 42, "#e3eadb", 0.30, edge=edge)
    layer = Layer()
    for k, x in enumerate((486, 520, 548, 585)):
        details.house(layer.ctx, rng, x, 772 + (k % 2) * 6, 20, rgb("#f3ead8"), rgb("#cdbfae"), rgb("#a85f4a"), rgb("#b96a52"), rgb("#6d7a8c"), None, 1 if k % 2 else -1, 1.0, 1)
    details.church(layer.ctx, 560, 768, 74, rgb("#f5eedf"), rgb("#cfc4b4"), rgb("#7d5a58"), rgb("#6d7a8c"))
    c.put(layer)

    meadow = ridge(rng, 862, 20, 700, 3, 0.3, tilt=40, bumps=((200, 330, 36),))
    terrain.hill(c, meadow, Ramp("#a8cf5c", "#82b848", "#569a40", "#36783a"), 350, (330, 700, "#f3f3a4", 0.55), 0.2, 0.05, slope=-0.2, rim=0.35, rim_colour="#f6f7bc")
    _orchard(c, meadow)
    return c


def _shower(c, x0, x1, top, bottom, tint, strength):
    """Slanting veils of distant rain."""
    sheared = np.clip(XX + (YY - top) * 0.28, 0, W + 400)
    veil = noise.line(c.rng, W + 500, 150, 5, 0.6)[sheared.astype(np.int32)]
    side = smoothstep(x0, x0 + 320, XX) * smoothstep(x1 + 500, x1, XX)
    band = smoothstep(top - 40, top + 140, YY) * smoothstep(bottom + 40, bottom - 160, YY)
    c.blend(tint, np.clip(smoothstep(-0.35, 0.6, veil) * side * band * strength, 0, 1).astype(np.float32))


def _orchard(c, meadow):
    """Two loose rows of blossoming trees, petals in the grass below them."""
    rng = c.rng
    pink = (Ramp("#a8667f", "#e3a3b8", "#fbdbe2", "#ffffff"), Ramp("#b98a9c", "#ecc6d0", "#fff0f0", "#ffffff"), Ramp("#a0607c", "#dc90aa", "#f7c6d4", "#fff3f4"))
    places = [(700, 902, 110), (860, 896, 105), (1010, 900, 118), (560, 912, 130), (1170, 910, 140), (400, 930, 165),
              (1330, 936, 190), (210, 960, 250), (1490, 985, 330), (20, 1010, 400)]
    _shade_trees(c, places, "#3d6a48", 0.62, 1, 7)
    layer = Layer()
    plants.grass(layer.ctx, rng, [s for s in plants.drift(rng, 5200, 0, W, 880, 1080) if s[1] > meadow[int(s[0])] + 8],
                 Ramp("#3f8038", "#74ae45", "#b3d666", "#dcea92"), 6, 26, 0.12)
    c.put(layer)
    layer = Layer()
    for i, (x, y, h) in enumerate(places):
        trees.leafy(layer.ctx, rng, x, y, h, pink[i % 3], rgb("#55423f"), light=-0.8, width=1.02, crown=0.74, gaps=0.12)
    c.put(layer)
    layer = Layer()
    ctx = layer.ctx
    plants.grass(ctx, rng, plants.drift(rng, 4200, 0, W, 1050, 1225), Ramp("#2f7034", "#5c9e40", "#a2cc5a", "#d8e88c"), 24, 58, 0.14)
    patch = smoothstep(0.35, 0.6, noise.fbm2(rng, H, W, 130, 240, 3))
    plants.speckle(ctx, rng, plants.drift(rng, 900, 0, W, 900, 1070, patch), [rgb("#fff0f2"), rgb("#f9d9e0"), rgb("#ffe873"), rgb("#ffffff")], 0.9, 2.8)
    for x, y, t in plants.drift(rng, 150, 0, W, 1070, 1225, patch):
        if rng.random() < 0.55:
            _dandelion(ctx, rng, x, y, 8 + 9 * t)
        else:
            plants.daisy(ctx, rng, x, y, 8 + 8 * t, rgb("#ffffff"), rgb("#f6c634"), rgb("#4f8f3c"), rgb("#d8d0e0"))
    for _ in range(120):
        x, y = rng.uniform(0, W), rng.uniform(620, 1180)
        oval(ctx, x, y, rng.uniform(1.6, 3.6), rng.uniform(1.0, 2.0), mix(rgb("#ffffff"), rgb("#f6bccb"), rng.random()), 0.85, rng.uniform(0, 3))
    c.put(layer)
    c.bloom(0.86, 26, 0.25)


def _dandelion(ctx, rng, x, y, size):
    x, y = plants.stem(ctx, x, y, size * rng.uniform(1.6, 3.2), size * rng.uniform(-0.5, 0.5), max(0.7, size * 0.11), rgb("#6fa348"))
    for ring, tint in ((1.0, "#e7a916"), (0.76, "#f8c928"), (0.46, "#ffe463")):
        for k in range(13):
            a = k * 2 * math.pi / 13 + ring
            oval(ctx, x + math.cos(a) * size * 0.5 * ring, y + math.sin(a) * size * 0.34 * ring, size * 0.24, size * 0.09, rgb(tint), 1, math.atan2(math.sin(a) * 0.7, math.cos(a)))


def may():
    c = Canvas(505)
    rng = c.rng
    c.sky(Ramp((0, "#2f8fd6"), (0.5, "#7cc3ec"), (0.85, "#cdeaf2"), (1, "#eef6ea")), 650)
    for x, base, wide, high in ((420, 330, 620, 210), (1210, 250, 460, 130), (1010, 440, 420, 100), (90, 480, 380, 84), (1500, 470, 420, 110), (700, 520, 330, 56)):
        sky.cumulus(c, x, base, wide, high, "#ffffff", "#a3c4e0", light=(0.6, -0.75), puffs=44)

    specs = ((612, 44, 360, "#8db9c4", "#b0d3c6", -40), (658, 44, 430, "#7db494", "#a3cd94", 80), (722, 40, 520, "#62a653", "#93c858", -90), (796, 30, 640, "#58a23c", "#8cc648", 70))
    tints = ("#8ecb52", "#6cb544", "#b5dc62", "#58a544", "#f3e04a", "#9bd060", "#78bf4e")
    for i, (base, amp, cell, top, low, tilt) in enumerate(specs):
        edge = ridge(rng, base, amp, cell, 4, 0.36, tilt=tilt)
        haze = 0.62 - 0.2 * i
        greens = Ramp("#225f33", "#3f8a3a", "#84bf4a", "#bfe070").toward("#bfe0dc", haze)
        if i:
            layer = Layer()
            trees.wood_edge(layer.ctx, rng, edge, 0, W, 9 + 3 * i, 16 + 9 * i, 30 + 15 * i, greens, trees.leafy, 5, noise.line(rng, W, 260, 3) - 0.12, light=0.7)
            c.put(layer)
        terrain.hill(c, edge, Ramp(top, low), 220, (1250, 620, "#f6fabc", 0.45), 0.15, 0.03, slope=0.25, rim=0.3, rim_colour="#f3fbc8")
        if i:
            terrain.fields(c, edge, [mix(rgb(b), rgb("#cfe8dc"), haze * 0.8) for b in tints], 0.6, (170 + 50 * i, 22 + 8 * i), 130 + 36 * i)
        layer = Layer()
        spots = trees.scatter(rng, edge, 40 - 5 * i, 0, W, 4, 60 + 26 * i)
        size = 14 + 15 * i
        _shade_trees(c, [(x, y, size) for x, y, t in spots], "#3d7a50", 0.6, -1, 3)
        for x, y, t in spots:
            trees.leafy(layer.ctx, rng, x, y, size * rng.uniform(0.7, 1.3), greens, rgb("#4d4034"), light=0.7)
        c.put(layer)
        terrain.mist(c, 60, 40, "#d9eee4", 0.28 - 0.05 * i, edge=edge)
    _cloud_shadows(c, 690, 900, 0.35)
    meadow = ridge(rng, 850, 16, 760, 3, 0.3, tilt=-36, bumps=((240, 420, 40),))
    terrain.hill(c, meadow, Ramp("#9fd44c", "#78bd40", "#4a9a3a", "#2c7434"), 360, (1200, 760, "#f3f79a", 0.5), 0.2, 0.05, slope=0.2, rim=0.35, rim_colour="#f3f9b4")
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
    plants.grass(layer.ctx, rng, [s for s in plants.drift(rng, 6000, 0, W, 862, 1080) if s[1] > meadow[int(s[0])] + 8],
                 Ramp("#3a8a34", "#66ad3e", "#a2d255", "#d4ea80"), 6, 30, 0.10)
    c.put(layer)
    layer = Layer()
    trees.leafy(layer.ctx, rng, x, y, h, Ramp("#154a2c", "#2a7034", "#57a03c", "#9fd052", "#dcf08c"), rgb("#46382e"), light=0.75, width=1.04, crown=0.80, count=6500, leaf_size=7.2, gaps=0.06)
    c.put(layer)
    layer = Layer()
    ctx = layer.ctx
    patch = smoothstep(0.34, 0.58, noise.fbm2(rng, H, W, 120, 260, 3))
    reds = smoothstep(0.46, 0.6, noise.fbm2(rng, H, W, 120, 300, 2))
    plants.speckle(ctx, rng, plants.drift(rng, 2600, 0, W, 880, 1040, patch), [rgb(k) for k in ("#ffffff", "#ffe14d", "#f6f1c9", "#e97fb0", "#8f78e0", "#ffffff")], 0.8, 3.4)
    plants.grass(ctx, rng, plants.drift(rng, 3600, 0, W, 1030, 1235), Ramp("#25702f", "#4d9a38", "#93c94c", "#d2ea7c"), 30, 92, 0.12)
    violet, rose = Ramp("#4a3fae", "#7a6fe0", "#c0b8fa"), Ramp("#b03a7c", "#e572a8", "#fbc3da")
    for px, py, t in plants.drift(rng, 430, -20, W + 20, 1010, 1240, patch, 0.9):
        size, kind = 6 + 12 * t, rng.random()
        red = reds[min(H - 1, int(py)), int(np.clip(px, 0, W - 1))]
        if kind < 0.40:
            plants.daisy(ctx, rng, px, py, size * 1.15, rgb("#ffffff"), rgb("#f8c62e"), rgb("#4f9a3c"), rgb("#d5d3ea"))
        elif kind < 0.62:
            _dandelion(ctx, rng, px, py, size * 1.05)
        elif kind < 0.62 + 0.38 * red:
            plants.bell(ctx, rng, px, py, size * 0.95, rose, rgb("#3f8a38"))
        else:
            plants.bell(ctx, rng, px, py, size, violet, rgb("#3f8a38"))
    for px, py, size, turn, tint in ((930, 930, 15, 0.5, "#ffb53a"), (1010, 965, 11, -0.4, "#fff6d0"), (1290, 905, 13, 0.2, "#7fb8ff"), (680, 985, 12, -0.2, "#ffd84a")):
        details.butterfly(ctx, px, py, size, turn, rgb(tint), rgb("#5d3a2a"))
    c.put(layer)
    layer = Layer()
    for _ in range(7):
        details.bird(layer.ctx, rng.uniform(900, 1200), rng.uniform(150, 330), rng.uniform(8, 13), rng.uniform(0.1, 1), rng.uniform(-0.3, 0.3), rgb("#3a5f86"), 0.85)
    c.put(layer)
    c.bloom(0.88, 26, 0.22)
