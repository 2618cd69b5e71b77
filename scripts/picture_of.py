"""The picture of a terminal: runs a command on one and draws what it shows.

    picture_of.py COLUMNS COMMAND ARGUMENT... >PICTURE.svg

The picture's first line is the command as a person types it. Of the sequences that
a terminal obeys those for bold and coloured text are known; another one, and a
command that fails, is an error. The exit status of `diff` 1 is none.
"""

import fcntl
import os
import re
import shlex
import struct
import subprocess
import sys
import termios
from html import escape
from typing import NamedTuple

FONT = "ui-monospace, SFMono-Regular, Menlo, Consolas, 'DejaVu Sans Mono', monospace"
FONT_SIZE = 14
CHARACTER = 8.4  # the width that each gets, whatever the font
LINE = 19
MARGIN = 18

BACKGROUND = "#11161d"
# By the parameter of the sequence.
CLASSES = {"1": "b", "31": "r", "32": "g", "33": "y", "34": "l", "36": "c"}
STYLE = f"""text {{ font: {FONT_SIZE}px {FONT}; fill: #d5dbe3; white-space: pre; }}
.b {{ font-weight: 600; fill: #ffffff; }}
.r {{ fill: #ff7b72; }}
.g {{ fill: #6bc46d; }}
.y {{ fill: #e3b341; }}
.l {{ fill: #79b8ff; }}
.c {{ fill: #56d4dd; }}
.p {{ fill: #8b98a8; }}"""


class Run(NamedTuple):
    """Characters of one line that look the same."""

    column: int
    text: str
    look: str


def shown_by(command: list[str], columns: int) -> str:
    """What the command writes to a terminal that is so wide."""
    ours, its = os.openpty()
    fcntl.ioctl(its, termios.TIOCSWINSZ, struct.pack("HHHH", 60, columns, 0, 0))
    environment = {**os.environ, "TERM": "xterm-256color", "LC_ALL": "C.UTF-8"}
    environment.pop("NO_COLOR", None)
    with subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=its, env=environment) as child:
        os.close(its)
        shown = b""
        while True:
            try:
                piece = os.read(ours, 65536)
            except OSError:  # the command has ended
                break
            if not piece:
                break
            shown += piece
    if child.returncode not in ((0, 1) if command[1:2] == ["diff"] else (0,)):
        sys.exit(f"picture_of: {shlex.join(command)}: status {child.returncode}")
    return shown.decode().replace("\r\n", "\n")


def lines_of(shown: str, columns: int) -> list[list[Run]]:
    """The runs of every line, long lines wrapped as a terminal does it."""
    lines: list[list[Run]] = []
    looks: list[str] = []
    for line in shown.removesuffix("\n").split("\n"):
        runs: list[Run] = []
        column = 0
        for part in re.split("(\x1b\\[[0-9;]*m)", line):
            sequence = re.fullmatch("\x1b\\[([0-9;]*)m", part)
            if sequence:
                for parameter in sequence[1].split(";"):
                    looks = [] if parameter in ("", "0") else [*looks, CLASSES[parameter]]
                continue
            if "\x1b" in part:
                sys.exit(f"picture_of: an unknown sequence in {line!r}")
            while part:
                if column == columns:
                    lines.append(runs)
                    runs, column = [], 0
                piece, part = part[: columns - column], part[columns - column :]
                runs.append(Run(column, piece, " ".join(looks)))
                column += len(piece)
        lines.append(runs)
    return lines


def words_of(run: Run) -> list[Run]:
    """Apart where there is more than one blank, so that columns stay columns."""
    return [
        Run(run.column + found.start(), found[0], run.look)
        for found in re.finditer(r"\S+(?: \S+)*", run.text)
    ]


def picture_of(lines: list[list[Run]], columns: int) -> str:
    width = round(columns * CHARACTER + 2 * MARGIN)
    height = len(lines) * LINE + 2 * MARGIN
    out = [
        f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width} {height}" '
        f'width="{width}" height="{height}">',
        f"<style>\n{STYLE}\n</style>",
        f'<rect width="{width}" height="{height}" rx="8" fill="{BACKGROUND}"/>',
    ]
    for number, runs in enumerate(lines):
        y = MARGIN + number * LINE + FONT_SIZE
        for word in (word for run in runs for word in words_of(run)):
            look = f' class="{word.look}"' if word.look else ""
            x = round(MARGIN + word.column * CHARACTER, 1)
            length = round(len(word.text) * CHARACTER, 1)
            out.append(
                f'<text x="{x}" y="{y}" textLength="{length}" lengthAdjust="spacingAndGlyphs"'
                f"{look}>{escape(word.text)}</text>"
            )
    return "\n".join([*out, "</svg>", ""])


def main() -> None:
    if len(sys.argv) < 3:
        sys.exit("picture_of: expected COLUMNS COMMAND ARGUMENT...")
    columns, command = int(sys.argv[1]), sys.argv[2:]
    typed = shlex.join([os.path.basename(command[0]), *command[1:]])
    prompt = [Run(0, "$", "p"), Run(2, typed, "b")]
    shown = lines_of(shown_by(command, columns), columns)
    sys.stdout.write(picture_of([prompt, [], *shown], columns))


if __name__ == "__main__":
    main()
