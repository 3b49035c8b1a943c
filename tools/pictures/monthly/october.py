# SPDX-License-Identifier: GPL-3.0-or-later
"""October: woods in colour by a lake."""

import numpy as np

from . import noise, plants, sky, terrain, trees, water
from .brush import leaf, oval
from .canvas import H, W, Canvas, Layer
from .palette import Ramp, mix, rgb
from .terrain import ridge


LEAVES = (
    Ramp("#5a1a18", "#9c2f1e", "#d9542a", "#f58a3c", "#ffc070"),
    Ramp("#6a2f16", "#b05a1c", "#e48a28", "#f9b844", "#ffe08a"),
    Ramp("#6a4316", "#a87a20", "#d8a830", "#f0cd54", "#fdeaa0"),
    Ramp("#4a1420", "#86202a", "#bf3a30", "#e6664a", "#f9a27c"),
    Ramp("#3a4a22", "#6d7c2e", "#a8a63c", "#d9c858", "#f4e890"),
)


def october():
    c = Canvas(1010)
    rng = c.rng
    c.sky(Ramp((0, "#3f87b0"), (0.45, "#85b8c9"), (0.8, "#d6dfcf"), (1, "#f9e4bc")), 600)
    sky.streaks(c, "#ffffff", 0.55, -40, 380, (30, 420), 0.53, 0.82, tilt=-0.05)
    sky.gradient_light(c, "#ffe6b0", (420, 560), (620, 220), 0.5)
    terrain.mountains(
        c,
        620,
        [
            (260, 380, 420, 170),
            (640, 360, 330, 240),
            (930, 260, 360, 150),
            (1330, 420, 380, 262),
            (1590, 260, 240, 170),
        ],
        "#c3b4a8",
        "#7f90a8",
        "#d9cdb8",
        260,
        side=-1,
        snow=("#fff6ea", "#a9bcd0", 66),
    )
    terrain.mist(c, 610, 44, "#f3e3c4", 0.6)
    level = 742
    specs = (
        (606, 44, 330, 22, 0.55, 40),
        (650, 40, 360, 36, 0.34, -70),
        (700, 30, 330, 60, 0.14, 60),
    )
    for i, (base, amp, cell, size, haze, tilt) in enumerate(specs):
        edge = ridge(rng, base, amp, cell, 4, 0.36, tilt=tilt)
        air = ("#e6d3b8", "#dfc3a0", "#c9a47c")[i]
        tints = [r.toward(air, haze) for r in LEAVES]
        firs = Ramp("#1f4038", "#3f6a50", "#7d9460").toward(air, haze)
        terrain.hill(
            c,
            edge,
            Ramp(tints[1](0.42), tints[0](0.35), mix(tints[0](0.2), rgb("#3a3a30"), 0.3 - 0.1 * i)),
            120,
            (420, 620, "#ffdf9a", 0.3),
            0.1,
            0.03,
        )
        layer = Layer()
        count = (620, 460, 620)[i]
        spread = (level - base - 10) if i < 2 else 110
        groups = noise.fbm2(rng, H, W, 120, 200, 2)
        for x, y, t in trees.scatter(rng, edge, count, -20, W + 20, -2, max(20, spread)):
            if y > level - 1:
                continue
            g = groups[int(np.clip(y, 0, H - 1)), int(np.clip(x, 0, W - 1))] + rng.normal(0, 0.10)
            h = size * rng.uniform(0.75, 1.3)
            if rng.random() < 0.16:
                trees.fir(layer.ctx, rng, x, y, h * 1.35, firs, rgb("#3a2a24"), light=-1)
            else:
                trees.leafy(
                    layer.ctx,
                    rng,
                    x,
                    y,
                    h,
                    tints[int(np.clip((g - 0.25) * 9, 0, 4.9))],
                    rgb("#4a342a"),
                    light=-0.75,
                    width=0.92,
                    crown=0.9,
                )
        if i == 2:
            for x in rng.uniform(-10, W + 10, 260):
                trees.leafy(
                    layer.ctx,
                    rng,
                    x,
                    level + 1,
                    rng.uniform(10, 27),
                    tints[int(rng.integers(5))],
                    rgb("#4a342a"),
                    light=-0.75,
                    width=1.3,
                    crown=0.98,
                )
        c.put(layer)
        terrain.mist(c, 40, 34, "#f6e2bf", (0.42, 0.34, 0.12)[i], edge=edge)
    water.mirror(c, level, "#2f5a70", 0.46, 0.9, 1.0, soft=1)
    layer = Layer()
    water.ripples(layer.ctx, rng, level + 6, 1090, 200, rgb("#fff0d8"), 0.20)
    water.ripples(layer.ctx, rng, level + 40, 1090, 130, rgb("#1f4a60"), 0.18)
    c.put(layer)
    terrain.mist(c, level, 13, "#fdebcd", 0.65)
    _october_bank(c)
    c.bloom(0.84, 28, 0.28)
    return c


def _october_bank(c):
    rng = c.rng
    bank = ridge(rng, 1080, 12, 420, 3, 0.35, tilt=50, bumps=((1480, 460, 120), (120, 240, 60)))
    terrain.hill(
        c,
        bank,
        Ramp("#a8803a", "#8a5f2e", "#5d3f28", "#3a2a24"),
        240,
        (420, 620, "#ffd98a", 0.4),
        0.2,
        0.06,
        slope=-0.2,
        rim=0.45,
        rim_colour="#ffd98c",
    )
    layer = Layer()
    ctx = layer.ctx
    places = [
        (1330, bank[1330] + 30, 520, 1),
        (1505, bank[1505] + 50, 820, 0),
        (60, bank[60] + 46, 620, 2),
    ]
    for x, y, h, kind in places:
        trees.leafy(
            ctx,
            rng,
            x,
            y,
            h,
            LEAVES[kind],
            rgb("#3a2a26"),
            light=-0.8 if x > 800 else 0.4,
            width=0.86,
            crown=0.80,
            gaps=0.10,
        )
    plants.footing(
        ctx, rng, [p[:3] for p in places], Ramp("#5d4426", "#a8803a", "#dcb45c"), 0.08, 0.045
    )
    c.put(layer)
    layer = Layer()
    ctx = layer.ctx
    inside = lambda spots: [s for s in spots if s[1] > bank[int(np.clip(s[0], 0, W - 1))] + 5]
    plants.grass(
        ctx,
        rng,
        inside(plants.drift(rng, 3600, 0, W, 900, 1235)),
        Ramp("#4a4426", "#80703a", "#b99c4c", "#e6cf80"),
        10,
        48,
        0.12,
    )
    for x, y, t in inside(plants.drift(rng, 1500, 0, W, 900, 1215)):
        ramp, size = LEAVES[int(rng.integers(4))], (2.5 + 7 * t) * rng.uniform(0.7, 1.3)
        _fallen(ctx, rng, x, y, size, ramp, 0.6)
    for _ in range(36):
        x, y, near = rng.uniform(560, W), rng.uniform(520, 1080), rng.random() ** 2
        _fallen(ctx, rng, x, y, 3 + 7 * near, LEAVES[int(rng.integers(4))], 1.0)
    for _ in range(90):
        x, y = rng.uniform(120, 1500), rng.uniform(800, 1075)
        if y < bank[int(x)] - 6:
            oval(
                ctx,
                x,
                y,
                rng.uniform(2, 5),
                rng.uniform(0.8, 1.6),
                LEAVES[int(rng.integers(3))](rng.uniform(0.5, 0.9)),
                0.9,
            )
    c.put(layer)


def _fallen(ctx, rng, x, y, size, ramp, flat):
    """A leaf with three or five fingers, lying or drifting."""
    tint, turn = ramp(rng.uniform(0.35, 0.95)), rng.uniform(0, 6.28)
    ctx.save()
    ctx.translate(x, y)
    ctx.scale(1, flat * rng.uniform(0.6, 1))
    for off, part in ((-1.1, 0.7), (1.1, 0.7), (-0.55, 0.9), (0.55, 0.9), (0, 1.05)):
        leaf(ctx, 0, 0, size * part, size * 0.26, turn + off, tint)
    ctx.restore()
