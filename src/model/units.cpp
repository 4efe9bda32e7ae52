#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess {

std::string units_keyword(Units units) { return units == Units::Bohr ? "BOHR" : "ANGS"; }

}  // namespace nurl::input::gamess
