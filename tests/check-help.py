#!/usr/bin/env python3
"""Reads a compiled help file back and follows everything in it:
    tests/check-help.py lnd.chm <folder of the sources>
Every page must be reachable from the contents; every link, picture, style sheet, entry of the contents and entry of the
index must lead somewhere; and the menu items, shortcuts and messages that the pages name must be those of the program."""

import html.parser
import pathlib
import posixpath
import re
import struct
import subprocess
import sys
import tempfile
import urllib.parse

ENCODING = "cp1250"
LEAST_PAGES = 15
# The viewer writes the contents and the index in this font; 238 stands for the letters of Central Europe, whatever the
# code page of the machine.
FONT_OF_CONTENTS = "Segoe UI,9,238"
complaints = []


def complain(where, what):
    complaints.append(f"{where}: {what}")


class Page(html.parser.HTMLParser):
    """The links, files and anchors of a page."""

    def __init__(self, text):
        super().__init__()
        self.links, self.files, self.anchors, self.widths = [], [], set(), []
        self.title, self.heading, self.charset = "", "", ""
        self.menu_paths, self.rows = [], []
        self._open, self._inside = [], None
        self.feed(text)
        if self._open:
            complain(self.title, f"elements left open: {self._open}")

    VOID = {"meta", "link", "img", "br", "param"}

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        if tag not in self.VOID:
            self._open.append(tag)
        if "id" in values:
            self.anchors.add(values["id"])
        if tag == "a" and "href" in values:
            self.links.append(values["href"])
        if tag == "img":
            self.files.append(values["src"])
            self.widths.append((values["src"], values.get("style", "")))
            if not values.get("alt"):
                complain(values["src"], "a picture without a text in its place")
        if tag == "link":
            self.files.append(values["href"])
        if tag == "meta" and "charset=" in values.get("content", ""):
            self.charset = values["content"].split("charset=")[1]
        if tag == "tr":
            self.rows.append([])
        if tag in ("td", "th"):
            self.rows[-1].append("")
        if values.get("class") == "menu":
            self.menu_paths.append("")
            self._inside = len(self._open)

    def handle_endtag(self, tag):
        if not self._open or self._open[-1] != tag:
            complain(self.title, f"</{tag}> closes {self._open[-1:] or 'nothing'}")
            return
        if self._inside == len(self._open):
            self._inside = None
        self._open.pop()

    def handle_data(self, data):
        if self._inside:
            self.menu_paths[-1] += data
        for tag in self._open:
            if tag == "title":
                self.title += data
            elif tag == "h1":
                self.heading += data
            elif tag in ("td", "th"):
                self.rows[-1][-1] += data


class Sitemap(html.parser.HTMLParser):
    """The entries of a contents or index file: pairs of name and page ("" for a heading)."""

    def __init__(self, text):
        super().__init__()
        self.entries = []
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        if tag == "object":
            self.entries.append(["", ""])
        elif tag == "param":
            self.entries[-1][("Name", "Local").index(values["name"])] = values["value"]


def read_archive(chm, folder):
    """The files in it, by name."""
    subprocess.run(["chmls", "extractall", chm, folder], check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    root = pathlib.Path(folder)
    return {str(path.relative_to(root)): path.read_bytes() for path in root.rglob("*") if path.is_file()}


def windows_of(chm):
    """The names of the window types that the file defines."""
    report = subprocess.run(["chmls", "printwindows", chm], check=True, capture_output=True).stdout
    return re.findall(r"WindowType\s*:\s*(\S+)", report.decode(ENCODING))


def font_of_contents(system):
    """The default font among the entries of the stream #SYSTEM (after its version, each a code, a length and the bytes)."""
    entries, place = {}, 4
    while place < len(system):
        code, length = struct.unpack_from("<HH", system, place)
        entries[code] = system[place + 4:place + 4 + length]
        place += 4 + length
    return entries.get(16, b"").decode(ENCODING).rstrip("\0")


def menu_of(sources):
    """The program's menu: for each item "Menu > Item" its shortcut."""
    resource = (sources / "src/app/frmStart.rc").read_text(encoding="utf-8")
    menu_bar = re.search(r"^IDR_frmStart MENU\b.*?^END$", resource, re.MULTILINE | re.DOTALL).group()
    items, menu = {}, ""
    for kind, caption in re.findall(r'(POPUP|MENUITEM) "([^"]*)"', menu_bar):
        caption, _, shortcut = caption.replace("&", "").partition("\\t")
        if kind == "POPUP":
            menu = caption
        else:
            items[f"{menu} > {caption}"] = shortcut
    return items


def check_target(archive, pages, page, target):
    parts = urllib.parse.urlsplit(target)
    name = posixpath.normpath(posixpath.join(posixpath.dirname(page), urllib.parse.unquote(parts.path))) if parts.path else page
    if name not in archive:
        complain(page, f"leads to {target}, which is not there")
    elif parts.fragment and parts.fragment not in pages[name].anchors:
        complain(page, f"leads to {target}, a place that {name} does not have")


def check_pages(archive, pages, home_page):
    for name, page in pages.items():
        if page.charset != "windows-1250":
            complain(name, f"declares the encoding {page.charset!r}")
        if not page.title or page.title != page.heading:
            complain(name, f"has the title {page.title!r} and the heading {page.heading!r}")
        for link in page.links:
            if urllib.parse.urlsplit(link).scheme:
                if link != home_page:
                    complain(name, f"leads out to {link}")
            else:
                check_target(archive, pages, name, link)
        for file in page.files:
            check_target(archive, pages, name, file)


def check_pictures(archive, pages):
    used = {file for page in pages.values() for file in page.files}
    for name, content in archive.items():
        if name.startswith("pictures/"):
            if not content.startswith(b"\x89PNG\r\n\x1a\n") or b"IEND" not in content[-12:]:
                complain(name, "is no whole PNG picture")
            if name not in used:
                complain(name, "is shown by no page")


def check_widths(archive, pages):
    """Each picture is as wide as its pixels where letters have the usual size, and grows with the letters."""
    letters = 16 * int(re.search(r"body \{[^}]*font-size: (\d+)%", archive["stilus.css"].decode(ENCODING))[1]) / 100
    for name, page in pages.items():
        for file, style in page.widths:
            width = re.fullmatch(r"width: ([\d.]+)em", style)
            pixels = struct.unpack(">I", archive[file][16:20])[0]
            if not width or round(float(width[1]) * letters) != pixels:
                complain(name, f"shows {file}, {pixels} pixels wide, with the style {style!r}")


def check_contents(pages, entries):
    shown = [page for _, page in entries if page]
    for name, page in entries:
        if page and page not in pages:
            complain("contents", f"{name!r} leads to {page}, which is not there")
        elif page and name != pages[page].title:
            complain("contents", f"{name!r} leads to the page titled {pages[page].title!r}")
    for page in pages:
        if shown.count(page) != 1:
            complain(page, f"stands in the contents {shown.count(page)} times")


def check_index(pages, entries):
    names = [name for name, _ in entries]
    for name, page in entries:
        if page not in pages:
            complain("index", f"{name!r} leads to {page}, which is not there")
        if names.count(name) != 1:
            complain("index", f"{name!r} stands there {names.count(name)} times")
    for page in pages.keys() - {page for _, page in entries}:
        complain("index", f"nothing leads to {page}")


def check_menu(pages, menu):
    told = {path for page in pages.values() for path in page.menu_paths}
    for path in sorted(told - menu.keys()):
        complain("menu", f"the program has no item {path!r}")
    for path in sorted(menu.keys() - told):
        if path.split(" > ")[1] not in " ".join(" ".join(row) for page in pages.values() for row in page.rows):
            complain("menu", f"no page tells of {path!r}")
    keys = pages["billentyuk.html"].rows
    for path, shortcut in menu.items():
        caption = path.split(" > ")[1]
        if shortcut and not any(row[0] == shortcut and row[1].startswith(caption) for row in keys):
            complain("billentyuk.html", f"does not tell that {shortcut} is {caption!r}")


def texts_of(sources):
    """Every text that the program can show, one a line; pieces of one literal are joined."""
    code = "\n".join(
        path.read_text(encoding="utf-8")
        for path in sorted((sources / "src").glob("*/*.*")) if path.suffix in (".cpp", ".h", ".rc"))
    literals = re.findall(r'"(?:[^"\\\n]|\\.)*"(?:\s*L?"(?:[^"\\\n]|\\.)*")*', code)
    return "\n".join(re.sub(r'"\s*L?"', "", literal)[1:-1] for literal in literals)


def check_messages(pages, shown):
    """The messages that the help explains are the program's own, to the letter; "..." stands for what varies."""
    messages = [text for row in pages["uzenetek.html"].rows[1:] for text in re.findall("„([^”]*)”", row[0])]
    if len(messages) != len(pages["uzenetek.html"].rows) - 1:
        complain("uzenetek.html", "a row without its message")
    for message in messages:
        for piece in " ".join(message.split()).split("..."):
            if piece.strip() not in shown:
                complain("uzenetek.html", f"the program never says {piece.strip()!r}")


def main():
    chm, sources = sys.argv[1], pathlib.Path(sys.argv[2])
    cache = (pathlib.Path(chm).resolve().parent.parent / "CMakeCache.txt").read_text(encoding="utf-8")
    home_page = re.search(r"^LINDREL_HOME_PAGE:STRING=(.*)$", cache, re.MULTILINE).group(1)
    with tempfile.TemporaryDirectory() as folder:
        archive = read_archive(chm, folder)
    texts = {name: archive[name].decode(ENCODING) for name in archive if re.search(r"\.(html|hhc|hhk|css)$", name)}
    pages = {name: Page(text) for name, text in texts.items() if name.endswith(".html")}
    if len(pages) < LEAST_PAGES:
        complain(chm, f"has {len(pages)} pages")
    if windows_of(chm) != ["main"]:
        complain(chm, f"defines the windows {windows_of(chm)}")
    font = font_of_contents(archive["#SYSTEM"])
    if font != FONT_OF_CONTENTS:
        complain("contents", f"are in the font {font!r}, not in {FONT_OF_CONTENTS!r}")
    check_pages(archive, pages, home_page)
    check_pictures(archive, pages)
    check_widths(archive, pages)
    contents, index = Sitemap(texts["lnd.hhc"]).entries, Sitemap(texts["lnd.hhk"]).entries
    check_contents(pages, contents)
    check_index(pages, index)
    check_menu(pages, menu_of(sources))
    check_messages(pages, texts_of(sources))
    for complaint in complaints:
        print(complaint)
    print(f"{len(pages)} pages, {sum(len(page.links) for page in pages.values())} links, "
          f"{sum(len(page.files) for page in pages.values())} pictures and style sheets, "
          f"{len(contents)} contents entries, {len(index)} index entries, {len(complaints)} complaints")
    return 1 if complaints else 0


sys.exit(main())
