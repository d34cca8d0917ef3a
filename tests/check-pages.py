#!/usr/bin/env python3
"""Follows everything on the project's pages that leads to another place in it:
    tests/check-pages.py
Every link and picture of a page (*.md) must lead to a file of the project and, after a "#", to a heading there; a file
that a page names in `code` must be there; a preset that a command names must be one; and every page must be reachable
from README.md."""

import json
import pathlib
import posixpath
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
START = "README.md"
LEAST_PAGES = 8

LINK = re.compile(r"!?\[[^\]]*\]\(([^)\s]+)\)")
CODE = re.compile(r"`([^`\n]+)`")
BLOCK = re.compile(r"^ *```.*?^ *```", re.MULTILINE | re.DOTALL)
HEADING = re.compile(r"^#+ +(.+?) *$", re.MULTILINE)
PRESET = re.compile(r"--(?:preset|workflow --preset)[ =]([\w-]+)")
NAMED_FILE = re.compile(r"(?:\./)?((?:[\w.-]+/)+[\w.-]*|[\w-]+\.(?:sh|md|py))(?: .*)?")
MADE = ("build/", "dist/")  # what commands make

complaints = []


def files_of_project():
    command = [ROOT / "packaging" / "sources.sh", "files"]
    return set(subprocess.run(command, check=True, capture_output=True, text=True).stdout.split("\0")) - {""}


FILES = files_of_project()
PLACES = FILES | {folder.as_posix() for name in FILES for folder in pathlib.PurePath(name).parents}
PAGES = {name: (ROOT / name).read_text(encoding="utf-8") for name in FILES if name.endswith(".md")}
PRESETS = {preset["name"] for kind in ("configurePresets", "testPresets")
           for preset in json.loads((ROOT / "CMakePresets.json").read_text(encoding="utf-8"))[kind]}


def anchors(text):
    """The anchors that the usual viewers make of headings."""
    headings = HEADING.findall(BLOCK.sub("", text))
    return {re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-") for heading in headings}


def complain(page, target, reason):
    complaints.append(f"{page}: {target}: {reason}")


def follow(page, link):
    """Returns the file that a link leads to; None when it leads out of the project or nowhere."""
    if re.match(r"[a-z]+:", link):
        return None
    path, _, anchor = link.partition("#")
    target = posixpath.normpath(posixpath.join(posixpath.dirname(page), path)) if path else page
    if target not in PLACES:
        complain(page, link, "leads nowhere")
    elif anchor and anchor not in anchors(PAGES.get(target, "")):
        complain(page, link, "there is no such heading")
    return target


def is_there(path):
    """Also one that begins at a folder further down, and a class by the stem of its files."""
    return any(f"/{place}".endswith(f"/{path}") or place.startswith(f"{path}.") for place in PLACES)


def check_names(page, text):
    """What looks like a path counts when its first folder is the project's; X stands for any name."""
    for code in CODE.findall(BLOCK.sub("", text)):
        name = NAMED_FILE.fullmatch(code)
        if not name or name[1].startswith(MADE) or pathlib.PurePath(name[1]).stem in ("x", "X"):
            continue
        path = name[1].rstrip("/")
        if not is_there(path) and ("/" not in path or is_there(path.split("/")[0])):
            complain(page, code, "is not there")
    for preset in PRESET.findall(text):
        if preset not in PRESETS:
            complain(page, preset, "is no preset")


def main():
    leads_to = {}
    for page, text in sorted(PAGES.items()):
        links = [follow(page, link) for link in LINK.findall(BLOCK.sub("", text))]
        leads_to[page] = {link for link in links if link in PAGES}
        check_names(page, text)
    reached, waiting = set(), [START]
    while waiting:
        page = waiting.pop()
        if page not in reached:
            reached.add(page)
            waiting.extend(leads_to.get(page, ()))
    for page in sorted(set(PAGES) - reached):
        complain(page, START, "does not lead here")
    if len(PAGES) < LEAST_PAGES:
        complain("the project", len(PAGES), "too few pages; are they all looked at?")
    print("\n".join(complaints) or f"{len(PAGES)} pages are in order")
    sys.exit(1 if complaints else 0)


main()
