# SPDX-License-Identifier: GPL-3.0-or-later
"""July: the sea."""

import numpy as np

from . import details, noise, plants, sky, terrain, trees, water
from .brush import oval, poly
from .canvas import H, W, YY, Canvas, Layer
from .noise import smoothstep
from .palette import Ramp, mix, rgb
from .terrain import ridge


def july():
    c = Canvas(707)
    rng = c.rng
    c.sky(Ramp((0, "#3492cc"), (0.5, "#7cc4e2"), (0.85, "#c9e8ea"), (1, "#f6f3de")), 560)
    for x, base, wide, high in (
        (330, 420, 620, 240),
        (1330, 470, 620, 190),
        (820, 500, 420, 84),
        (60, 520, 460, 110),
        (1080, 250, 300, 56),
    ):
        sky.cumulus(c, x, base, wide, high, "#ffffff", "#9cc6e2", light=(0.6, -0.75), puffs=48)
    level = 552
    for base, bumps, top, low in (
        (556, ((1180, 200, 46), (1330, 160, 30)), "#9cc6d6", "#b4d8dc"),
        (562, ((1475, 130, 104), (1350, 90, 56), (1620, 150, 128)), "#8dbb8c", "#7fa08c"),
    ):
        edge = ridge(rng, base + 8, 15, 120, 6, 0.55, bumps=bumps)
        edge = edge + 60 * smoothstep(1180, 1040, np.arange(W))
        layer = Layer()
        if low == "#7fa08c":
            trees.wood_edge(
                layer.ctx,
                rng,
                edge,
                1270,
                W,
                7,
                10,
                22,
                Ramp("#47806d", "#8fbd86"),
                trees.leafy,
                4,
                None,
                light=0.6,
            )
        c.put(layer)
        terrain.hill(c, edge, Ramp(top, low), 70, None, 0.3, 0.10, (30, 60), slope=0.35)
    _lighthouse(c, 1452, edge[1452] + 5, 104)

    wave = water.sea(
        c,
        level,
        1010,
        Ramp(
            (0, "#1f7fb4"), (0.25, "#1f9cc0"), (0.55, "#37bcc8"), (0.8, "#86dccf"), (1, "#c6ecd8")
        ),
        0.10,
    )
    t = np.clip((YY - level) / (1000 - level), 0, 1)
    c.blend(
        "#e9fbf6", smoothstep(0.17, 0.30, wave) * smoothstep(0.02, 0.3, t) * (YY > level) * 0.42
    )
    c.glow(880, level + 30, 420, "#ffffff", 0.20, 3)
    layer = Layer()
    water.glitter(layer.ctx, rng, 880, level + 3, 900, 260, 700, rgb("#ffffff"), 0.75, 0.7)
    water.ripples(layer.ctx, rng, level + 8, 900, 150, rgb("#0f78a8"), 0.16)
    for x, y, size, lean in (
        (430, 700, 210, 0.07),
        (1010, 592, 44, -0.04),
        (1120, 582, 26, 0.05),
        (700, 576, 20, 0.03),
    ):
        hull, sail, dim = (
            rgb("#c8463a") if size > 100 else rgb("#35506e"),
            rgb("#fffaf0"),
            rgb("#d3dfe8"),
        )
        for k in range(26):
            f = k / 26
            half = (0.50 - 0.36 * f) * size * rng.uniform(0.6, 1.1)
            oval(
                layer.ctx,
                x + rng.uniform(-0.12, 0.12) * size,
                y + size * (0.14 + 0.78 * f),
                half,
                max(0.5, size * 0.012),
                mix(sail if k > 3 else hull, rgb("#3fb8c6"), 0.25),
                0.42 * (1 - f),
            )
        details.boat(layer.ctx, x, y, size, hull, sail, dim, lean)
        oval(
            layer.ctx,
            x + size * 0.02,
            y + size * 0.125,
            size * 0.52,
            size * 0.018,
            rgb("#f2fffb"),
            0.8,
        )
    c.put(layer)
    _beach(c)
    c.bloom(0.88, 26, 0.25)
    return c


def _lighthouse(c, x, y, size):
    layer = Layer()
    ctx, w = layer.ctx, size * 0.13
    poly(
        ctx,
        [(x - w, y), (x + w, y), (x + w * 0.62, y - size * 0.8), (x - w * 0.62, y - size * 0.8)],
        rgb("#fbf6ec"),
    )
    poly(
        ctx,
        [
            (x - w, y),
            (x - w * 0.2, y),
            (x - w * 0.12, y - size * 0.8),
            (x - w * 0.62, y - size * 0.8),
        ],
        rgb("#d3dbe0"),
    )
    for k in (0.18, 0.5):
        a, b = w * (1 - 0.38 * k / 0.8), w * (1 - 0.38 * (k + 0.15) / 0.8)
        poly(
            ctx,
            [
                (x - a, y - size * k),
                (x + a, y - size * k),
                (x + b, y - size * (k + 0.15)),
                (x - b, y - size * (k + 0.15)),
            ],
            rgb("#d9564a"),
        )
    poly(
        ctx,
        [
            (x - w * 0.9, y - size * 0.8),
            (x + w * 0.9, y - size * 0.8),
            (x + w * 0.9, y - size * 0.84),
            (x - w * 0.9, y - size * 0.84),
        ],
        rgb("#55626e"),
    )
    poly(
        ctx,
        [
            (x - w * 0.5, y - size * 0.84),
            (x + w * 0.5, y - size * 0.84),
            (x + w * 0.5, y - size * 0.95),
            (x - w * 0.5, y - size * 0.95),
        ],
        rgb("#fff0b8"),
    )
    poly(
        ctx,
        [(x - w * 0.65, y - size * 0.95), (x + w * 0.65, y - size * 0.95), (x, y - size * 1.06)],
        rgb("#c74a40"),
    )
    c.put(layer)


def _beach(c):
    rng = c.rng
    x = np.arange(W)
    base = (
        1000
        - 175 * smoothstep(500, 1650, x)
        + 16 * np.sin(x / 150)
        + 22 * noise.line(rng, W, 340, 3)
    )
    for off, alpha in ((-74, 0.55), (-38, 0.75)):
        line = base + off + 12 * noise.line(rng, W, 170, 4)
        d = YY - line[None, :]
        broken = smoothstep(-0.5, 0.3, noise.line(rng, W, 210, 3))[None, :]
        lace = noise.fbm2(rng, H, W, 9, 22, 3)
        c.blend(
            "#ffffff",
            np.clip(
                np.exp(-((d / 3.6) ** 2))
                + np.exp(-np.maximum(d, 0) / 12) * (d > 0) * smoothstep(0.50, 0.64, lace) * 0.8,
                0,
                1,
            )
            * alpha
            * broken,
        )
    sand = base + 4
    d = terrain.under(sand)
    terrain.hill(
        c,
        sand,
        Ramp(
            (0, "#c9a878"), (0.10, "#dcbd8a"), (0.22, "#f1d8a6"), (0.6, "#f7e2b4"), (1, "#e6c48c")
        ),
        330,
        None,
        0.06,
        0.05,
        (70, 300),
    )
    lace = noise.fbm2(rng, H, W, 8, 20, 3)
    foam = np.exp(-((d / 5) ** 2)) + np.exp(-np.abs(d) / 16) * smoothstep(0.5, 0.62, lace)
    c.blend("#ffffff", np.clip(foam, 0, 1) * 0.9)
    wind = noise.fbm2(rng, H, W, 7, 150, 3) - 0.5
    c.multiply(
        "#b88f58", np.clip(terrain.along(wind, d) * 1.3, 0, 1) * smoothstep(60, 130, d) * 0.55
    )
    dune = ridge(rng, 1120, 12, 420, 3, 0.35, bumps=((0, 420, 150), (1640, 260, 150)))
    terrain.hill(
        c,
        dune,
        Ramp("#fbe9bf", "#efd09a", "#d4aa6c"),
        230,
        (900, 600, "#fff3d0", 0.4),
        0.2,
        0.06,
        (40, 220),
        slope=0.25,
        rim=0.4,
    )
    layer = Layer()
    ctx = layer.ctx
    for _ in range(46):
        px, py = rng.uniform(420, 1500), rng.uniform(1010, 1150)
        if py > base[int(px)] + 60:
            oval(
                ctx,
                px,
                py,
                rng.uniform(2, 6),
                rng.uniform(1.4, 3),
                mix(rgb("#fff8ec"), rgb("#a88a78"), rng.random()),
                0.9,
                rng.uniform(-0.5, 0.5),
            )
    marram = []
    for px, py, t in plants.drift(rng, 170, -40, W + 40, 980, 1240):
        column = int(np.clip(px, 0, W - 1))
        if py > dune[column] - 2 and dune[column] < 1075 + 30 * t:
            marram.append((px, py, t))
    shade = Layer()
    for px, py, t in marram:
        oval(shade.ctx, px - 14, py + 2, 22 + 16 * t, 5 + 3 * t, (0, 0, 0))
    c.shadow(shade, "#c39a68", 0.42, 6)
    for px, py, t in marram:
        plants.tuft(
            ctx,
            rng,
            px,
            py,
            (60 + 90 * t) * rng.uniform(0.6, 1.15),
            Ramp("#4f7d4a", "#8aa858", "#c9c878", "#efe2a4"),
            0.22,
            15,
        )
    for px, py, s, a in (
        (1010, 210, 26, -0.15),
        (1110, 270, 17, 0.1),
        (930, 300, 13, -0.2),
        (1230, 170, 12, 0.12),
        (620, 470, 10, 0.0),
    ):
        details.bird(ctx, px, py, s, rng.uniform(0.3, 1), a, rgb("#ffffff"))
        details.bird(ctx, px, py + s * 0.05, s * 0.98, 0.5, a, rgb("#8aa8bc"), 0.35)
    c.put(layer)
