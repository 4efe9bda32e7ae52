#include "source/data_layout.hpp"

#include <string>
#include <vector>

#include <doctest/doctest.h>

namespace nurl::input::gamess::source {

namespace {

using Lines = std::vector<std::string>;

/// The layout of the first molecule group as lines of what a card is for and the card.
Lines shown(const Deck& deck) {
    const Group* const group = [&deck]() -> const Group* {
        for (const Group& candidate : deck.sections())
            if (candidate.kind == GroupKind::Data) return &candidate;
        return nullptr;
    }();
    REQUIRE(group != nullptr);
    const DataLayout layout = read_data_layout(deck, *group, data_rules(deck));
    Lines lines;
    const auto add = [&lines, &deck](const std::string& part, const Item& card) {
        lines.push_back(part + ": " + std::string{deck.text(card.span)});
    };
    if (layout.title) add("title", *layout.title);
    if (layout.point_group) add("point group", *layout.point_group);
    for (const Item& card : layout.axis) add("axis", card);
    for (const AtomCards& atom : layout.atoms) {
        add("atom", atom.card);
        for (const Item& card : atom.basis) add("basis", card);
        if (atom.blank) add("close", *atom.blank);
    }
    for (const Item& card : layout.variables) add("variable", card);
    for (const Item& card : layout.rest) add("rest", card);
    return lines;
}

/// The layout of a $DATA with these lines in a deck with this text before it.
Lines layout_of(const std::string& groups, const std::string& lines) {
    return shown(Deck{groups + " $DATA\n" + lines + " $END\n"});
}

const std::string with_basis = " $BASIS GBASIS=STO NGAUSS=3 $END\n";

}  // namespace

TEST_CASE("COORD says how the atoms are laid out") {
    struct Row {
        const char* groups;
        CoordinateStyle style;
    };
    const std::vector<Row> rows{
        {"", CoordinateStyle::Cartesian},
        {" $CONTRL COORD=UNIQUE $END\n", CoordinateStyle::Cartesian},
        {" $CONTRL COORD=cart $END\n", CoordinateStyle::Cartesian},
        {" $CONTRL COORD=PRINAXIS $END\n", CoordinateStyle::Cartesian},
        {" $CONTRL COORD=Hint $END\n", CoordinateStyle::Hint},
        {" $CONTRL COORD=ZMT $END\n", CoordinateStyle::ZMatrix},
        {" $CONTRL COORD=ZMAT $END\n", CoordinateStyle::ZMatrix},
        {" $CONTRL COORD=ZMTMPC $END\n", CoordinateStyle::MopacStyle},
        {" $CONTRL COORD=FRAGONLY $END\n", CoordinateStyle::None},
        {" $CONTRL COORD=TINKER $END\n", CoordinateStyle::None},
        {" $CONTRL COORD=WHATEVER $END\n", CoordinateStyle::Cartesian},
        {" $CONTRL COORD= $END\n", CoordinateStyle::Cartesian},
        {" $CONTRL COORD=ZMT $END\n $CONTRL COORD=CART $END\n", CoordinateStyle::Cartesian},
        {"$CONTRL COORD=ZMT $END\n", CoordinateStyle::Cartesian},
        {" $CONTRL ! COORD=ZMT\n $END\n", CoordinateStyle::Cartesian},
    };
    for (const Row& row : rows)
        CHECK_MESSAGE(coordinate_style(Deck{row.groups}) == row.style, row.groups);
}

TEST_CASE("The basis set stands under the atoms when no group gives it") {
    CHECK(has_inline_basis(Deck{""}));
    CHECK(has_inline_basis(Deck{" $CONTRL SCFTYP=RHF $END\n"}));
    CHECK(has_inline_basis(Deck{"$BASIS GBASIS=STO $END\n"}));  // not seen in column 1
    CHECK_FALSE(has_inline_basis(Deck{with_basis}));
    CHECK_FALSE(has_inline_basis(Deck{" $BASIS BASNAM(1)=MYBAS $END\n"}));
    CHECK_FALSE(has_inline_basis(Deck{" $basis extfil=.t. $end\n"}));
    CHECK_FALSE(has_inline_basis(Deck{" $DFTB SCC=.TRUE. $END\n"}));
}

TEST_CASE("C1 is known in any case, with or without an order") {
    const auto names_c1 = [](const std::string& card) {
        const Deck deck{" $DATA\ntitle\n" + card + "\n $END\n"};
        return is_c1(deck, deck.items(deck.sections()[0])[1]);
    };
    CHECK(names_c1("C1"));
    CHECK(names_c1("c1 1"));
    CHECK(names_c1("  C1   ! no symmetry"));
    CHECK_FALSE(names_c1("Cn 1"));
    CHECK_FALSE(names_c1("C"));
    CHECK_FALSE(names_c1("CS"));
    CHECK_FALSE(names_c1(""));
}

TEST_CASE("C1 is followed by the atoms at once") {
    CHECK(layout_of(with_basis, "water\nC1\nO 8.0 0.0 0.0 0.1\nH 1.0 0.0 0.7 0.9\n") ==
          Lines{"title: water", "point group: C1", "atom: O 8.0 0.0 0.0 0.1",
                "atom: H 1.0 0.0 0.7 0.9"});
}

TEST_CASE("A title may be blank, and a comment sign in it is text") {
    CHECK(layout_of(with_basis, "\nC1\nHE 2.0\n") ==
          Lines{"title: ", "point group: C1", "atom: HE 2.0"});
    CHECK(layout_of(with_basis, "! helium; > alone\nC1\nHE 2.0\n") ==
          Lines{"title: ! helium; > alone", "point group: C1", "atom: HE 2.0"});
}

TEST_CASE("Other point groups are followed by one blank card") {
    CHECK(layout_of(with_basis, "water\nCNV 2\n\nO 8.0\n") ==
          Lines{"title: water", "point group: CNV 2", "axis: ", "atom: O 8.0"});
}

TEST_CASE("Where that blank card is missing, the first atom stands there") {
    CHECK(layout_of(with_basis, "water\nCNV 2\nO 8.0 0.0 0.0 0.1\nH 1.0 0.0 0.7 0.9\n") ==
          Lines{"title: water", "point group: CNV 2", "atom: O 8.0 0.0 0.0 0.1",
                "atom: H 1.0 0.0 0.7 0.9"});
}

TEST_CASE("What stands behind the blank card is an atom, whatever it looks like") {
    CHECK(layout_of(with_basis, "t\nCNV 2\n\n1 8.0 0.1\n") ==
          Lines{"title: t", "point group: CNV 2", "axis: ", "atom: 1 8.0 0.1"});
    CHECK(layout_of(with_basis + " $CONTRL COORD=HINT $END\n", "t\nCNV 2\nP 15 LC 0 0 0 - O K\n") ==
          Lines{"title: t", "point group: CNV 2", "atom: P 15 LC 0 0 0 - O K"});
}

TEST_CASE("Other point groups may be followed by two cards with points") {
    CHECK(layout_of(with_basis, "t\nCnv 2\n0 0 0 0. 0. 1D0\n1.0 0 0 PARALLEL\nO 8.0\n") ==
          Lines{"title: t", "point group: Cnv 2", "axis: 0 0 0 0. 0. 1D0", "axis: 1.0 0 0 PARALLEL",
                "atom: O 8.0"});
    CHECK(layout_of(with_basis, "t\nCnv 2\n0 0 0 0 0 1\n1.0 0 0\nO 8.0\n") ==
          Lines{"title: t", "point group: Cnv 2", "axis: 0 0 0 0 0 1", "axis: 1.0 0 0",
                "atom: O 8.0"});
    CHECK(layout_of(with_basis, "t\nCnv 2\n0 0 0 0 0 1\n1.0 0 0 normal\nO 8.0\n") ==
          Lines{"title: t", "point group: Cnv 2", "axis: 0 0 0 0 0 1", "axis: 1.0 0 0 normal",
                "atom: O 8.0"});
    CHECK(layout_of(with_basis, "t\nCnv 2\n0 0 0 0 0 1\n1.0 0 0 0\n") ==
          Lines{"title: t", "point group: Cnv 2", "axis: 0 0 0 0 0 1", "atom: 1.0 0 0 0"});
}

TEST_CASE("The inversion has one card with points, and a plane is never an atom") {
    CHECK(layout_of(with_basis, "t\nCi\n0 0 0 0 0 1\n1 8.0 0.0\n") ==
          Lines{"title: t", "point group: Ci", "axis: 0 0 0 0 0 1", "atom: 1 8.0 0.0"});
    CHECK(layout_of(with_basis, "t\nCs\n0 0 0 0 0 1\nO 8.0 0.0 0.0\n") ==
          Lines{"title: t", "point group: Cs", "axis: 0 0 0 0 0 1", "atom: O 8.0 0.0 0.0"});
}

TEST_CASE("Blank cards between atoms fit nowhere where a group gives the basis set") {
    CHECK(layout_of(with_basis, "t\nC1\n\nO 8.0\n\n\nH 1.0\n\n") ==
          Lines{"title: t", "point group: C1", "atom: O 8.0", "atom: H 1.0",
                "rest: ", "rest: ", "rest: ", "rest: "});
}

TEST_CASE("Without a group for it the basis set goes down to a blank card") {
    CHECK(layout_of("", "t\nC1\nO 8.0\n N31 6\n D 1 ; 1 0.8 1.0\n \nH 1.0 0.0\n STO 3\n") ==
          Lines{"title: t", "point group: C1", "atom: O 8.0", "basis:  N31 6", "basis:  D 1 ",
                "basis:  1 0.8 1.0", "close:  ", "atom: H 1.0 0.0", "basis:  STO 3"});
}

TEST_CASE("An atom may have no basis set, and more blank cards fit nowhere") {
    CHECK(layout_of("", "t\nC1\nX 0.0\n\n\nH 1.0\n STO 3\n\n") ==
          Lines{"title: t", "point group: C1", "atom: X 0.0", "close: ", "atom: H 1.0",
                "basis:  STO 3", "close: ", "rest: "});
}

TEST_CASE("A comment line is no card and does not close a basis set") {
    CHECK(layout_of("", "t\nC1 ! none\n! oxygen\nO 8.0\n! split\n N31 6\n\n") ==
          Lines{"title: t", "point group: C1 ", "atom: O 8.0", "basis:  N31 6", "close: "});
}

TEST_CASE("A fragment deck has types of atoms with their basis sets") {
    CHECK(layout_of(" $FMO NFRAG=2 $END\n", "\nc1\nH-1 1\n  N21 3\n\nO-1 8\n  N21 3\n\n") ==
          Lines{"title: ", "point group: c1", "atom: H-1 1", "basis:   N21 3",
                "close: ", "atom: O-1 8", "basis:   N21 3", "close: "});
}

TEST_CASE("HINT atoms may have their basis set under them") {
    CHECK(layout_of(" $CONTRL COORD=HINT $END\n",
                    "t\nCnv 3\n\nP 15.0 LC 0 0 0 - O K\n MCP READ\n\nH 1.0 PCC 1.4 68 0 + O K I\n"
                    " TZV\n\n") ==
          Lines{"title: t", "point group: Cnv 3", "axis: ", "atom: P 15.0 LC 0 0 0 - O K",
                "basis:  MCP READ", "close: ", "atom: H 1.0 PCC 1.4 68 0 + O K I", "basis:  TZV",
                "close: "});
}

TEST_CASE("A blank card ends a Z-matrix, and what follows are the values") {
    CHECK(layout_of(with_basis + " $CONTRL COORD=ZMT $END\n",
                    "t\nCS\n\nO\nH 1 rOH\nH 1 rOH 2 aHOH\n\nrOH=0.96\n\n! angle\naHOH 104.5\n") ==
          Lines{"title: t", "point group: CS", "axis: ", "atom: O", "atom: H 1 rOH",
                "atom: H 1 rOH 2 aHOH", "variable: rOH=0.96", "variable: aHOH 104.5", "rest: "});
}

TEST_CASE("A Z-matrix has no basis set under its atoms, whatever is missing") {
    CHECK(layout_of(" $CONTRL COORD=ZMT $END\n", "t\nC1\n\nO\nH 1 0.9\n") ==
          Lines{"title: t", "point group: C1", "atom: O", "atom: H 1 0.9", "rest: "});
    CHECK(layout_of(" $CONTRL COORD=ZMTMPC $END\n", "t\nC1\nO\nH 0.9 1\n\nH 0.9 1 104 1\n") ==
          Lines{"title: t", "point group: C1", "atom: O", "atom: H 0.9 1", "atom: H 0.9 1 104 1",
                "rest: "});
}

TEST_CASE("Where no molecule is read, no card is for anything") {
    CHECK(layout_of(" $CONTRL COORD=FRAGONLY $END\n", "t\nC1\n") == Lines{"rest: t", "rest: C1"});
}

TEST_CASE("The groups of the two components have Cartesian atoms with a basis set") {
    CHECK(shown(Deck{with_basis +
                     " $CONTRL COORD=ZMT $END\n $DATAL\nt\nC1\nO 8.0\n S 1\n\n $END\n"}) ==
          Lines{"title: t", "point group: C1", "atom: O 8.0", "basis:  S 1", "close: "});
}

TEST_CASE("A blank card between the atoms of a component does not end them, whatever COORD says") {
    CHECK(shown(Deck{with_basis +
                     " $CONTRL COORD=ZMT $END\n $DATAL\nt\nC1\nO 8.0\n S 1\n\n\nH 1.0\n $END\n"}) ==
          Lines{"title: t", "point group: C1", "atom: O 8.0", "basis:  S 1",
                "close: ", "atom: H 1.0", "rest: "});
}

TEST_CASE("A group that stops early has what it has") {
    CHECK(layout_of("", "").empty());
    CHECK(layout_of("", "t\n") == Lines{"title: t"});
    CHECK(layout_of("", "t\nCNV 2\n") == Lines{"title: t", "point group: CNV 2"});
    CHECK(layout_of("", "t\nCNV 2\n0 0 0 0 0 1\n") ==
          Lines{"title: t", "point group: CNV 2", "axis: 0 0 0 0 0 1"});
    CHECK(shown(Deck{" $DATA\nt\n\n\n"}) == Lines{"title: t", "point group: ", "axis: "});
}

}  // namespace nurl::input::gamess::source
