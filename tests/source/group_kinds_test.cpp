#include <array>
#include <string>
#include <string_view>

#include <doctest/doctest.h>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

namespace {

GroupKind kind_in(const std::string& text, std::string_view name) {
    return Deck{text}.find_all(name).at(0).kind;
}

struct KindCase {
    std::string_view name;
    GroupKind kind;
};

}  // namespace

TEST_CASE("The name of a group tells how its body is read") {
    constexpr auto cases = std::to_array<KindCase>({
        {"CONTRL", GroupKind::Keywords},     {"STATPT", GroupKind::Keywords},
        {"QUANPO", GroupKind::Keywords},     {"NOBODYS", GroupKind::Keywords},
        {"DATA", GroupKind::Data},           {"DATAL", GroupKind::Data},
        {"DATAS", GroupKind::Data},          {"ECP", GroupKind::FreeFormat},
        {"EFRAG", GroupKind::FreeFormat},    {"FMOXYZ", GroupKind::FreeFormat},
        {"POINTS", GroupKind::FreeFormat},   {"VEC", GroupKind::FixedColumns},
        {"VEC2", GroupKind::FixedColumns},   {"VEC10", GroupKind::FixedColumns},
        {"VEC11", GroupKind::FixedColumns},  {"HESS", GroupKind::FixedColumns},
        {"HESS2", GroupKind::FixedColumns},  {"GRAD", GroupKind::FixedColumns},
        {"DIPDR", GroupKind::FixedColumns},  {"VIB", GroupKind::FixedColumns},
        {"VIB2", GroupKind::FixedColumns},   {"MP2RES", GroupKind::FixedColumns},
        {"VB2000", GroupKind::FixedColumns}, {"MP2", GroupKind::Keywords},
        {"VEC9", GroupKind::FixedColumns},   {"VEC-", GroupKind::Keywords},
        {"DRT2", GroupKind::Keywords},
    });
    for (const KindCase& row : cases) {
        CAPTURE(row.name);
        CHECK(kind_in(" $" + std::string{row.name} + "\n $END\n", row.name) == row.kind);
    }
}

TEST_CASE("Only BASNAM in $BASIS and FRAGNAME in $EFRAG name groups of cards") {
    const std::string text =
        " $BASIS GBASIS=ABC BASNAM=VEC,DATA $END\n $SCF BASNAM=DEF FRAGNAME=GHI $END\n"
        " $EFRAG FRAGNAME=JKL $END\n $ABC A=1 $END\n $DEF A=1 $END\n $GHI A=1 $END\n"
        " $JKL\nA\n $END\n $VEC\n $END\n $DATA\n $END\n";
    CHECK(kind_in(text, "ABC") == GroupKind::Keywords);
    CHECK(kind_in(text, "DEF") == GroupKind::Keywords);
    CHECK(kind_in(text, "GHI") == GroupKind::Keywords);
    CHECK(kind_in(text, "JKL") == GroupKind::FreeFormat);
    CHECK(kind_in(text, "VEC") == GroupKind::FixedColumns);
    CHECK(kind_in(text, "DATA") == GroupKind::Data);
}

TEST_CASE("Groups that BASNAM names hold cards") {
    const std::string text =
        " $H\nN31 6\n\n $END\n $basis basnam(1)=h,\n  carbon $end\n $CARBON\nN31 6\n\n $END\n"
        " $OTHER A=1 $END\n";
    CHECK(kind_in(text, "H") == GroupKind::FreeFormat);
    CHECK(kind_in(text, "CARBON") == GroupKind::FreeFormat);
    CHECK(kind_in(text, "OTHER") == GroupKind::Keywords);
}

TEST_CASE("A BASNAM that GAMESS does not see names nothing") {
    CHECK(kind_in("$BASIS BASNAM(1)=H $END\n $H\nN31 6\n $END\n", "H") == GroupKind::Keywords);
    CHECK(kind_in(" $BASIS ! BASNAM(1)=H\n $END\n $H\nN31 6\n $END\n", "H") == GroupKind::Keywords);
}

TEST_CASE("Groups that FRAGNAME names hold cards") {
    const std::string text =
        " $EFRAG\nCOORD=CART\nfragname = water\nO1 0 0 0\nFRAGNAME=NH3 ! ammonia\n $END\n"
        " $WATER\nscftyp=rhf\n $END\n $NH3\n $END\n";
    CHECK(kind_in(text, "WATER") == GroupKind::FreeFormat);
    CHECK(kind_in(text, "NH3") == GroupKind::FreeFormat);
}

TEST_CASE("The name behind FRAGNAME ends at a blank, a comma or a semicolon") {
    const std::string text =
        " $EFRAG\nFRAGNAME=WATER,COORD=CART\nFRAGNAME=NH3;FRAGNAME= \tCH4\tX\nNAME=N2 $END\n"
        " $WATER\n $END\n $NH3\n $END\n $CH4\n $END\n $N2\n $END\n $CART\n $END\n";
    CHECK(kind_in(text, "WATER") == GroupKind::FreeFormat);
    CHECK(kind_in(text, "NH3") == GroupKind::FreeFormat);
    CHECK(kind_in(text, "CH4") == GroupKind::FreeFormat);
    CHECK(kind_in(text, "N2") == GroupKind::Keywords);
    CHECK(kind_in(text, "CART") == GroupKind::Keywords);
}

TEST_CASE("A FRAGNAME without a name names nothing") {
    CHECK(kind_in(" $EFRAG\nFRAGNAME=$END\n $NH3\n $END\n", "NH3") == GroupKind::Keywords);
    CHECK(kind_in(" $EFRAG\nFRAGNAME\n $END\n $NH3\n $END\n", "NH3") == GroupKind::Keywords);
}

TEST_CASE("Six characters of a name are enough to find its group") {
    const std::string text = " $EFRAG\nFRAGNAME=BENZEN\n $END\n $BENZENE\nSTOP\n $END\n";
    CHECK(kind_in(text, "BENZENE") == GroupKind::FreeFormat);
    CHECK(kind_in(" $EFRAG\nFRAGNAME=BENZ\n $END\n $BENZENE\nSTOP\n $END\n", "BENZENE") ==
          GroupKind::Keywords);
}

}  // namespace nurl::input::gamess::source
