#!/usr/bin/env python3
"""Checks the user's first page in an unpacked zip: it says what the project's page says, shows its pictures, needs no other
file, and every file that it names is in the zip or among the packages:
    tests/package/check-first-page.py <unpacked folder> OLVASS.md <folder of the packages>"""

import base64
import html.parser
import pathlib
import re
import struct
import sys

NO_FILES = {".lnd", "#"}  # a kind of file, and a letter
VOID = {"meta", "br", "img"}
complaints = []


def expect(actual, expected, what):
    if actual != expected:
        complaints.append(f"{what}: {actual!r} instead of {expected!r}")


class Page(html.parser.HTMLParser):
    def __init__(self, text):
        super().__init__()
        self.title, self.style, self.text, self.codes, self.pictures = "", "", "", [], []
        self._open = []
        self.feed(text)
        expect(self._open, [], "elements left open")

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        if tag not in VOID:
            self._open.append(tag)
        if tag == "code":
            self.codes.append("")
        if tag == "img":
            self.pictures.append(values)
        expect({"href", "srcset"} & values.keys(), set(), f"<{tag}> leads elsewhere")

    def handle_endtag(self, tag):
        expect(self._open[-1:], [tag], "an element closed")
        self._open.pop()

    def handle_data(self, data):
        if "title" in self._open:
            self.title += data
        elif "style" in self._open:
            self.style += data
        else:
            self.text += data
        if "code" in self._open:
            self.codes[-1] += data


def words_of(markdown):
    """What a reader reads: no pictures, no marks."""
    text = re.sub(r"!\[[^\]]*\]\([^)]*\)", "", markdown)
    return re.sub(r"^(#+|-|\d+\.) |\*|`", "", text, flags=re.MULTILINE).split()


def check_pictures(page, markdown, folder):
    drawn = re.findall(r"!\[([^\]]*)\]\(([^)]*)\)", markdown)
    percent = int(re.search(r"font-size: (\d+)%", page.style)[1])
    expect(len(page.pictures), len(drawn), "pictures")
    for values, (alt, name) in zip(page.pictures, drawn):
        content = (folder / name).read_bytes()
        kind, _, data = values["src"].partition(",")
        expect((kind, base64.b64decode(data)), ("data:image/png;base64", content), name)
        expect(values["alt"], alt, f"text in the place of {name}")
        width = re.fullmatch(r"width: ([\d.]+)em", values.get("style", ""))
        expect(width and round(float(width[1]) * 16 * percent / 100), struct.unpack(">I", content[16:20])[0], f"width of {name}")


def check_names(page, folder, packages):
    there = {path.name for path in folder.iterdir()}
    for name in set(page.codes) - NO_FILES - there:
        expect(len(list(packages.glob(name.replace("…", "*")))), 1, f"files that are called {name}")


def main():
    folder, source, packages = map(pathlib.Path, sys.argv[1:])
    content = (folder / "OLVASS.html").read_bytes()
    markdown = source.read_text(encoding="utf-8")
    expect(b'<meta charset="utf-8">' in content[:1024], True, "the encoding stands where browsers look for it")
    page = Page(content.decode("utf-8"))
    expect(page.text.split(), words_of(markdown), "text")
    expect(page.title, markdown.partition("\n")[0].removeprefix("# "), "title")
    expect(re.findall(r"url|@import", page.style), [], "what the style asks for")
    check_pictures(page, markdown, source.parent)
    check_names(page, folder, packages)
    print("\n".join(complaints) or "the first page is right")
    return 1 if complaints else 0


sys.exit(main())
