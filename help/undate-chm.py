#!/usr/bin/env python3
"""Replaces the two times in a compiled help file by a checksum, so that the same pages always give the same file:
    help/undate-chm.py lnd.chm
The viewer only compares these values with those it has cached, to see whether the file has changed."""

import pathlib
import struct
import sys
import zlib

FILE_TIME = 0x10  # offset in the header
SYSTEM_START = struct.pack("<IHH", 3, 10, 4)  # "#SYSTEM" begins with its version and the entry of the time, 4 bytes


def main(name):
    path = pathlib.Path(name)
    data = bytearray(path.read_bytes())
    if data[:4] != b"ITSF" or data.count(SYSTEM_START) != 1:
        sys.exit(f"{name} is not as the help compiler writes it")
    offsets = [FILE_TIME, data.index(SYSTEM_START) + len(SYSTEM_START)]
    for offset in offsets:
        data[offset:offset + 4] = bytes(4)
    checksum = struct.pack("<I", zlib.crc32(data))
    for offset in offsets:
        data[offset:offset + 4] = checksum
    path.write_bytes(data)


main(sys.argv[1])
