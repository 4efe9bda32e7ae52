#include <array>

#include "growth/family.hpp"

namespace nurl::bench::growth {

namespace {

constexpr auto all = std::to_array<Table>({
    reader_families,
    reader_data_families,
    scanner_families,
    schema_families,
    editor_families,
    group_families,
    file_families,
    validation_families,
    typed_families,
    builder_families,
    source_index_families,
    source_item_families,
    source_edit_families,
    check_families,
    check_molecule_families,
    compare_families,
    wrap_families,
});

}  // namespace

std::span<const Table> tables() noexcept { return all; }

}  // namespace nurl::bench::growth
