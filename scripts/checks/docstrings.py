"""Every public declaration of an installed header carries `///` in front of it or `///<` behind it."""

import re
from dataclasses import dataclass, field

from project import ROOT, cpp_files, finish, place

TOKEN = re.compile(
    r"""(?P<doc>///[^\n]*)|(?P<comment>//[^\n]*|/\*.*?\*/)|(?P<directive>^\#[^\n]*)"""
    r"""|(?P<code>"(?:\\.|[^"\\\n])*"|'(?:\\.|[^'\\\n])+'|[A-Za-z_]\w*|[^\s\w]|\d[\w.']*)""",
    re.DOTALL | re.MULTILINE)
# Declarations that say nothing a comment could add to.
EXEMPT = re.compile(
    r"^(friend|static_assert|using namespace)\b|^(struct|class|enum( class)?) \w+( : [\w :]+)?$"
    r"|= (default|delete)$")


@dataclass
class Scope:
    kind: str  # "namespace", "record", "enum" or "skipped" (a body, an initialiser)
    public: bool = True
    words: list = field(default_factory=list)  # code of the declaration being read
    begin: int = 0  # its first line
    documented: bool = False


class HeaderReader:
    """Walks the tokens of one header and collects the declarations that nothing is said about."""

    def __init__(self, path):
        self.path, self.faults = path, []
        self.scopes = [Scope("namespace")]
        self.doc_line = -1  # last line of the comment that stands directly in front
        self.ended = None  # the declaration that ended on this line: (scope, line, text)

    def read(self):
        text = self.path.read_text()
        for match in TOKEN.finditer(text):
            line = text.count("\n", 0, match.start()) + 1
            getattr(self, match.lastgroup)(match.group(), line)
        self.settle()
        return self.faults

    def doc(self, text, line):
        if not text.startswith("///<"):
            self.doc_line = line
        elif self.ended and self.ended[0] == line:
            self.ended = None
        elif self.scopes[-1].kind == "enum":  # behind the last enumerator, which has no comma
            self.scopes[-1].documented = True

    def comment(self, _text, _line):
        pass

    def directive(self, _text, _line):
        self.doc_line = -1

    def code(self, text, line):
        scope = self.scopes[-1]
        if scope.kind == "skipped":
            self.in_skipped(text)
        elif text == "}":
            self.close(line)
        elif text == "{":
            self.open()
        elif text == ";" or text == "," and scope.kind == "enum":
            self.end(line)
        elif text == ":" and scope.words in (["public"], ["private"], ["protected"]):
            scope.public, scope.words = scope.words == ["public"], []
        else:
            if not scope.words:
                self.settle()
                scope.begin, scope.documented = line, self.doc_line == line - 1
            scope.words.append(text)

    def in_skipped(self, text):
        if text == "{":
            self.scopes.append(Scope("skipped"))
        elif text == "}":
            self.scopes.pop()
            outer = self.scopes[-1]
            if outer.kind != "skipped" and "(" in outer.words and "=" not in outer.words:
                self.end(outer.begin)  # the body of a function, no semicolon follows

    def open(self):
        scope = self.scopes[-1]
        words = set(scope.words)
        if "namespace" in words or scope.words[:1] == ["extern"]:
            scope.words = []
            self.scopes.append(Scope("namespace"))
        elif words & {"struct", "class", "union", "enum"} and not words & {"(", "="}:
            kind = "enum" if "enum" in words else "record"
            self.end(scope.begin, keep_words=True)
            visible = scope.public and "class" not in words or kind == "enum"
            self.scopes.append(Scope(kind, public=visible))
        else:
            self.scopes.append(Scope("skipped"))

    def close(self, line):
        if self.scopes[-1].kind == "enum" and self.scopes[-1].words:
            self.end(line)
        self.scopes.pop()
        if self.scopes[-1].words:  # a record or an enumeration: its semicolon follows
            self.scopes[-1].words = ["friend"]

    def end(self, line, keep_words=False):
        scope = self.scopes[-1]
        text = " ".join(scope.words)
        self.settle()
        if text and scope.public and not scope.documented and not EXEMPT.search(text):
            self.ended = (line, scope.begin, text)
        if not keep_words:
            scope.words = []

    def settle(self):
        """No comment behind the declaration came: it is a fault."""
        if self.ended:
            _, begin, text = self.ended
            self.faults.append(f"{place(self.path, begin)} says nothing about: {text[:60]}")
            self.ended = None


def main():
    headers = cpp_files("include")
    headers += [path for path in cpp_files("platform") if path.suffix == ".hpp"
                and "include" in path.relative_to(ROOT).parts]
    finish("docstrings", [fault for path in headers for fault in HeaderReader(path).read()])


if __name__ == "__main__":
    main()
