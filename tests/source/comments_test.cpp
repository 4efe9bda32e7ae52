#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

namespace {

std::vector<std::string> comments_of(const Deck& deck) {
    std::vector<std::string> comments;
    for (const Item& item : deck.items(deck.sections()[0]))
        if (item.kind == ItemKind::Comment) comments.emplace_back(deck.text(item.span));
    return comments;
}

using Texts = std::vector<std::string>;

}  // namespace

TEST_CASE("A second `!` turns a comment of a keyword group off") {
    const Deck deck{" $ZMAT IZMAT(1)=1,1,2, ! bond ! 2,1,2,3 $END\n"};
    CHECK(comments_of(deck) == Texts{"! bond !"});
    CHECK(deck.get_keyword("ZMAT", "IZMAT") == "1,1,2,2,1,2,3");
}

TEST_CASE("An open comment ends with its line") {
    const Deck deck{" $STATPT ! first\n!HESS=CALC IHREP=1\n HSSEND=.TRUE. $END\n"};
    CHECK(comments_of(deck) == Texts{"! first", "!HESS=CALC IHREP=1"});
    CHECK(deck.get_keyword("STATPT", "HESS") == std::nullopt);
    CHECK(deck.get_keyword("STATPT", "HSSEND") == ".TRUE.");
}

TEST_CASE("A comment may follow a word without a blank") {
    const Deck deck{" $SCF DIRSCF=.T.!direct\n $END\n"};
    CHECK(deck.get_keyword("SCF", "DIRSCF") == ".T.");
    CHECK(comments_of(deck) == Texts{"!direct"});
}

TEST_CASE("An $END behind an open `!` does not end a group") {
    const Deck deck{" $SCF DIRSCF=.T. ! $END\n SOSCF=.T. $END\n"};
    CHECK(deck.get_keyword("SCF", "SOSCF") == ".T.");
}

TEST_CASE("An $END behind a closed comment ends a group") {
    const Deck deck{" $SCF DIRSCF=.T. ! direct ! $END\n SOSCF=.T.\n"};
    CHECK(deck.get_keyword("SCF", "SOSCF") == std::nullopt);
}

TEST_CASE("In fixed columns a `!` is data") {
    const Deck deck{" $HESS\nENERGY ! $END\n"};
    CHECK(deck.text(deck.sections()[0].body) == "\nENERGY ! ");
    CHECK(comments_of(deck).empty());
}

TEST_CASE("In free-format groups a `!` hides the rest of its line") {
    const Deck deck{" $ECP\nH NONE ! a ! b $END\n! line\nO NONE\n $END\n"};
    CHECK(comments_of(deck) == Texts{"! a ! b $END", "! line"});
}

}  // namespace nurl::input::gamess::source
