#!/usr/bin/env python3
"""Rules of the sources that no compiler knows. Names every line that breaks one:
    tests/check-sources.py"""

import collections
import functools
import graphlib
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
NOT_SHIPPED = ["tests", "bench", "fuzz"]

MOST_FILES_IN_A_ROOM = 24
LONGEST_FUNCTION = 40

FIXED_WAIT = re.compile(r"\b([Ss]leep(_for|_until|Ex)?|(u|nano)sleep)[ \t]*\(|^[ \t]*sleep[ \t]+[0-9.]")
SWITCHED_OFF = re.compile(r"\bDISABLED_|GTEST_SKIP")
SUITE = re.compile(r"TEST(?:_F|_P)?\((\w+)")
CASE = re.compile(r"TEST(?:_F|_P)?\((\w+),\s+(\w+)")
INCLUDE = re.compile(r'\s*#\s*include\s+([<"])([^>"]+)')
LITERAL = re.compile(r'"(?:[^"\\]|\\.)*"')
FOR_ONE_SYSTEM = re.compile(r"^if\(WIN32\)$.*?^endif\(\)$", re.MULTILINE | re.DOTALL)
DROPPED_RESULT = "static_cast<void>"

Include = collections.namedtuple("Include", "file line system name")


# The sources. Files are named from the root, with slashes; the rooms are the folders of src/.


def files(folder, *endings):
    found = (path for path in (ROOT / folder).rglob("*") if path.suffix in endings)
    return sorted(path.relative_to(ROOT).as_posix() for path in found)


@functools.cache
def lines(file):
    return (ROOT / file).read_text(encoding="utf-8").splitlines()


@functools.cache
def rooms():
    return sorted(path.name for path in (ROOT / "src").iterdir() if path.is_dir())


@functools.cache
def cpp_files():
    return [file for folder in ["src", *NOT_SHIPPED] for file in files(folder, ".cpp", ".h")]


@functools.cache
def includes(file):
    found = ((number, INCLUDE.match(line)) for number, line in enumerate(lines(file), 1))
    return [Include(file, number, match[1] == "<", match[2]) for number, match in found if match]


def room_of(name):
    """Of a source of the product, or of a header as it is included."""
    return name.removeprefix("src/").split("/")[0]


def header_of(source):
    return source.removesuffix(".cpp") + ".h"


def sources_of(target, systems="all"):
    """What the rooms' CMakeLists.txt add to a target; with "any", only what is built for any system."""
    for path in sorted(ROOT.glob("src/*/CMakeLists.txt")):
        text = path.read_text(encoding="utf-8")
        if systems == "any":
            text = FOR_ONE_SYSTEM.sub("", text)
        for names in re.findall(rf"target_sources\({target}\s+PRIVATE\s+([^)]*)\)", text):
            yield from (f"src/{path.parent.name}/{name}" for name in names.split())


def is_system_header(include):
    """Headers of the standard library have no ending."""
    return include.system and include.name.endswith(".h")


# The rules. Each yields its complaints: file, line, reason.


def matches(pattern, names, reason):
    for file in names:
        for number, line in enumerate(lines(file), 1):
            if pattern.search(line):
                yield file, number, reason


def no_fixed_waits():
    scripts_and_tests = files("tests", ".cpp", ".h", ".sh", ".py")
    return matches(FIXED_WAIT, scripts_and_tests, "a fixed wait in a test; poll with a deadline instead")


def no_test_is_switched_off():
    return matches(SWITCHED_OFF, files("tests", ".cpp"), "a test that is switched off")


def every_source_is_built():
    for file in files("src", ".cpp"):
        folder, name = file.rsplit("/", 1)
        if not re.search(rf"\b{re.escape(name)}\b", "\n".join(lines(f"{folder}/CMakeLists.txt"))):
            yield file, 1, "a source that no target knows"


def suites_bear_their_files_names():
    """CTest runs the suite that has the name of the file."""
    for file in files("tests/window", ".cpp") + files("tests/e2e", ".cpp"):
        stem = pathlib.PurePath(file).stem
        for number, line in enumerate(lines(file), 1):
            suite = SUITE.match(line)
            if stem.endswith("Test") and suite and suite[1] != stem:
                yield file, number, f"the suite {suite[1]} does not have the file's name"


def pages_name_tests_that_exist():
    tests = set()
    for file in files("tests", ".cpp"):
        for suite, case in CASE.findall((ROOT / file).read_text(encoding="utf-8")):
            tests |= {suite, f"{suite}.{case}"}
    for page in "docs/FAULTS.md", "docs/WINDOWS.md":
        for number, line in enumerate(lines(page), 1):
            for name in re.findall(r"`(\w+Test(?:\.\w+)?)`", line):
                if name not in tests:
                    yield page, number, f"there is no test {name}"


def nobody_includes_the_app():
    for file in files("src", ".cpp", ".h"):
        for include in includes(file):
            if room_of(include.name) == "app" and room_of(file) != "app":
                yield file, include.line, f"only app/ may include {include.name}"


def portable_sources_include_no_window():
    """Of the sources that are built for any system, their headers, and all that these include."""
    core = list(sources_of("lindrel_core", "any"))
    windows = {header_of(source) for source in sources_of("lindrel_ui")}
    waiting = core + [header_of(source) for source in core]
    seen = set()
    while waiting:
        file = waiting.pop()
        if file in seen or not (ROOT / file).exists():
            continue
        seen.add(file)
        for include in includes(file):
            if is_system_header(include):
                yield file, include.line, f"<{include.name}> in the portable half"
            elif f"src/{include.name}" in windows:
                yield file, include.line, f"{include.name}, which is of the windows, in the portable half"
            elif not include.system:
                waiting.append(f"src/{include.name}")


def rooms_have_no_cycle():
    uses = {}
    for file in files("src", ".cpp", ".h"):
        for include in includes(file):
            if not include.system and room_of(include.name) in rooms():
                uses.setdefault((room_of(file), room_of(include.name)), include)
    floors = graphlib.TopologicalSorter()
    for user, used in uses:
        if user != used:
            floors.add(user, used)
    try:
        floors.prepare()
    except graphlib.CycleError as error:
        cycle = error.args[1][::-1]
        for user, used in zip(cycle, cycle[1:]):
            include = uses[user, used]
            yield include.file, include.line, f"{include.name} is part of the include cycle {' > '.join(cycle)}"


def functions_are_short():
    ctags = ["ctags", "--options=NONE", "-x", "--_xformat=%{end}\t%n\t%{input}\t%N", "--language-force=C++",
             "--kinds-C++=f", "--fields=+e"]
    found = subprocess.run(ctags + cpp_files(), cwd=ROOT, check=True, capture_output=True, text=True)
    for function in found.stdout.splitlines():
        end, start, file, name = function.split("\t")
        length = int(end or start) - int(start) + 1
        if length > LONGEST_FUNCTION:
            yield file, int(start), f"{name} has {length} lines; {LONGEST_FUNCTION} are the limit"


def rooms_are_small():
    for room in rooms():
        count = len(files(f"src/{room}", ".cpp", ".h", ".rc"))
        if count > MOST_FILES_IN_A_ROOM:
            yield f"src/{room}", 1, f"{count} files; {MOST_FILES_IN_A_ROOM} are the limit"


def dropped_results_say_why():
    for file in cpp_files():
        above = ""
        for number, line in enumerate(lines(file), 1):
            explained = "//" in LITERAL.sub("", line) or above.lstrip().startswith("//")
            if DROPPED_RESULT in line and not explained:
                yield file, number, f"{DROPPED_RESULT} without a comment on this line or the one above"
            above = line


RULES = [
    no_fixed_waits, no_test_is_switched_off, every_source_is_built, suites_bear_their_files_names,
    pages_name_tests_that_exist, nobody_includes_the_app, portable_sources_include_no_window, rooms_have_no_cycle,
    rooms_are_small, functions_are_short, dropped_results_say_why,
]


def main():
    complaints = sorted(set(complaint for rule in RULES for complaint in rule()))
    for file, line, reason in complaints:
        print(f"{file}:{line}: {reason}")
    sys.exit(1 if complaints else 0)


main()
