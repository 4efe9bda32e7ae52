#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "validation/findings.hpp"

using nurl::input::gamess::NamedSection;
using nurl::test::findings;
using nurl::test::Issues;
using nurl::test::raw_text;
using nurl::test::unknown_keyword;

namespace {

using Lines = std::vector<std::string>;

}  // namespace

TEST_CASE("Comments and blank lines in a structured group give nothing") {
    CHECK(findings(NamedSection{"CONTRL",
                                {},
                                {"! note", "# note", "", "   ", "\t\v\f\r\n", "  ! note",
                                 "\t# note", "!", "#", "!!", "#! junk", "\v!", "! junk $ junk"}})
              .empty());
}

TEST_CASE("Every other line of a structured group gives one Error") {
    for (const char* line : {"junk", "  junk  ", "a ! note", "a # note", "* note", "C note", "/",
                             "=", "FOO=", "1", "\xA0", "$", "\"! note\"", "-! note"}) {
        CAPTURE(line);
        CHECK(findings(NamedSection{"SCF", {}, {line}}) == Issues{raw_text("scf")});
    }
    CHECK(findings(NamedSection{"SCF", {}, {std::string(1, '\0')}}) == Issues{raw_text("scf")});
}

TEST_CASE("Equal lines of free text give equal findings") {
    CHECK(findings(NamedSection{"CONTRL", {}, {"junk", "! note", "junk", "", "junk"}}) ==
          Issues{raw_text("contrl"), raw_text("contrl"), raw_text("contrl")});
}

TEST_CASE("Free text gives no Error outside structured groups") {
    for (const char* name : {"PCM", "STRICT", "GRID", "POINTS", "DATA", "VEC"}) {
        CAPTURE(name);
        CHECK(findings(NamedSection{name, {}, {"junk", "! note", ""}}).empty());
    }
}

TEST_CASE("All five structured groups are checked for free text") {
    for (const char* name : {"contrl", "system", "basis", "scf", "guess"}) {
        CAPTURE(name);
        CHECK(findings(NamedSection{name, {}, {"junk"}}) == Issues{raw_text(name)});
    }
}

TEST_CASE("Keywords hidden in raw lines of a keyword group give Warnings in order") {
    CHECK(findings(NamedSection{"PCM", {}, {"FOO=1 BAR=2"}}) ==
          Issues{unknown_keyword("pcm", "FOO"), unknown_keyword("pcm", "BAR")});
    CHECK(findings(
              NamedSection{"PCM", {}, {"some text", "b=1 SOLVNT=WATER", "words a = 2", "b=3"}}) ==
          Issues{unknown_keyword("pcm", "B"), unknown_keyword("pcm", "A"),
                 unknown_keyword("pcm", "B")});
}

TEST_CASE("Hidden keywords that the schema lists give nothing") {
    CHECK(findings(NamedSection{"PCM", {}, {"solvnt=water", "junk XE(2)=1 xe = 3", "XE( 3 )=1"}})
              .empty());
}

TEST_CASE("The key of a hidden keyword keeps its index") {
    CHECK(findings(NamedSection{"PCM", {}, {"foo(2)=1 bar( 1 , 2 ) = 3"}}) ==
          Issues{unknown_keyword("pcm", "FOO(2)"), unknown_keyword("pcm", "BAR( 1 , 2 )")});
}

TEST_CASE("A pair in a comment line counts as a pair") {
    CHECK(findings(NamedSection{"PCM", {}, {"! FOO=1", "# BAR=2 # SOLVNT=3"}}) ==
          Issues{unknown_keyword("pcm", "FOO"), unknown_keyword("pcm", "BAR")});
    CHECK(findings(NamedSection{"CONTRL", {}, {"! FOO=1"}}) ==
          Issues{unknown_keyword("contrl", "FOO")});
}

TEST_CASE("Each raw line is scanned for itself") {
    CHECK(findings(NamedSection{"PCM", {}, {"FOO", "=1", "BAR=", "2"}}).empty());
    CHECK(findings(NamedSection{"PCM", {}, {"FOO=\n1"}}) == Issues{unknown_keyword("pcm", "FOO")});
}

TEST_CASE("Pairs behind a dollar sign are found as well") {
    CHECK(findings(NamedSection{"PCM", {}, {"FOO=1 $END BAR=2", "BAZ= $END", "X$Y=1"}}) ==
          Issues{unknown_keyword("pcm", "FOO"), unknown_keyword("pcm", "BAR"),
                 unknown_keyword("pcm", "Y")});
}

TEST_CASE("Raw lines of raw groups are never scanned for keywords") {
    for (const char* name : {"DATA", "$VEC", "GRID", "POINTS"}) {
        CAPTURE(name);
        CHECK(findings(NamedSection{name, {}, {"FOO=1 BAR=2", "junk"}}).empty());
    }
}

TEST_CASE("Entries of raw groups are checked as those of any group") {
    CHECK(findings(NamedSection{"GRID", {{"KNOWN", "1"}, {"FOO", "1"}}, {"BAR=2"}}) ==
          Issues{unknown_keyword("grid", "FOO")});
    CHECK(findings(NamedSection{"DATA", {{"FOO", "1"}}, {}}) ==
          Issues{unknown_keyword("data", "FOO")});
}

TEST_CASE("Keywords come before free text and that before hidden keywords") {
    CHECK(findings(NamedSection{
              "CONTRL", {{"E1", "1"}, {"E2", "1"}}, {"junk H1=1", "H2=1", "! H3=1", "junk"}}) ==
          Issues{unknown_keyword("contrl", "E1"), unknown_keyword("contrl", "E2"),
                 raw_text("contrl"), raw_text("contrl"), raw_text("contrl"),
                 unknown_keyword("contrl", "H1"), unknown_keyword("contrl", "H2"),
                 unknown_keyword("contrl", "H3")});
}
