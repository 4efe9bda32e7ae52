#include "nurl/input/gamess/source/check.hpp"

#include <algorithm>
#include <utility>

#include "model/text_view.hpp"
#include "source/check/rule_table.hpp"

namespace nurl::input::gamess::source {

namespace {

bool is_disabled(const CheckOptions& options, std::string_view rule) noexcept {
    return std::ranges::any_of(options.disabled, [rule](const std::string& name) {
        return detail::equal_ignoring_case(name, rule);
    });
}

}  // namespace

const Rule* find_rule(std::string_view name) noexcept {
    const auto all = rules();
    const auto hit = std::ranges::find_if(
        all, [name](const Rule& rule) { return detail::equal_ignoring_case(rule.name, name); });
    return hit == all.end() ? nullptr : &*hit;
}

std::vector<Finding> check(const Deck& deck, const CheckOptions& options) {
    const checks::Context context(deck);
    checks::Findings findings(deck);
    for (const checks::RuleRow& row : checks::rule_rows()) {
        if (is_disabled(options, row.rule.name)) continue;
        findings.begin(row.rule);
        row.find(context, findings);
    }
    return std::move(findings).take();
}

}  // namespace nurl::input::gamess::source
