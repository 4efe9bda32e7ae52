#include "source/check/point_group.hpp"

#include <algorithm>
#include <array>
#include <optional>

#include "nurl/core/text.hpp"

namespace nurl::input::gamess::source::checks {

namespace {

struct KnownName {
    std::string_view name;
    bool needs_order = false;
};

constexpr auto known_names = std::to_array<KnownName>({
    {"C1", false},
    {"CS", false},
    {"CI", false},
    {"CN", true},
    {"S2N", true},
    {"CNH", true},
    {"CNV", true},
    {"DN", true},
    {"DNH", true},
    {"DND", true},
    {"T", false},
    {"TH", false},
    {"TD", false},
    {"O", false},
    {"OH", false},
});

const KnownName* find_name(std::string_view name) noexcept {
    const auto* const hit = std::ranges::find(known_names, name, &KnownName::name);
    return hit == known_names.end() ? nullptr : hit;
}

/// The order that a single digit gives; nothing for other texts.
std::optional<int> order_of(char digit) noexcept {
    if (digit < '1' || digit > '0' + highest_axis_order) return std::nullopt;
    return digit - '0';
}

/// `CNV 2` for `C2V` or `CNV2`, `S2N 2` for `S4`; empty when it cannot be told.
std::string in_other_notation(std::string_view name) {
    if (name.size() < 2) return {};
    const auto last = order_of(name.back());
    if (name.front() == 'S' && name.size() == 2 && last && *last % 2 == 0)
        return "S2N " + std::to_string(*last / 2);
    const KnownName* const bare = find_name(name.substr(0, name.size() - 1));
    if (last && bare != nullptr && bare->needs_order)
        return std::string{bare->name} + ' ' + name.back();
    const auto order = order_of(name[1]);
    if (!order) return {};
    const std::string general = std::string{name.front()} + 'N' + std::string{name.substr(2)};
    if (find_name(general) == nullptr) return {};
    return general + ' ' + name[1];
}

}  // namespace

PointGroupName read_point_group(std::string_view word) {
    const std::string name = core::text::to_upper_copy(word);
    if (const KnownName* const known = find_name(name)) return {true, known->needs_order, {}};
    return {false, false, in_other_notation(name)};
}

}  // namespace nurl::input::gamess::source::checks
