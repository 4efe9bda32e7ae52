// Single edits by keyword in a group with n keywords.
#include <array>
#include <string>
#include <utility>

#include "growth/family.hpp"
#include "growth/measure.hpp"
#include "nurl/input/gamess/editor.hpp"
#include "nurl/input/gamess/reader.hpp"

namespace nurl::bench::growth {

namespace {

using nurl::input::gamess::GamessInput;
using nurl::input::gamess::InputEditor;

/// The group that the operations work on is the first one of the document.
std::string group_of(const InputEditor& editor) { return editor.input().sections.front().name; }

/// A document as the reader makes it.
InputEditor as_read(const Input& input) {
    return InputEditor{nurl::input::gamess::parse_string(input.text).input};
}

/// The text as the only raw line of a group.
InputEditor as_raw_line(const Input& input) {
    GamessInput document;
    document.sections.push_back({"FORCE", {}, {input.text}});
    return InputEditor{std::move(document)};
}

/// The text as each of n raw lines of a group.
InputEditor as_raw_lines(const Input& input) {
    GamessInput document;
    document.sections.push_back({"FORCE", {}, std::vector<std::string>(input.n, input.text)});
    document.sections.front().raw_lines.back() = "LAST=1";
    return InputEditor{std::move(document)};
}

using Maker = InputEditor (*)(const Input& input);

template <Maker Make>
void list(const Input& input) {
    const InputEditor editor = Make(input);
    const std::string group = group_of(editor);
    const auto entries = measured([&] { return editor.list_keywords(group); });
    require(!entries.empty());
}

template <Maker Make>
void get_last(const Input& input) {
    const InputEditor editor = Make(input);
    const std::string group = group_of(editor);
    require(measured([&] { return editor.get_keyword(group, "LAST"); }).has_value());
}

template <Maker Make>
void ask_for_none(const Input& input) {
    const InputEditor editor = Make(input);
    const std::string group = group_of(editor);
    require(!measured([&] { return editor.has_keyword(group, "NONE"); }));
}

template <Maker Make>
void set_last(const Input& input) {
    InputEditor editor = Make(input);
    const std::string group = group_of(editor);
    require(measured([&] { return editor.set_keyword(group, "LAST", "2"), true; }));
    require(editor.get_keyword(group, "LAST") == "2");
}

template <Maker Make>
void add_new(const Input& input) {
    InputEditor editor = Make(input);
    const std::string group = group_of(editor);
    require(measured([&] { return editor.add_keyword(group, "NEW", "2", false); }));
}

template <Maker Make>
void remove_last(const Input& input) {
    InputEditor editor = Make(input);
    const std::string group = group_of(editor);
    require(measured([&] { return editor.remove_keyword(group, "LAST"); }));
}

/// A name may have any number of blanks around it.
void get_by_long_name(const Input& input) {
    const InputEditor editor = as_read(input);
    const std::string name = std::string(input.n, ' ') + "LAST";
    require(measured([&] { return editor.get_keyword("FORCE", name); }).has_value());
}

void remove_by_long_name(const Input& input) {
    InputEditor editor = as_read(input);
    const std::string name = std::string(input.n, ' ') + "LAST";
    require(measured([&] { return editor.remove_keyword("FORCE", name); }));
}

constexpr Shape generic{" $FORCE\n", " K%=1\n", " LAST=1\n $END\n"};
constexpr Shape structured{" $CONTRL\n", " K%=1\n", " LAST=1\n $END\n"};
constexpr Shape raw_pairs{"", "K%=1 ", "LAST=1"};
constexpr Shape raw_garbage{"LAST=1 ", "b( "};
constexpr Shape raw_line{"A=1 words  behind"};

constexpr auto families = std::to_array<Family>({
    {"list n keywords", generic, list<as_read>, things},
    {"get one of n keywords", generic, get_last<as_read>, things},
    {"ask for a keyword that n others are not", generic, ask_for_none<as_read>, things},
    {"set one of n keywords", generic, set_last<as_read>, things},
    {"add a keyword to n others", generic, add_new<as_read>, things},
    {"remove one of n keywords", generic, remove_last<as_read>, things},
    {"list n keywords of a structured group", structured, list<as_read>, things},
    {"get one of n keywords of a structured group", structured, get_last<as_read>, things},
    {"set one of n keywords of a structured group", structured, set_last<as_read>, things},
    {"add a keyword to n others of a structured group", structured, add_new<as_read>, things},
    {"remove one of n keywords of a structured group", structured, remove_last<as_read>, things},
    {"list n pairs of a raw line", raw_pairs, list<as_raw_line>, things},
    {"get one of n pairs of a raw line", raw_pairs, get_last<as_raw_line>, things},
    {"ask for a keyword that n pairs of a raw line are not", raw_pairs, ask_for_none<as_raw_line>,
     things},
    {"set one of n pairs of a raw line", raw_pairs, set_last<as_raw_line>, things},
    {"add a keyword to n pairs of a raw line", raw_pairs, add_new<as_raw_line>, things},
    {"remove one of n pairs of a raw line", raw_pairs, remove_last<as_raw_line>, things},
    {"set a keyword before n open parentheses of a raw line", raw_garbage, set_last<as_raw_line>,
     words},
    {"remove a keyword before n open parentheses of a raw line", raw_garbage,
     remove_last<as_raw_line>, words},
    {"list the pairs of n raw lines", raw_line, list<as_raw_lines>, things},
    {"set a keyword in n raw lines", raw_line, set_last<as_raw_lines>, things},
    {"remove a keyword from n raw lines", raw_line, remove_last<as_raw_lines>, things},
    {"get one of n keywords by a name behind n blanks", generic, get_by_long_name, things},
    {"remove one of n keywords by a name behind n blanks", generic, remove_by_long_name, things},
});

}  // namespace

std::span<const Family> editor_families() noexcept { return families; }

}  // namespace nurl::bench::growth
