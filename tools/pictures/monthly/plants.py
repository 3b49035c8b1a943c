# SPDX-License-Identifier: GPL-3.0-or-later
"""Grass, flowers, corn and reeds: the growth of the foreground."""

import math

import cairo
import numpy as np

from .brush import blade, dot, leaf, oval, smooth, stroke
from .palette import mix, rgb


def grass(ctx, rng, spots, ramp, low, high, wind=0.15, fine=1.0, bottom=0.0):
    """Blades at (x, y, nearness); ramp runs from far and dark to near and bright."""
    for x, y, t in spots:
        size = low + (high - low) * t
        length = size * rng.uniform(0.5, 1.25)
        tone = bottom + (1 - bottom) * t * 0.55 + rng.normal(0.22, 0.16)
        lean = length * (wind + rng.normal(0, 0.26))
        blade(ctx, x, y, length, max(0.45, size * 0.030 * fine), lean, ramp(tone))


def tuft(ctx, rng, x, y, size, ramp, wind=0.1, count=11):
    """A fan of fine blades from one root."""
    for k in np.argsort(rng.random(count)):
        fan = (k / (count - 1) - 0.5) * 2 + rng.normal(0, 0.15)
        length = size * rng.uniform(0.55, 1.1) * (1.05 - 0.35 * abs(fan))
        blade(
            ctx,
            x + fan * size * 0.07 + rng.normal(0, size * 0.02),
            y + rng.uniform(-1, 1) * size * 0.03,
            length,
            max(0.45, size * 0.016),
            length * (wind + fan * 0.55),
            ramp(rng.random()),
            1,
            length * 0.12 * fan * fan,
        )


def footing(ctx, rng, places, ramp, wide=0.10, size=0.05):
    """Grass that hides where a trunk of height h meets the ground; places are (x, y, h)."""
    for x, y, h in places:
        for _ in range(int(18 + h * 0.12)):
            dx = rng.normal(0, wide * h)
            blade(
                ctx,
                x + dx,
                y + h * 0.012 + rng.uniform(0, 0.02) * h,
                max(5, size * h) * rng.uniform(0.5, 1.2),
                max(0.6, h * 0.003),
                rng.normal(0.1, 0.3) * size * h,
                ramp(rng.uniform(0.1, 0.75)),
            )


def stem(ctx, x, y, length, lean, width, tint):
    top = (x + lean, y - length)
    stroke(ctx, [(x, y), (x + lean * 0.35, y - length * 0.55), top], width, tint)
    return top


def daisy(ctx, rng, x, y, size, petal, heart, tint, shade):
    x, y = stem(
        ctx,
        x,
        y,
        size * rng.uniform(2.2, 4.2),
        size * rng.uniform(-0.7, 0.9),
        max(0.6, size * 0.11),
        tint,
    )
    flat = rng.uniform(0.45, 0.85)
    count = int(rng.integers(9, 13))
    turn = rng.random()
    for i in range(count):
        a = turn + i * 2 * math.pi / count
        white = mix(petal, shade, 0.5 + 0.5 * math.sin(a) if math.sin(a) > 0 else 0.08)
        leaf(
            ctx,
            x,
            y,
            size
            * rng.uniform(0.9, 1.05)
            * (abs(math.cos(a)) + flat * abs(math.sin(a))) ** 0.6
            * (1 if abs(math.cos(a)) > 0.6 else flat**0.5),
            size * 0.24,
            math.atan2(math.sin(a) * flat, math.cos(a)),
            white,
        )
    oval(ctx, x, y, size * 0.30, size * 0.26 * flat + size * 0.05, heart)
    oval(
        ctx,
        x - size * 0.06,
        y - size * 0.07,
        size * 0.15,
        size * 0.11 * flat,
        mix(heart, (1, 1, 0.8), 0.5),
    )


def dandelion(ctx, rng, x, y, size):
    x, y = stem(
        ctx,
        x,
        y,
        size * rng.uniform(1.6, 3.2),
        size * rng.uniform(-0.5, 0.5),
        max(0.7, size * 0.11),
        rgb("#6fa348"),
    )
    for ring, tint in ((1.0, "#e7a916"), (0.76, "#f8c928"), (0.46, "#ffe463")):
        for k in range(13):
            a = k * 2 * math.pi / 13 + ring
            oval(
                ctx,
                x + math.cos(a) * size * 0.5 * ring,
                y + math.sin(a) * size * 0.34 * ring,
                size * 0.24,
                size * 0.09,
                rgb(tint),
                1,
                math.atan2(math.sin(a) * 0.7, math.cos(a)),
            )


def bell(ctx, rng, x, y, size, ramp, tint):
    """A cluster flower, a tall spike of small blooms."""
    length = size * rng.uniform(3.6, 5.4)
    lean = size * rng.uniform(-0.5, 0.7)
    tx, ty = stem(ctx, x, y, length, lean, max(0.6, size * 0.12), tint)
    for i in range(18):
        k = i / 18
        px, py = tx - lean * 0.5 * k, ty + length * 0.5 * k
        w = size * (0.10 + 0.42 * k**0.8)
        for _ in range(3):
            oval(
                ctx,
                px + rng.uniform(-w, w),
                py + rng.uniform(-0.1, 0.1) * size,
                size * 0.15,
                size * 0.12,
                ramp(rng.uniform(0.1, 0.6) + 0.4 * (1 - k)),
                1,
                rng.uniform(-1, 1),
            )


def poppy(ctx, rng, x, y, size, ramp, tint, bud=False):
    x, y = stem(
        ctx,
        x,
        y,
        size * rng.uniform(2.2, 5.2),
        size * rng.uniform(-0.8, 1.1),
        max(0.6, size * 0.085),
        tint,
    )
    if bud:
        oval(
            ctx,
            x,
            y,
            size * 0.2,
            size * 0.34,
            mix(tint, (0.6, 0.7, 0.3), 0.3),
            1,
            rng.uniform(-0.5, 0.5),
        )
        return
    turn = rng.uniform(-0.35, 0.35)
    wide, high = size * rng.uniform(0.82, 1.05), size * rng.uniform(0.80, 1.0)
    c, s = math.cos(turn), math.sin(turn)
    open_up = rng.uniform(0.0, 0.22)

    def at(dx, dy, rx, ry, tone):
        px, py = dx * wide, dy * high - high * 0.35
        tone += rng.uniform(-0.05, 0.05)
        glow = cairo.RadialGradient(x, y - high * 0.30, size * 0.08, x, y - high * 0.30, size * 1.0)
        glow.add_color_stop_rgb(0, *ramp(tone * 0.42))
        glow.add_color_stop_rgb(0.40, *ramp(tone * 0.92))
        glow.add_color_stop_rgb(0.85, *ramp(tone + 0.12))
        glow.add_color_stop_rgb(1, *ramp(tone + 0.26))
        petal(ctx, rng, x + px * c - py * s, y + px * s + py * c, rx * wide, ry * high, turn, glow)

    # a bowl: far petals, the dark heart between, near petals in front of it
    at(-0.34, -0.30 - open_up, 0.50, 0.50, 0.34)
    at(0.36, -0.28 - open_up, 0.50, 0.50, 0.28)
    at(0.0, -0.12 - open_up * 0.5, 0.34, 0.20, 0.02)
    at(-0.40, 0.02, 0.50, 0.52, 0.52)
    at(0.42, 0.04, 0.48, 0.50, 0.44)
    at(0.0, 0.24, 0.62, 0.46 - open_up * 0.5, 0.66)
    hx, hy = x - size * 0.22, y - high * 0.20
    oval(ctx, hx, hy, size * 0.20, size * 0.06, ramp(0.95), 0.35, turn - 0.35)


def petal(ctx, rng, x, y, rx, ry, turn, fill):
    """A crumpled round petal filled with a gradient."""
    points = []
    for i in range(11):
        a = i * 2 * math.pi / 11
        r = rng.uniform(0.87, 1.10)
        px, py = math.cos(a) * rx * r, math.sin(a) * ry * r
        points.append(
            (
                x + px * math.cos(turn) - py * math.sin(turn),
                y + px * math.sin(turn) + py * math.cos(turn),
            )
        )
    smooth(ctx, points)
    ctx.set_source(fill)
    ctx.fill()


def crocus(ctx, rng, x, y, size, ramp, tint, heart):
    """A goblet of pointed petals on a short pale stem, with narrow leaves."""
    for _ in range(4):
        blade(
            ctx,
            x + size * rng.uniform(-0.2, 0.2),
            y,
            size * rng.uniform(0.9, 1.8),
            size * 0.06,
            size * rng.uniform(-0.9, 0.9),
            mix(tint, (0.8, 0.9, 0.6), rng.uniform(0, 0.3)),
        )
    turn = rng.uniform(-0.22, 0.22)
    top = y - size * rng.uniform(0.55, 0.85)
    stroke(ctx, [(x, y), (x, top)], size * 0.13, mix(ramp(0.9), (1, 1, 1), 0.35))
    wide = rng.uniform(0.8, 1.25)
    up = -math.pi / 2 + turn
    for off, tone, length in ((-0.22, 0.30, 1.18), (0.24, 0.38, 1.16), (0.0, 0.22, 1.24)):
        leaf(ctx, x, top, size * length, size * 0.34, up + off * wide, ramp(tone))
    leaf(ctx, x, top - size * 0.3, size * 0.62, size * 0.09, up, heart)
    for off, tone, length in ((-0.46, 0.62, 1.05), (0.48, 0.52, 1.04), (0.03, 0.80, 0.98)):
        leaf(
            ctx,
            x,
            top + size * 0.04,
            size * length,
            size * 0.36,
            up + off * wide,
            ramp(tone + rng.uniform(-0.06, 0.06)),
        )
    leaf(ctx, x - size * 0.05, top, size * 0.75, size * 0.06, up + 0.03, ramp(0.45), 0.5)


def snowdrop(ctx, rng, x, y, size, white, shade, tint):
    side = rng.choice([-1, 1])
    for _ in range(2):
        blade(
            ctx,
            x + size * rng.uniform(-0.15, 0.15),
            y,
            size * rng.uniform(1.3, 2.0),
            size * 0.085,
            size * rng.uniform(-0.6, 0.6),
            mix(tint, (0.75, 0.85, 0.7), rng.uniform(0, 0.3)),
        )
    high = size * rng.uniform(1.9, 2.5)
    tx, ty = x + side * size * 0.55, y - high + size * 0.22
    stroke(
        ctx,
        [
            (x, y),
            (x + side * size * 0.05, y - high * 0.6),
            (x + side * size * 0.25, y - high),
            (tx, ty),
        ],
        size * 0.085,
        tint,
    )
    oval(ctx, tx, ty + size * 0.08, size * 0.11, size * 0.14, mix(tint, (0.4, 0.7, 0.3), 0.4))
    down = math.pi / 2
    leaf(ctx, tx, ty + size * 0.12, size * 0.72, size * 0.17, down, shade)
    for off, c in ((0.42, shade), (-0.42, white), (0.04, white)):
        leaf(ctx, tx, ty + size * 0.12, size * rng.uniform(0.78, 0.9), size * 0.24, down + off, c)


def ear(ctx, rng, x, y, length, lean, ramp, width):
    """One stalk of wheat with its ear and awns."""
    top_x, top_y = x + lean, y - length
    stroke(
        ctx,
        [(x, y), (x + lean * 0.3, y - length * 0.6), (top_x, top_y)],
        width,
        ramp(0.30 + rng.uniform(0, 0.2)),
    )
    turn = math.atan2(-length * 0.5, lean * 1.7)
    size = length * 0.30
    for k in range(7):
        f = k / 7
        px, py = top_x + math.cos(turn) * size * f, top_y + math.sin(turn) * size * f
        fat = width * 2.0 * (1 - 0.45 * f)
        for s in (-1, 1):
            leaf(
                ctx,
                px,
                py,
                fat * 2.5,
                fat * 0.85,
                turn + s * 0.42,
                ramp(0.62 + 0.25 * (s < 0) + rng.uniform(-0.12, 0.12)),
            )
            stroke(
                ctx,
                [
                    (px, py),
                    (
                        px + math.cos(turn + s * 0.22) * size * 0.6,
                        py + math.sin(turn + s * 0.22) * size * 0.6,
                    ),
                ],
                max(0.4, width * 0.18),
                ramp(0.78),
                0.4,
            )


def reed(ctx, rng, x, y, length, lean, tint, head, width):
    top = stem(ctx, x, y, length, lean, width, tint)
    turn = math.atan2(-length, lean)
    if rng.random() < 0.5:
        ex, ey = top[0] - math.cos(turn) * length * 0.16, top[1] - math.sin(turn) * length * 0.16
        stroke(ctx, [(ex, ey), top], width * 3.6, head)
        stroke(
            ctx,
            [
                top,
                (top[0] + math.cos(turn) * length * 0.07, top[1] + math.sin(turn) * length * 0.07),
            ],
            width * 0.7,
            tint,
        )
    else:
        for _ in range(7):
            f = rng.uniform(0, 0.2) * length
            leaf(
                ctx,
                top[0] - math.cos(turn) * f,
                top[1] - math.sin(turn) * f,
                length * 0.10,
                width * 1.1,
                turn + rng.uniform(-0.2, 0.55),
                head,
                0.85,
            )
    blade(
        ctx,
        x + width,
        y,
        length * rng.uniform(0.5, 0.8),
        width * 1.2,
        lean * 2 + length * rng.uniform(-0.3, 0.3),
        tint,
    )


def speckle(ctx, rng, spots, tints, low, high, alpha=1.0):
    """Far flowers: two-tone dabs of colour."""
    for x, y, t in spots:
        size = (low + (high - low) * t) * rng.uniform(0.6, 1.3)
        tint = tints[int(rng.integers(len(tints)))]
        oval(ctx, x, y, size, size * 0.7, mix(tint, (0.1, 0.1, 0.1), 0.14), alpha)
        if size > 1.2:
            dot(ctx, x - size * 0.2, y - size * 0.25, size * 0.55, tint, alpha)


def drift(rng, count, x0, x1, y0, y1, patch=None, power=1.0):
    """Free places between two rows, far ones first, in patches when a field is given."""
    out = []
    t = np.sort(rng.random(count) ** power)
    for k in t:
        x, y = rng.uniform(x0, x1), y0 + (y1 - y0) * k
        if (
            patch is None
            or rng.random()
            < patch[int(np.clip(y, 0, patch.shape[0] - 1)), int(np.clip(x, 0, patch.shape[1] - 1))]
        ):
            out.append((x, y, k))
    return out
