#!/usr/bin/env python3
"""Makes the user's first page, which Windows opens by a double click, from the project's own:
    packaging/make-first-page.py OLVASS.md OLVASS.html
Everything is in the one file: the style of the help, and the pictures. It knows as much of Markdown as OLVASS.md uses and
refuses the rest."""

import base64
import html
import pathlib
import re
import subprocess
import sys
import textwrap

ROOT = pathlib.Path(__file__).resolve().parent.parent
PAGE = """<!DOCTYPE html>
<html lang="hu">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>{title}</title>
<style>
{style}body {{ max-width: 54em; margin: 16px auto 32px auto; padding: 0 24px; }}
</style>
</head>
<body>
{body}
</body>
</html>
"""


def picture(match):
    path = ROOT / match[2]
    width = subprocess.run([ROOT / "help/picture-width.py", path], check=True, capture_output=True, text=True).stdout.strip()
    content = base64.b64encode(path.read_bytes()).decode("ascii")
    return f'<img src="data:image/png;base64,{content}" alt="{match[1]}" style="width: {width}">'


def inline(text):
    text = html.escape(text, quote=False)
    text = re.sub(r"`([^`]+)`", r"<code>\1</code>", text)
    text = re.sub(r"\*\*([^*]+)\*\*", r"<b>\1</b>", text)
    text = re.sub(r"\*([^*]+)\*", r"<i>\1</i>", text)
    text = re.sub(r"!\[([^\]]+)\]\(([^)]+)\)", picture, text)
    if re.search(r"[`*]|\]\(", text):
        sys.exit(f"cannot be made a page: {text}")
    return text


def items(text):
    for item in re.split(r"\n(?=- |\d+\. )", text):
        first, _, more = item.split(" ", 1)[1].partition("\n")
        content = f"{first}\n{textwrap.dedent(more)}".strip()
        yield blocks(content) if "\n\n" in content else inline(content)


def block(text):
    heading = re.fullmatch(r"(#+) (.+)", text)
    if heading:
        return f"<h{len(heading[1])}>{inline(heading[2])}</h{len(heading[1])}>"
    marker = re.match(r"(-|\d+\.) ", text)
    if not marker:
        return f"<p>{inline(text)}</p>"
    tag = "ul" if marker[1] == "-" else "ol"
    return f"<{tag}>\n" + "".join(f"<li>{item}</li>\n" for item in items(text)) + f"</{tag}>"


def blocks(text):
    """What follows a blank line belongs to the item above if it is indented."""
    return "\n".join(block(part) for part in re.split(r"\n{2,}(?! )", text.strip()))


def main(source, target):
    text = pathlib.Path(source).read_text(encoding="utf-8")
    style = (ROOT / "help/pages/stilus.css").read_text(encoding="utf-8")
    title = html.escape(re.match(r"# (.+)", text)[1])
    pathlib.Path(target).write_text(PAGE.format(title=title, style=style, body=blocks(text)), encoding="utf-8", newline="\r\n")


main(*sys.argv[1:])
