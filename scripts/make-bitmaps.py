#!/usr/bin/env python3
"""Write the three pictures of the legend options page into resources/.

    legend-panel.bmp  269 x 60,  16 colours: a legend panel with one entry
    graph-full.bmp    274 x 190, 256 colours: a graph over the whole picture
    graph-upper.bmp   274 x 190, 16 colours: the same graph in the upper
                      129 rows, the rest left free for the legend picture

Drawn from rectangles, lines and sampled curves only, with blocks standing
for text. The output is byte-for-byte the same on every run; the build uses
the committed files and needs no Python.

Usage: scripts/make-bitmaps.py [folder]   (default: resources)
"""

import math
import os
import struct
import sys

# The 16 colours of the standard VGA palette, as (r, g, b).
VGA = [
    (0, 0, 0), (128, 0, 0), (0, 128, 0), (128, 128, 0),
    (0, 0, 128), (128, 0, 128), (0, 128, 128), (192, 192, 192),
    (128, 128, 128), (255, 0, 0), (0, 255, 0), (255, 255, 0),
    (0, 0, 255), (255, 0, 255), (0, 255, 255), (255, 255, 255),
]
BLACK, DARK_RED, GREY, SILVER, RED, BLUE, WHITE = 0, 1, 8, 7, 9, 12, 15
DARK_BLUE = 4


class Canvas:
    def __init__(self, width, height, fill):
        self.width, self.height = width, height
        self.rows = [[fill] * width for _ in range(height)]

    def dot(self, x, y, c):
        if 0 <= x < self.width and 0 <= y < self.height:
            self.rows[y][x] = c

    def fill(self, left, top, right, bottom, c):
        for y in range(top, bottom):
            for x in range(left, right):
                self.dot(x, y, c)

    def frame(self, left, top, right, bottom, c):
        for x in range(left, right):
            self.dot(x, top, c)
            self.dot(x, bottom - 1, c)
        for y in range(top, bottom):
            self.dot(left, y, c)
            self.dot(right - 1, y, c)

    def raised(self, left, top, right, bottom):
        """A raised edge like the system's: light top left, dark bottom right."""
        for x in range(left, right):
            self.dot(x, top, WHITE)
            self.dot(x, bottom - 1, BLACK)
            self.dot(x, bottom - 2, GREY)
        for y in range(top, bottom):
            self.dot(left, y, WHITE)
            self.dot(right - 1, y, BLACK)
            self.dot(right - 2, y, GREY)

    def line(self, x0, y0, x1, y1, c):
        steps = max(abs(x1 - x0), abs(y1 - y0), 1)
        for i in range(steps + 1):
            self.dot(round(x0 + (x1 - x0) * i / steps), round(y0 + (y1 - y0) * i / steps), c)

    def text_block(self, left, top, length, c):
        """A row of glyph-sized blocks standing for a word."""
        for i in range(length):
            self.fill(left + i * 6, top, left + i * 6 + 4, top + 7, c)


def draw_graph(cv, height):
    """A graph with title, axis numbers, grid and two curves in rows 0..height."""
    cv.fill(0, 0, cv.width, height, SILVER)
    cv.raised(0, 0, cv.width, height)
    cv.text_block(cv.width // 2 - 27, 5, 10, DARK_BLUE)            # title
    left, top, right, bottom = 34, 18, cv.width - 12, height - 22
    cv.fill(left, top, right, bottom, WHITE)
    for i in range(1, 5):                                          # dotted grid
        gx = left + (right - left) * i // 5
        gy = top + (bottom - top) * i // 4 if i < 4 else None
        for y in range(top, bottom, 3):
            cv.dot(gx, y, GREY)
        if gy is not None:
            for x in range(left, right, 3):
                cv.dot(x, gy, GREY)
    cv.frame(left - 1, top - 1, right + 1, bottom + 1, BLACK)
    for i in range(6):                                             # numbers and tics
        x = left + (right - left) * i // 5
        cv.line(x, bottom, x, bottom + 3, BLACK)
        cv.text_block(x - 5, bottom + 6, 2, BLACK)
    for i in range(5):
        y = top + (bottom - top) * i // 4
        cv.line(left - 4, y, left - 1, y, BLACK)
        cv.text_block(left - 22, y - 3, 3, BLACK)
    mid, amp = (top + bottom) / 2, (bottom - top) * 0.38
    for curve, colour in ((math.sin, RED), (math.cos, BLUE)):
        prev = None
        for x in range(left, right):
            y = round(mid - amp * curve((x - left) / (right - left) * 2 * math.pi))
            if prev is not None:
                cv.line(prev[0], prev[1], x, y, colour)
            prev = (x, y)


def draw_legend_panel(cv):
    cv.fill(0, 0, cv.width, cv.height, SILVER)
    cv.raised(0, 0, cv.width, cv.height)
    cv.frame(12, 20, 44, 38, BLACK)                                # sample of the entry
    cv.fill(13, 21, 43, 37, WHITE)
    cv.line(14, 29, 41, 29, RED)
    cv.fill(26, 27, 31, 32, RED)                                   # its mark
    cv.text_block(52, 26, 6, BLACK)                                # the series name


def write_bmp(path, cv, bits):
    colours = 1 << bits
    palette = VGA + [(0, 0, 0)] * (colours - len(VGA))
    stride = ((cv.width * bits + 31) // 32) * 4
    pixels = bytearray()
    for y in range(cv.height - 1, -1, -1):                         # bottom-up
        row = cv.rows[y]
        if bits == 8:
            line = bytearray(row)
        else:
            line = bytearray((row[x] << 4) | (row[x + 1] if x + 1 < cv.width else 0)
                             for x in range(0, cv.width, 2))
        pixels += line + bytes(stride - len(line))
    offset = 14 + 40 + 4 * colours
    header = struct.pack('<2sIHHI', b'BM', offset + len(pixels), 0, 0, offset)
    info = struct.pack('<IiiHHIIiiII', 40, cv.width, cv.height, 1, bits, 0, len(pixels), 2835, 2835, colours, 0)
    table = b''.join(struct.pack('<BBBB', b, g, r, 0) for r, g, b in palette)
    with open(path, 'wb') as f:
        f.write(header + info + table + pixels)


def main():
    folder = sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(__file__), '..', 'resources')
    panel = Canvas(269, 60, SILVER)
    draw_legend_panel(panel)
    write_bmp(os.path.join(folder, 'legend-panel.bmp'), panel, 4)
    full = Canvas(274, 190, SILVER)
    draw_graph(full, 190)
    write_bmp(os.path.join(folder, 'graph-full.bmp'), full, 8)
    upper = Canvas(274, 190, SILVER)
    draw_graph(upper, 129)
    write_bmp(os.path.join(folder, 'graph-upper.bmp'), upper, 4)


if __name__ == '__main__':
    main()
