"""Runs gms-inp over decks of this project and prints a line for each run, to compare builds by.

    python3 scripts/golden_outputs.py WORD...

WORD... starts the tool: its path, behind an emulator and its options where it needs one. A line holds a
hash of everything that came of a run (exit status, standard output, standard error, the files it changed)
and its arguments. It runs in a copy of the decks under a temporary folder, with relative paths and without
a terminal, so the lines of two builds differ only where the builds do.
"""

import hashlib
import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
DECKS = ["examples/*.inp", "fuzz/seeds/*.inp", "tests/source_check/golden/*.inp"]
MOLECULES = ["fuzz/seeds/xyz/*.xyz"]
SCHEMAS = ["share/nurllib/schemas/input/gamess.yaml", "tests/tool/schema.yaml", "fuzz/seeds/schema/*.yaml"]

# Bytes and numbers that no deck above holds: every byte there is, and doubles that are hard to read.
MADE = {
    "bytes.inp": b" $CONTRL SCFTYP=" + bytes(range(256)) + b"=1 $END\n $DATA\n" + bytes(range(128, 256))
                 + b"\nC1\n\xc4 1.0 0 0 0\n $END\n",
    "numbers.inp": b" $STATPT OPTTOL=1D-4 NSTEP=2147483648 TRMAX=0.1000000000000000055 $END\n $DATA\nT\nC1\n"
                   b" O 8.0 0.1 -0.2 1E-320\n H 1.0 1.7976931348623157E308 5D-324 9007199254740993\n"
                   b" H 1.0 4.35 0.000001 2.675\n"
                   b" H 1.0 0 0 0.6\n H 1.0 0 0 0.7\n $END\n",
    "numbers.xyz": b"4\n\nH 0.1 0.2 0.3\nH 1e22 1e23 123456789.123456789\n"
                   b"H 2.2250738585072014e-308 4.9e-324 -0.0\nH 4.35 2.675 0.00005\n",
    "atoms.xyz": b"18446744073709551615\n\nH 0 0 0\n",
    "empty.inp": b"",
}

# What is asked about each deck. @ stands for it, other for the deck before it.
QUESTIONS = [
    "check --json @",
    "check --fix @",
    "list --json @",
    "show --json @",
    "diff --json other @",
    "format --canonical --force @",
]

# What is asked about each deck but those of the tests, which are many and alike.
MORE_QUESTIONS = [
    "check @",
    "check --format sarif @",
    "list @",
    "show @",
    "get @ CONTRL",
    "get @ CONTRL.SCFTYP",
    "set @ CONTRL.RUNTYP=HESSIAN SCF.DIRSCF=.T. OWN.KEY=1",
    "set -i @ STATPT.NSTEP=7",
    "unset @ CONTRL.SCFTYP",
    "unset @ DATA",
    "extract @ DATA",
    "extract @ DATA#5000000000",
    "splice @ --from other DATA",
    "diff @ other",
    "format @",
    "format --wrap 40 @",
    "format --wrap 5000000000 @",
    "format --check @",
    "format --canonical @",
]
MORE_QUESTIONS += [f"show @ --typed {group} --json" for group in (
    "CCINP", "DFTB", "EOMINP", "FMO", "FORCE", "MD", "PCM", "STATPT", "SURF", "TDDFT")]
COMMANDS = ["check", "explain", "list", "get", "set", "unset", "diff", "extract", "splice", "format", "new",
            "show", "schema"]


def copy_inputs(folder):
    """Copies decks, molecules and schemas, and makes more. Returns the paths of each kind."""
    kinds = []
    for patterns, suffix in (DECKS, ".inp"), (MOLECULES, ".xyz"), (SCHEMAS, ".yaml"):
        found = [path.relative_to(ROOT) for pattern in patterns for path in sorted(ROOT.glob(pattern))]
        for path in found:
            (folder / path).parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(ROOT / path, folder / path)
        made = [name for name in MADE if name.endswith(suffix)]
        for name in made:
            (folder / name).write_bytes(MADE[name])
        kinds.append([str(path) for path in found] + made)
    return kinds


def runs_of(decks, molecules, schemas):
    """The arguments of every run."""
    for deck, other in zip(decks, decks[-1:] + decks):
        for question in QUESTIONS + ([] if deck.startswith("tests/") else MORE_QUESTIONS):
            yield [{"@": deck, "other": other}.get(word, word) for word in question.split()]
    for molecule in molecules:
        yield ["new", "--xyz", molecule, "--basis", "N31", "--set", "BASIS.NGAUSS=6"]
        yield ["new", "--xyz", molecule, "--mult", "2", "--scftyp", "UHF", "--title", "T"]
    for schema in schemas:
        yield ["--schema", schema, "schema", "--json"]
        yield ["--schema", schema, "schema"]
    yield from (["schema", group] for group in ("CONTRL", "STATPT", "CONTRL.SCFTYP", "NONE"))
    yield from ([command, "--help"] for command in COMMANDS)
    yield from (["explain"], ["--version"], ["--help"], ["check", "no_such.inp"], ["show"])


def outcome(start, arguments, folder, environment):
    """The hash of what a run gives. The files it changed are put back."""
    run = subprocess.run([*start, *arguments], cwd=folder, env=environment, stdin=subprocess.DEVNULL,
                         capture_output=True, check=False)
    parts = [str(run.returncode).encode(), run.stdout, run.stderr]
    if {"-i", "--fix"} & set(arguments):
        path = next(word for word in arguments if word.endswith(".inp"))
        parts.append((folder / path).read_bytes())
        original = MADE[path] if path in MADE else (ROOT / path).read_bytes()
        (folder / path).write_bytes(original)
    framed = b"".join(b"%d:%b" % (len(part), part) for part in parts)
    return hashlib.sha256(framed).hexdigest()


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    start = [*sys.argv[1:-1], str(Path(sys.argv[-1]).resolve())]
    environment = {name: value for name, value in os.environ.items() if not name.startswith("NURL_")}
    environment["NURL_GMS_INP_SCHEMA_YAML"] = SCHEMAS[0]
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        for arguments in runs_of(*copy_inputs(folder)):
            print(outcome(start, arguments, folder, environment), *arguments)


if __name__ == "__main__":
    main()
