"""Runs every command of gms-inp on hostile decks with a stack of 64 KiB.

    small_stack.py PROGRAM

A command passes that ends by itself with the status that is expected of it; one that outgrows its stack
is killed. The environment is a part of the stack, so the commands get next to none.
"""

import os
import resource
import subprocess
import sys
import tempfile

STACK = 64 * 1024
DEPTH = 50_000  # of parentheses that open, and as many close
LENGTH = 2_000  # of lines and lists
GROUPS = 200

DECKS = {
    "parentheses.inp": " $SCF A=x B" + "(" * DEPTH + ")" * DEPTH + "=1 $END\n",
    "line.inp": " $SCF A=" + "x" * LENGTH + " B=" + "1," * LENGTH + "1 ! $END " + "!" * LENGTH + "\n $END\n",
    "groups.inp": " $SCF DIRSCF=.T.\n" * GROUPS + "$SCF $END\n" * GROUPS,
    "cards.inp": " $DATA\nt\nCNV 2\n" + ";" * LENGTH + "\n" + "H 1 0 0 0\n" * GROUPS + " $END\n",
}
XYZ = "1\nt\nH 0 0 0" + " 0" * LENGTH + "\n"

# Behind each command the statuses that it may end with.
COMMANDS = [
    (["check", "DECK"], (0, 1)),
    (["check", "--json", "DECK"], (0, 1)),
    (["check", "--format", "sarif", "DECK"], (0, 1)),
    (["list", "--json", "DECK"], (0,)),
    (["get", "DECK", "SCF.A"], (0, 1)),
    (["set", "DECK", "SCF.B=2", "NEW.A=1"], (0, 2)),
    (["unset", "DECK", "SCF.A"], (0, 1, 2)),
    (["diff", "--json", "DECK", "groups.inp"], (0, 1)),
    (["extract", "DECK", "SCF"], (0, 1)),
    (["splice", "DECK", "SCF", "--from", "groups.inp"], (0, 2)),
    (["format", "DECK"], (0, 2)),
    (["format", "--canonical", "--force", "DECK"], (0, 2)),
    (["show", "--json", "DECK"], (0,)),
]
OTHERS = [
    (["--help"], (0,)),
    (["explain"], (0,)),
    (["schema", "--json", "CONTRL"], (0,)),
    (["new", "--xyz", "molecule.xyz", "--set", "SCF.A=1"], (0,)),
]


def limit_stack():
    """In the child, before the program begins."""
    resource.setrlimit(resource.RLIMIT_STACK, (STACK, STACK))


def status_of(command, folder):
    """The exit status of a command; negative when a signal ended it."""
    kept = {name: os.environ[name] for name in ("NURL_GMS_INP_SCHEMA_YAML",) if name in os.environ}
    with subprocess.Popen(command, cwd=folder, env=kept, preexec_fn=limit_stack,
                          stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as process:
        return process.wait()


def main():
    program = os.path.abspath(sys.argv[1])
    runs = OTHERS + [([deck if word == "DECK" else word for word in command], expected)
                     for command, expected in COMMANDS for deck in DECKS]
    failures = 0
    with tempfile.TemporaryDirectory() as folder:
        for name, text in [*DECKS.items(), ("molecule.xyz", XYZ)]:
            with open(os.path.join(folder, name), "w", encoding="ascii") as file:
                file.write(text)
        for command, expected in runs:
            status = status_of([program, *command], folder)
            if status not in expected:
                failures += 1
                print(f"gms-inp {' '.join(command)} ended with {status}", file=sys.stderr)
    print(f"{len(runs)} commands, {failures} that failed")
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
