"""The keywords of the library's records, as their tables in C++ state them."""

import re
from dataclasses import dataclass

from project import ROOT

STRUCTURED_GROUPS = {"ControlSection": "CONTRL", "SystemSection": "SYSTEM", "BasisSection": "BASIS",
                     "ScfSection": "SCF", "GuessSection": "GUESS"}

_STRUCT = re.compile(r"^struct (\w+) \{\n(.*?)^\};", re.MULTILINE | re.DOTALL)
_MEMBER = re.compile(r"^ +(?:std::(?:optional|vector)<)?"
                     r"(bool|double|std::int32_t|std::string|Units)>? (\w+)(?: = .*?)?;",
                     re.MULTILINE)
_ROW = re.compile(r'\{"([A-Z0-9]+)(\(1\))?",\s*(?:(\w+)\{)?&(\w+)::(\w+)')
_GROUP = re.compile(r'group_of<(\w+)> = "(\w+)"')

_TYPE_WORDS = {"bool": "logical", "double": "real", "std::int32_t": "int", "std::string": "token",
               "Units": "token"}


@dataclass
class Row:
    """One keyword of a record."""

    group: str
    keyword: str
    kind: str
    value_type: str
    indexed: bool


def _members(header):
    """The type of each member of the structs of a header, by struct and name."""
    return {(struct, name): type_name for struct, body in _STRUCT.findall(header.read_text())
            for type_name, name in _MEMBER.findall(body)}


def _rows(table, header, groups):
    members = _members(header)
    text = table.read_text()
    found = _ROW.findall(text)
    if not found or len(found) != text.count('{"'):
        raise ValueError(f"{table.relative_to(ROOT)} has rows that are not understood")
    for keyword, index, form, record, member in found:
        type_word = "text" if form == "CaseKept" else _TYPE_WORDS[members[record, member]]
        kind = "flag" if type_word == "logical" else "value"
        yield Row(groups[record], keyword, kind, type_word, bool(index))


def record_rows():
    """The rows of the five structured records and of all typed ones.

    Raises ValueError or KeyError when a table or header is no longer written as it was.
    """
    headers = ROOT / "include/nurl/input/gamess"
    rows = list(_rows(ROOT / "src/model/structured_fields.hpp", headers / "model.hpp",
                      STRUCTURED_GROUPS))
    tables = sorted(path for folder in ("include", "src")
                    for path in (ROOT / folder).rglob("typed/fields/*.hpp"))
    if not tables:
        raise ValueError("there are no tables in typed/fields")
    for table in tables:
        groups = dict(_GROUP.findall(table.read_text()))
        rows += _rows(table, headers / "typed" / table.name, groups)
    return rows
