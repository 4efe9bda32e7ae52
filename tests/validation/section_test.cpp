#include <string>

#include <doctest/doctest.h>

#include "validation/findings.hpp"

using namespace std::string_literals;

using nurl::input::gamess::NamedSection;
using nurl::input::gamess::validation::Severity;
using nurl::test::findings;
using nurl::test::Issues;
using nurl::test::raw_text;
using nurl::test::unknown_group;
using nurl::test::unknown_keyword;

TEST_CASE("A group that is not known gives one Info and nothing else") {
    const Issues issues =
        findings(NamedSection{"NOSUCH", {{"FOO", "1"}, {"SCFTYP", "RHF"}}, {"junk", "BAR=2"}});
    REQUIRE(issues.size() == 1);
    CHECK(issues[0].severity == Severity::Info);
    CHECK(issues[0].section == "nosuch");
    CHECK(issues[0].key.empty());
    CHECK(issues[0].message == "Section $NOSUCH is not currently described by the GAMESS schema");
}

TEST_CASE("A group that is not known gives nothing when such groups are not reported") {
    CHECK(findings(NamedSection{"NOSUCH", {{"FOO", "1"}}, {"junk", "BAR=2"}}, {false, true, true})
              .empty());
}

TEST_CASE("A keyword that is not known gives a Warning") {
    const Issues issues = findings(NamedSection{"CONTRL", {{"foo", "1"}}, {}});
    REQUIRE(issues.size() == 1);
    CHECK(issues[0].severity == Severity::Warning);
    CHECK(issues[0].section == "contrl");
    CHECK(issues[0].key == "FOO");
    CHECK(issues[0].message ==
          "Keyword 'FOO' is not currently described by the schema for section $CONTRL");
}

TEST_CASE("Free text in a structured group gives an Error") {
    const Issues issues = findings(NamedSection{"CONTRL", {}, {"some text"}});
    REQUIRE(issues.size() == 1);
    CHECK(issues[0].severity == Severity::Error);
    CHECK(issues[0].section == "contrl");
    CHECK(issues[0].key.empty());
    CHECK(issues[0].message == "Structured section $CONTRL still contains non-keyword raw text");
}

TEST_CASE("A known group with known keywords gives nothing") {
    CHECK(findings(NamedSection{"CONTRL", {{"SCFTYP", "RHF"}, {"ICHARG", "0"}}, {}}).empty());
    CHECK(findings(NamedSection{"PCM", {{"SOLVNT", "WATER"}}, {}}).empty());
    CHECK(findings(NamedSection{"PCM", {}, {}}).empty());
}

TEST_CASE("Group names count in any spelling and findings name them in lower case") {
    for (const char* name : {"CONTRL", "contrl", "$CONTRL", " $Contrl\t"}) {
        CAPTURE(name);
        CHECK(findings(NamedSection{name, {{"SCFTYP", "RHF"}, {"FOO", "1"}}, {"junk BAR=1"}}) ==
              Issues{unknown_keyword("contrl", "FOO"), raw_text("contrl"),
                     unknown_keyword("contrl", "BAR")});
    }
    CHECK(findings(NamedSection{" $NoSuch ", {}, {}}) == Issues{unknown_group("nosuch")});
}

TEST_CASE("Keywords count in any spelling and with any index") {
    CHECK(findings(NamedSection{"PCM",
                                {{"solvnt", "1"},
                                 {" Solvnt ", "1"},
                                 {"$SOLVNT", "1"},
                                 {"XE", "1"},
                                 {"XE(1)", "1"},
                                 {"xe( 2 )", "1"},
                                 {"SOLVNT(3)", "1"}},
                                {}})
              .empty());
}

TEST_CASE("The key of a finding is the keyword trimmed and in upper case") {
    CHECK(findings(NamedSection{"PCM",
                                {{"\tfoo \r\n", "1"},
                                 {"foo(2)", "1"},
                                 {"$foo", "1"},
                                 {"xe(1)y", "1"},
                                 {"a  b", "1"},
                                 {"", "1"},
                                 {"caf\xC3\xA9", "1"},
                                 {"a\0b"s, "1"}},
                                {}}) ==
          Issues{unknown_keyword("pcm", "FOO"), unknown_keyword("pcm", "FOO(2)"),
                 unknown_keyword("pcm", "$FOO"), unknown_keyword("pcm", "XE(1)Y"),
                 unknown_keyword("pcm", "A  B"), unknown_keyword("pcm", ""),
                 unknown_keyword("pcm", "CAF\xC3\xA9"), unknown_keyword("pcm", "A\0B"s)});
}

TEST_CASE("Every occurrence of an unknown keyword is reported in order") {
    CHECK(findings(
              NamedSection{"PCM", {{"B", "1"}, {"A", "1"}, {"SOLVNT", "WATER"}, {"B", "2"}}, {}}) ==
          Issues{unknown_keyword("pcm", "B"), unknown_keyword("pcm", "A"),
                 unknown_keyword("pcm", "B")});
}

TEST_CASE("The permissions of a group make no difference") {
    for (const char* name : {"STRICT", "PCM"}) {
        CAPTURE(name);
        const std::string lower = std::string{name} == "PCM" ? "pcm" : "strict";
        CHECK(findings(NamedSection{name, {{"FOO", "1"}}, {"junk", "BAR=2"}}) ==
              Issues{unknown_keyword(lower, "FOO"), unknown_keyword(lower, "BAR")});
    }
}

TEST_CASE("An alias is checked as its target and reported under its own name") {
    CHECK(
        findings(
            NamedSection{"CNTRL", {{"SCFTYP", "RHF"}, {"MINE", "1"}}, {"junk ICHARG=1 X=2"}}) ==
        Issues{unknown_keyword("cntrl", "MINE"), raw_text("cntrl"), unknown_keyword("cntrl", "X")});
    CHECK(findings(NamedSection{"POINTS", {{"KNOWN", "1"}, {"FOO", "1"}}, {"junk BAR=2"}}) ==
          Issues{unknown_keyword("points", "FOO")});
}

TEST_CASE("Look-ups take a second leading dollar sign away, reports of the group one only") {
    CHECK(findings(NamedSection{"$$PCM", {{"FOO", "1"}}, {}}) ==
          Issues{unknown_keyword("pcm", "FOO")});
    CHECK(findings(NamedSection{" $ pcm", {{"FOO", "1"}}, {}}) ==
          Issues{unknown_keyword("pcm", "FOO")});
    CHECK(findings(NamedSection{"$$ODD", {{"KNOWN", "1"}}, {}}) == Issues{unknown_group("$odd")});
    CHECK(findings(NamedSection{"$$odd", {}, {}}).at(0).message ==
          "Section $$ODD is not currently described by the GAMESS schema");
    CHECK(
        findings(NamedSection{"$$$Odd", {{"KNOWN", "1"}, {"FOO", "1"}}, {"junk BAR=2 KNOWN=1"}}) ==
        Issues{unknown_keyword("$odd", "FOO"), raw_text("$$odd"), unknown_keyword("$odd", "BAR")});
    CHECK(findings(NamedSection{"$$$Odd", {{"FOO", "1"}}, {}}).at(0).message ==
          "Keyword 'FOO' is not currently described by the schema for section $$ODD");
    CHECK(findings(NamedSection{"$ODD", {}, {}}) == Issues{unknown_group("odd")});
}

TEST_CASE("A group without a name is reported under the empty name") {
    for (const char* name : {"", "$", "  ", " $ "}) {
        CAPTURE(name);
        CHECK(findings(NamedSection{name, {{"FOO", "1"}}, {"junk"}}) == Issues{unknown_group("")});
    }
}

TEST_CASE("The section called SECTION is not the one without a name") {
    CHECK(findings(NamedSection{"SECTION", {}, {}}) == Issues{unknown_group("section")});
}
