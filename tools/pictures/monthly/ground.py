# SPDX-License-Identifier: GPL-3.0-or-later
"""What lies on the ground: shadows, and the last snow."""

from . import noise, terrain
from .brush import oval
from .canvas import H, W, YY, Layer
from .noise import smoothstep


def tree_shadows(c, places, tint, strength, side=1, soft=6):
    """Soft shadows lying on the ground away from the light."""
    layer = Layer()
    for x, y, h in places:
        oval(layer.ctx, x + side * h * 0.22, y + h * 0.015, h * 0.46, h * 0.065, (0, 0, 0))
    c.shadow(layer, tint, strength, soft)


def cloud_shadows(c, top, bottom, strength):
    field = noise.fbm2(c.rng, H, W, 70, 520, 3)
    band = smoothstep(top, top + 60, YY) * smoothstep(bottom, bottom - 120, YY)
    c.multiply("#6d86a8", smoothstep(0.50, 0.66, field) * band * strength)


def snow_patches(c, edge, depth, strength):
    """Last snow in the hollows, level patches that thin out downhill."""
    d = terrain.under(edge)
    field = noise.fbm2(c.rng, H, W, 13, 120, 4, 0.5)
    cover = (
        smoothstep(0.60, 0.66, terrain.along(field, d) - 0.05 * d / depth)
        * (d > 2)
        * smoothstep(depth * 2, depth, d)
    )
    c.blend("#f2f6f8", cover * strength)
