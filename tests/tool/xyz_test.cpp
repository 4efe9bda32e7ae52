#include "xyz.hpp"

#include <doctest/doctest.h>

using gms_inp::read_xyz;
using gms_inp::XyzMolecule;
using nurl::input::gamess::AtomRecord;

TEST_CASE("An XYZ file gives its comment and its atoms") {
    const XyzMolecule molecule = read_xyz("2\n  hydrogen fluoride \nH 0 0 0\nF\t0.0 -1. 9.17D-1\n");
    CHECK(molecule.faulty_line == 0);
    CHECK(molecule.comment == "hydrogen fluoride");
    CHECK(molecule.atoms == std::vector<AtomRecord>{{"H", std::nullopt, 0.0, 0.0, 0.0},
                                                    {"F", std::nullopt, 0.0, -1.0, 0.917}});
}

TEST_CASE("Further columns, blank lines at the end, CR LF and a byte-order mark do not count") {
    const XyzMolecule molecule =
        read_xyz("\xEF\xBB\xBF 1 \r\n\r\n He 1 2 3 0.5 label\r\n \r\n\r\n");
    CHECK(molecule.faulty_line == 0);
    CHECK(molecule.comment.empty());
    CHECK(molecule.atoms == std::vector<AtomRecord>{{"He", std::nullopt, 1.0, 2.0, 3.0}});
}

TEST_CASE("A faulty XYZ file is told by line, what was expected and what stands there") {
    struct Row {
        std::string_view text;
        std::size_t line;
        std::string_view fault;
    };
    const std::vector<Row> rows{
        {"", 1, "expected the number of atoms, found nothing"},
        {"water\n\n", 1, "expected the number of atoms, found 'water'"},
        {"0\n\n", 1, "expected the number of atoms, found '0'"},
        {"-1\n\n", 1, "expected the number of atoms, found '-1'"},
        {"2 3\n\n", 1, "expected the number of atoms, found '2 3'"},
        {"2\n\nH 0 0 0\n", 4, "expected atom 2 of 2 as 'symbol x y z', found nothing"},
        {"1\n\nH 0 0\n", 3, "expected atom 1 of 1 as 'symbol x y z', found 'H 0 0'"},
        {"1\n\nH 0 0 x\n", 3, "expected atom 1 of 1 as 'symbol x y z', found 'H 0 0 x'"},
        {"1\n\nH 0 inf 0\n", 3, "expected atom 1 of 1 as 'symbol x y z', found 'H 0 inf 0'"},
        {"1\n\nH 0 1,2 0\n", 3, "expected atom 1 of 1 as 'symbol x y z', found 'H 0 1,2 0'"},
        {"1\n\nH 0 0 0\n\n1\n", 5, "expected the end of the file behind 1 atoms, found '1'"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.text);
        const XyzMolecule molecule = read_xyz(row.text);
        CHECK(molecule.faulty_line == row.line);
        CHECK(molecule.fault == row.fault);
        CHECK(molecule.atoms.empty());
    }
}

TEST_CASE("A symbol that would be more than a symbol in a deck is refused") {
    for (const std::string symbol : {"$END", "$CONTRL", "RUNTYP=HESSIAN", "!H", "H!"}) {
        CAPTURE(symbol);
        const XyzMolecule molecule = read_xyz("1\n\n" + symbol + " 0 0 0\n");
        CHECK(molecule.faulty_line == 3);
        CHECK(molecule.fault ==
              "expected atom 1 of 1 as 'symbol x y z', found '" + symbol + " 0 0 0'");
    }
}

TEST_CASE("A long faulty line is shown in part") {
    const XyzMolecule molecule = read_xyz(std::string(1000, 'x'));
    CHECK(molecule.fault ==
          "expected the number of atoms, found '" + std::string(59, 'x') + "...'");
}

TEST_CASE("A number of atoms that the file does not hold costs nothing") {
    const XyzMolecule molecule = read_xyz("18446744073709551615\n\nH 0 0 0\n");
    CHECK(molecule.faulty_line == 4);
}
