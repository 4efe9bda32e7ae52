#include "second_reading/plain_schema.hpp"

#include "schema/plain_loader.hpp"

namespace nurl::test {

using input::gamess::schema::SectionParseMode;
using input::gamess::schema::Table;

Table read_schema_plainly(const std::string& text) {
    Table table;
    for (const char* const name : {"contrl", "system", "basis", "scf", "guess"})
        table[name].parse_mode = SectionParseMode::Structured;
    for (const char* const name :
         {"data", "datas", "datal", "vec", "cisvec", "hess", "grad", "dipdr", "alpdr", "vib",
          "vib2", "vibscf", "eqgeom", "hlowt", "glowt", "dftbsk", "dftbao", "dm"})
        table[name].parse_mode = SectionParseMode::Raw;
    for (auto& [name, spec] : table) spec.known = true;
    return load_plainly(text, std::move(table));
}

}  // namespace nurl::test
