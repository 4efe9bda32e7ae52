#include <optional>
#include <stdexcept>
#include <string>

#include <doctest/doctest.h>

#include "nurl/input/gamess/editor.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "support/show_model.hpp"

using nurl::input::gamess::GamessInput;
using nurl::input::gamess::InputEditor;
using nurl::input::gamess::parse_string;

namespace {

constexpr const char* names_missing = "Section name and keyword must be non-empty";
constexpr const char* no_keywords = "$DATA does not support key=value editing";

GamessInput some_deck() {
    return parse_string("$X A=1\n raw \n$END\n$SCF DIIS=.T. $END\n$DATA\nt\nC1\n$END\n").input;
}

/// The message that setting or adding a keyword throws; empty when it throws none. The document
/// must then be as it was.
template <class Edit>
std::string message_of(Edit edit) {
    InputEditor editor{some_deck()};
    try {
        edit(editor);
    } catch (const std::runtime_error& error) {
        CHECK(editor.input() == some_deck());
        return error.what();
    }
    return {};
}

std::string set_message(const char* section, const char* key) {
    return message_of([&](InputEditor& editor) { editor.set_keyword(section, key, "1"); });
}

std::string add_message(const char* section, const char* key, bool replace) {
    return message_of([&](InputEditor& editor) { editor.add_keyword(section, key, "1", replace); });
}

}  // namespace

TEST_CASE("A keyword cannot be set in a group without a name") {
    for (const char* section : {"", " ", "\t\r\n", "$", " $ "}) {
        CAPTURE(section);
        CHECK(set_message(section, "X") == names_missing);
        CHECK(add_message(section, "X", false) == names_missing);
        CHECK(add_message(section, "X", true) == names_missing);
    }
}

TEST_CASE("A keyword without a name cannot be set") {
    for (const char* key : {"", " ", "\t\r\n"}) {
        for (const char* section : {"TDDFT", "X", "SCF", "CONTRL", "DATA", ""}) {
            CAPTURE(section);
            CHECK(set_message(section, key) == names_missing);
            CHECK(add_message(section, key, false) == names_missing);
            CHECK(add_message(section, key, true) == names_missing);
        }
    }
}

TEST_CASE("A keyword cannot be set in $DATA") {
    for (const char* section : {"DATA", "data", "$DATA", " $Data\n"}) {
        CAPTURE(section);
        CHECK(set_message(section, "X") == no_keywords);
        CHECK(add_message(section, "X", false) == no_keywords);
        CHECK(add_message(section, "X", true) == no_keywords);
    }
}

TEST_CASE("A lone dollar is a keyword and a vertical tab a name") {
    CHECK(set_message("X", "$").empty());
    CHECK(set_message("X", "\v").empty());
    CHECK(set_message("\v", "X").empty());
}

TEST_CASE("Removing and asking never fail") {
    InputEditor editor{some_deck()};
    for (const char* section : {"", "$", "DATA", "$data ", "NONE", "CONTRL", "SCF", "X"}) {
        for (const char* key : {"", " ", "$", "NONE"}) {
            CAPTURE(section);
            CAPTURE(key);
            CHECK_FALSE(editor.remove_keyword(section, key));
            CHECK_FALSE(editor.has_keyword(section, key));
            CHECK(editor.get_keyword(section, key) == std::nullopt);
        }
    }
    CHECK(editor.render_section("").empty());
    CHECK(editor.list_keywords("").empty());
}
