/// @file
/// Schema tables from text that stands in the test.
#pragma once

#include <algorithm>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "schema/loader.hpp"
#include "schema/show.hpp"

namespace nurl::test {

/// The names of the built-in groups, sorted.
inline const std::vector<std::string> built_in_names{
    "alpdr",  "basis", "cisvec", "contrl", "data",  "datal", "datas", "dftbao",
    "dftbsk", "dipdr", "dm",     "eqgeom", "glowt", "grad",  "guess", "hess",
    "hlowt",  "scf",   "system", "vec",    "vib",   "vib2",  "vibscf"};

/// The table that a schema text gives.
inline input::gamess::schema::Table read_text(std::string_view text) {
    std::istringstream stream{std::string{text}};
    return input::gamess::schema::read_schema(stream);
}

/// The keys of a map by name, sorted.
template <class Map>
std::vector<std::string> names_of(const Map& map) {
    std::vector<std::string> names;
    for (const auto& [name, value] : map) names.push_back(name);
    std::ranges::sort(names);
    return names;
}

/// The names of the groups that the text adds to the built-in ones, sorted.
inline std::vector<std::string> added_names(std::string_view text) {
    std::vector<std::string> added;
    std::ranges::set_difference(names_of(read_text(text)), built_in_names,
                                std::back_inserter(added));
    return added;
}

}  // namespace nurl::test
