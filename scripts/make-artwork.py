#!/usr/bin/python3
"""Draws the module's icons and task pane images into src/locale/resources/.

Every picture is small, flat and different from every other one: a coloured tile with a
shape and, for the command icons, a two-letter label. The files are written with the standard
library only (PNG through zlib, GIF with its own LZW coder, baseline JPEG with its own DCT),
so the script runs on any Python 3 and gives the same bytes every time. Its output is
committed; run it again only to change the artwork:

    /usr/bin/python3 scripts/make-artwork.py
"""

import math
import os
import struct
import zlib

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "src", "locale", "resources")

# Standard-parts commands: key and the label drawn on its icons.
PART_KEYS = [
    ("BALLOON_INSERT", "BI"), ("BALLOON_EDIT", "BE"), ("BALLOON_SETTINGS", "BS"),
    ("BOM_CREATE", "MC"), ("BOM_EDIT", "ME"), ("BOM_EXPORT", "MX"),
    ("CONFIGURE", "CF"), ("FLIPSFIN", "FS"), ("HARDWARE", "HW"),
    ("HARDWARE_EDIT", "HE"), ("HCHART", "HC"), ("HCHART_EDIT", "CE"),
    ("HDIM", "HD"), ("HOLEFEAT", "HF"), ("HOLEFEAT_EDIT", "FE"),
    ("OPTIONS", "OP"), ("REVISION_INSERT", "RI"), ("REVISIONTABLE", "RT"),
    ("REVISIONTABLE_EDIT", "TE"), ("REVSYMBOL_INSERT", "RS"), ("SCREWCONNECTION_EDIT", "SE"),
    ("SCREWCONNECTION_INSERT", "SI"), ("SFIN", "SF"), ("WELD", "WD"),
]

# A 3x5 pixel font for the labels: one string of 15 bits per letter, row by row.
FONT = {
    "B": "110101110101110", "C": "011100100100011", "D": "110101101101110",
    "E": "111100110100111", "F": "111100110100100", "H": "101101111101101",
    "I": "111010010010111", "M": "101111111101101", "O": "010101101101010",
    "P": "110101110100100", "R": "110101110101101", "S": "011100010001110",
    "T": "111010010010010", "V": "101101101101010", "W": "101101111111101",
    "X": "101101010101101",
}

WHITE = (255, 255, 255)
DARK = (40, 44, 52)
GREEN = (140, 198, 66)  # the task pane's accent colour, #8CC642


def tile_colour(index, count):
    """A distinct, fairly dark colour for each of `count` tiles."""
    hue = index / count
    sector = int(hue * 6)
    f = hue * 6 - sector
    v, s = 0.75, 0.7
    p, q, t = v * (1 - s), v * (1 - s * f), v * (1 - s * (1 - f))
    r, g, b = [(v, t, p), (q, v, p), (p, v, t), (p, q, v), (t, p, v), (v, p, q)][sector % 6]
    return (int(r * 255), int(g * 255), int(b * 255))


class Canvas:
    def __init__(self, width, height, colour):
        self.width, self.height = width, height
        self.pixels = [[colour] * width for _ in range(height)]

    def put(self, x, y, colour):
        if 0 <= x < self.width and 0 <= y < self.height:
            self.pixels[y][x] = colour

    def rect(self, x0, y0, x1, y1, colour):
        for y in range(y0, y1):
            for x in range(x0, x1):
                self.put(x, y, colour)

    def disc(self, cx, cy, radius, colour):
        for y in range(self.height):
            for x in range(self.width):
                if (x + 0.5 - cx) ** 2 + (y + 0.5 - cy) ** 2 <= radius ** 2:
                    self.put(x, y, colour)

    def triangle(self, x0, y0, size, colour):
        """A triangle pointing right, `size` high."""
        for row in range(size):
            reach = min(row, size - 1 - row)
            for x in range(reach + 1):
                self.put(x0 + x, y0 + row, colour)

    def label(self, text, scale, colour):
        width = len(text) * 4 * scale - scale
        x0 = (self.width - width) // 2
        y0 = (self.height - 5 * scale) // 2
        for i, letter in enumerate(text):
            bits = FONT[letter]
            for row in range(5):
                for col in range(3):
                    if bits[row * 3 + col] == "1":
                        self.rect(x0 + (i * 4 + col) * scale, y0 + row * scale,
                                  x0 + (i * 4 + col + 1) * scale, y0 + (row + 1) * scale, colour)


# --- PNG -------------------------------------------------------------------------------------

def png_bytes(canvas):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(
            ">I", zlib.crc32(kind + data) & 0xFFFFFFFF)

    raw = b"".join(b"\x00" + bytes(c for pixel in row for c in pixel) for row in canvas.pixels)
    header = struct.pack(">IIBBBBB", canvas.width, canvas.height, 8, 2, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(raw, 9))
            + chunk(b"IEND", b""))


# --- GIF -------------------------------------------------------------------------------------

def lzw_codes(indices, min_size):
    """The LZW code stream of a GIF image, as (code, width) pairs."""
    clear, end = 1 << min_size, (1 << min_size) + 1
    codes = []

    def reset():
        return {(i,): i for i in range(clear)}, end + 1, min_size + 1

    table, next_code, width = reset()
    codes.append((clear, width))
    current = ()
    for index in indices:
        candidate = current + (index,)
        if candidate in table:
            current = candidate
            continue
        codes.append((table[current], width))
        table[candidate] = next_code
        next_code += 1
        # The decoder adds each entry one code later, so it widens one code later too.
        if next_code > (1 << width) and width < 12:
            width += 1
        if next_code == 4096:
            codes.append((clear, width))
            table, next_code, width = reset()
        current = (index,)
    codes.append((table[current], width))
    codes.append((end, width))
    return codes


def gif_bytes(canvas):
    palette = sorted({pixel for row in canvas.pixels for pixel in row})
    assert len(palette) <= 256
    bits = max(1, (len(palette) - 1).bit_length())
    palette += [(0, 0, 0)] * ((1 << bits) - len(palette))
    lookup = {colour: i for i, colour in enumerate(palette)}
    indices = [lookup[pixel] for row in canvas.pixels for pixel in row]
    min_size = max(2, bits)

    value, filled, data = 0, 0, bytearray()
    for code, width in lzw_codes(indices, min_size):
        value |= code << filled
        filled += width
        while filled >= 8:
            data.append(value & 0xFF)
            value >>= 8
            filled -= 8
    if filled:
        data.append(value & 0xFF)
    blocks = b"".join(bytes([len(data[i:i + 255])]) + bytes(data[i:i + 255])
                      for i in range(0, len(data), 255))

    screen = struct.pack("<HHBBB", canvas.width, canvas.height, 0x80 | (bits - 1), 0, 0)
    table = bytes(c for colour in palette for c in colour)
    image = b"\x2c" + struct.pack("<HHHHB", 0, 0, canvas.width, canvas.height, 0)
    return (b"GIF89a" + screen + table + image + bytes([min_size]) + blocks + b"\x00" + b"\x3b")


# --- JPEG (baseline, 4:4:4, quality 90) ------------------------------------------------------

ZIGZAG = sorted(range(64), key=lambda i: (i // 8 + i % 8, (i % 8) if (i // 8 + i % 8) % 2 == 0
                                          else (i // 8)))
LUMA_QUANT = [16, 11, 10, 16, 24, 40, 51, 61, 12, 12, 14, 19, 26, 58, 60, 55,
              14, 13, 16, 24, 40, 57, 69, 56, 14, 17, 22, 29, 51, 87, 80, 62,
              18, 22, 37, 56, 68, 109, 103, 77, 24, 35, 55, 64, 81, 104, 113, 92,
              49, 64, 78, 87, 103, 121, 120, 101, 72, 92, 95, 98, 112, 100, 103, 99]
CHROMA_QUANT = [17, 18, 24, 47] + [99] * 4 + [18, 21, 26, 66] + [99] * 4 + \
               [24, 26, 56] + [99] * 5 + [47, 66] + [99] * 6 + [99] * 32


def scaled(table, quality=90):
    factor = 200 - 2 * quality
    return [min(255, max(1, (q * factor + 50) // 100)) for q in table]


# Every symbol gets a code of one length (DC 4 bits, AC 8 bits): larger files than the usual
# tables, but any decoder reads them, and the tables are plain to see.
DC_SYMBOLS = list(range(12))
AC_SYMBOLS = [0x00, 0xF0] + [(run << 4) | size for run in range(16) for size in range(1, 11)]
DC_CODES = {symbol: (i, 4) for i, symbol in enumerate(DC_SYMBOLS)}
AC_CODES = {symbol: (i, 8) for i, symbol in enumerate(AC_SYMBOLS)}

COSINES = [[math.cos((2 * x + 1) * u * math.pi / 16) for x in range(8)] for u in range(8)]


def dct(block):
    out = [0.0] * 64
    for v in range(8):
        for u in range(8):
            total = sum(block[y * 8 + x] * COSINES[u][x] * COSINES[v][y]
                        for y in range(8) for x in range(8))
            cu = math.sqrt(0.5) if u == 0 else 1.0
            cv = math.sqrt(0.5) if v == 0 else 1.0
            out[v * 8 + u] = 0.25 * cu * cv * total
    return out


class BitWriter:
    def __init__(self):
        self.data, self.value, self.filled = bytearray(), 0, 0

    def write(self, code, length):
        for shift in range(length - 1, -1, -1):
            self.value = (self.value << 1) | ((code >> shift) & 1)
            self.filled += 1
            if self.filled == 8:
                self.data.append(self.value)
                if self.value == 0xFF:
                    self.data.append(0x00)
                self.value, self.filled = 0, 0

    def flush(self):
        while self.filled:
            self.write(1, 1)


def magnitude(value):
    size = abs(value).bit_length()
    return size, (value if value >= 0 else value + (1 << size) - 1)


def encode_block(bits, coefficients, previous_dc):
    size, extra = magnitude(coefficients[0] - previous_dc)
    bits.write(*DC_CODES[size])
    bits.write(extra, size)
    run = 0
    for value in coefficients[1:]:
        if value == 0:
            run += 1
            continue
        while run > 15:
            bits.write(*AC_CODES[0xF0])
            run -= 16
        size, extra = magnitude(value)
        bits.write(*AC_CODES[(run << 4) | size])
        bits.write(extra, size)
        run = 0
    if run:
        bits.write(*AC_CODES[0x00])
    return coefficients[0]


def ycbcr(pixel):
    r, g, b = pixel
    return (0.299 * r + 0.587 * g + 0.114 * b,
            -0.168736 * r - 0.331264 * g + 0.5 * b + 128,
            0.5 * r - 0.418688 * g - 0.081312 * b + 128)


def jpeg_bytes(canvas):
    luma, chroma = scaled(LUMA_QUANT), scaled(CHROMA_QUANT)
    width8, height8 = -(-canvas.width // 8) * 8, -(-canvas.height // 8) * 8

    def sample(x, y):
        return ycbcr(canvas.pixels[min(y, canvas.height - 1)][min(x, canvas.width - 1)])

    bits, previous = BitWriter(), [0, 0, 0]
    for by in range(0, height8, 8):
        for bx in range(0, width8, 8):
            samples = [sample(bx + i % 8, by + i // 8) for i in range(64)]
            for component, quant in enumerate((luma, chroma, chroma)):
                coefficients = dct([s[component] - 128 for s in samples])
                zigzagged = [int(round(coefficients[i] / quant[i])) for i in ZIGZAG]
                previous[component] = encode_block(bits, zigzagged, previous[component])
    bits.flush()

    def segment(marker, payload):
        return bytes([0xFF, marker]) + struct.pack(">H", len(payload) + 2) + payload

    def huffman(table_class_id, symbols, length):
        counts = [0] * 16
        counts[length - 1] = len(symbols)
        return bytes([table_class_id]) + bytes(counts) + bytes(symbols)

    quant_tables = (b"\x00" + bytes(luma[i] for i in ZIGZAG) + b"\x01"
                    + bytes(chroma[i] for i in ZIGZAG))
    frame = struct.pack(">BHHB", 8, canvas.height, canvas.width, 3) + bytes(
        [1, 0x11, 0, 2, 0x11, 1, 3, 0x11, 1])
    scan = bytes([3, 1, 0x00, 2, 0x00, 3, 0x00, 0, 63, 0])
    return (b"\xff\xd8"
            + segment(0xE0, b"JFIF\x00\x01\x01\x00\x00\x01\x00\x01\x00\x00")
            + segment(0xDB, quant_tables)
            + segment(0xC0, frame)
            + segment(0xC4, huffman(0x00, DC_SYMBOLS, 4) + huffman(0x10, AC_SYMBOLS, 8))
            + segment(0xDA, scan) + bytes(bits.data) + b"\xff\xd9")


# --- the pictures ----------------------------------------------------------------------------

def command_icon(size, colour, text):
    canvas = Canvas(size, size, colour)
    border = max(1, size // 16)
    canvas.rect(0, 0, size, border, DARK)
    canvas.rect(0, size - border, size, size, DARK)
    canvas.rect(0, 0, border, size, DARK)
    canvas.rect(size - border, 0, size, size, DARK)
    canvas.label(text, max(1, size // 16), WHITE)
    return canvas


def publish_icon(size):
    canvas = Canvas(size, size, (30, 110, 190))
    canvas.disc(size / 2, size / 2, size * 0.42, WHITE)
    canvas.triangle(size * 3 // 8, size // 4, size // 2, (30, 110, 190))
    if size >= 24:
        canvas.rect(0, size - 2, size, size, DARK)
    return canvas


def photo(width, height, colour, shape):
    canvas = Canvas(width, height, colour)
    if shape == "disc":
        canvas.disc(width / 2, height / 2, min(width, height) / 3, WHITE)
    elif shape == "bars":
        for i in range(4):
            canvas.rect(6 + i * 10, height - 8 - i * 8, 12 + i * 10, height - 6, WHITE)
    elif shape == "waves":
        for i in range(3):
            canvas.disc(8, height - 8, 8 + i * 12, WHITE)
            canvas.disc(8, height - 8, 4 + i * 12, colour)
        canvas.disc(8, height - 8, 4, WHITE)
    elif shape == "leaf":
        canvas.disc(width / 2 - 6, height / 2, 14, GREEN)
        canvas.disc(width / 2 + 6, height / 2, 14, colour)
        canvas.rect(width // 2 - 12, height // 2 - 1, width // 2 + 10, height // 2 + 1, DARK)
    elif shape == "screen":
        canvas.rect(6, 5, width - 6, height - 12, DARK)
        canvas.rect(8, 7, width - 8, height - 14, (120, 180, 230))
        canvas.rect(width // 2 - 3, height - 12, width // 2 + 3, height - 7, DARK)
        canvas.rect(width // 2 - 10, height - 7, width // 2 + 10, height - 5, DARK)
    elif shape == "rule":
        canvas.rect(0, height // 2 - 1, width, height // 2 + 1, GREEN)
    return canvas


def write(relative, data):
    path = os.path.join(ROOT, relative)
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "wb") as file:
        file.write(data)


def main():
    for i, (key, text) in enumerate(PART_KEYS):
        colour = tile_colour(i, len(PART_KEYS))
        write("Resources/PK_%s_small.png" % key, png_bytes(command_icon(16, colour, text)))
        write("Resources/PK_%s_large.png" % key, png_bytes(command_icon(32, colour, text)))
    write("Resources/vcst_Publish_16.png", png_bytes(publish_icon(16)))
    write("Resources/vcst_publish_24.png", png_bytes(publish_icon(24)))

    write("images/community.jpg", jpeg_bytes(photo(48, 48, (70, 120, 170), "disc")))
    write("images/rss.jpg", jpeg_bytes(photo(48, 48, (230, 130, 30), "waves")))
    write("images/news.jpg", jpeg_bytes(photo(48, 48, (90, 90, 110), "bars")))
    write("images/leaf.jpg", jpeg_bytes(photo(48, 48, (235, 245, 225), "leaf")))
    write("images/tabHR.jpg", jpeg_bytes(photo(160, 8, WHITE, "rule")))
    write("images/screen.png", png_bytes(photo(64, 48, (220, 225, 230), "screen")))

    squares = Canvas(16, 16, WHITE)
    for i, colour in enumerate([GREEN, (30, 110, 190), (230, 130, 30), DARK]):
        squares.rect(1 + (i % 2) * 8, 1 + (i // 2) * 8, 7 + (i % 2) * 8, 7 + (i // 2) * 8, colour)
    write("images/tit_Squareicons.gif", gif_bytes(squares))

    tab = Canvas(16, 16, (204, 204, 204))
    tab.rect(2, 4, 14, 14, WHITE)
    tab.rect(2, 2, 8, 4, WHITE)
    tab.rect(2, 13, 14, 14, GREEN)
    write("images/ico_tab.gif", gif_bytes(tab))

    arrow = Canvas(8, 8, WHITE)
    arrow.triangle(2, 0, 8, GREEN)
    write("images/ico_arrow.gif", gif_bytes(arrow))


if __name__ == "__main__":
    main()
