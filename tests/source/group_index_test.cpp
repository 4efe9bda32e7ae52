#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

namespace {

/// The groups of a text in short: `NAME`, `(NAME)` when GAMESS does not see it, `NAME...` when it
/// has no `$END`.
std::string groups_in(const std::string& text) {
    const Deck deck{text};
    std::string list;
    for (const Group& group : deck.sections()) {
        if (!list.empty()) list += ' ';
        list += group.visible ? group.name : '(' + group.name + ')';
        if (group.terminator.empty()) list += "...";
    }
    return list;
}

struct IndexCase {
    const char* name;
    std::string text;
    const char* groups;
};

}  // namespace

TEST_CASE("Many groups close together are found like a few") {
    constexpr std::size_t number = 100;
    std::string text(2000, '\n');
    for (std::size_t i = 0; i < number; ++i) text += i % 2 == 0 ? " $A $END\n" : "$A\n";
    const Deck deck{text};
    REQUIRE(deck.sections().size() == number);
    const Group& last = deck.sections().back();
    CHECK(last.name == "A");
    CHECK_FALSE(last.visible);
    CHECK(last.occurrence == number / 2);
    CHECK(last.line == 2000 + number);
    CHECK(deck.find_all("A").size() == number / 2);
}

TEST_CASE("Groups are found as GAMESS finds them") {
    const std::vector<IndexCase> cases{
        {"an empty text", "", ""},
        {"text without a group", "energy of water\n", ""},
        {"a group on one line", " $SCF DIRSCF=.T. $END\n", "SCF"},
        {"a group over several lines", " $SCF\n DIRSCF=.T.\n $END\n", "SCF"},
        {"small letters", " $scf dirscf=.t. $end\n", "SCF"},
        {"no line end at the end", " $SCF $END", "SCF"},
        {"a name alone at the end", " $SCF", "SCF..."},
        {"lines ended by CR LF", " $SCF\r\n $END\r\n $GUESS $END\r\n", "SCF GUESS"},
        {"lines ended by CR", " $SCF\r $END\r $GUESS $END\r", "SCF GUESS"},
        {"$END glued to a value", " $SCF DIRSCF=.T.$END\n $GUESS $END\n", "SCF GUESS"},
        {"$END in column 1", " $VEC\n 1  1 0.5\n$END\n", "VEC"},
        {"`$` in column 1", "$SCF DIRSCF=.T. $END\n", "(SCF)"},
        {"`$` in column 3", "  $SCF DIRSCF=.T. $END\n", "(SCF)"},
        {"a tab in column 1", "\t$SCF DIRSCF=.T. $END\n", "(SCF)"},
        {"$REKS in column 1", "$REKS rexType=1 $END\n", "REKS"},
        {"text before the `$`", "--$SCF $END\n! $SCF $END\n", ""},
        {"a `$` without a name", " $ SCF\n $$SCF\n", ""},
        {"a stray $END", " $END\n $SCF $END\n $END\n", "SCF"},
        {"a byte-order mark in front", "\xEF\xBB\xBF $SCF $END\n", "(SCF)"},
        {"a byte-order mark on a line of its own", "\xEF\xBB\xBF\n $SCF $END\n", "SCF"},
        {"a header while a group is open", " $SCF DIRSCF=.T.\n $GUESS GUESS=HCORE $END\n",
         "SCF... GUESS"},
        {"a header off column 2 while a group is open", " $SCF\n$GUESS GUESS=HCORE $END\n", "SCF"},
        {"two groups off column 2, the first open", "$SCF\n$GUESS $END\n", "(SCF)... (GUESS)"},
        {"a group that the text ends", " $VEC\n 1  1 0.5\n", "VEC..."},
        {"two groups on a line", " $SCF $END $GUESS GUESS=HCORE $END\n", "SCF (GUESS)"},
        {"three groups on a line", " $SCF $END $GUESS $END $GRAD $END\n", "SCF (GUESS) (GRAD)"},
        {"a word of prose behind $END", " $SCF $END the $SPOKEN word\n", "SCF"},
        {"a `$` word inside a keyword group", " $SCF DIRSCF=.T. $GUESS $END\n", "SCF"},
        {"directives of $VB2000", " $VB2000\n$02VBORB\n $MACROITER 2\n $ECONV\n $END\n $SCF $END\n",
         "VB2000 SCF"},
        {"$END behind another `$`", " $SCF A=1 $$END\n $GUESS $END\n", "SCF GUESS"},
        {"$REKS behind an $END", " $SCF $END $REKS rexType=1 $END\n", "SCF (REKS)"},
        {"a `$` word inside a group off column 2", "$SCF A=1 $GUESS B=2 $END\n", "(SCF)"},
        {"a comment in column 1", " $SCF A=1\n! $END $GUESS\n B=2 $END\n", "SCF"},
        {"a name behind the line of an $END", " $SCF $END\nthe $GUESS B=2 $END\n", "SCF"},
        {"a name behind an $END that ends nothing", " $SCF $END\n $END $GUESS B=2 $END\n", "SCF"},
        {"a name behind a `$` on another line", " $SCF $END\n a $ and $GUESS $END\n", "SCF"},
        {"a name with a `!` in it", " $A!B C=1 $END\n", "A!B"},
        {"a group after a blank title", " $DATA\n\nC1\n $END\n", "DATA"},
    };
    for (const IndexCase& row : cases) {
        CAPTURE(row.name);
        CHECK(groups_in(row.text) == row.groups);
    }
}

TEST_CASE("Copies of a group are counted, the seen and the unseen ones apart") {
    const Deck deck{" $SCF $END\n$SCF $END\n $SCF $END\n $GUESS $END\n$SCF $END\n"};
    std::vector<std::size_t> occurrences;
    for (const Group& group : deck.sections()) occurrences.push_back(group.occurrence);
    CHECK(occurrences == std::vector<std::size_t>{1, 1, 2, 1, 2});
}

TEST_CASE("Header, body and terminator of a group lie behind one another") {
    const Deck deck{"title\n $scf dirscf=.t. $end note\n"};
    const Group group = deck.sections()[0];
    CHECK(deck.text(group.header) == "$scf");
    CHECK(deck.text(group.body) == " dirscf=.t. ");
    CHECK(deck.text(group.terminator) == "$end");
    CHECK(group.line == 2);
}

TEST_CASE("A group without $END ends in front of the line of the next header") {
    const Deck deck{" $SCF DIRSCF=.T.\n $GUESS $END\n"};
    const Group group = deck.sections()[0];
    CHECK(deck.text(group.body) == " DIRSCF=.T.\n");
    CHECK(group.terminator == Span{17, 17});
}

TEST_CASE("A group without $END at the end of the text takes all of it") {
    const Deck deck{" $VEC\n 1  1\nend of run\n"};
    CHECK(deck.text(deck.sections()[0].body) == "\n 1  1\nend of run\n");
    CHECK(deck.sections()[0].terminator == Span{23, 23});
}

TEST_CASE("Lines are counted over every kind of line end") {
    const Deck deck{"a\r\nb\rc\n $SCF\r\n $END\n\n $GUESS $END\n"};
    CHECK(deck.sections()[0].line == 4);
    CHECK(deck.sections()[1].line == 7);
}

TEST_CASE("Columns are counted from the begin of the line of each header") {
    const Deck deck{"\xEF\xBB\xBF $SCF $END $GUESS $END\r  $VEC $END\r\n $BASIS $END\n"};
    REQUIRE(deck.sections().size() == 4);
    CHECK(deck.sections()[0].column == 5);
    CHECK(deck.sections()[1].column == 15);
    CHECK(deck.sections()[2].column == 3);
    CHECK(deck.sections()[3].column == 2);
    CHECK(deck.sections()[1].line == 1);
    CHECK(deck.location(deck.sections()[1].header.begin) == Position{1, 15});
}

TEST_CASE("find_all gives the visible copies of a group whatever the case of the name") {
    const Deck deck{" $SCF $END\n $GUESS $END\n$SCF $END\n $scf $END\n"};
    for (const char* const name : {"SCF", "scf", "$Scf", " $SCF\t"}) {
        CAPTURE(name);
        const std::vector<Group> copies = deck.find_all(name);
        REQUIRE(copies.size() == 2);
        CHECK(copies[0].line == 1);
        CHECK(copies[1].line == 4);
    }
    CHECK(deck.find_all("VEC").empty());
    CHECK(deck.find_all("").empty());
}

TEST_CASE("Groups are all found, close together and far apart") {
    const auto last_two = [](std::size_t between) {
        std::string text;
        for (int i = 0; i < 300; ++i)
            text += " $SCF A=1 $END $GUESS $END\n" + std::string(between, '-') + "\n";
        const Deck deck{text};
        std::string shown = std::to_string(deck.sections().size());
        for (const Group& group : deck.sections().last(2))
            shown += ' ' + group.name + '#' + std::to_string(group.occurrence) + ' ' +
                     std::to_string(group.line) + ':' + std::to_string(group.column) + " '" +
                     std::string{deck.text(group.body)} + '\'';
        return shown;
    };
    const std::string expected = "600 SCF#300 599:2 ' A=1 ' GUESS#300 599:16 ' '";
    CHECK(last_two(0) == expected);
    CHECK(last_two(40) == expected);
    CHECK(last_two(200) == expected);
}

TEST_CASE("A million `$` on one line are looked at once each") {
    std::string text = " $SCF DIRSCF=.T. ! ";
    for (int i = 0; i < 1'000'000; ++i) text += '$';
    for (int i = 0; i < 200'000; ++i) text += " $END";
    text += "\n $END\n";
    for (int i = 0; i < 200'000; ++i) text += "$";
    CHECK(groups_in(text) == "SCF");
}

}  // namespace nurl::input::gamess::source
