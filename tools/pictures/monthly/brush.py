# SPDX-License-Identifier: GPL-3.0-or-later
"""Small vector marks the other modules are built from."""

import math


def poly(ctx, points, tint, alpha=1.0):
    ctx.move_to(*points[0])
    for p in points[1:]:
        ctx.line_to(*p)
    ctx.close_path()
    ctx.set_source_rgba(*tint, alpha)
    ctx.fill()


def smooth(ctx, points, closed=True):
    """A path through all points with soft corners (Catmull-Rom)."""
    n = len(points)
    get = (lambda i: points[i % n]) if closed else (lambda i: points[max(0, min(n - 1, i))])
    ctx.move_to(*points[0])
    for i in range(n if closed else n - 1):
        a, b, c, d = get(i - 1), get(i), get(i + 1), get(i + 2)
        ctx.curve_to(
            b[0] + (c[0] - a[0]) / 6,
            b[1] + (c[1] - a[1]) / 6,
            c[0] - (d[0] - b[0]) / 6,
            c[1] - (d[1] - b[1]) / 6,
            *c
        )
    if closed:
        ctx.close_path()


def shape(ctx, points, tint, alpha=1.0):
    smooth(ctx, points)
    ctx.set_source_rgba(*tint, alpha)
    ctx.fill()


def dot(ctx, x, y, r, tint, alpha=1.0):
    ctx.set_source_rgba(*tint, alpha)
    ctx.arc(x, y, r, 0, 2 * math.pi)
    ctx.fill()


def oval(ctx, x, y, rx, ry, tint, alpha=1.0, turn=0.0):
    ctx.save()
    ctx.translate(x, y)
    ctx.rotate(turn)
    ctx.scale(max(rx, 0.01), max(ry, 0.01))
    ctx.arc(0, 0, 1, 0, 2 * math.pi)
    ctx.restore()
    ctx.set_source_rgba(*tint, alpha)
    ctx.fill()


def leaf(ctx, x, y, length, width, turn, tint, alpha=1.0):
    """A pointed leaf or petal growing from (x, y) in direction turn."""
    c, s = math.cos(turn), math.sin(turn)
    ex, ey = x + c * length, y + s * length
    mx, my = x + c * length * 0.5, y + s * length * 0.5
    ctx.move_to(x, y)
    ctx.curve_to(mx - s * width, my + c * width, mx - s * width, my + c * width, ex, ey)
    ctx.curve_to(mx + s * width, my - c * width, mx + s * width, my - c * width, x, y)
    ctx.set_source_rgba(*tint, alpha)
    ctx.fill()


def blade(ctx, x, y, length, width, lean, tint, alpha=1.0, droop=0.0):
    """One blade of grass: broad foot, fine tip, bent by lean."""
    tx, ty = x + lean, y - length + droop
    mx, my = x + lean * 0.22, y - length * 0.62
    ctx.move_to(x - width, y)
    ctx.curve_to(x - width * 0.7, y - length * 0.3, mx - width * 0.4, my, tx, ty)
    ctx.curve_to(mx + width * 0.6, my, x + width * 0.9, y - length * 0.3, x + width, y)
    ctx.close_path()
    ctx.set_source_rgba(*tint, alpha)
    ctx.fill()


def stroke(ctx, points, width, tint, alpha=1.0):
    smooth(ctx, points, closed=False)
    ctx.set_line_width(width)
    ctx.set_source_rgba(*tint, alpha)
    ctx.stroke()


def taper(ctx, points, w0, w1, tint, alpha=1.0):
    """A curved band, w0 wide at its start and w1 at its end."""
    left, right, n = [], [], len(points)
    for i, (x, y) in enumerate(points):
        a, b = points[max(0, i - 1)], points[min(n - 1, i + 1)]
        dx, dy = b[0] - a[0], b[1] - a[1]
        size = math.hypot(dx, dy) or 1
        half = (w0 + (w1 - w0) * i / (n - 1)) / 2
        left.append((x - dy / size * half, y + dx / size * half))
        right.append((x + dy / size * half, y - dx / size * half))
    smooth(ctx, left, closed=False)
    ctx.line_to(*right[-1])
    for p in reversed(right):
        ctx.line_to(*p)
    ctx.close_path()
    ctx.set_source_rgba(*tint, alpha)
    ctx.fill()
