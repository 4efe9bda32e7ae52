/// @file
/// Molecular geometries as plain values.
#pragma once

#include <string>
#include <vector>

namespace nurl::core {

/// One atom of a geometry.
struct Atom {
    std::string symbol;  ///< element symbol or label, as its producer wrote it
    double x = 0.0;      ///< Cartesian coordinate in the length unit of whoever made the geometry
    double y = 0.0;      ///< as `x`
    double z = 0.0;      ///< as `x`

    bool operator==(const Atom&) const = default;
};

/// The atoms of a molecule. The length unit is not recorded: maker and user agree on it.
struct Geometry {
    std::vector<Atom> atoms;  ///< in the order given by the maker; may be empty

    bool operator==(const Geometry&) const = default;
};

}  // namespace nurl::core
