#include <doctest/doctest.h>

#include "nurl/input/gamess/reader.hpp"
#include "nurl/input/gamess/typed.hpp"

using namespace nurl::input::gamess;

namespace {

using Entries = std::vector<KeyValue>;

NamedSection group(std::string name, Entries entries) {
    return {std::move(name), std::move(entries), {}};
}

}  // namespace

TEST_CASE("A logical spelling that is not accepted is kept and written behind the typed keywords") {
    const ParseResult deck = parse_string(" $TDDFT NSTATE=3 IROOT=1 TDPRP=.TRUE. $END\n");
    const auto tddft = typed::get_tddft_section(deck.input);
    REQUIRE(tddft);
    CHECK(tddft->nstate == std::vector<std::int32_t>{3});
    CHECK(tddft->iroot == std::vector<std::int32_t>{1});
    CHECK(tddft->tdprp == std::nullopt);
    CHECK(tddft->extra_entries == Entries{{"TDPRP", ".TRUE."}});
    CHECK(typed::to_named_section(*tddft).entries ==
          Entries{{"NSTATE", "3"}, {"IROOT", "1"}, {"TDPRP", ".TRUE."}});
}

TEST_CASE("The last NSTATE of $TDDFT counts, those of $EOMINP add up") {
    const Entries entries{{"NSTATE(1)", "1,2"}, {"NSTATE", "5"}};
    CHECK(typed::as_tddft_section(group("TDDFT", entries)).nstate == std::vector<std::int32_t>{5});
    const auto eom = typed::as_eominp_section(group("EOMINP", entries));
    CHECK(eom.nstate == std::vector<std::int32_t>{1, 2, 5});
    CHECK(typed::to_named_section(eom).entries == Entries{{"NSTATE(1)", "1,2,5"}});
}

TEST_CASE("A broken NSTATE of $TDDFT leaves the list before it, an empty one empties it") {
    auto tddft = typed::as_tddft_section(group("TDDFT", {{"NSTATE", "4"}, {"NSTATE", "x"}}));
    CHECK(tddft.nstate == std::vector<std::int32_t>{4});
    CHECK(tddft.extra_entries == Entries{{"NSTATE", "x"}});
    tddft = typed::as_tddft_section(group("TDDFT", {{"NSTATE", "4"}, {"NSTATE", ","}}));
    CHECK(tddft.nstate.empty());
    CHECK(tddft.extra_entries.empty());
}

TEST_CASE("A single state of $TDDFT is written without an index, several with one") {
    typed::TddftSection tddft;
    tddft.nstate = {1, 2};
    tddft.iroot = {3};
    CHECK(typed::to_named_section(tddft).entries == Entries{{"NSTATE(1)", "1,2"}, {"IROOT", "3"}});
    typed::EominpSection eom;
    eom.iroot = {3};
    CHECK(typed::to_named_section(eom).entries == Entries{{"IROOT(1)", "3"}});
}

TEST_CASE("Entries of a list are joined in the order met, whatever their index") {
    const auto search = typed::as_statpt_section(
        group("STATPT", {{"IFREEZ(4)", "7"}, {"IFREEZ(1)", "1,2"}, {"IFREEZ", ","}}));
    CHECK(search.ifreez == std::vector<std::int32_t>{7, 1, 2});
    CHECK(typed::to_named_section(search).entries == Entries{{"IFREEZ(1)", "7,1,2"}});
}

TEST_CASE("The last value of a single keyword counts") {
    const auto search = typed::as_statpt_section(
        group("STATPT", {{"NSTEP", "5"}, {"NSTEP", "50"}, {"METHOD", "nr"}, {"METHOD", "rfo"}}));
    CHECK(search.nstep == 50);
    CHECK(search.method == "RFO");
}

TEST_CASE("VIBSIZ is a list whose keyword has no index") {
    const auto force = typed::as_force_section(group("FORCE", {{"VIBSIZ", "0.01"}}));
    CHECK(force.vibsiz == std::vector<double>{0.01});
    CHECK(typed::to_named_section(force).entries == Entries{{"VIBSIZ", "0.01"}});
    typed::ForceSection two;
    two.vibsiz = {0.01, 0.02};
    CHECK(typed::to_named_section(two).entries == Entries{{"VIBSIZ", "0.01,0.02"}});
}

TEST_CASE("TRJFMT keeps its letter case and is written trimmed") {
    auto md = typed::as_md_section(group("MD", {{"TRJFMT", " Xyz "}, {"MDINT", "frog"}}));
    CHECK(md.trjfmt == "Xyz");
    CHECK(md.mdint == "FROG");
    md.trjfmt = "  a B ";
    md.mdint.reset();
    CHECK(typed::to_named_section(md).entries == Entries{{"TRJFMT", "a B"}});
    md.trjfmt = "  ";
    CHECK(typed::to_named_section(md).entries.empty());
}

TEST_CASE("MAXANG is a list of upper-case words") {
    auto dftb =
        typed::as_dftb_section(group("DFTB", {{"MAXANG(1)", "s, p ,,"}, {"MAXANG(3)", "d"}}));
    CHECK(dftb.maxang == std::vector<std::string>{"S", "P", "D"});
    dftb.maxang = {" s ", "p"};
    CHECK(typed::to_named_section(dftb).entries == Entries{{"MAXANG(1)", "S,P"}});
}

TEST_CASE("ICHARG and MULT of $FMO are lists, MULT of the others is one integer") {
    const Entries entries{{"MULT", "1,3"}};
    CHECK(typed::as_fmo_section(group("FMO", entries)).mult == std::vector<std::int32_t>{1, 3});
    CHECK(typed::as_tddft_section(group("TDDFT", entries)).mult == std::nullopt);
    CHECK(typed::as_ccinp_section(group("CCINP", entries)).extra_entries == entries);
    CHECK(typed::as_eominp_section(group("EOMINP", {{"MULT", "3"}})).mult == 3);
}

TEST_CASE("A group keeps free text and takes keywords out of it") {
    const ParseResult deck = parse_string(
        " $STATPT\n ! tight search\n OPTTOL=1D-5 ! default is 1d-4\n some text\n $END\n");
    const auto search = typed::get_statpt_section(deck.input);
    REQUIRE(search);
    CHECK(search->opttol == std::nullopt);
    CHECK(search->extra_entries == Entries{{"OPTTOL", "1D-5 ! default is 1d-4"}});
    CHECK(search->raw_lines == std::vector<std::string>{"! tight search", "some text"});
    CHECK(typed::to_named_section(*search).raw_lines == search->raw_lines);
}

TEST_CASE("A record written into a deck is what the deck is read back as") {
    GamessInput input = parse_string(" $CONTRL SCFTYP=RHF $END\n $STATPT NSTEP=20 $END\n").input;
    auto search = typed::get_statpt_section(input);
    REQUIRE(search);
    search->opttol = 1e-5;
    search->ifreez = {1, 4};
    typed::set_statpt_section(input, *search);
    CHECK(input.to_string() ==
          " $CONTRL SCFTYP=RHF $END\n"
          " $STATPT OPTTOL=1E-05 NSTEP=20 IFREEZ(1)=1,4 $END\n");
    CHECK(typed::get_statpt_section(parse_string(input.to_string()).input) == search);
}
