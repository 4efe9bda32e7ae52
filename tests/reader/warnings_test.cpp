// Every sentence of the reader, letter for letter, and their order.
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "reader/reading.hpp"

using namespace nurl::input::gamess;
using namespace nurl::test;

namespace {

const std::vector<std::string> structured_groups{"CONTRL", "SYSTEM", "BASIS", "SCF", "GUESS"};

}  // namespace

TEST_CASE("Free text on the header of a structured group has a sentence") {
    for (const std::string& name : structured_groups) {
        CHECK(
            read("$" + name + " words $END").warnings ==
            Lines{"Section $" + name + " preserved non-keyword text from its header as raw text"});
    }
}

TEST_CASE("Free text in the body of a structured group has a sentence") {
    for (const std::string& name : structured_groups) {
        CHECK(read("$" + name + "\nwords\n$END").warnings ==
              Lines{"Section $" + name + " preserved non-keyword body text as raw text"});
    }
}

TEST_CASE("A header before the end of a group has a sentence") {
    const ParseResult result = read("$SCF DIRSCF=.T.\n $GUESS GUESS=HUCKEL $END");
    CHECK(result.warnings ==
          Lines{"Section $SCF reached the next section before $END; treating it as implicitly "
                "terminated"});
    CHECK(result.input.sections ==
          Sections{{"SCF", {{"DIRSCF", ".T."}}, {}}, {"GUESS", {{"GUESS", "HUCKEL"}}, {}}});
    CHECK(result.input.scf->dirscf == true);
    CHECK(result.input.guess->guess == "HUCKEL");
}

TEST_CASE("The end of the text before the end of a group has a sentence") {
    const ParseResult result = read("$BASIS GBASIS=N31");
    CHECK(result.warnings == Lines{"Section $BASIS reached end-of-file without $END"});
    CHECK(result.input.sections == Sections{{"BASIS", {{"GBASIS", "N31"}}, {}}});
    CHECK(result.input.basis->gbasis == "N31");
}

TEST_CASE("The end of the text in DATA has a sentence of its own") {
    CHECK(read("$DATA\nTitle\nC1\n").warnings == Lines{"$DATA reached end-of-file without $END"});
}

TEST_CASE("Groups of every kind are told to be without an end") {
    for (const std::string name : {"CONTRL", "VEC", "PCM", "NOSUCH"}) {
        CHECK(read("$" + name).warnings ==
              Lines{"Section $" + name + " reached end-of-file without $END"});
        CHECK(read("$" + name + "\n A=1\n\n").warnings ==
              Lines{"Section $" + name + " reached end-of-file without $END"});
        CHECK(read("$" + name + "\n A=1\n$DIPDR $END").warnings ==
              Lines{"Section $" + name +
                    " reached the next section before $END; treating it as implicitly terminated"});
    }
}

TEST_CASE("The name in a sentence is in upper case") {
    CHECK(read("$scf words\nmore\n").warnings ==
          Lines{"Section $SCF preserved non-keyword text from its header as raw text",
                "Section $SCF preserved non-keyword body text as raw text",
                "Section $SCF reached end-of-file without $END"});
}

TEST_CASE("DATA that another header ends gives no warning") {
    CHECK(read("$DATA\nTitle\nC1\n$PCM $END").warnings == Lines{});
    CHECK(read("$PCM A=1\n$DATA\nTitle\nC1\n$END").warnings ==
          Lines{"Section $PCM reached the next section before $END; treating it as implicitly "
                "terminated"});
}

TEST_CASE("Sentences stand in the order in which their causes were met") {
    const ParseResult result = read(
        "$SCF one DIIS=.T.\n"
        " two\n"
        " ! comment\n"
        " three\n"
        "$CONTRL\n"
        " four $END\n"
        "between\n"
        "$PCM words\n"
        "$GUESS five\n"
        "$DATA\n"
        "Title\n");
    CHECK(result.warnings ==
          Lines{
              "Section $SCF preserved non-keyword text from its header as raw text",
              "Section $SCF preserved non-keyword body text as raw text",
              "Section $SCF preserved non-keyword body text as raw text",
              "Section $SCF reached the next section before $END; treating it as implicitly "
              "terminated",
              "Section $CONTRL preserved non-keyword body text as raw text",
              "Section $PCM reached the next section before $END; treating it as implicitly "
              "terminated",
              "Section $GUESS preserved non-keyword text from its header as raw text",
              "Section $GUESS reached the next section before $END; treating it as implicitly "
              "terminated",
              "$DATA reached end-of-file without $END",
          });
}

TEST_CASE("Warnings never make a deck fail") {
    const ParseResult result = parse_string("$SCF words\n more\n$GUESS\n");
    CHECK(result.warnings.size() == 4);
    CHECK(result.ok);
    CHECK(result.error.empty());
}

TEST_CASE("Reading keeps nothing from one text to the next") {
    const ParseResult first = parse_string("$SCF words\n$DATA\nTitle\nC1\n");
    const ParseResult other = parse_string("$PCM A=1 $END");
    CHECK(other.warnings == Lines{});
    CHECK(other.input.title.empty());
    CHECK(parse_string("$SCF words\n$DATA\nTitle\nC1\n") == first);
}
