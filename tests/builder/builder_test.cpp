#include "nurl/input/gamess/builder.hpp"

#include <utility>

#include <doctest/doctest.h>

using namespace nurl::input::gamess;
namespace core = nurl::core;

namespace {

using Entries = std::vector<KeyValue>;

/// The document of a fresh builder, written out.
GamessInput fresh() {
    GamessInput input;
    input.has_control = true;
    input.has_data = true;
    input.control.has_scftyp = true;
    input.control.has_runtyp = true;
    input.control.has_icharg = true;
    input.control.has_mult = true;
    input.point_group = "C1";
    return input;
}

}  // namespace

TEST_CASE("A fresh builder holds the energy of a neutral singlet without atoms") {
    const GamessInput& input = InputBuilder{}.input();
    CHECK(InputBuilder{}.input() == fresh());
    static_cast<void>(input);
    CHECK(fresh().control.scftyp == "RHF");
    CHECK(fresh().control.runtyp == "ENERGY");
    CHECK(fresh().control.icharg == 0);
    CHECK(fresh().control.mult == 1);
}

TEST_CASE("Setters of $CONTRL store the value and note that it is given") {
    GamessInput expected = fresh();
    expected.control.icharg = -1;
    expected.control.mult = 2;
    CHECK(InputBuilder{}.set_charge_and_multiplicity(-1, 2).input() == expected);

    expected = fresh();
    expected.control.scftyp = "ROHF";
    CHECK(InputBuilder{}.set_scftyp("rohf").input() == expected);

    expected = fresh();
    expected.control.runtyp = "OPTIMIZE";
    CHECK(InputBuilder{}.set_runtyp("Optimize").input() == expected);

    expected = fresh();
    expected.control.coord = "CART";
    expected.control.has_coord = true;
    CHECK(InputBuilder{}.set_coord("cart").input() == expected);

    expected = fresh();
    expected.control.units = Units::Bohr;
    expected.control.has_units = true;
    CHECK(InputBuilder{}.set_units(Units::Bohr).input() == expected);

    expected = fresh();
    expected.control.nosym = true;
    expected.control.has_nosym = true;
    CHECK(InputBuilder{}.set_nosym(true).input() == expected);

    expected = fresh();
    expected.control.maxit = 100;
    CHECK(InputBuilder{}.set_maxit(100).input() == expected);
}

TEST_CASE("Text setters change the case and do not trim") {
    InputBuilder builder;
    builder.set_scftyp(" uhf").set_runtyp("energy ").set_coord(" zmt ").set_guess(" huckel");
    CHECK(builder.input().control.scftyp == " UHF");
    CHECK(builder.input().control.runtyp == "ENERGY ");
    CHECK(builder.input().control.coord == " ZMT ");
    CHECK(builder.input().guess->guess == " HUCKEL");
}

TEST_CASE("Setters of other groups engage them and touch nothing else") {
    GamessInput expected = fresh();
    expected.basis = BasisSection{};
    expected.basis->gbasis = "N31";
    CHECK(InputBuilder{}.set_basis_keyword("n31").input() == expected);
    expected.basis->ngauss = 6;
    CHECK(InputBuilder{}.set_ngauss(6).set_basis_keyword("n31").input() == expected);

    expected = fresh();
    expected.system = SystemSection{};
    expected.system->mwords = 200;
    CHECK(InputBuilder{}.set_system_mwords(200).input() == expected);

    expected = fresh();
    expected.guess = GuessSection{};
    expected.guess->guess = "HCORE";
    CHECK(InputBuilder{}.set_guess("hcore").input() == expected);
}

TEST_CASE("The title is stored as given, a blank point group is C1") {
    InputBuilder builder;
    CHECK(builder.set_title("  My Title ").input().title == "  My Title ");
    CHECK(builder.set_point_group(" Cnv 2 ").input().point_group == " Cnv 2 ");
    CHECK(builder.set_point_group("  ").input().point_group == "C1");
    CHECK(builder.set_point_group("").input().point_group == "C1");
}

TEST_CASE("Keyword adders append trimmed entries and engage their group") {
    InputBuilder builder;
    builder.add_control_keyword(" qmttol ", " 1e-5 ").add_control_keyword("qmttol", "1e-6");
    builder.add_system_keyword("timlim", "10").add_basis_keyword(" ndfunc ", " 1 ");
    builder.add_scf_keyword("conv", "1d-6").add_guess_keyword("", "kept");
    const GamessInput& input = builder.input();
    CHECK(input.control.extra == Entries{{"QMTTOL", "1e-5"}, {"QMTTOL", "1e-6"}});
    CHECK(input.system == SystemSection{{}, {}, {{"TIMLIM", "10"}}});
    REQUIRE(input.basis);
    CHECK(input.basis->gbasis == std::nullopt);
    CHECK(input.basis->ndfunc == std::nullopt);
    CHECK(input.basis->extra == Entries{{"NDFUNC", "1"}});
    REQUIRE(input.scf);
    CHECK(input.scf->extra == Entries{{"CONV", "1d-6"}});
    REQUIRE(input.guess);
    CHECK(input.guess->extra == Entries{{"", "kept"}});
}

TEST_CASE("Flag adders add logical texts, not typed values") {
    InputBuilder builder;
    builder.add_scf_flag("dirscf", true).add_basis_flag("diffsp", false);
    builder.add_control_flag(" cityp ", true);
    CHECK(builder.input().scf->extra == Entries{{"DIRSCF", ".T."}});
    CHECK(builder.input().scf->dirscf == std::nullopt);
    CHECK(builder.input().basis->extra == Entries{{"DIFFSP", ".F."}});
    CHECK(builder.input().control.extra == Entries{{"CITYP", ".T."}});
}

TEST_CASE("An atom gets its canonical symbol and, when it has none, its charge") {
    InputBuilder builder;
    builder.add_atom(AtomRecord{"cl", std::nullopt, 1.0, 2.0, 3.0});
    builder.add_atom(AtomRecord{" Xx ", std::nullopt, 0.0, 0.0, 0.0});
    builder.add_atom(AtomRecord{"h", 0.5, 0.0, 0.0, 0.0});
    CHECK(builder.input().atoms == std::vector<AtomRecord>{{"Cl", 17.0, 1.0, 2.0, 3.0},
                                                           {"Xx", std::nullopt, 0.0, 0.0, 0.0},
                                                           {"H", 0.5, 0.0, 0.0, 0.0}});
}

TEST_CASE("Atoms and geometries of the family are converted") {
    InputBuilder builder;
    builder.add_atom(core::Atom{"he", 1.0, 2.0, 3.0});
    CHECK(builder.input().atoms == std::vector<AtomRecord>{{"He", 2.0, 1.0, 2.0, 3.0}});
    builder.set_geometry(core::Geometry{{{"o", 0.0, 0.0, 0.1}, {"Q1", 4.0, 5.0, 6.0}}});
    CHECK(builder.input().atoms ==
          std::vector<AtomRecord>{{"O", 8.0, 0.0, 0.0, 0.1}, {"Q1", std::nullopt, 4.0, 5.0, 6.0}});
    CHECK(builder.input().control.units == Units::Angstrom);
}

TEST_CASE("A geometry replaces the atoms that were there") {
    InputBuilder builder;
    builder.add_atom(AtomRecord{"H", std::nullopt, 0.0, 0.0, 0.0});
    builder.set_geometry(std::vector<AtomRecord>{{"li", std::nullopt, 1.0, 0.0, 0.0}});
    CHECK(builder.input().atoms == std::vector<AtomRecord>{{"Li", 3.0, 1.0, 0.0, 0.0}});
    builder.set_geometry(std::vector<AtomRecord>{});
    CHECK(builder.input().atoms.empty());
    CHECK(builder.input().has_data);
}

TEST_CASE("Whole groups are stored as given, those of the same name beside each other") {
    const NamedSection group{" md ", {{"dt", ""}}, {"raw"}};
    NamedSection moved = group;
    InputBuilder builder;
    builder.add_section(group).add_section(std::move(moved));
    CHECK(builder.input().extra_sections == std::vector<NamedSection>{group, group});
    CHECK(builder.input().sections.empty());
}

TEST_CASE("The last call of a setter wins and copies go their own way") {
    InputBuilder builder;
    builder.set_runtyp("energy").set_runtyp("hessian");
    InputBuilder copy = builder;
    copy.set_title("copy");
    CHECK(builder.input().control.runtyp == "HESSIAN");
    CHECK(builder.input().title.empty());
    CHECK(copy.input().title == "copy");
}
