#include <doctest/doctest.h>

#include "nurl/input/gamess/typed.hpp"

using namespace nurl::input::gamess;
using namespace nurl::input::gamess::typed::detail;

TEST_CASE("Entries are gathered trimmed and in upper case, empty ones included") {
    const SectionContent content =
        collect_section_content({"X", {{" nstate(1) ", " 3 "}, {"", "v"}, {"k", " "}}, {}});
    CHECK(content == SectionContent{{{"NSTATE(1)", "3"}, {"", "v"}, {"K", ""}}, {}});
}

TEST_CASE("Pairs in raw lines are gathered behind the entries, what is left stays as a line") {
    const SectionContent content = collect_section_content(
        {"X", {{"A", "1"}}, {"NSTATE=3 $comment", "B=2 C=x y", "1 d = 4$ $ e=5 $z"}});
    CHECK(content.entries ==
          std::vector<KeyValue>{
              {"A", "1"}, {"NSTATE", "3"}, {"B", "2"}, {"C", "x y"}, {"D", "4"}, {"E", "5"}});
    CHECK(content.raw_lines == std::vector<std::string>{"$comment", "1 $ $  $z"});
}

TEST_CASE("A raw line without pairs is kept verbatim, a blank one is dropped") {
    const SectionContent content =
        collect_section_content({"X", {}, {"  indented text ", "", " \t ", "A=1"}});
    CHECK(content.entries == std::vector<KeyValue>{{"A", "1"}});
    CHECK(content.raw_lines == std::vector<std::string>{"  indented text "});
}

TEST_CASE("A group is put together from typed entries, extra entries and raw lines") {
    const NamedSection section = make_named_section(
        " tddft ", {{"kept As", " it is "}}, {{" x(1) ", " v "}, {"y", " "}}, {"  raw ", ""});
    CHECK(section == NamedSection{"TDDFT",
                                  {{"kept As", " it is "}, {"X(1)", "v"}, {"Y", ""}},
                                  {"  raw ", ""}});
}

TEST_CASE("Setting a group replaces it whole and keeps its place") {
    GamessInput input;
    input.sections = {{"A", {}, {}}, {"Md", {{"X", "1"}}, {"raw"}}, {"B", {}, {}}};
    set_named_section(input, " md ", {"ignored", {{"DT", "1"}}, {}});
    CHECK(input.sections ==
          std::vector<NamedSection>{{"A", {}, {}}, {"MD", {{"DT", "1"}}, {}}, {"B", {}, {}}});
}

TEST_CASE("Setting a group that is not there adds it to the groups of the document's origin") {
    GamessInput built;
    set_named_section(built, "md", {"", {{"DT", "1"}}, {}});
    CHECK(built.extra_sections == std::vector<NamedSection>{{"MD", {{"DT", "1"}}, {}}});
    CHECK(built.sections.empty());

    GamessInput read;
    read.sections = {{"A", {}, {}}};
    set_named_section(read, "md", {"", {}, {}});
    CHECK(read.sections.back() == NamedSection{"MD", {}, {}});
    CHECK(read.extra_sections.empty());
}

TEST_CASE("A model is read from its group, or is nothing") {
    const auto count = [](const NamedSection& section) { return section.entries.size(); };
    GamessInput input;
    CHECK(get_section_model<std::size_t>(input, "MD", count) == std::nullopt);
    input.sections = {{"md", {{"A", "1"}, {"B", "2"}}, {}}};
    CHECK(get_section_model<std::size_t>(input, "$MD", count) == 2);
}
