#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "schema/read_text.hpp"

using nurl::input::gamess::schema::EntryKind;
using nurl::input::gamess::schema::EntrySpec;
using nurl::input::gamess::schema::SectionParseMode;
using nurl::input::gamess::schema::SectionSpec;
using nurl::input::gamess::schema::Table;
using nurl::test::added_names;
using nurl::test::names_of;
using nurl::test::read_text;

namespace {

using Names = std::vector<std::string>;

SectionSpec new_group() {
    SectionSpec spec;
    spec.known = true;
    return spec;
}

}  // namespace

TEST_CASE("A new group is known and in keyword mode and tolerates everything") {
    const Table table = read_text("sections:\n  pcm:\n");
    CHECK(table.size() == 24);
    CHECK(table.at("pcm") == new_group());
}

TEST_CASE("Only the exact word at the left margin opens the block of groups") {
    for (const char* line : {"sections:", "sections: ", "sections:\t\r", "sections:# all",
                             "sections:   # all of them", "sections:\f\v"}) {
        CAPTURE(line);
        CHECK(added_names(std::string{line} + "\n  pcm:\n") == Names{"pcm"});
    }
    for (const char* line : {"Sections:", "SECTIONS:", "sections", "sections :", "sections: yes",
                             "section:", "- sections:", "'sections:'",
                             "$sections:", " sections:", "  sections:", "#sections:"}) {
        CAPTURE(line);
        CHECK(added_names(std::string{line} + "\n  pcm:\n").empty());
    }
}

TEST_CASE("Every other line at the left margin closes the block of groups") {
    for (const char* line :
         {"version: 1", "Sections:", "pcm", "- pcm", ":", "'", "\tpcm:", "\r  pcm:", "\v  pcm:"}) {
        CAPTURE(line);
        CHECK(added_names("sections:\n  before:\n" + std::string{line} + "\n  after:\n") ==
              Names{"before"});
    }
}

TEST_CASE("A tab in front of a group name closes the block of groups") {
    CHECK(added_names("sections:\n\tpcm:\n  force:\n").empty());
    CHECK(added_names("sections:\n\t  pcm:\n  force:\n").empty());
}

TEST_CASE("A tab behind the leading spaces is white space of the line") {
    CHECK(added_names("sections:\n  \tpcm:\n \t force:\n") == Names{"pcm"});
}

TEST_CASE("The block of groups may be opened again") {
    CHECK(added_names("sections:\n  a:\nother:\n  b:\nsections:\n  c:\n") == Names{"a", "c"});
}

TEST_CASE("A line at the left margin ends the current group") {
    const Table table = read_text(
        "sections:\n"
        "  a:\n"
        "sections:\n"
        "    parse_mode: raw\n"
        "    entries:\n"
        "      x:\n");
    CHECK(table.at("a") == new_group());
    CHECK(table.size() == 24);
}

TEST_CASE("Indented lines outside the block of groups are skipped") {
    CHECK(added_names("  a:\n    parse_mode: raw\nsections:\n  b:\nend:\n  c:\n") == Names{"b"});
}

TEST_CASE("Group names are stored in lower case without one dollar sign and blanks around") {
    CHECK(added_names("sections:\n  $PCM :\n") == Names{"pcm"});
    CHECK(added_names("sections:\n  Pcm\t:\n") == Names{"pcm"});
    CHECK(added_names("sections:\n  $$PCM:\n") == Names{"$pcm"});
    CHECK(added_names("sections:\n  $ pcm:\n") == Names{" pcm"});
    CHECK(added_names("sections:\n  a b:\n") == Names{"a b"});
    CHECK(added_names("sections:\n  a:b:\n") == Names{"a:b"});
    CHECK(added_names("sections:\n  a::\n") == Names{"a:"});
    CHECK(added_names("sections:\n  'A':\n") == Names{"'a'"});
    CHECK(added_names("sections:\n  PCM(1):\n") == Names{"pcm(1)"});
    CHECK(added_names("sections:\n  - a:\n") == Names{"- a"});
}

TEST_CASE("Spellings of one name are one group") {
    const Table table = read_text(
        "sections:\n"
        "  $PCM:\n"
        "    parse_mode: raw\n"
        "  pcm:\n"
        "    entries:\n"
        "      x:\n");
    CHECK(table.size() == 24);
    CHECK(table.at("pcm").parse_mode == SectionParseMode::Raw);
    CHECK(table.at("pcm").entries.contains("x"));
}

TEST_CASE("A header for a built-in group keeps its mode") {
    const Table table = read_text("sections:\n  $DATA:\n  contrl:\n  Vib2:\n");
    CHECK(table.size() == 23);
    CHECK(table.at("data").parse_mode == SectionParseMode::Raw);
    CHECK(table.at("contrl").parse_mode == SectionParseMode::Structured);
    CHECK(table.at("vib2").parse_mode == SectionParseMode::Raw);
}

TEST_CASE("A second header resets the permissions and keeps mode and alias and keywords") {
    const Table table = read_text(
        "sections:\n"
        "  a:\n"
        "    requires_end: no\n"
        "    allow_unknown_entries: no\n"
        "    allow_raw_lines: no\n"
        "    parse_mode: raw\n"
        "    alias_of: data\n"
        "    entries:\n"
        "      x:\n"
        "        kind: flag\n"
        "  $A:\n");
    SectionSpec expected = new_group();
    expected.parse_mode = SectionParseMode::Raw;
    expected.alias_of = "data";
    expected.entries["x"].kind = EntryKind::Flag;
    CHECK(table.at("a") == expected);
}

TEST_CASE("A header ends the keyword list and the keyword of the group before") {
    const Table table = read_text(
        "sections:\n"
        "  a:\n"
        "    entries:\n"
        "      x:\n"
        "  a:\n"
        "        kind: flag\n"
        "      y:\n"
        "  b:\n"
        "      z:\n");
    CHECK(names_of(table.at("a").entries) == Names{"x"});
    CHECK(table.at("a").entries.at("x") == EntrySpec{});
    CHECK(table.at("b").entries.empty());
}

TEST_CASE("A line at the depth of groups without a colon at its end changes nothing") {
    const Table table = read_text(
        "sections:\n"
        "  a:\n"
        "  b\n"
        "  c: raw\n"
        "  - d\n"
        "    entries:\n"
        "      x:\n"
        "  junk\n"
        "        kind: flag\n"
        "      y:\n");
    CHECK(table.size() == 24);
    CHECK(names_of(table.at("a").entries) == Names{"x", "y"});
    CHECK(table.at("a").entries.at("x").kind == EntryKind::Flag);
}

TEST_CASE("Lines below no group are skipped") {
    const Table table = read_text(
        "sections:\n"
        "    parse_mode: raw\n"
        "    entries:\n"
        "      x:\n"
        "        kind: flag\n"
        "  a:\n"
        "      x:\n");
    CHECK(table.size() == 24);
    CHECK(table.at("a") == new_group());
}

TEST_CASE("A group whose name normalises to nothing is stored and takes no properties") {
    for (const char* header : {"$:", ":", "$ :", "\t:"}) {
        CAPTURE(header);
        const Table table = read_text(
            "sections:\n"
            "  a:\n"
            "  " +
            std::string{header} +
            "\n"
            "    parse_mode: raw\n"
            "    alias_of: data\n"
            "    requires_end: no\n"
            "    entries:\n"
            "      x:\n"
            "        kind: flag\n");
        CHECK(table.size() == 25);
        CHECK(table.at("") == new_group());
        CHECK(table.at("a") == new_group());
    }
}

TEST_CASE("The group after one whose name normalises to nothing is read as any other") {
    const Table table = read_text("sections:\n  $:\n  a:\n    parse_mode: raw\n");
    CHECK(table.at("a").parse_mode == SectionParseMode::Raw);
    CHECK(table.at("").parse_mode == SectionParseMode::Keywords);
}

TEST_CASE("Lines between the steps of the ladder are skipped and change no state") {
    for (const int depth : {1, 3, 5, 7, 9, 10, 12, 100}) {
        CAPTURE(depth);
        const std::string spaces(static_cast<std::size_t>(depth), ' ');
        for (const char* text : {"b:", "parse_mode: raw", "entries:", "sections:", "kind: value"}) {
            CAPTURE(text);
            const Table table = read_text(
                "sections:\n"
                "  a:\n"
                "    entries:\n"
                "      x:\n"
                "        kind: flag\n" +
                spaces + text +
                "\n"
                "        indexed: yes\n"
                "      y:\n");
            SectionSpec expected = new_group();
            expected.entries["x"] = {EntryKind::Flag, "token", true, false};
            expected.entries["y"] = {};
            CHECK(table.at("a") == expected);
            CHECK(table.size() == 24);
        }
    }
}
