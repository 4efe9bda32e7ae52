"""A schema file as a YAML library reads it, and what in it the library's loader would skip."""

import re
from dataclasses import dataclass, field

import yaml

MODES = {"structured", "keywords", "raw"}
GROUP_FLAGS = ("requires_end", "allow_unknown_entries", "allow_raw_lines")
KINDS = {"value", "flag"}
VALUE_TYPES = {
    "int": re.compile(r"[+-]?\d+"),
    "real": re.compile(r"[+-]?(\d+\.?\d*|\.\d+)([ED][+-]?\d+)?"),
    "logical": re.compile(r"\.(TRUE|FALSE)\."),
    "token": re.compile(r"[^\s,]+"),
    "text": re.compile(r".+"),
}

_NAME = re.compile(r"[A-Z][A-Z0-9_-]*")
_LOGICAL_WORDS = {"Y", "N", "YES", "NO", "ON", "OFF", "TRUE", "FALSE", "NULL"}


@dataclass
class Keyword:
    kind: str = "unspecified"
    value_type: str = "token"
    indexed: bool = False
    repeated: bool = False


@dataclass
class Group:
    mode: str = "keywords"
    alias_of: str = ""
    flags: dict = field(default_factory=lambda: dict.fromkeys(GROUP_FLAGS, True))
    keywords: dict = field(default_factory=dict)


class SchemaFile:
    """The groups of a file by name, and its faults, each with its line."""

    def __init__(self, path):
        self.path = path
        self.faults = []
        self.groups = {}
        loader = getattr(yaml, "CSafeLoader", yaml.SafeLoader)
        try:
            root = yaml.compose(path.read_text(encoding="utf-8"), Loader=loader)
        except (OSError, UnicodeDecodeError, yaml.YAMLError) as error:
            self.faults.append(f"{path}: {' '.join(str(error).split())}")
            return
        if root is None:
            self.faults.append(f"{path}: nothing stands in the file")
            return
        for key, value in self._pairs(root, 0):
            if key.value == "sections":
                self._read_groups(value)
            else:
                self._fault(key, f"'{key.value}' is not 'sections'")

    def _fault(self, node, text):
        self.faults.append(f"{self.path}:{node.start_mark.line + 1} {text}")

    def _pairs(self, node, indentation):
        """The keys and values of a block, each key once and in its place on the ladder."""
        if not isinstance(node, yaml.MappingNode) or node.flow_style:
            self._fault(node, "indented lines belong here")
            return
        seen = set()
        for key, value in node.value:
            if not isinstance(key, yaml.ScalarNode) or key.style or not key.tag.endswith(":str"):
                self._fault(key, f"'{key.value}' is no plain word for a YAML reader")
                continue
            if key.start_mark.column != indentation:
                self._fault(key, f"'{key.value}' is indented by {key.start_mark.column} spaces, "
                                 f"not by {indentation}")
            if key.value in seen:
                self._fault(key, f"'{key.value}' stands twice")
            seen.add(key.value)
            yield key, value

    def _name(self, key):
        """A name without the `$` that keeps YAML from taking it for a logical word."""
        name = key.value.removeprefix("$")
        if (name in _LOGICAL_WORDS) != key.value.startswith("$"):
            self._fault(key, f"'{key.value}': a `$` stands before a logical word, and only there")
        if not _NAME.fullmatch(name):
            self._fault(key, f"'{key.value}' is no name in upper case")
        return name

    def _word(self, key, value, allowed):
        """The value of a property, one of the allowed words behind its key, else empty."""
        if value.start_mark.line != key.start_mark.line:
            self._fault(key, f"{key.value} has no value in its line")
        elif not isinstance(value, yaml.ScalarNode) or value.value not in allowed:
            self._fault(key, f"{key.value} cannot be '{value.value}'")
        else:
            return value.value
        return ""

    def _read_groups(self, node):
        pairs = [(key, self._name(key), value) for key, value in self._pairs(node, 2)]
        names = {name for _, name, _ in pairs}
        for key, name, value in pairs:
            self.groups[name] = self._read_group(key, value, names)
        for key, name, _ in pairs:
            target = self.groups[name].alias_of
            if target and self.groups[target].alias_of:
                self._fault(key, f"{name} is an alias of {target}, which is one itself")

    def _read_group(self, group_key, node, names):
        group = Group()
        given = set()
        for key, value in self._pairs(node, 4):
            given.add(key.value)
            if key.value == "parse_mode":
                group.mode = self._word(key, value, MODES)
            elif key.value == "alias_of":
                group.alias_of = self._word(key, value, names)
            elif key.value in GROUP_FLAGS:
                group.flags[key.value] = self._word(key, value, {"yes", "no"}) == "yes"
            elif key.value == "entries":
                group.keywords = self._read_keywords(value)
            else:
                self._fault(key, f"'{key.value}' is no property of a group")
        if given != {"alias_of"} and ("alias_of" in given or "parse_mode" not in given):
            self._fault(group_key, f"{group_key.value} needs a parse_mode, or an alias_of alone")
        return group

    def _read_keywords(self, node):
        keywords = {}
        previous = ""
        for key, value in self._pairs(node, 6):
            name = self._name(key)
            if name < previous:
                self._fault(key, f"{name} stands behind {previous}")
            previous = name
            keywords[name] = self._read_keyword(key, value)
        return keywords

    def _read_keyword(self, keyword_key, node):
        keyword = Keyword()
        stated = {}
        for key, value in self._pairs(node, 8):
            if key.value == "kind":
                keyword.kind = self._word(key, value, KINDS)
            elif key.value == "value_type":
                keyword.value_type = self._word(key, value, VALUE_TYPES)
            elif key.value in ("indexed", "repeated"):
                setattr(keyword, key.value, self._word(key, value, {"yes"}) == "yes")
            elif key.value in ("choices", "default"):
                stated[key.value] = (key, value)
            else:
                self._fault(key, f"'{key.value}' is no property of a keyword")
        if keyword.kind != ("flag" if keyword.value_type == "logical" else "value"):
            self._fault(keyword_key, f"{keyword_key.value}: a flag is logical, a value is not")
        self._check_stated(keyword.value_type, **stated)
        return keyword

    def _check_stated(self, value_type, choices=None, default=None):
        """What the library skips: choices and default fit the type and each other."""
        words = self._list(*choices) if choices else []
        values = self._values(*default, value_type) if default else []
        key = (choices or default or [None])[0]
        fits = VALUE_TYPES.get(value_type, VALUE_TYPES["text"]).fullmatch
        for word in words + values:
            if not fits(word):
                self._fault(key, f"'{word}' is not of type {value_type}")
        if len(set(words)) != len(words):
            self._fault(key, "a choice stands twice")
        if words and not set(values) <= set(words):
            self._fault(key, "the default is none of the choices")

    def _list(self, key, node):
        if isinstance(node, yaml.SequenceNode) and node.end_mark.line == key.start_mark.line:
            return [item.value for item in node.value if isinstance(item, yaml.ScalarNode)]
        self._fault(key, "choices are no list in brackets, in one line")
        return []

    def _values(self, key, node, value_type):
        if isinstance(node, yaml.ScalarNode) and node.end_mark.line == key.start_mark.line:
            return [node.value] if value_type == "text" else node.value.split(",")
        self._fault(key, "the default is no single text, in one line")
        return []
