#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>
#include <rapidcheck.h>

#include "editor/editor_names.hpp"
#include "nurl/input/gamess/editor.hpp"
#include "support/deck_generator.hpp"
#include "support/structured_values.hpp"

using nurl::input::gamess::GamessInput;
using nurl::input::gamess::InputEditor;
using nurl::input::gamess::detail::editor_section_name;
using nurl::test::document;
using nurl::test::group_name;
using nurl::test::structured_groups;
using Names = std::vector<std::string>;

namespace {

bool is_structured(std::string_view name) {
    return std::ranges::find(structured_groups, name) != structured_groups.end();
}

/// The names in the headers of canonical text, each at its first place.
Names header_names(const std::string& text) {
    Names names;
    for (std::size_t at = text.find(" $"); at != std::string::npos; at = text.find(" $", at + 1)) {
        const std::size_t end = text.find_first_of(" \n", at + 2);
        const std::string name = text.substr(at + 2, end - at - 2);
        if (name != "END" && std::ranges::find(names, name) == names.end()) names.push_back(name);
    }
    return names;
}

/// The names of an editor but for structured groups that hold nothing and so are not written.
Names written_names(const InputEditor& editor) {
    Names names = editor.section_names();
    std::erase_if(names, [&editor](const std::string& name) {
        return is_structured(name) && editor.list_keywords(name).empty();
    });
    return names;
}

/// The names of all groups of the two lists.
Names stored_names(const GamessInput& deck) {
    Names names;
    for (const auto& section : deck.sections) names.push_back(section.name);
    for (const auto& section : deck.extra_sections) names.push_back(section.name);
    return names;
}

bool has_repeated_name(const GamessInput& deck) {
    Names names = stored_names(deck);
    std::erase_if(names, is_structured);
    return std::set<std::string>(names.begin(), names.end()).size() != names.size();
}

}  // namespace

TEST_CASE("Group names stand in the order of the written text") {
    CHECK(rc::check([] {
        const InputEditor editor{*document()};
        RC_ASSERT(written_names(editor) == header_names(editor.input().to_string()));
    }));
}

TEST_CASE("Group names stay in the order of the written text when the deck is edited") {
    CHECK(rc::check([] {
        InputEditor editor{*document()};
        editor.set_keyword(*group_name(), *nurl::test::keyword(), *nurl::test::value());
        editor.ensure_section(*group_name());
        editor.remove_section(*group_name());
        editor.ensure_section(*group_name());
        RC_ASSERT(written_names(editor) == header_names(editor.input().to_string()));
    }));
}

TEST_CASE("A document has a group exactly when its name is listed") {
    CHECK(rc::check([] {
        const InputEditor editor{*document()};
        const std::string name = *group_name();
        const Names names = editor.section_names();
        const bool is_listed = std::ranges::find(names, editor_section_name(name)) != names.end();
        RC_ASSERT(editor.has_section(name) == is_listed);
        for (const std::string& listed : names) RC_ASSERT(editor.has_section(listed));
    }));
}

TEST_CASE("The groups rendered one by one make up the written text") {
    CHECK(rc::check([] {
        const InputEditor editor{*document()};
        RC_PRE(!has_repeated_name(editor.input()));
        std::string text;
        for (const std::string& name : written_names(editor)) {
            text += editor.render_section(name);
            if (name != "DATA") text += '\n';
        }
        RC_ASSERT(text == editor.input().to_string());
    }));
}

TEST_CASE("A group made sure of is there, and the text grows by nothing but its header") {
    CHECK(rc::check([] {
        const GamessInput before = *document();
        const std::string name = *group_name();
        InputEditor editor{before};
        editor.ensure_section(name);
        RC_ASSERT(editor.has_section(name));
        const std::string header = " $" + editor_section_name(name) + " $END\n";
        std::string text = editor.input().to_string();
        if (!InputEditor{before}.has_section(name) && !is_structured(editor_section_name(name)))
            text.erase(text.rfind(header), header.size());
        RC_ASSERT(text == before.to_string());
        const GamessInput once = editor.input();
        editor.ensure_section(name);
        RC_ASSERT(editor.input() == once);
    }));
}

TEST_CASE("A group that was removed is gone and the others stay in their order") {
    CHECK(rc::check([] {
        const GamessInput before = *document();
        const std::string name = *group_name();
        InputEditor editor{before};
        const bool was_there = editor.has_section(name);
        Names expected = editor.section_names();
        std::erase(expected, editor_section_name(name));
        RC_ASSERT(editor.remove_section(name) == was_there);
        RC_ASSERT(!editor.has_section(name));
        RC_ASSERT(editor.section_names() == expected);
        RC_ASSERT(!editor.remove_section(name));
        Names stored = stored_names(before);
        std::erase(stored, editor_section_name(name));
        RC_ASSERT(stored_names(editor.input()) == stored);
    }));
}
