#!/usr/bin/env python3
"""Makes the starter icon library from icons.py: svg/<n>.svg (the drawings), ico/<n>.ico (each
drawing as PNG images of 16, 32 and 64 pixels inside an .ico file) and "Icon Tags.dat".
Needs ImageMagick's `convert`. Run it after changing icons.py and commit what it writes."""
import os
import struct
import subprocess
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from icons import ICONS  # noqa: E402

HERE = os.path.dirname(os.path.abspath(__file__))
SIZES = (16, 32, 64)


def svg_text(body):
    return ('<svg xmlns="http://www.w3.org/2000/svg" width="64" height="64" '
            'viewBox="0 0 64 64">' + body + '</svg>\n')


def png_of(svg_path, size):
    return subprocess.run(
        ['convert', '-background', 'none', '-density', str(72 * size // 64 * 4), svg_path,
         '-resize', '%dx%d' % (size, size), '-strip', 'PNG32:-'],
        check=True, capture_output=True).stdout


def ico_of(pngs):
    header = struct.pack('<HHH', 0, 1, len(pngs))
    offset = 6 + 16 * len(pngs)
    entries = b''
    for size, png in pngs:
        entries += struct.pack('<BBBBHHII', size % 256, size % 256, 0, 0, 1, 32, len(png), offset)
        offset += len(png)
    return header + entries + b''.join(png for _, png in pngs)


def main():
    os.makedirs(os.path.join(HERE, 'svg'), exist_ok=True)
    os.makedirs(os.path.join(HERE, 'ico'), exist_ok=True)
    tags = b''
    for number, caption, body in ICONS:
        svg_path = os.path.join(HERE, 'svg', '%d.svg' % number)
        with open(svg_path, 'w') as f:
            f.write(svg_text(body))
        with open(os.path.join(HERE, 'ico', '%d.ico' % number), 'wb') as f:
            f.write(ico_of([(size, png_of(svg_path, size)) for size in SIZES]))
        tags += ('%d:%s\r\n' % (number, caption)).encode('cp1252')
    with open(os.path.join(HERE, 'Icon Tags.dat'), 'wb') as f:
        f.write(tags)


if __name__ == '__main__':
    main()
