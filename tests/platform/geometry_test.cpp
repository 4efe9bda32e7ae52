#include "nurl/core/geometry.hpp"

#include <doctest/doctest.h>

using nurl::core::Atom;
using nurl::core::Geometry;

TEST_CASE("A geometry starts without atoms and an atom at the origin") {
    CHECK(Geometry{}.atoms.empty());
    CHECK(Atom{} == Atom{"", 0.0, 0.0, 0.0});
}

TEST_CASE("Geometries are equal when all their atoms are in the same order") {
    const Atom oxygen{"O", 0.0, 0.0, 0.1};
    const Atom hydrogen{"H", 0.0, 0.7, -0.5};
    CHECK(Geometry{{oxygen, hydrogen}} == Geometry{{oxygen, hydrogen}});
    CHECK(Geometry{{oxygen, hydrogen}} != Geometry{{hydrogen, oxygen}});
    CHECK(Geometry{{oxygen}} != Geometry{{oxygen, hydrogen}});
}

TEST_CASE("Atoms differ by symbol and by each coordinate") {
    const Atom atom{"O", 1.0, 2.0, 3.0};
    CHECK(atom != Atom{"o", 1.0, 2.0, 3.0});
    CHECK(atom != Atom{"O", 1.5, 2.0, 3.0});
    CHECK(atom != Atom{"O", 1.0, 2.5, 3.0});
    CHECK(atom != Atom{"O", 1.0, 2.0, 3.5});
}
