"""Puts mutants into a copy of the sources, all at once; each is switched on by its number (see mutants.hpp).

usage: mutate.py TREE TABLE COMPILER_ARGUMENTS... < FILES

Copies FILES, a line each and relative to this folder, to the folder TREE, those under src/ and platform/ with mutants.
A copy that is there already, and the same, is left alone. Writes a row a mutant to TABLE: number, file, line, kind and
the text that it changes. All edits are insertions, or replace one token, so they may stand
inside each other. The mutants:

  < <= > >=            the neighbouring and the opposite comparison
  == !=                the opposite
  && ||                one for the other
  !                    left out
  a condition          of if, while and ?:, and each operand of && and ||, held to be true, held to be false
  an integer literal   one more
  true, false          the other
  an expression        that is a statement, left out

A comparison that the compiler makes of another operator (`a != b` of `==`, `a < b` of `<=>`) shows the tree of that
other one, with parts that stand nowhere in the text; such parts are passed over.

What the compiler computes is left alone: case labels, static_assert, enumerators, constexpr variables, consteval
functions, types, macros. So is what only makes room in a container, or reckons how much: it changes no result, and
tests/bounds measures it."""
import multiprocessing
import os
import re
import sys

from clang import cindex

cindex.Config.set_library_file(os.environ.get('LIBCLANG', 'libclang-14.so.1'))
K = cindex.CursorKind
COMPARISONS = {'<': 'less', '<=': 'less_equal', '>': 'greater', '>=': 'greater_equal'}
EQUALITIES = {'==': 'equal', '!=': 'unequal'}
ROOM = {'reserve', 'shrink_to_fit', 'make_room', 'reserve_raw_lines', 'count_headers', 'most_issues', 'expected_size',
        'group_block_size', 'data_block_size'}
OVERLOADED = {'operator==', 'operator!='}
FUNCTIONS = {K.FUNCTION_DECL, K.CXX_METHOD, K.CONSTRUCTOR, K.DESTRUCTOR, K.FUNCTION_TEMPLATE, K.CONVERSION_FUNCTION}
STATEMENTS = {K.CALL_EXPR, K.COMPOUND_ASSIGNMENT_OPERATOR, K.UNARY_OPERATOR, K.BINARY_OPERATOR}
LOOPS = {K.FOR_STMT, K.CXX_FOR_RANGE_STMT, K.WHILE_STMT}
LITERAL_PARENTS = {K.BINARY_OPERATOR, K.CALL_EXPR, K.RETURN_STMT, K.VAR_DECL, K.COMPOUND_ASSIGNMENT_OPERATOR,
                   K.UNEXPOSED_EXPR, K.CONDITIONAL_OPERATOR}
NUMBERS_PER_FILE = 4096


class Mutator:
    def __init__(self, path, arguments, first):
        self.path = path
        self.next = first
        self.last = first + NUMBERS_PER_FILE
        with open(path, 'rb') as file:
            self.source = file.read()
        # 1: with the places where macros are used.
        self.unit = cindex.Index.create().parse(path, args=arguments, options=1)
        errors = [found for found in self.unit.diagnostics if found.severity >= cindex.Diagnostic.Error]
        if errors:
            raise ValueError('\n'.join(map(str, errors)))
        self.macros = [self.span(child) for child in self.unit.cursor.get_children()
                       if child.kind == K.MACRO_INSTANTIATION and self.is_here(child)]
        self.edits, self.rows, self.rank = [], [], 0

    def is_here(self, cursor):
        return cursor.location.file is not None and cursor.location.file.name == self.path

    @staticmethod
    def span(cursor):
        return cursor.extent.start.offset, cursor.extent.end.offset

    def in_macro(self, start, end):
        return any(start < last and first < end for first, last in self.macros)

    def text_of(self, cursor):
        start, end = self.span(cursor)
        return self.source[start:end].decode()

    def mutant(self, kind, cursor, names=('',)):
        """Gives out a number for each of `names` and writes their rows. Returns the first."""
        first = self.next
        text = self.text_of(cursor).split('\n')[0][:90]
        for offset, name in enumerate(names):
            self.rows.append((first + offset, self.path, cursor.location.line, f'{kind} {name}'.strip(), text))
        self.next += len(names)
        if self.next > self.last:
            raise ValueError(f'{self.path}: more than {NUMBERS_PER_FILE} mutants')
        return first

    def wrap(self, start, end, before, after):
        """Puts text around a span. Outer spans come first, so that they open earlier and close later."""
        self.rank += 1
        self.edits += [(start, 1, self.rank, before, start), (end, 0, -self.rank, after, end)]

    def sign_between(self, left, right):
        between = cindex.SourceRange.from_locations(left.extent.end, right.extent.start)
        for token in self.unit.get_tokens(extent=between):
            if token.extent.start.offset >= left.extent.end.offset and token.spelling not in ('(', ')'):
                return token
        return None

    def hold(self, cursor):
        start, end = self.span(cursor)
        if start != end and not self.in_macro(start, end):
            number = self.mutant('condition', cursor, ('true', 'false'))
            self.wrap(start, end, '((bool(',
                      f') || mutation::on({number})) && !mutation::on({number + 1}))')

    def binary(self, cursor, left, right):
        token = self.sign_between(left, right)
        if token is None:
            return
        (start, left_end), (right_start, end), sign = self.span(left), self.span(right), token.spelling
        names = COMPARISONS | EQUALITIES
        if sign in names:
            number = self.mutant(sign, cursor, ('near', 'opposite') if sign in COMPARISONS else ('',))
            self.wrap(start, end, f'mutation::{names[sign]}({number}, ', ')')
            self.edits.append((token.extent.start.offset, 2, 0, ',', token.extent.end.offset))
        elif sign in ('&&', '||'):
            number = self.mutant(sign, cursor)
            # (a != m && b != m) != m is a && b, and a || b where the mutant m is alive.
            self.wrap(start, end, '((', f') != mutation::on({number}))')
            for side, (first, last) in ((left, (start, left_end)), (right, (right_start, end))):
                self.wrap(first, last, '(bool(', f') != mutation::on({number}))')
                self.hold(side)

    def condition_of(self, cursor, children):
        """The condition of a statement, unless it declares a name."""
        if children and children[0].kind == K.DECL_STMT:
            if not re.match(rb'if\s*\([^;{]*;', self.source[self.span(cursor)[0]:]):
                return None
            children = children[1:]
        if not children or not children[0].kind.is_expression():
            return None
        return children[0]

    def visit(self, cursor, parent, inside):
        if cursor.location.file and not self.is_here(cursor):
            return
        if cursor.kind in (K.STATIC_ASSERT, K.ENUM_DECL, K.TYPE_ALIAS_DECL):
            return
        if cursor.kind in FUNCTIONS and b'consteval ' in self.source[self.span(cursor)[0]:cursor.location.offset]:
            return
        if cursor.kind in FUNCTIONS | {K.CALL_EXPR} and cursor.spelling in ROOM:
            return
        if cursor.kind == K.VAR_DECL and re.match(r'(static |inline )*constexpr', self.text_of(cursor)):
            return
        if cursor.kind == K.DECL_STMT and re.match(r'(static )?constexpr', self.text_of(cursor)):
            return
        children = list(cursor.get_children())
        if cursor.kind == K.CASE_STMT:
            children = children[1:]
        inside = inside or (cursor.kind in FUNCTIONS and cursor.is_definition())
        if inside:
            self.edit(cursor, parent, children)
        for child in children:
            # In front of the name stands the type.
            if cursor.kind not in FUNCTIONS | {K.VAR_DECL} or child.extent.start.offset > cursor.location.offset:
                self.visit(child, cursor, inside)

    def is_number(self, cursor, parent):
        """Whether a literal of the text is computed with."""
        start = self.span(cursor)[0]
        return (cursor.kind == K.INTEGER_LITERAL and parent.kind in LITERAL_PARENTS
                and self.source[start:start + 1].isdigit())

    def is_statement(self, cursor, parent):
        if cursor.kind not in STATEMENTS:
            return False
        return parent.kind == K.COMPOUND_STMT or (
            parent.kind in LOOPS and self.span(cursor)[1] == self.span(parent)[1])

    def edit(self, cursor, parent, children):
        start, end = self.span(cursor)
        if start == end or self.in_macro(start, end):
            return
        if self.is_statement(cursor, parent):
            number = self.mutant('left out', cursor)
            self.edits.append((start, 1, -number, f'if (!mutation::on({number})) ', start))
        if cursor.kind == K.BINARY_OPERATOR and len(children) == 2:
            self.binary(cursor, *children)
        elif cursor.kind in (K.IF_STMT, K.WHILE_STMT, K.CONDITIONAL_OPERATOR):
            condition = self.condition_of(cursor, children)
            if condition is not None and not re.match(rb'if\s+constexpr', self.source[start:end]):
                self.hold(condition)
        elif cursor.kind == K.CALL_EXPR and cursor.spelling in OVERLOADED and len(children) == 3:
            self.binary(cursor, children[0], children[2])
        elif self.is_number(cursor, parent):
            self.wrap(start, end, f'mutation::literal({self.mutant("literal", cursor)}, ', ')')
        elif cursor.kind == K.CXX_BOOL_LITERAL_EXPR:
            self.wrap(start, end, '(', f' != mutation::on({self.mutant("bool", cursor)}))')
        elif cursor.kind == K.UNARY_OPERATOR and re.match(rb'!(?!=)', self.source[start:end]):
            self.wrap(start, end, '(', f' != mutation::on({self.mutant("!", cursor)}))')

    def mutated(self):
        pieces, at = [], 0
        for start, _, _, text, end in sorted(self.edits, key=lambda edit: edit[:3]):
            pieces += [self.source[at:start].decode(), text]
            at = max(at, end)
        return f'#include "mutants.hpp"\n#line 1 "{self.path}"\n' + ''.join(pieces) + self.source[at:].decode()


def mutate(job):
    path, arguments, first = job
    mutator = Mutator(path, arguments, first)
    for child in mutator.unit.cursor.get_children():
        mutator.visit(child, mutator.unit.cursor, False)
    return path, mutator.mutated(), mutator.rows


def write_changed(path, content):
    if os.path.exists(path):
        with open(path, 'rb') as file:
            if file.read() == content:
                return
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, 'wb') as file:
        file.write(content)


def main():
    tree, table, *arguments = sys.argv[1:]
    files = sorted(line.rstrip('\n') for line in sys.stdin)
    mutated = [path for path in files if re.match(r'(src|platform)/.*\.[ch]pp$', path)]
    jobs = [(path, arguments, 1 + index * NUMBERS_PER_FILE) for index, path in enumerate(mutated)]
    with multiprocessing.Pool() as pool:
        results = pool.map(mutate, jobs, chunksize=1)
    with open(table, 'w', encoding='utf-8') as rows:
        for _, _, mutants in results:
            rows.writelines('\t'.join(map(str, row)) + '\n' for row in mutants)
    texts = {path: text for path, text, mutants in results if mutants}
    for path in files:
        if path in texts:
            content = texts[path].encode()
        else:
            with open(path, 'rb') as file:
                content = file.read()
        write_changed(os.path.join(tree, path), content)
    print(f'{sum(len(mutants) for _, _, mutants in results)} mutants in {len(texts)} files')


if __name__ == '__main__':
    main()
