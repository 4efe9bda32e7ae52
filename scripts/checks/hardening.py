"""Looks in built files for the protections that cmake/Hardening.cmake asks for.

    hardening.py [--optimised] FILE...      shared libraries and programs

With --optimised also for calls that the C library checks, which need an optimised build and occur in
some of the files at least.
"""

import re
import subprocess
import sys

from project import finish


def readelf(option: str, path: str) -> str:
    return subprocess.run(["readelf", "-W", option, path], check=True, capture_output=True,
                          text=True).stdout


def is_x86(path: str) -> bool:
    return "X86-64" in readelf("-h", path)


def functions_with_landing_pad(path: str) -> int:
    code = subprocess.run(["objdump", "-d", "--no-show-raw-insn", path], check=True,
                          capture_output=True, text=True).stdout
    return len(re.findall(r"endbr64", code))


def has_checked_calls(path: str) -> bool:
    return "_chk@" in readelf("--dyn-syms", path)


def faults_of(path: str) -> list[str]:
    header, segments = readelf("-h", path), readelf("-l", path)
    dynamic, symbols = readelf("-d", path), readelf("--dyn-syms", path)
    stack = re.search(r"GNU_STACK.*", segments)
    promises = {
        "is not position-independent": "DYN (" in header,
        "has no read-only relocations": "GNU_RELRO" in segments,
        "binds symbols late": "BIND_NOW" in dynamic or "NOW" in dynamic,
        "has an executable stack": stack is not None and "RWE" not in stack[0],
        "has no stack protector": "__stack_chk_fail" in symbols,
        "has no assertions of the standard library": "__glibcxx_assert_fail" in symbols,
        "has no protected jumps": not is_x86(path) or functions_with_landing_pad(path) > 100,
    }
    return [f"{path}: {fault}" for fault, held in promises.items() if not held]


def main() -> None:
    arguments = sys.argv[1:]
    optimised = "--optimised" in arguments
    files = [argument for argument in arguments if argument != "--optimised"]
    faults = [fault for path in files for fault in faults_of(path)]
    if optimised and not any(map(has_checked_calls, files)):
        faults.append("no file has checked calls of the C library")
    finish("hardening", faults)


if __name__ == "__main__":
    main()
