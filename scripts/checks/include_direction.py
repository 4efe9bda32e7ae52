"""The folders of src/ know each other in one direction; public headers need nothing but the standard
library and each other."""

import re

from project import ROOT, cpp_files, finish, place

# Each folder of src/ and the folders whose headers, private and public, it may include.
MAY_INCLUDE = {
    "model": set(),
    "schema": {"model"},
    "reader": {"model", "schema"},
    "validation": {"model", "schema", "reader"},
    "writer": {"model"},
    "typed": {"model", "schema", "reader", "writer"},
    "source": {"model", "schema", "reader", "validation"},
    "builder": {"model", "writer", "typed"},
    "editor": {"model", "schema", "reader", "validation", "writer", "typed"},
}
PUBLIC = "nurl/input/gamess/"
# Headers of the family that public headers may need; they are installed beside ours.
FAMILY = {"nurl/core/geometry.hpp"}
QUOTED = re.compile(r'#include "([^"]+)"')
STANDARD = re.compile(r"#include <[a-z0-9_]+>")  # headers of others have a folder or a suffix


def includes(path):
    for number, line in enumerate(path.read_text().split("\n"), 1):
        if line.startswith("#include"):
            yield number, line


def source_faults(path, room):
    for number, line in includes(path):
        quoted = QUOTED.match(line)
        if not quoted or quoted[1] == PUBLIC + "export.hpp":
            continue
        if quoted[1] == "nurl/input/gamess.hpp":
            yield f"{place(path, number)} includes the umbrella header, name the headers it uses"
            continue
        target = quoted[1].removeprefix(PUBLIC).split("/")[0].removesuffix(".hpp")
        if target in MAY_INCLUDE and target != room and target not in MAY_INCLUDE[room]:
            yield f"{place(path, number)} includes {quoted[1]}, but {room} may not know {target}"


def public_faults(path):
    for number, line in includes(path):
        quoted = QUOTED.match(line)
        if not (STANDARD.match(line) or quoted and (quoted[1].startswith(PUBLIC) or quoted[1] in FAMILY)):
            yield f"{place(path, number)} needs something that is not installed with it: {line}"


def main():
    faults = [fault for path in cpp_files("include") for fault in public_faults(path)]
    for path in cpp_files("src"):
        room = path.relative_to(ROOT / "src").parts[0]
        if room in MAY_INCLUDE:
            faults.extend(source_faults(path, room))
        else:
            faults.append(f"{place(path)} lies in a folder that MAY_INCLUDE has no row for")
    finish("include_direction", faults)


if __name__ == "__main__":
    main()
