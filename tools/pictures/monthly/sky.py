# SPDX-License-Identifier: GPL-3.0-or-later
"""What hangs in the sky: sun, moon, stars, clouds, rainbow."""

import numpy as np

from . import noise
from .canvas import H, W, XX, YY
from .noise import smoothstep
from .palette import Ramp, colour


def disc(canvas, x, y, radius, tint, opacity=1.0, edge=1.2):
    d = np.hypot(XX - x, YY - y)
    canvas.blend(tint, smoothstep(radius + edge, radius - edge, d) * opacity)


def sun(canvas, x, y, radius, core, halo, strength=0.8, reach=7.0):
    canvas.glow(x, y, radius * reach, halo, strength * 0.55, 1.1)
    canvas.glow(x, y, radius * 2.4, halo, strength * 0.55)
    disc(canvas, x, y, radius, core, 1.0, 1.6)


def moon(canvas, x, y, radius, tint, dark, phase, halo, strength):
    """phase 1 is full; less leaves a crescent lit from the lower right."""
    canvas.glow(x, y, radius * 6, halo, strength * 0.5)
    canvas.glow(x, y, radius * 2.2, halo, strength * 0.5)
    d = np.hypot(XX - x, YY - y)
    face = smoothstep(radius + 0.9, radius - 0.9, d)
    if phase < 1:
        away = radius * 2 * phase
        cut = np.hypot(XX - (x - away * 0.80), YY - (y - away * 0.60))
        canvas.blend(dark, face * 0.30)
        face = face * smoothstep(radius - 0.6, radius + 1.6, cut)
    canvas.blend(tint, face)
    if phase >= 1:
        spots = noise.fbm2(canvas.rng, H, W, radius * 0.9, radius * 0.9, 4)
        canvas.blend(dark, face * smoothstep(0.42, 0.66, spots) * 0.55)


def stars(canvas, count, bottom, tint="#ffffff", power=1.0, clear=()):
    """Stars, fewer and weaker towards the horizon; clear: (x, y, r) kept empty."""
    rng = canvas.rng
    sheet = np.zeros((H, W), np.float32)
    for _ in range(count):
        x, y = rng.uniform(3, W - 4), bottom * rng.random() ** 1.25
        if any(np.hypot(x - a, y - b) < r for a, b, r in clear):
            continue
        size = rng.random() ** 7
        light = (0.20 + 0.80 * rng.random() ** 2.2 + size * 0.5) * (1 - (y / bottom) ** 2.2) * power
        spread = 0.55 + size * 1.15
        x0, y0 = int(x), int(y)
        ys, xs = np.mgrid[max(0, y0 - 6) : y0 + 7, max(0, x0 - 6) : min(W, x0 + 7)]
        spot = light * np.exp(-((xs - x) ** 2 + (ys - y) ** 2) / (2 * spread**2))
        sheet[ys[0, 0] : ys[-1, 0] + 1, xs[0, 0] : xs[0, -1] + 1] += spot
        if size > 0.55:
            canvas.glow(x, y, 16, tint, 0.22 * light)
    canvas.screen(tint, np.clip(sheet, 0, 1))


def milky_way(canvas, start, end, width, tint, strength, count=2600):
    """A band of star dust between two points, with dark lanes."""
    rng = canvas.rng
    (x0, y0), (x1, y1) = start, end
    length = np.hypot(x1 - x0, y1 - y0)
    ax, ay = (x1 - x0) / length, (y1 - y0) / length
    across = (XX - x0) * -ay + (YY - y0) * ax
    wave = noise.fbm2(rng, H, W, 260, 260, 4) - 0.5
    across = across + wave * width * 1.1
    cloud = noise.fbm2(rng, H, W, 120, 120, 6, 0.56)
    band = np.exp(-((across / width) ** 2))
    lanes = smoothstep(0.5, 0.66, noise.fbm2(rng, H, W, 90, 150, 5, 0.55)) * np.exp(
        -(((across - width * 0.1) / (width * 0.5)) ** 2)
    )
    light = band * smoothstep(0.30, 0.80, cloud) * (1 - 0.75 * lanes)
    fade = smoothstep(max(y0, y1), max(y0, y1) - 330, YY)
    canvas.screen(tint, np.clip(light * fade, 0, 1) * strength)
    sheet = np.zeros((H, W), np.float32)
    xs = rng.integers(0, W, count * 6)
    ys = rng.integers(0, H, count * 6)
    keep = rng.random(count * 6) < (light * fade)[ys, xs] * 0.55
    sheet[ys[keep], xs[keep]] = rng.random(keep.sum()) ** 2
    canvas.screen("#ffffff", sheet * 0.55 + noise.blur(sheet, 1) * 0.9)


def streaks(
    canvas, tint, strength, top, bottom, cell=(26, 420), low=0.50, high=0.75, tilt=0.0, octaves=5
):
    """Thin layered cloud between two heights."""
    rng = canvas.rng
    field = noise.fbm2(rng, H + 400, W, cell[0], cell[1], octaves, 0.52)
    rows = np.clip(YY + 200 + tilt * (XX - W / 2) + 14 * np.sin(XX / 310), 0, H + 399).astype(
        np.int32
    )
    field = np.take_along_axis(field, rows, axis=0)
    middle, half = (top + bottom) / 2, (bottom - top) / 2
    band = np.clip(1 - np.abs((YY - middle) / half) ** 2.2, 0, 1)
    canvas.blend(tint, smoothstep(low, high, field) * band * strength)


def cumulus(
    canvas,
    x,
    base,
    width,
    height,
    lit,
    shade,
    light=(-0.55, -0.75),
    opacity=1.0,
    puffs=34,
    ragged=0.34,
):
    """One heaped cloud, modelled as a bank of spheres so that light can fall on it."""
    rng = canvas.rng
    margin = int(height * 0.5) + 20
    x0, x1 = max(0, int(x - width / 2) - margin), min(W, int(x + width / 2) + margin)
    y0, y1 = max(0, int(base - height * 1.25) - margin), min(H, int(base + margin))
    if x1 - x0 < 8 or y1 - y0 < 8:
        return
    yy, xx = YY[y0:y1, x0:x1], XX[y0:y1, x0:x1]
    hump = rng.uniform(-0.16, 0.16)
    depth = np.zeros(yy.shape, np.float32)
    for k in range(puffs):
        # an even spread first, so that no puff floats alone
        u = (k + 0.5) / 14 - 0.5 if k < 14 else np.clip(rng.normal(hump, 0.17), -0.42, 0.42)
        u = u * 0.92
        top = np.exp(-(((u - hump) / 0.22) ** 2)) * 0.85 + 0.15 * (1 - 4 * u * u)
        v = rng.random() ** 0.8 * top
        r = height * (0.14 + 0.20 * rng.random()) * (1.1 - 0.45 * v) * (1.2 - 1.3 * abs(u))
        cx, cy = x + u * width, base - v * (height - r) - r * 0.30
        inner = np.maximum(0, r * r - (xx - cx) ** 2 - (yy - cy) ** 2)
        depth = np.maximum(depth, np.sqrt(inner))
    h, w = depth.shape
    rough = noise.fbm2(rng, h, w, height * 0.14, height * 0.17, 5, 0.55) - 0.5
    body = noise.blur(depth, max(1, height * 0.015)) + rough * height * ragged * (depth > 0)
    body = noise.blur(body, max(1, height * 0.006))
    alpha = smoothstep(0, height * 0.13, body)
    floor = noise.fbm2(rng, h, w, 30, height * 0.3, 3) - 0.5
    alpha = alpha * smoothstep(base + 4, base - height * 0.20, yy + floor * height * 0.22)
    gy, gx = np.gradient(noise.blur(body, max(2, height * 0.05)))
    length = np.sqrt(gx * gx + gy * gy + 1.0)
    facing = -(gx * light[0] + gy * light[1]) / length
    up = np.clip((base - yy) / height, 0, 1)
    tone = 0.50 + 0.34 * facing + 0.48 * (up - 0.35) + 0.10 * rough
    canvas_part = canvas.px[y0:y1, x0:x1]
    pixels = Ramp(shade, lit).array(np.clip(tone, 0, 1))
    canvas_part += (pixels - canvas_part) * (alpha * opacity)[..., None]


def rainbow(canvas, x, y, radius, width, strength, low):
    """Red outside, violet inside, brighter sky within; low is where it fades out."""
    d = np.hypot(XX - x, YY - y)
    t = (d - radius) / width
    bands = Ramp("#8a6be0", "#5a8cf0", "#4fd0c0", "#9be36a", "#ffe65e", "#ffab4a", "#ff6a5a")
    shape = smoothstep(0, 0.22, t) * smoothstep(1, 0.78, t)
    uneven = 0.75 + 0.5 * (noise.fbm2(canvas.rng, H, W, 260, 260, 2) - 0.5)
    fade = smoothstep(low + 60, low - 220, YY)
    canvas.px += (bands.array(t) - canvas.px) * (shape * strength * uneven * fade)[..., None]
    canvas.screen("#ffffff", smoothstep(radius + 10, radius - 260, d) * 0.10 * fade)


def rays(canvas, x, y, tint, strength, spread=9.0, reach=900):
    """Faint shafts of light from the sun."""
    angle = np.arctan2(YY - y, XX - x)
    wave = noise.line(canvas.rng, 2000, 2000 / (spread * 6), 3)
    place = np.clip((angle + np.pi) / (2 * np.pi) * 1999, 0, 1999).astype(int)
    shaft = smoothstep(0.0, 0.7, wave[place].astype(np.float32))
    d = np.hypot(XX - x, YY - y)
    canvas.screen(tint, shaft * np.exp(-d / reach * 1.6) * strength)


def gradient_light(canvas, tint, centre, reach, strength):
    """Warm or cool one side of the whole scene."""
    d = np.hypot((XX - centre[0]) / reach[0], (YY - centre[1]) / reach[1])
    canvas.blend(colour(tint), np.exp(-d * d) * strength)
