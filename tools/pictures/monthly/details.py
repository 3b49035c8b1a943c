# SPDX-License-Identifier: GPL-3.0-or-later
"""Signs of life: houses, birds, a boat, a kite, falling snow."""

import math

import numpy as np

from . import noise
from .brush import dot, oval, poly, shape, smooth, stroke, taper
from .canvas import H, W, XX, YY
from .noise import smoothstep
from .palette import mix


def bird(ctx, x, y, size, beat, turn, tint, alpha=1.0):
    """A bird far off, wings raised by beat (-1 to 1)."""
    ctx.save()
    ctx.translate(x, y)
    ctx.rotate(turn)
    ctx.scale(size, size)
    ctx.move_to(-1, -0.42 * beat)
    ctx.curve_to(-0.62, -0.50 * beat - 0.16, -0.30, -0.30 * beat - 0.06, 0, 0.04)
    ctx.curve_to(0.30, -0.30 * beat - 0.06, 0.62, -0.50 * beat - 0.16, 1, -0.42 * beat)
    ctx.curve_to(0.62, -0.34 * beat - 0.02, 0.34, -0.10 * beat + 0.08, 0.02, 0.17)
    ctx.curve_to(-0.34, -0.10 * beat + 0.08, -0.62, -0.34 * beat - 0.02, -1, -0.42 * beat)
    ctx.set_source_rgba(*tint, alpha)
    ctx.fill()
    ctx.restore()


def goose(ctx, x, y, size, beat, tint, alpha=1.0, heading=1):
    """A goose seen from the side: long neck forward, wings up or down."""
    ctx.save()
    ctx.translate(x, y)
    ctx.scale(size * heading, size)
    ctx.set_source_rgba(*tint, alpha)
    smooth(
        ctx,
        [
            (-0.62, 0.02),
            (-0.30, -0.10),
            (0.10, -0.11),
            (0.42, -0.05),
            (0.78, -0.07),
            (0.92, -0.11),
            (1.0, -0.07),
            (0.90, -0.02),
            (0.74, -0.01),
            (0.42, 0.06),
            (0.08, 0.13),
            (-0.30, 0.09),
        ],
    )
    ctx.fill()
    for near, lift in ((0, 0.9), (1, 1.0)):
        tip = -0.95 * beat * lift
        ctx.move_to(0.26 - near * 0.06, -0.05)
        ctx.curve_to(0.14, tip * 0.5, -0.06 - near * 0.12, tip * 0.8, -0.36 - near * 0.16, tip)
        ctx.curve_to(-0.34, tip * 0.6, -0.28, tip * 0.22, -0.24, 0.03)
        ctx.close_path()
        ctx.fill()
    ctx.restore()


def house(
    ctx, rng, x, y, size, wall, side, roof, roof_side, window, snow=None, turn=1, lit=0.8, windows=2
):
    """A small house: gable wall in front, long wall and roof going back to one side."""
    w, h, deep = size, size * 0.62, size * rng.uniform(0.9, 1.3) * turn
    peak, sink = size * 0.55, -size * 0.10
    gx = x + (w if turn > 0 else 0)
    poly(ctx, [(gx, y), (gx + deep, y + sink), (gx + deep, y - h + sink * 0.6), (gx, y - h)], side)
    poly(ctx, [(x, y), (x + w, y), (x + w, y - h), (x + w / 2, y - h - peak), (x, y - h)], wall)
    over, drop = size * 0.10 * turn, size * 0.07
    ridge_a, ridge_b = (x + w / 2 - over * 0.3, y - h - peak - drop * 0.4), (
        x + w / 2 + deep + over * 0.5,
        y - h - peak + sink * 0.5,
    )
    eave_a, eave_b = (gx + over * 0.8, y - h + drop), (
        gx + deep + over * 1.3,
        y - h + drop + sink * 0.6,
    )
    poly(ctx, [ridge_a, ridge_b, eave_b, eave_a], roof_side)
    ox = x if turn > 0 else x + w
    other = (ox - over * 0.8, y - h + drop)
    thick = size * (0.10 if snow else 0.06)
    poly(
        ctx, [ridge_a, other, (other[0], other[1] - thick), (ridge_a[0], ridge_a[1] - thick)], roof
    )
    poly(
        ctx,
        [ridge_a, eave_a, (eave_a[0], eave_a[1] - thick), (ridge_a[0], ridge_a[1] - thick)],
        roof,
    )
    if snow:
        poly(
            ctx,
            [
                (ridge_a[0], ridge_a[1] - thick),
                (ridge_b[0], ridge_b[1] - thick * 0.8),
                (eave_b[0], eave_b[1] - thick * 0.7),
                (eave_a[0], eave_a[1] - thick),
            ],
            snow[1],
        )
        poly(
            ctx,
            [
                (ridge_a[0], ridge_a[1] - thick),
                (ridge_a[0], ridge_a[1] - thick * 0.1),
                (other[0], other[1]),
                (other[0], other[1] - thick),
            ],
            snow[0],
        )
        poly(
            ctx,
            [
                (ridge_a[0], ridge_a[1] - thick),
                (ridge_a[0], ridge_a[1] - thick * 0.2),
                (eave_a[0], eave_a[1]),
                (eave_a[0], eave_a[1] - thick),
            ],
            mix(snow[0], snow[1], 0.3),
        )
    spots = []
    dark = mix(side, (0.05, 0.05, 0.1), 0.45)
    pw, ph = w * 0.20, h * 0.36
    for k in (0.28, 0.72):
        on = rng.random() < lit
        px, py = x + w * k - pw / 2, y - h * 0.78
        _pane(ctx, px, py, pw, ph, window if on else dark, wall, size)
        if on:
            spots.append((px + pw / 2, py + ph / 2))
    if size > 16:
        _pane(
            ctx,
            x + w * 0.42,
            y - h - peak * 0.45,
            w * 0.16,
            peak * 0.28,
            window if rng.random() < lit else dark,
            wall,
            size,
        )
    for k in range(windows):
        f = (k + 0.6) / (windows + 0.2)
        on = rng.random() < lit
        px, py = gx + deep * f, y + sink * f - h * 0.74
        _pane(
            ctx,
            px - abs(deep) * 0.07,
            py,
            abs(deep) * 0.14,
            ph * 0.92,
            mix(window, side, 0.12) if on else dark,
            side,
            size,
        )
        if on:
            spots.append((px, py + ph / 2))
    return spots


def _pane(ctx, x, y, w, h, tint, frame, size):
    poly(ctx, [(x, y), (x + w, y), (x + w, y + h), (x, y + h)], tint)
    if size > 40:
        thin = size * 0.012
        dark = mix(frame, (0, 0, 0), 0.35)
        for a, b in (
            ((x + w / 2, y), (x + w / 2, y + h)),
            ((x, y + h * 0.45), (x + w, y + h * 0.45)),
        ):
            ctx.move_to(*a)
            ctx.line_to(*b)
            ctx.set_line_width(thin)
            ctx.set_source_rgb(*dark)
            ctx.stroke()
        ctx.rectangle(x, y, w, h)
        ctx.set_line_width(thin * 1.6)
        ctx.stroke()


def church(ctx, x, y, size, wall, side, roof, window):
    """A tower with a pointed spire."""
    w, h = size * 0.30, size
    poly(ctx, [(x, y), (x + w * 0.6, y), (x + w * 0.6, y - h * 0.58), (x, y - h * 0.58)], wall)
    poly(
        ctx,
        [(x + w * 0.6, y), (x + w, y), (x + w, y - h * 0.58), (x + w * 0.6, y - h * 0.58)],
        side,
    )
    tip = (x + w * 0.52, y - h * 1.05)
    poly(
        ctx,
        [(x - w * 0.10, y - h * 0.57), (x + w * 0.6, y - h * 0.555), tip],
        mix(roof, (1, 1, 1), 0.16),
    )
    poly(ctx, [(x + w * 0.6, y - h * 0.555), (x + w * 1.08, y - h * 0.57), tip], roof)
    oval(ctx, x + w * 0.30, y - h * 0.46, w * 0.10, h * 0.045, window)


def smoke(canvas, x, y, height, drift, tint, strength, width=9.0):
    """A thread of smoke that widens and thins as it rises."""
    rng = canvas.rng
    t = np.clip((y - YY) / height, 0, 1)
    path = x + drift * t**1.5 + 10 * np.sin(t * 7 + 0.6) * t
    spread = width * (0.5 + 4.2 * t)
    cloud = noise.fbm2(rng, H, W, 26, 22, 4)
    alpha = (
        np.exp(-(((XX - path) / spread) ** 2))
        * (1 - t) ** 1.3
        * (YY < y)
        * smoothstep(0.2, 0.7, cloud)
    )
    canvas.blend(tint, np.clip(alpha * strength, 0, 1))


def snowfall(ctx, rng, count, tint, keep=None):
    for _ in range(count):
        x, y, near = rng.uniform(0, W), rng.uniform(0, H), rng.random() ** 3
        if keep is not None and not keep(x, y):
            continue
        dot(ctx, x, y, 0.8 + 2.6 * near, tint, 0.30 + 0.45 * (1 - near))


def boat(ctx, x, y, size, hull, sail, sail_shade, lean=0.05):
    """A small sailing boat, main and fore sail filled by the wind."""
    ctx.save()
    ctx.translate(x, y)
    ctx.rotate(lean)
    ctx.scale(size, size)
    poly(ctx, [(-0.005, 0), (0.012, 0), (0.010, -1.20), (-0.002, -1.20)], (0.42, 0.33, 0.27))
    for points, tint in (
        (((0.03, -1.12), (0.03, -0.13), (0.52, -0.10)), sail),
        (((-0.03, -1.02), (-0.04, -0.12), (-0.40, -0.07)), sail_shade),
    ):
        (ax, ay), (bx, by), (cx, cy) = points
        ctx.move_to(ax, ay)
        ctx.curve_to(ax, (ay + by) / 2, bx, by - 0.1, bx, by)
        ctx.curve_to((bx + cx) / 2, by + 0.04, (bx + cx) / 2, cy + 0.03, cx, cy)
        side = 1 if cx > bx else -1
        ctx.curve_to((ax + cx) / 2 + 0.16 * side, cy - 0.42, ax + 0.08 * side, ay + 0.30, ax, ay)
        ctx.set_source_rgb(*tint)
        ctx.fill()
    for k in (0.32, 0.56, 0.78):
        ctx.move_to(0.035, -1.12 + k)
        ctx.curve_to(
            0.1, -1.10 + k, 0.18 * k + 0.05, -1.10 + k, 0.04 + 0.50 * k**1.05, -1.12 + k + 0.03
        )
        ctx.set_line_width(0.006)
        ctx.set_source_rgba(*sail_shade, 0.8)
        ctx.stroke()
    ctx.move_to(-0.50, -0.035)
    ctx.curve_to(-0.2, -0.012, 0.2, -0.016, 0.62, -0.06)
    ctx.curve_to(0.54, 0.03, 0.42, 0.085, 0.30, 0.10)
    ctx.line_to(-0.36, 0.10)
    ctx.curve_to(-0.45, 0.09, -0.49, 0.03, -0.50, -0.035)
    ctx.set_source_rgb(*hull)
    ctx.fill()
    ctx.move_to(-0.495, -0.012)
    ctx.curve_to(-0.2, 0.012, 0.2, 0.008, 0.60, -0.036)
    ctx.set_line_width(0.020)
    ctx.set_source_rgb(*sail)
    ctx.stroke()
    ctx.restore()


def kite(ctx, rng, x, y, size, turn, tints, string_to, line):
    """A kite with a fluttering tail and a slack line to the ground."""
    c, s = math.cos(turn), math.sin(turn)
    at = lambda px, py: (x + (px * c - py * s) * size, y + (px * s + py * c) * size)
    sx, sy = string_to
    ctx.move_to(*at(0, 0.1))
    ctx.curve_to(x + (sx - x) * 0.35, y + (sy - y) * 0.55 + 40, x + (sx - x) * 0.7, sy - 10, sx, sy)
    ctx.set_line_width(1.1)
    ctx.set_source_rgba(*line, 0.65)
    ctx.stroke()
    tail = [
        at(0, 1.15),
        at(0.22, 1.6),
        at(-0.14, 2.1),
        at(0.26, 2.65),
        at(-0.02, 3.2),
        at(0.30, 3.7),
    ]
    stroke(ctx, tail, size * 0.03, mix(tints[0], (0.2, 0.1, 0.1), 0.3))
    for i, (px, py) in enumerate(tail[1:]):
        a = turn + rng.uniform(-0.5, 0.5)
        for side in (-1, 1):
            poly(
                ctx,
                [
                    (px, py),
                    (
                        px + side * math.cos(a) * size * 0.22,
                        py + side * math.sin(a) * size * 0.22 - size * 0.08,
                    ),
                    (
                        px + side * math.cos(a) * size * 0.22,
                        py + side * math.sin(a) * size * 0.22 + size * 0.08,
                    ),
                ],
                tints[(i + (side > 0)) % len(tints)],
            )
    top, bottom, left, right, mid = at(0, -0.75), at(0, 1.15), at(-0.72, 0), at(0.72, 0), at(0, 0)
    for points, tint in (
        ((top, left, mid), tints[0]),
        ((top, right, mid), tints[1]),
        ((bottom, left, mid), tints[2]),
        ((bottom, right, mid), mix(tints[0], (0.3, 0, 0), 0.2)),
    ):
        poly(ctx, points, tint)


def butterfly(ctx, x, y, size, turn, tint, dark):
    ctx.save()
    ctx.translate(x, y)
    ctx.rotate(turn)
    for side in (-1, 1):
        shape(
            ctx,
            [
                (0, 0),
                (side * size * 0.5, -size * 0.75),
                (side * size, -size * 0.55),
                (side * size * 0.8, -size * 0.02),
            ],
            mix(tint, dark, 0.1 if side < 0 else 0),
        )
        shape(
            ctx,
            [
                (0, 0),
                (side * size * 0.62, size * 0.06),
                (side * size * 0.6, size * 0.55),
                (side * size * 0.22, size * 0.5),
            ],
            mix(tint, dark, 0.22),
        )
    oval(ctx, 0, 0, size * 0.07, size * 0.4, dark)
    ctx.restore()


def fence(ctx, rng, points, height, tint, snow=None):
    """Posts and two rails along a polyline of (x, y, scale)."""
    for rail in (0.45, 0.82):
        for a, b in zip(points, points[1:]):
            taper(
                ctx,
                [
                    (a[0], a[1] - height * a[2] * rail),
                    (
                        (a[0] + b[0]) / 2,
                        (a[1] - height * a[2] * rail + b[1] - height * b[2] * rail) / 2
                        + height * 0.03,
                    ),
                    (b[0], b[1] - height * b[2] * rail),
                ],
                height * a[2] * 0.085,
                height * b[2] * 0.085,
                tint,
            )
    for x, y, s in points:
        lean = rng.uniform(-0.05, 0.05) * height * s
        taper(
            ctx,
            [(x, y), (x + lean, y - height * s)],
            height * s * 0.13,
            height * s * 0.11,
            mix(tint, (0, 0, 0), rng.uniform(0, 0.15)),
        )
        if snow:
            oval(ctx, x + lean, y - height * s, height * s * 0.12, height * s * 0.075, snow)
