#!/usr/bin/env python3
"""Write resources/cross.cur, the cursor shown over the plot area.

A 32 by 32 one-bit cursor: a thin black cross through row and column 12
across the whole box, with the hot spot at (12, 12). Each arm is black up
to the pixel next to the hot spot, one pixel short of it; the hot spot
pixel itself inverts the screen, every other pixel is transparent.

Pixel kinds, as (AND bit, XOR bit):
    transparent  (1, 0)
    black        (0, 0)
    inverting    (1, 1)

The output is byte-for-byte the same on every run; the build uses the
committed file and needs no Python.

Usage: scripts/make-cursor.py [output]   (default: resources/cross.cur)
"""

import os
import struct
import sys

SIZE = 32
HOT_X = 12
HOT_Y = 12

TRANSPARENT = (1, 0)
BLACK = (0, 0)
INVERT = (1, 1)


def pixel(x, y):
    if x == HOT_X and y == HOT_Y:
        return INVERT
    if x == HOT_X or y == HOT_Y:
        return BLACK
    return TRANSPARENT


def mask_rows(which):
    """Rows of one mask, bottom-up, one bit a pixel, MSB leftmost,
    each row padded to 32 bits (here exactly 4 bytes)."""
    stride = ((SIZE + 31) // 32) * 4
    out = bytearray()
    for y in range(SIZE - 1, -1, -1):
        row = bytearray(stride)
        for x in range(SIZE):
            if pixel(x, y)[which]:
                row[x // 8] |= 0x80 >> (x % 8)
        out += row
    return bytes(out)


def build():
    xor_mask = mask_rows(1)
    and_mask = mask_rows(0)
    palette = struct.pack("<4B4B", 0, 0, 0, 0, 255, 255, 255, 0)  # black, white
    info = struct.pack(
        "<IiiHHIIiiII",
        40,                 # biSize
        SIZE,               # biWidth
        SIZE * 2,           # biHeight: XOR and AND masks together
        1,                  # biPlanes
        1,                  # biBitCount
        0,                  # biCompression (BI_RGB)
        len(xor_mask) + len(and_mask),  # biSizeImage
        0, 0,               # resolution
        0, 0,               # colours used, important
    )
    image = info + palette + xor_mask + and_mask

    header = struct.pack("<HHH", 0, 2, 1)  # reserved, type 2 (cursor), count
    offset = len(header) + 16
    entry = struct.pack(
        "<BBBBHHII",
        SIZE, SIZE,         # width, height
        2,                  # colours in the image
        0,                  # reserved
        HOT_X, HOT_Y,       # hot spot
        len(image),
        offset,
    )
    return header + entry + image


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    default = os.path.join(here, os.pardir, "resources", "cross.cur")
    path = sys.argv[1] if len(sys.argv) > 1 else os.path.normpath(default)
    with open(path, "wb") as f:
        f.write(build())


if __name__ == "__main__":
    main()
