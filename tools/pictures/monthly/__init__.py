# SPDX-License-Identifier: GPL-3.0-or-later
"""The supplied month pictures, drawn by code."""
