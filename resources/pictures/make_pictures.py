#!/usr/bin/env python3
"""Draws the About box's two pictures as PNG files, at the sizes of their canvases:
logo2011_150px.png (150 x 93) and PayPalDonate.png (62 x 31). Shapes are drawn at
four times the size and averaged down, so their edges are smooth."""
import struct
import zlib

SS = 4  # samples per pixel along each axis


def write_png(path, width, height, pixels):
    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))

    raw = b"".join(b"\0" + bytes(v for px in row for v in px) for row in pixels)
    with open(path, "wb") as f:
        f.write(b"\x89PNG\r\n\x1a\n")
        f.write(chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0)))
        f.write(chunk(b"IDAT", zlib.compress(raw, 9)))
        f.write(chunk(b"IEND", b""))


def in_round_rect(x, y, left, top, right, bottom, r):
    if x < left or x > right or y < top or y > bottom:
        return False
    cx = min(max(x, left + r), right - r)
    cy = min(max(y, top + r), bottom - r)
    return (x - cx) ** 2 + (y - cy) ** 2 <= r * r


def render(width, height, shapes):
    """shapes: list of (test(x, y) -> bool, (r, g, b, a)), later ones on top."""
    out = []
    for py in range(height):
        row = []
        for px in range(width):
            acc = [0.0, 0.0, 0.0, 0.0]
            for sy in range(SS):
                for sx in range(SS):
                    x = px + (sx + 0.5) / SS
                    y = py + (sy + 0.5) / SS
                    color = (0, 0, 0, 0)
                    for test, c in shapes:
                        if test(x, y):
                            color = c
                    a = color[3] / 255.0
                    for i in range(3):
                        acc[i] += color[i] * a
                    acc[3] += a
            n = SS * SS
            alpha = acc[3] / n
            if alpha > 0:
                rgb = [round(acc[i] / acc[3]) for i in range(3)]
            else:
                rgb = [0, 0, 0]
            row.append((*rgb, round(alpha * 255)))
        out.append(row)
    return out


# A 3 x 5 pixel font, enough for the button's word.
FONT = {
    "D": ["110", "101", "101", "101", "110"],
    "o": ["000", "111", "101", "101", "111"],
    "n": ["000", "110", "101", "101", "101"],
    "a": ["000", "011", "101", "101", "011"],
    "t": ["010", "111", "010", "010", "011"],
    "e": ["000", "111", "111", "100", "111"],
}


def text_test(word, left, top, scale):
    cells = set()
    x0 = left
    for ch in word:
        glyph = FONT[ch]
        for gy, line in enumerate(glyph):
            for gx, bit in enumerate(line):
                if bit == "1":
                    cells.add((x0 + gx * scale, top + gy * scale))
        x0 += 4 * scale
    return lambda x, y: any(cx <= x < cx + scale and cy <= y < cy + scale for cx, cy in cells)


def logo():
    navy, teal, white, amber = (24, 52, 96, 255), (32, 150, 160, 255), (250, 250, 245, 255), (
        240, 170, 40, 255)
    shapes = [
        # a keypad: the body, its display and nine keys, the last one lit
        (lambda x, y: in_round_rect(x, y, 45, 4, 105, 89, 9), navy),
        (lambda x, y: in_round_rect(x, y, 52, 11, 98, 28, 3), teal),
    ]
    for row in range(3):
        for col in range(3):
            left, top = 53 + col * 15, 35 + row * 17
            color = amber if (row, col) == (2, 2) else white
            shapes.append((lambda x, y, l=left, t=top: in_round_rect(x, y, l, t, l + 12, t + 13, 3),
                           color))
    # two small diamonds each side
    for i, cx in enumerate((10, 28, 122, 140)):
        shapes.append((lambda x, y, c=cx: abs(x - c) + abs(y - 46) <= 8, teal if i % 2 else navy))
    return render(150, 93, shapes)


def donate():
    gold, edge, ink = (255, 196, 57, 255), (200, 140, 20, 255), (16, 48, 112, 255)
    shapes = [
        (lambda x, y: in_round_rect(x, y, 1, 4, 61, 27, 11.5), edge),
        (lambda x, y: in_round_rect(x, y, 2, 5, 60, 26, 10.5), gold),
        (text_test("Donate", 8, 10, 2), ink),
    ]
    return render(62, 31, shapes)


if __name__ == "__main__":
    write_png("logo2011_150px.png", 150, 93, logo())
    write_png("PayPalDonate.png", 62, 31, donate())
