"""What the checks share: the files of the project, C++ text without comments, and the verdict."""

import re
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]

_COMMENT_OR_LITERAL = re.compile(
    r"""//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|'(?:\\.|[^'\\\n])+'""", re.DOTALL)


def cpp_files(*folders):
    """The headers and sources under folders of the project, sorted."""
    found = (path for folder in folders for path in (ROOT / folder).rglob("*"))
    return sorted(path for path in found if path.suffix in {".hpp", ".cpp"})


def tracked_files():
    """Every file that git holds or would take with `git add`."""
    listing = subprocess.run(
        ["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
        cwd=ROOT, check=True, capture_output=True, text=True).stdout
    paths = (ROOT / name for name in listing.split("\0") if name)
    return sorted(path for path in paths if path.is_file())


def code_lines(path):
    """The lines of a C++ file with comments and the insides of literals taken out."""
    def blank(match):
        return "\n" * match.group().count("\n") or '""'
    return _COMMENT_OR_LITERAL.sub(blank, path.read_text()).split("\n")


def place(path, line=None):
    """A position as compilers print it."""
    shown = str(path.relative_to(ROOT))
    return shown if line is None else f"{shown}:{line}"


def finish(name, faults):
    """Prints the faults and ends the program with the verdict."""
    for fault in faults:
        print(f"{name}: {fault}", file=sys.stderr)
    sys.exit(1 if faults else 0)
