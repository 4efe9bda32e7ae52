#include "source/check/rule_table.hpp"

#include <algorithm>
#include <array>
#include <cstddef>

#include "nurl/input/gamess/source/check.hpp"
#include "source/check/atoms.hpp"
#include "source/check/groups.hpp"
#include "source/check/job.hpp"
#include "source/check/keywords.hpp"
#include "source/check/layout.hpp"
#include "source/check/molecule.hpp"
#include "source/check/values.hpp"
#include "source/check/width.hpp"

namespace nurl::input::gamess::source {

namespace checks {

namespace {

constexpr std::string_view name_of(const RuleRow& row) noexcept { return row.rule.name; }

/// The tables of the rooms in one, by name.
template <std::size_t... Sizes>
consteval auto merged(const std::array<RuleRow, Sizes>&... rooms) {
    std::array<RuleRow, (Sizes + ...)> rows{};
    auto* place = rows.data();
    ((place = std::ranges::copy(rooms, place).out), ...);
    std::ranges::sort(rows, {}, name_of);
    return rows;
}

constexpr auto rows = merged(atom_rules, group_rules, job_rules, keyword_rules, layout_rules,
                             molecule_rules, value_rules, width_rules);
static_assert(std::ranges::adjacent_find(rows, {}, name_of) == rows.end(), "names are unique");

/// What is told about the rules, without what looks for their cases.
constexpr auto told = [] {
    std::array<Rule, rows.size()> all{};
    std::ranges::transform(rows, all.begin(), &RuleRow::rule);
    return all;
}();

}  // namespace

std::span<const RuleRow> rule_rows() noexcept { return rows; }

}  // namespace checks

std::span<const Rule> rules() noexcept { return checks::told; }

}  // namespace nurl::input::gamess::source
