#!/usr/bin/env python3
"""Prints how wide a picture is, so that it grows with the text around it as the screen's resolution grows; the viewer of
the help scales letters, but no pixels:
    help/picture-width.py picture.png"""

import pathlib
import struct
import sys

PIXELS_OF_AN_EM = 16 * 0.90  # a page's text at 96 dots per inch: 90 % of the usual size (stilus.css)

header = pathlib.Path(sys.argv[1]).read_bytes()[:24]
if header[:8] != b"\x89PNG\r\n\x1a\n" or header[12:16] != b"IHDR":
    sys.exit(f"{sys.argv[1]} is no PNG picture")
print(f"{struct.unpack('>I', header[16:20])[0] / PIXELS_OF_AN_EM:.2f}em")
