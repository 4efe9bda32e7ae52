"""Lists of findings that are let stand, each with its reason.

Such a list is a text of blocks: lines that begin with '# ' give a reason, the lines below them, up to the next reason,
are findings by the words that name them. Words, not line numbers, so that a change elsewhere in a file leaves
the list as it is."""


def read(path):
    """The findings of a list, in order. One without a reason above it ends the program."""
    found, has_reason = [], False
    with open(path, encoding='utf-8') as file:
        for number, line in enumerate(file, 1):
            if line.startswith('#'):
                has_reason = True
            elif line.strip():
                if not has_reason:
                    raise SystemExit(f'{path}:{number}: stands under no reason')
                found.append(line.rstrip('\n'))
    return found


def compare(found, path, looked_at=lambda name: True):
    """What of `found` the list does not explain, and what the list explains though it was looked at and not found."""
    listed = [name for name in read(path) if looked_at(name)]
    return ([name for name in found if name not in set(listed)],
            [name for name in listed if name not in set(found)])
