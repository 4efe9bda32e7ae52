#!/usr/bin/env python3
"""Runs commands as in a terminal and draws what they print as an SVG picture.

    scripts/terminal_picture.py OUT.svg 'COMMAND' ['COMMAND'...]

Each command is run by bash in the current directory, with a terminal as its output. Colours are those
that the commands ask for.
"""

import os
import pty
import re
import subprocess
import sys
from xml.sax.saxutils import escape

COLOURS = {"31": "#ff7b72", "32": "#7ee787", "33": "#e3b341", "36": "#79c0ff", "1": "#ffffff"}
TEXT, GROUND, PROMPT = "#d0d7de", "#161b22", "#7ee787"
LETTER, LINE, MARGIN = 8.0, 19, 16


def output_of(command):
    """What a command prints to a terminal, standard error included."""
    leader, follower = pty.openpty()
    environment = dict(os.environ, TERM="xterm", COLUMNS="100")
    environment.pop("NO_COLOR", None)
    with subprocess.Popen(["bash", "-c", command], stdout=follower, stderr=follower, stdin=subprocess.DEVNULL,
                          env=environment):
        os.close(follower)
        printed = b""
        while True:
            try:
                block = os.read(leader, 65536)
            except OSError:  # the last writer has gone
                break
            if not block:
                break
            printed += block
    os.close(leader)
    return printed.decode().replace("\r\n", "\n")


def spans(line):
    """The pieces of a line with the colour of each; erasing of line ends is dropped."""
    colour = TEXT
    for piece in re.split(r"(\x1b\[[0-9;]*[mK])", line):
        if piece.startswith("\x1b"):
            codes = re.findall(r"\d+", piece)
            colour = next((COLOURS[code] for code in codes if code in COLOURS), TEXT)
        elif piece:
            yield piece, colour


def picture(lines):
    width = MARGIN * 2 + LETTER * max(sum(len(text) for text, _ in line) for line in lines)
    height = MARGIN * 2 + LINE * len(lines)
    yield (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width:.0f}" height="{height}" '
           f'viewBox="0 0 {width:.0f} {height}">')
    yield f'<rect width="100%" height="100%" rx="8" fill="{GROUND}"/>'
    yield '<g font-family="DejaVu Sans Mono, Menlo, Consolas, monospace" font-size="13.3" xml:space="preserve">'
    for number, line in enumerate(lines):
        y = MARGIN + LINE * number + 14
        column = 0
        for text, colour in line:
            x = MARGIN + LETTER * column
            yield (f'<text x="{x:.1f}" y="{y}" fill="{colour}" textLength="{LETTER * len(text):.1f}">'
                   f"{escape(text)}</text>")
            column += len(text)
    yield "</g>"
    yield "</svg>"


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    lines = []
    for command in sys.argv[2:]:
        lines.append([("$ ", PROMPT), (command, "#ffffff")])
        lines.extend(list(spans(line)) for line in output_of(command).rstrip("\n").split("\n") if line)
    with open(sys.argv[1], "w", encoding="utf-8") as file:
        file.write("\n".join(picture(lines)) + "\n")


if __name__ == "__main__":
    main()
