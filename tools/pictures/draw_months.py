#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Draw the supplied month pictures. See README.md."""

import argparse
import io
import pathlib

from monthly import (
    april,
    august,
    december,
    february,
    january,
    july,
    june,
    march,
    may,
    november,
    october,
    september,
)

HERE = pathlib.Path(__file__).resolve().parent
IMAGES = HERE.parent.parent / "data" / "Images"

MONTHS = {
    "January": january.january,
    "February": february.february,
    "March": march.march,
    "April": april.april,
    "May": may.may,
    "June": june.june,
    "July": july.july,
    "August": august.august,
    "September": september.september,
    "October": october.october,
    "November": november.november,
    "December": december.december,
}
LARGEST = 450 * 1000


def encode(image):
    """JPEG at quality 88, or a little less where the picture would grow too large."""
    for quality in range(88, 70, -1):
        data = io.BytesIO()
        image.save(data, "JPEG", quality=quality, optimize=True, progressive=True)
        if data.tell() <= LARGEST:
            break
    return data.getvalue(), quality


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument(
        "months", nargs="*", metavar="MONTH", help="English month names; all twelve when left out"
    )
    parser.add_argument(
        "--to", type=pathlib.Path, default=IMAGES, help="folder to write to (default: data/Images)"
    )
    options = parser.parse_args()
    unknown = set(options.months) - set(MONTHS)
    if unknown:
        parser.error("no such month: " + ", ".join(sorted(unknown)))
    options.to.mkdir(parents=True, exist_ok=True)
    for name in options.months or MONTHS:
        data, quality = encode(MONTHS[name]().finish())
        (options.to / (name + ".jpg")).write_bytes(data)
        print(f"{name}.jpg  {len(data) // 1000} kB  quality {quality}")


if __name__ == "__main__":
    main()
