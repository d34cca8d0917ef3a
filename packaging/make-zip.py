#!/usr/bin/env python3
"""Packs a folder so that the same files always give the same archive:
    packaging/make-zip.py <archive> <folder> <time>
Names are sorted, every file bears `time` (seconds since 1970, as UTC), and none has rights or owners."""

import pathlib
import sys
import time
import zipfile


def main(archive, folder, seconds):
    root = pathlib.Path(folder)
    date = time.gmtime(int(seconds))[:6]
    with zipfile.ZipFile(archive, "w") as target:
        for path in sorted(root.rglob("*"), key=lambda path: path.relative_to(root).as_posix()):
            if path.is_file():
                entry = zipfile.ZipInfo(path.relative_to(root.parent).as_posix(), date)
                entry.compress_type = zipfile.ZIP_DEFLATED
                entry.create_system = 0  # as if made on Windows
                target.writestr(entry, path.read_bytes(), compresslevel=9)


main(*sys.argv[1:])
