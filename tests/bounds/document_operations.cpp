#include <array>
#include <stdexcept>
#include <string>
#include <vector>

#include "bounds/operations.hpp"
#include "growth/measure.hpp"
#include "nurl/input/gamess/editor.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "nurl/input/gamess/typed.hpp"
#include "nurl/input/gamess/validation.hpp"

namespace nurl::test {

namespace {

using bench::growth::measured;
using input::gamess::GamessInput;
using input::gamess::InputEditor;
namespace gamess = input::gamess;

GamessInput document(const std::string& text) { return gamess::parse_string(text).input; }

/// The group that edits are made in.
std::string first_group(const GamessInput& document) {
    return document.sections.empty() ? "DATA" : document.sections.front().name;
}

void parse(const std::string& text) {
    static_cast<void>(measured([&] { return gamess::parse_string(text); }));
}

void copy(const std::string& text) {
    const GamessInput deck = document(text);
    static_cast<void>(measured([&] { return InputEditor{deck}; }));
}

void validate(const std::string& text) {
    const GamessInput deck = document(text);
    static_cast<void>(measured([&] { return gamess::validation::validate(deck, {}); }));
}

void write(const std::string& text) {
    const GamessInput deck = document(text);
    static_cast<void>(measured([&] { return deck.to_string(); }));
}

void list_groups(const std::string& text) {
    const InputEditor editor{document(text)};
    static_cast<void>(measured([&] { return editor.section_names(); }));
}

void list_keywords(const std::string& text) {
    const InputEditor editor{document(text)};
    const std::string group = first_group(editor.input());
    static_cast<void>(measured([&] { return editor.list_keywords(group); }));
}

void render(const std::string& text) {
    const InputEditor editor{document(text)};
    const std::string group = first_group(editor.input());
    static_cast<void>(measured([&] { return editor.render_section(group); }));
}

/// Makes a change of the first group.
template <class Change>
void change(const std::string& text, Change make) {
    InputEditor editor{document(text)};
    const std::string group = first_group(editor.input());
    static_cast<void>(measured([&] {
        try {
            make(editor, group);
        } catch (const std::runtime_error&) {
            return false;
        }
        return true;
    }));
}

void set_keyword(const std::string& text) {
    change(text, [](InputEditor& deck, const std::string& at) { deck.set_keyword(at, "A", "2"); });
}

void add_keyword(const std::string& text) {
    change(text, [](InputEditor& deck, const std::string& at) {
        static_cast<void>(deck.add_keyword(at, "NEW", "2", false));
    });
}

void remove_keyword(const std::string& text) {
    change(text, [](InputEditor& deck, const std::string& at) {
        static_cast<void>(deck.remove_keyword(at, "A"));
    });
}

void add_group(const std::string& text) {
    change(text, [](InputEditor& deck, const std::string&) { deck.ensure_section("NEW"); });
}

void remove_group(const std::string& text) {
    change(text, [](InputEditor& deck, const std::string& at) {
        static_cast<void>(deck.remove_section(at));
    });
}

void get_record(const std::string& text) {
    const GamessInput deck = document(text);
    static_cast<void>(measured([&] { return gamess::typed::get_tddft_section(deck); }));
}

void set_record(const std::string& text) {
    GamessInput deck = document(text);
    const auto record = gamess::typed::get_tddft_section(deck);
    if (!record) return;
    static_cast<void>(
        measured([&] { return gamess::typed::set_tddft_section(deck, *record), true; }));
}

constexpr auto operations = std::to_array<Operation>({
    {"read", parse},
    {"copy", copy},
    {"validate", validate},
    {"write", write},
    {"list the groups of", list_groups},
    {"list the keywords of", list_keywords},
    {"render a group of", render},
    {"set a keyword in", set_keyword},
    {"add a keyword to", add_keyword},
    {"remove a keyword from", remove_keyword},
    {"add a group to", add_group},
    {"remove a group from", remove_group},
    {"get a record of", get_record},
    {"set a record in", set_record},
});

}  // namespace

std::span<const Operation> document_operations() noexcept { return operations; }

}  // namespace nurl::test
