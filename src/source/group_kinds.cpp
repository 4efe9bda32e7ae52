#include "source/group_kinds.hpp"

#include <algorithm>
#include <array>
#include <unordered_set>

#include "model/text_view.hpp"
#include "nurl/core/text.hpp"
#include "nurl/input/gamess/schema.hpp"
#include "source/keyword_items.hpp"
#include "source/line_ends.hpp"

namespace nurl::input::gamess::source {

namespace {

using core::text::to_upper_copy;

/// Groups that hold a molecule or a basis set laid out as `$DATA`.
constexpr auto data_groups = std::to_array<std::string_view>({"DATA", "DATAL", "DATAS"});

/// Groups whose lines an earlier run or another program wrote, sorted. A number behind the name
/// (`$VEC2`, `$HESS2`) makes no difference.
constexpr auto fixed_column_groups = std::to_array<std::string_view>(
    {"ALPDR",  "CCRES",  "CEDATA", "CISVEC", "DFMVEC", "DIAVEC", "DIPDR",   "DM",
     "DPSVEC", "EMORO",  "EQGEOM", "FCM",    "FFDATA", "FFDATB", "FFPDB",   "FMOEND",
     "FMOENM", "GLOWT",  "GRAD",   "HESS",   "HLOWT",  "HVDATA", "IMAGESX", "LCLDC",
     "LCLVL",  "LOCEL",  "LOCPR",  "MP2RES", "OPTRST", "PDB",    "REFCSF",  "SVPIRF",
     "TINKEY", "TINXYZ", "TWOEI",  "VB2000", "VEC",    "VECPRO", "VIB",     "VIBSCF"});
static_assert(std::ranges::is_sorted(fixed_column_groups));

constexpr std::string_view without_number(std::string_view name) noexcept {
    while (!name.empty() && name.back() >= '0' && name.back() <= '9') name.remove_suffix(1);
    return name;
}

bool has_fixed_columns(std::string_view name) noexcept {
    return std::ranges::binary_search(fixed_column_groups, name) ||
           std::ranges::binary_search(fixed_column_groups, without_number(name));
}

/// What GAMESS looks at of a name: its first six characters.
std::string searched_name(std::string_view name) {
    constexpr std::size_t length = 6;
    return to_upper_copy(name.substr(0, length));
}

/// Names by `searched_name`.
using Names = std::unordered_set<std::string>;

/// The names behind `BASNAM=`, over all elements of the array.
void collect_basis_names(std::string_view text, const Group& basis, Names& names) {
    for_each_keyword_item(text, basis, [&](const Item& item) {
        if (detail::without_index(item.key) != "BASNAM") return;
        for (const Span word : item.words)
            names.insert(searched_name(text.substr(word.begin, word.size())));
    });
}

/// The word behind each `FRAGNAME=`.
void collect_fragment_names(std::string_view text, const Group& fragments, Names& names) {
    constexpr std::string_view marker = "FRAGNAME";
    const auto ends_name = [](char c) { return detail::is_blank(c) || c == ',' || c == ';'; };
    std::string_view rest = text.substr(fragments.body.begin, fragments.body.size());
    while (!rest.empty()) {
        const auto* const equals = std::ranges::find(rest, '=');
        if (equals == rest.end()) return;
        const std::string_view before{rest.begin(), equals};
        rest = {equals + 1, rest.end()};
        const std::string_view word = detail::trim_view_if(before, is_padding);
        if (word.size() < marker.size() ||
            !detail::equal_ignoring_case(word.substr(word.size() - marker.size()), marker))
            continue;
        while (!rest.empty() && is_padding(rest.front())) rest.remove_prefix(1);
        const auto* const end = std::ranges::find_if(rest, ends_name);
        names.insert(searched_name({rest.begin(), end}));
    }
}

}  // namespace

GroupKind kind_of_group(std::string_view name) {
    if (std::ranges::find(data_groups, name) != data_groups.end()) return GroupKind::Data;
    if (has_fixed_columns(name)) return GroupKind::FixedColumns;
    return schema::section_parse_mode(name) == schema::SectionParseMode::Raw ? GroupKind::FreeFormat
                                                                             : GroupKind::Keywords;
}

bool has_inner_headers(std::string_view name) noexcept { return name == "VB2000"; }

bool is_found_in_any_column(std::string_view name) noexcept { return name == "REKS"; }

void mark_named_groups(std::string_view text, std::vector<Group>& groups) {
    Names names;
    for (const Group& group : groups) {
        if (!group.visible) continue;
        if (group.name == "BASIS") collect_basis_names(text, group, names);
        if (group.name == "EFRAG") collect_fragment_names(text, group, names);
    }
    if (names.empty()) return;
    for (Group& group : groups)
        if (group.kind == GroupKind::Keywords && names.contains(searched_name(group.name)))
            group.kind = GroupKind::FreeFormat;
}

}  // namespace nurl::input::gamess::source
