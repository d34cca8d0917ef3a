#!/usr/bin/env python3
"""Scales a drawing of 16 by 16 units to a size in pixels so that its edges stay sharp.

    fit-to-pixels.py drawing.svg size > fitted.svg

Whole numbers in the drawing are edges and are rounded to whole pixels. All others, those of slants and curves, are
only scaled. Paths must use the absolute commands M, L, H, V, C and Z.
"""
import math
import re
import sys
import xml.etree.ElementTree as ElementTree

UNITS = 16
SVG = "http://www.w3.org/2000/svg"
LENGTHS = ("cx", "cy", "r", "rx", "ry", "stroke-width")


def fitted(number: str, scale: float) -> str:
    value = float(number) * scale
    if "." not in number:
        value = math.floor(value + 0.5)
    return f"{value:g}"


def main() -> None:
    drawing, size = sys.argv[1], int(sys.argv[2])
    scale = size / UNITS
    ElementTree.register_namespace("", SVG)
    tree = ElementTree.parse(drawing)
    root = tree.getroot()
    for element in root.iter():
        if "d" in element.attrib:
            path = element.attrib["d"]
            unknown = re.search(r"[^MLHVCZ0-9. -]", path)
            if unknown:
                sys.exit(f"{drawing}: {unknown.group()!r} in a path")
            element.attrib["d"] = re.sub(r"-?\d*\.?\d+", lambda found: fitted(found.group(), scale), path)
        for name in LENGTHS:
            if name in element.attrib:
                element.attrib[name] = f"{float(element.attrib[name]) * scale:g}"
    root.attrib.update(width=str(size), height=str(size), viewBox=f"0 0 {size} {size}")
    tree.write(sys.stdout, encoding="unicode")


main()
