"""Looks for functions that call themselves, directly or through others.

    recursion.py FILE      a shared library, best without optimisation, where nothing is inlined

Calls through pointers are not seen here; the tests in tests/bounds that measure the stack see them.
"""

import re
import subprocess
import sys

from project import finish

# Functions of the standard library that halve what they work on before they call themselves, so that
# their depth is a logarithm of the number of elements.
HALVING = ("std::__introsort_loop<", "std::__inplace_stable_sort<", "std::__stable_sort_adaptive<",
           "std::__merge_adaptive<", "std::__merge_without_buffer<")

# A function begins, and one is called, or jumped to as the last thing that another does.
BEGIN = re.compile(r"^([0-9a-f]+) <(.+)>:$")
CALL = re.compile(r"\t(?:call|jmp|bl|b)\s+([0-9a-f]+) <([^>+]+)>")
LEAST_CALLS = 1000


def read_calls(path):
    """The functions that each function calls, by their addresses, and the names of all."""
    code = subprocess.run(["objdump", "-d", "-w", "--no-show-raw-insn", path], check=True,
                          capture_output=True, text=True).stdout
    names, calls, function = {}, {}, None
    for line in code.splitlines():
        if begin := BEGIN.match(line):
            function = int(begin[1], 16)
            names[function] = begin[2]
            calls[function] = set()
        elif function is not None and (call := CALL.search(line)):
            calls[function].add(int(call[1], 16))
    # A call through the table of exported functions is one of the function itself.
    places = {name: address for address, name in names.items()}
    for called in calls.values():
        for address in list(called):
            name = names.get(address, "")
            if name.endswith("@plt") and name.removesuffix("@plt") in places:
                called.add(places[name.removesuffix("@plt")])
    return calls, names


def cycles(calls):
    """The groups of functions that call each other, found by Tarjan's method without recursion."""
    number, lowest, path, open_ones = {}, {}, [], set()
    for root in calls:
        work = [] if root in number else [root]
        remaining = {}
        while work:
            function = work[-1]
            if function not in number:
                number[function] = lowest[function] = len(number)
                path.append(function)
                open_ones.add(function)
                remaining[function] = iter(calls.get(function, ()))
            for called in remaining[function]:
                if called not in number:
                    work.append(called)
                    break
                if called in open_ones:
                    lowest[function] = min(lowest[function], number[called])
            else:
                work.pop()
                if work:
                    lowest[work[-1]] = min(lowest[work[-1]], lowest[function])
                if lowest[function] == number[function]:
                    at = path.index(function)
                    group, path[at:] = path[at:], []
                    open_ones.difference_update(group)
                    if len(group) > 1 or function in calls.get(function, ()):
                        yield group


def demangled(names):
    """The names as they are written in C++."""
    lines = subprocess.run(["c++filt"], input="\n".join(names), check=True, capture_output=True,
                           text=True).stdout
    return lines.splitlines()


def is_halving(name):
    """Whether a function is one of those above; the type that it returns stands before its name."""
    return any(name.startswith(known) or f" {known}" in name.split("(")[0] for known in HALVING)


def main():
    calls, names = read_calls(sys.argv[1])
    faults = []
    if sum(map(len, calls.values())) < LEAST_CALLS:
        faults.append("hardly any calls were found")
    for group in cycles(calls):
        functions = demangled(names.get(address, hex(address)) for address in group)
        if not all(map(is_halving, functions)):
            faults.append("calls itself: " + ", through ".join(functions))
    finish("recursion", faults)


if __name__ == "__main__":
    main()
