# SPDX-License-Identifier: GPL-3.0-or-later
"""Trees. Each call grows a different one; light comes from one side."""

import math

import numpy as np

from .brush import dot, leaf, oval, stroke, taper
from .canvas import W
from .palette import mix


def crown_lobes(rng, cx, cy, rx, ry, rich):
    """Overlapping rounds that make up a crown; rich adds small ones along the rim."""
    lobes = [(cx, cy, rx * 0.62, ry * 0.62)]
    rings = [(int(rng.integers(7, 10)), 0.44, 0.62, 0.32, 0.48)]
    if rich:
        rings.append((int(rng.integers(12, 16)), 0.66, 0.84, 0.15, 0.28))
    for count, near, far, small, large in rings:
        turn = rng.random() * 6.28
        for i in range(count):
            a = turn + (i + rng.uniform(-0.35, 0.35)) * 2 * math.pi / count
            out, r = rng.uniform(near, far), rng.uniform(small, large)
            # a crown is broad above and drawn in below
            inward = 1 - 0.16 * max(0, math.sin(a))
            lobes.append(
                (
                    cx + math.cos(a) * rx * out * inward,
                    cy + math.sin(a) * ry * out * 0.92,
                    rx * r,
                    ry * r * 0.95,
                )
            )
    return lobes


def _trunk(ctx, rng, x, y, h, cx, cy, rx, ry, trunk, light):
    bend = h * rng.uniform(-0.03, 0.03)
    wide = h * 0.058 + 0.6
    path = [(x, y), (x + bend * 0.6, y - h * 0.16), (x + bend, y - h * 0.30), (cx, cy)]
    if h > 90:
        for side in (-1, 1):
            taper(
                ctx,
                [
                    (x + side * wide * 0.95, y + h * 0.008),
                    (x + bend * 0.15 + side * wide * 0.40, y - h * 0.03),
                    (x + bend * 0.48 + side * wide * 0.08, y - h * 0.12),
                ],
                wide * 0.2,
                wide * 0.4,
                trunk,
            )
    taper(ctx, path, wide, h * 0.028, trunk)
    if h > 60:
        lit = [(px + math.copysign(wide * 0.15, light), py) for px, py in path[:3]]
        taper(ctx, lit, wide * 0.30, wide * 0.16, mix(trunk, (0.9, 0.78, 0.62), 0.28))
        for _ in range(6):
            ex, ey = cx + rng.uniform(-0.75, 0.75) * rx, cy + rng.uniform(-0.3, 0.55) * ry
            sy = y - h * rng.uniform(0.22, 0.4)
            taper(
                ctx,
                [(x + bend, sy), ((x + ex) / 2, (sy + ey) / 2 + h * 0.02), (ex, ey)],
                h * 0.024,
                h * 0.007,
                trunk,
            )


def leafy(
    ctx,
    rng,
    x,
    y,
    h,
    ramp,
    trunk,
    light=-0.7,
    width=0.86,
    crown=0.80,
    count=None,
    leaf_size=None,
    gaps=0.0,
    pointed=False,
):
    """A broad-leaved tree standing at (x, y), h tall; ramp runs from shade to light."""
    h *= rng.uniform(0.94, 1.06)
    rx, ry = h * width / 2 * rng.uniform(0.92, 1.08), h * crown / 2
    cx, cy = x + h * rng.uniform(-0.03, 0.03), y - h + ry
    if h > 26:
        _trunk(ctx, rng, x, y, h, cx, cy, rx, ry, trunk, light)
    lobes = crown_lobes(rng, cx, cy, rx, ry, h > 70)
    size = leaf_size or max(0.9, h * 0.040 * (1 if h < 60 else (60 / h) ** 0.84))
    n = count or int(np.clip(h * 6.5 if h < 70 else 0.60 * (h / size) ** 2, 26, 19000))
    lx, ly = light, -0.75
    weights = np.array([l[2] * l[3] for l in lobes]) ** 0.9
    pick = rng.choice(len(lobes), n, p=weights / weights.sum())
    angle, reach = rng.random(n) * 2 * math.pi, np.sqrt(rng.random(n)) * 1.03
    keep = rng.random(n) >= gaps
    marks = []
    for k, a, r in zip(pick[keep], angle[keep], reach[keep]):
        lcx, lcy, lrx, lry = lobes[k]
        nx, ny = math.cos(a) * r, math.sin(a) * r
        px, py = lcx + nx * lrx, lcy + ny * lry
        gx, gy = (px - cx) / rx, (py - cy) / ry
        t = 0.43 + 0.33 * (nx * lx + ny * ly) + 0.24 * (gx * lx + gy * ly)
        marks.append((t, px, py, a, t * 0.6 - lcy / h * 0.9))
    jitter = rng.normal(0, 0.07, len(marks))
    tones = rng.normal(0, 0.055, len(marks))
    sizes = rng.uniform(0.65, 1.35, len(marks))
    for i in np.argsort([m[4] for m in marks] + jitter):
        t, px, py, a, _ = marks[i]
        tint, s = ramp(t + tones[i]), size * sizes[i]
        if h < 44:
            dot(ctx, px, py, s, tint)
        elif pointed:
            leaf(ctx, px, py, s * 2.3, s * 0.95, a + sizes[i], tint)
        else:
            oval(ctx, px, py, s * 1.25, s * 0.85, tint, 1, a)


def poplar(ctx, rng, x, y, h, ramp, trunk, light=-0.7, width=0.2):
    leafy(ctx, rng, x, y, h, ramp, trunk, light, width, 0.93)


def fir(ctx, rng, x, y, h, ramp, trunk, light=-1, snow=None, spread=0.44):
    """A conifer built of drooping fronds, tier on tier; snow is (lit, shade) lying on them."""
    h *= rng.uniform(0.93, 1.07)
    tiers = int(np.clip(4 + h / 17, 5, 24))
    half = h * spread / 2 * rng.uniform(0.9, 1.1)
    taper(ctx, [(x, y), (x, y - h * 0.3), (x, y - h * 0.95)], h * 0.04, 0.6, trunk)
    lean = rng.uniform(-0.012, 0.012) * h
    step = h * 0.93 / tiers
    fronds = 3 if h < 30 else 5 if h < 80 else 7 if h < 200 else 9
    for i in range(tiers):
        t = i / tiers
        foot, mid = y - h * (0.07 + 0.90 * t), x + lean * t
        w = half * (1 - t) ** 0.80 * rng.uniform(0.88, 1.10) + h * 0.010
        places = np.linspace(-1, 1, fronds) + rng.uniform(-0.5, 0.5, fronds) / fronds
        for u in sorted(np.clip(places, -1, 1), key=lambda v: -abs(v)):
            glow = 0.5 + 0.5 * light * u * 0.9
            reach = w * rng.uniform(0.86, 1.12)
            ex = mid + reach * u
            ey = foot + w * (0.10 + 0.26 * (1 - u * u)) + rng.uniform(-0.12, 0.16) * step
            sy = foot - step * rng.uniform(0.85, 1.15)
            turn, length = math.atan2(ey - sy, ex - mid), math.hypot(ex - mid, ey - sy)
            fat = max(w * 0.21, step * 0.30 * min(1, (1 - t) * 5)) * rng.uniform(0.85, 1.15)
            tone = 0.06 + 0.62 * glow * (0.55 + 0.45 * t) + rng.uniform(-0.06, 0.06)
            leaf(ctx, mid, sy, length, fat, turn, ramp(tone))
            if h > 110:
                for k in (0.52, 0.70, 0.86):
                    px, py = mid + (ex - mid) * k, sy + (ey - sy) * k
                    for s in (-1, 1):
                        leaf(
                            ctx,
                            px,
                            py,
                            length * 0.26 * (1.25 - k * 0.6),
                            fat * 0.28,
                            turn + s * rng.uniform(0.35, 0.75),
                            ramp(tone - 0.03),
                        )
            if snow:
                lie = (
                    snow[0]
                    if rng.random() < 0.15
                    else mix(snow[1], snow[0], np.clip(glow**1.3 + rng.uniform(-0.1, 0.1), 0, 1))
                )
                part = rng.uniform(0.66, 0.86) * (0.72 if h < 45 else 1)
                leaf(
                    ctx,
                    mid,
                    sy - step * 0.16,
                    length * part,
                    fat * rng.uniform(0.62, 0.92) * (0.7 if h < 45 else 1),
                    turn - 0.02 * u,
                    lie,
                )
    if h > 24:
        leaf(ctx, x + lean, y - h * 0.92, h * 0.115, h * 0.008, -math.pi / 2, ramp(0.6))
        if snow:
            leaf(ctx, x + lean, y - h * 0.92, h * 0.075, h * 0.007, -math.pi / 2, snow[0])


def _branch(ctx, rng, x, y, turn, length, width, depth, wood, twig, droop, out):
    bend = rng.uniform(-0.22, 0.22)
    steps = [(x, y)]
    for k in (1, 2, 3):
        turn += bend / 3 + droop * (1 if math.cos(turn) > 0 else -1) * 0.05 * (depth < 3)
        x += math.cos(turn) * length / 3
        y += math.sin(turn) * length / 3
        steps.append((x, y))
    tint = mix(twig, wood, min(1, depth / 4))
    if width > 1.3:
        taper(ctx, steps, width, width * 0.68, tint)
    else:
        stroke(ctx, steps, max(0.45, width), tint, 0.9)
    if depth == 0:
        out.append((x, y))
        return
    for _ in range(2 if rng.random() < 0.62 else 3):
        _branch(
            ctx,
            rng,
            x,
            y,
            turn + rng.uniform(-0.62, 0.62),
            length * rng.uniform(0.66, 0.88),
            width * rng.uniform(0.52, 0.70),
            depth - 1,
            wood,
            twig,
            droop,
            out,
        )
    if depth > 1:
        px, py = steps[2]
        side = rng.choice([-1, 1])
        _branch(
            ctx,
            rng,
            px,
            py,
            turn + side * rng.uniform(0.45, 0.95),
            length * rng.uniform(0.5, 0.75),
            width * 0.45,
            depth - 2,
            wood,
            twig,
            droop,
            out,
        )


def bare(ctx, rng, x, y, h, wood, twig, depth=6, lean=0.0, droop=0.0):
    """A leafless tree; returns its twig ends so that frost or buds can sit there."""
    out = []
    length = h * 0.235
    _branch(ctx, rng, x, y, -math.pi / 2 + lean, length, h * 0.052, depth, wood, twig, droop, out)
    return out


def _hanging(ctx, rng, x, y, turn, length, width, tint):
    """A twig that sets out in one direction and gives way to its weight."""
    vx, vy = math.cos(turn), math.sin(turn)
    points, step = [(x, y)], length / 7
    for _ in range(7):
        vx, vy = vx * 0.80 + rng.uniform(-0.09, 0.09), min(1.0, vy + 0.24)
        size = math.hypot(vx, vy) or 1
        x, y = x + vx / size * step, y + vy / size * step
        points.append((x, y))
    stroke(ctx, points[:5], width, tint, 0.85)
    stroke(ctx, points[4:], width * 0.6, tint, 0.7)
    return points


def birch(ctx, rng, x, y, h, light, bark, shade, mark, twig, frost=None, lean=0.0):
    """A leafless birch: pale stem with dark marks, fine hanging twigs."""
    bend = rng.uniform(-0.02, 0.02) * h
    stem = [
        (x + lean * h * k**1.3 + bend * math.sin(k * 3.1), y - h * k)
        for k in np.linspace(0, 1, 12)
    ]
    width = h * 0.027
    fine = max(0.5, h * 0.0013)
    for i in range(11 + int(h / 26)):
        k = 0.28 + 0.70 * (i + rng.random()) / (11 + int(h / 26))
        j = min(10, int(k * 11))
        sx, sy = stem[j][0] + (stem[j + 1][0] - stem[j][0]) * (k * 11 - j), y - h * k
        side = 1 if (i + (rng.random() < 0.2)) % 2 else -1
        reach = (
            h
            * (0.07 + 0.19 * math.sin(math.pi * min(1, (1.04 - k) * 1.25)) ** 0.8)
            * rng.uniform(0.75, 1.2)
        )
        rise = rng.uniform(0.75, 1.15)
        limb = [
            (sx, sy),
            (sx + side * reach * 0.34, sy - reach * 0.46 * rise),
            (sx + side * reach * 0.72, sy - reach * 0.74 * rise),
            (sx + side * reach * 1.0, sy - reach * 0.74 * rise),
        ]
        taper(ctx, limb, width * 0.24 * (1.2 - k), fine, mix(shade, twig, 0.8))
        for _ in range(int(8 + 16 * reach / (h * 0.2))):
            u = rng.uniform(0.18, 1.0) ** 0.8
            a = min(2, int(u * 3))
            f = u * 3 - a
            px = limb[a][0] + (limb[a + 1][0] - limb[a][0]) * f
            py = limb[a][1] + (limb[a + 1][1] - limb[a][1]) * f
            turn = -math.pi / 2 + side * rng.uniform(-0.25, 1.5)
            tint = twig if frost is None or rng.random() < 0.40 else frost
            points = _hanging(ctx, rng, px, py, turn, h * rng.uniform(0.05, 0.16), fine, tint)
            for m in (1, 2, 3):
                if rng.random() < 0.7:
                    _hanging(
                        ctx,
                        rng,
                        *points[m],
                        turn + rng.uniform(-0.9, 0.9),
                        h * rng.uniform(0.03, 0.09),
                        fine * 0.75,
                        tint
                    )
    taper(ctx, stem, width, width * 0.10, shade)
    bright = [(px + light * width * 0.15 * (1 - i / 12), py) for i, (px, py) in enumerate(stem)]
    taper(ctx, bright, width * 0.62, width * 0.05, bark)
    for _ in range(int(h / 6)):
        k = rng.random() ** 1.4 * 0.92
        j = min(10, int(k * 11))
        mx = stem[j][0] + (stem[j + 1][0] - stem[j][0]) * (k * 11 - j)
        w = width * (1 - k * 0.9)
        oval(
            ctx,
            mx + rng.uniform(-0.3, 0.3) * w,
            y - h * k,
            w * rng.uniform(0.08, 0.30),
            max(0.5, w * rng.uniform(0.02, 0.08)),
            mark,
            0.75,
        )


def copse(ctx, rng, edge, places, ramp, grow, low, high, **more):
    """Groups of trees standing on a hill; places are (column, depth, width, count)."""
    spots = []
    for column, depth, wide, count in places:
        for _ in range(count):
            x = column + rng.normal(0, wide * 0.45)
            dy = max(1, depth + rng.normal(0, wide * 0.07))
            spots.append((edge[int(np.clip(x, 0, W - 1))] + dy, x, abs(x - column) / wide))
    for y, x, out in sorted(spots):
        h = rng.uniform(low, high) * (1.12 - 0.45 * min(1, out))
        grow(ctx, rng, x, y, h, ramp, ramp(0.05), **more)


def wood_edge(ctx, rng, edge, x0, x1, step, low, high, ramp, grow, sink=4, clump=None, **more):
    """Trees along a ridge from x0 to x1, in clumps when a density line is given."""
    x = x0
    while x < x1:
        column = int(np.clip(x, 0, len(edge) - 1))
        dense = 1.0 if clump is None else clump[column]
        if dense > 0:
            h = rng.uniform(low, high) * (0.55 + 0.45 * min(1, dense))
            grow(ctx, rng, x, edge[column] + sink, h, ramp, ramp(0.05), **more)
        x += step * rng.uniform(0.5, 1.5) * (1.0 if dense > 0 else 0.6)


def scatter(rng, edge, count, x0, x1, d0, d1, power=1.0):
    """Places on a hill, far ones first: (x, y, nearness 0 to 1)."""
    t = np.sort(rng.random(count) ** power)
    x = rng.uniform(x0, x1, count)
    columns = np.clip(x, 0, len(edge) - 1).astype(int)
    y = edge[columns] + d0 + (d1 - d0) * t
    return list(zip(x, y, t))
