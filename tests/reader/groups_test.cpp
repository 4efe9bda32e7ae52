// Where groups begin and end, and what is between them.
#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

#include "reader/reading.hpp"

using namespace nurl::input::gamess;
using namespace nurl::test;

TEST_CASE("A text without any group is refused") {
    const std::vector<std::string> texts{
        "",
        "\n",
        " \t\r\n",
        "! a comment\n# another\n",
        "some text\nA=1\n",
        "$\n",
        "$ SCF",
        "$$SCF A=1\n",
        "$END\n",
        " $endx\n",
        "A $SCF",
        "\xEF\xBB\xBF",
        "CONTRL SCFTYP=RHF $END",
    };
    for (const std::string& text : texts) {
        CAPTURE(text);
        const ParseResult result = parse_string(text);
        CHECK_FALSE(result.ok);
        CHECK(result.error == "The input does not contain any GAMESS sections");
        CHECK(result.warnings == Lines{});
        CHECK(result.input == GamessInput{});
    }
}

TEST_CASE("One group makes a deck") {
    for (const std::string_view text : {"$SCF $END", "$DATA $END", "$x", "junk\n $PCM\n"}) {
        CAPTURE(text);
        const ParseResult result = parse_string(text);
        CHECK(result.ok);
        CHECK(result.error.empty());
    }
}

TEST_CASE("A group on one line gives its entries and its record and no warning") {
    const GamessInput deck = read_silently(" $contrl scftyp=uhf mult=2 $end");
    CHECK(deck.sections == Sections{{"CONTRL", {{"SCFTYP", "uhf"}, {"MULT", "2"}}, {}}});
    CHECK(deck.has_control);
    CHECK(deck.control.has_scftyp);
    CHECK(deck.control.scftyp == "UHF");
    CHECK(deck.control.has_mult);
    CHECK(deck.control.mult == 2);
    CHECK_FALSE(deck.has_data);
}

TEST_CASE("A group without content is complete on its header line") {
    for (const std::string_view text : {"$PCM $END", " $pcm$end", "\t$Pcm\t$End", "$PCM$ENDX"}) {
        CAPTURE(text);
        CHECK(read_silently(text).sections == Sections{{"PCM", {}, {}}});
    }
}

TEST_CASE("Lines behind a group that ended on its header line belong to nothing") {
    CHECK(read_silently("$PCM A=1 $END\nB=2\n $END\n").sections ==
          Sections{{"PCM", {{"A", "1"}}, {}}});
}

TEST_CASE("A group over several lines ends at its end marker in any case") {
    for (const std::string end : {"$END", " $end", "\t$EnD", " $ENDX", " $END of group", "$end$"}) {
        CAPTURE(end);
        const std::string text = " $PCM A=1\n B=2\n" + end + "\n C=3\n";
        CHECK(read_silently(text).sections == Sections{{"PCM", {{"A", "1"}, {"B", "2"}}, {}}});
    }
}

TEST_CASE("Text in front of the end marker on the closing line belongs to the group") {
    CHECK(read_silently("$PCM\n A=1\n B=2 $END\n").sections ==
          Sections{{"PCM", {{"A", "1"}, {"B", "2"}}, {}}});
    CHECK(read_silently("$PCM\n A=1$END\n").sections == Sections{{"PCM", {{"A", "1"}}, {}}});
}

TEST_CASE("Text behind an end marker vanishes without a trace") {
    CHECK(read_silently("$PCM A=1 $END B=2 words $SCF DIIS=.T. $END\n") ==
          read_silently("$PCM A=1 $END\n"));
    CHECK(read_silently("$PCM\nA=1\n$END B=2 ! words\n") == read_silently("$PCM\nA=1\n$END\n"));
}

TEST_CASE("Lines between groups vanish without a trace") {
    CHECK(read_silently("! comment\nA=1\n$\n$ X\n$END\n\n"
                        "$PCM A=1 $END\nwords\n# more\n $end\n"
                        "$SCF DIIS=.T. $END\nB=2\n") ==
          read_silently("$PCM A=1 $END\n$SCF DIIS=.T. $END\n"));
}

TEST_CASE("Group names are stored in upper case up to a blank or a dollar sign") {
    CHECK(read_silently("$pcm A=1 $END").sections[0].name == "PCM");
    CHECK(read_silently("$Pcm$END").sections[0].name == "PCM");
    CHECK(read_silently("$pcm\t$END").sections[0].name == "PCM");
    CHECK(read_silently("$pcm_2(x) $END").sections[0].name == "PCM_2(X)");
    CHECK(read_silently("$\xC3\xA4z $END").sections[0].name == "\xC3\xA4Z");
}

TEST_CASE("Text directly behind a name and a dollar sign is text of the header") {
    const NamedSection section = read_group("$PCM$SCF A=1 $END");
    CHECK(section == NamedSection{"PCM", {{"A", "1"}}, {"$SCF"}});
}

TEST_CASE("Groups keep the order of the text and a name may occur twice") {
    const GamessInput deck =
        read_silently("$SCF $END\n$PCM A=1 $END\n$CONTRL $END\n$pcm B=2 $END\n$SCF DIIS=.T. $END");
    CHECK(deck.sections == Sections{{"SCF", {}, {}},
                                    {"PCM", {{"A", "1"}}, {}},
                                    {"CONTRL", {}, {}},
                                    {"PCM", {{"B", "2"}}, {}},
                                    {"SCF", {{"DIIS", ".T."}}, {}}});
    CHECK(deck.extra_sections.empty());
}

TEST_CASE("Keys are stored in upper case and values as written") {
    CHECK(read_group("$pcm solvnt=Water Ief( 1 )=-10 $end").entries ==
          Entries{{"SOLVNT", "Water"}, {"IEF( 1 )", "-10"}});
}

TEST_CASE("Entries keep the order of the text and duplicates") {
    CHECK(read_group("$PCM B=1 A=2\n B=3\n A=4 B=5 $END").entries ==
          Entries{{"B", "1"}, {"A", "2"}, {"B", "3"}, {"A", "4"}, {"B", "5"}});
}

TEST_CASE("Words behind a value belong to the value") {
    const GamessInput deck = read_silently("$CONTRL SCFTYP=RHF some words $END");
    CHECK(deck.sections == Sections{{"CONTRL", {{"SCFTYP", "RHF some words"}}, {}}});
    CHECK(deck.control.scftyp == "RHF SOME WORDS");
    CHECK(deck.control.extra.empty());
}

TEST_CASE("A value in a group is trimmed of white space of every kind") {
    CHECK(read_group("$PCM A=1\f\n B= 2 \v\n $END").entries == Entries{{"A", "1"}, {"B", "2"}});
}

TEST_CASE("A pair is not continued on the next line") {
    CHECK(read_group("$PCM A=\n 1\n B\n =2\n C=x\n y\n $END") ==
          NamedSection{"PCM", {{"C", "x"}}, {"A=", "1", "B", "=2", "y"}});
}

TEST_CASE("The lines of a group are read from its header to its end") {
    CHECK(read_silently("$PCM\n\n  \n A=1\n\t\n B=2\n\n$END\n").sections ==
          Sections{{"PCM", {{"A", "1"}, {"B", "2"}}, {}}});
}

TEST_CASE("Groups are all found, close together and far apart") {
    const auto found = [](const std::string& between) {
        std::string text;
        for (int i = 0; i < 100; ++i) text += " $A K=1 $END\n" + between;
        const auto result = parse_string(text);
        return result.input.sections.size();
    };
    CHECK(found("") == 100);
    CHECK(found("costs 3 $\n$ 4\nplain\n") == 100);
    CHECK(found(std::string(200, '-') + "\n") == 100);
}
