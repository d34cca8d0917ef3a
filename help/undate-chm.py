#!/usr/bin/env python3
"""Puts a checksum in the place of the two times that a compiled help file holds, so that the same pages always give
the same file:
    help/undate-chm.py lnd.chm
The viewer only compares these values, to see whether what it has kept of a file is still of this file."""

import pathlib
import struct
import sys
import zlib

FILE_TIME = 0x10  # where the header holds it
SYSTEM_START = struct.pack("<IHH", 3, 10, 4)  # the list "#SYSTEM": its version, then the entry of the time, 4 bytes


def main(name):
    path = pathlib.Path(name)
    data = bytearray(path.read_bytes())
    if data[:4] != b"ITSF" or data.count(SYSTEM_START) != 1:
        sys.exit(f"{name} is not as the help compiler writes it")
    places = [FILE_TIME, data.index(SYSTEM_START) + len(SYSTEM_START)]
    for place in places:
        data[place:place + 4] = bytes(4)
    checksum = struct.pack("<I", zlib.crc32(data))
    for place in places:
        data[place:place + 4] = checksum
    path.write_bytes(data)


main(sys.argv[1])
