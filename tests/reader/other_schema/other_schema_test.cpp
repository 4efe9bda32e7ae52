// The schema is loaded once a process, so these cases have a program of their own.
#include <cstdlib>

#include <doctest/doctest.h>

#include "reader/reading.hpp"

using namespace nurl::input::gamess;
using namespace nurl::test;

namespace {

/// Reads with the schema file beside this source.
ParseResult read_with_other_schema(std::string_view text) {
    ::setenv("NURL_GMS_INP_SCHEMA_YAML", NURL_TEST_SCHEMA, 1);
    return read(text);
}

}  // namespace

TEST_CASE("Keywords in the raw lines of a structured group are lifted in the order of the lines") {
    const ParseResult result = read_with_other_schema(
        "$scf dirscf=.T. DIIS=maybe\n"
        " free text\n"
        " ! DIIS = .F.\n"
        " NCONV=8 soscf=1 $END\n");
    CHECK(result.warnings == Lines{});
    CHECK(result.input.scf ==
          ScfSection{true, false, true, {}, {}, {{"DIIS", "maybe"}, {"NCONV", "8"}}});
    CHECK(result.input.sections ==
          Sections{{"SCF",
                    {},
                    {"dirscf=.T. DIIS=maybe", "free text", "! DIIS = .F.", "NCONV=8 soscf=1"}}});
}

TEST_CASE("Each raw line is scanned for itself") {
    const ParseResult result = read_with_other_schema("$SCF DIIS=\n .T.\n $END\n");
    CHECK(result.input.scf == ScfSection{});
    CHECK(result.input.sections == Sections{{"SCF", {}, {"DIIS=", ".T."}}});
}

TEST_CASE("A structured group that the schema reads for keywords is lifted and warns of nothing") {
    const ParseResult result = read_with_other_schema("$GUESS words NORB=3\n words $END\n");
    CHECK(result.warnings == Lines{});
    CHECK(result.input.guess == GuessSection{{}, 3, {}});
    CHECK(result.input.sections == Sections{{"GUESS", {{"NORB", "3"}}, {"words", "words"}}});
}

TEST_CASE("A group that the schema calls structured warns of free text and has no record") {
    const ParseResult result = read_with_other_schema("$PCM words IEF=-10 $END\n");
    CHECK(result.warnings ==
          Lines{"Section $PCM preserved non-keyword text from its header as raw text"});
    CHECK(result.input.sections == Sections{{"PCM", {{"IEF", "-10"}}, {"words"}}});
}
