"""Compares what the built shared library exports with cmake/exported_symbols.txt.

    exported_symbols.py LIBRARY            fails when the two differ
    exported_symbols.py LIBRARY --write    writes the list anew, for review
"""

import subprocess
import sys

from project import ROOT, finish

LIST = ROOT / "cmake" / "exported_symbols.txt"


def exported(library):
    """The demangled names of the symbols that the library offers to others."""
    lines = subprocess.run(["nm", "-DC", "--defined-only", library],
                           check=True, capture_output=True, text=True).stdout.splitlines()
    return sorted({line.split(" ", 2)[2] for line in lines})


def main():
    symbols = exported(sys.argv[1])
    if "--write" in sys.argv[2:]:
        LIST.write_text("".join(f"{symbol}\n" for symbol in symbols))
        return
    promised = LIST.read_text().splitlines()
    finish("exported_symbols",
           [f"exported, but not in the list: {name}" for name in symbols if name not in promised] +
           [f"in the list, but not exported: {name}" for name in promised if name not in symbols])


if __name__ == "__main__":
    main()
