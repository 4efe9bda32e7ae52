#include "group_text.hpp"

#include <algorithm>
#include <array>

#include "ascii.hpp"
#include "nurl/input/gamess/schema.hpp"

namespace gms_inp {

namespace {

constexpr auto structured_groups =
    std::to_array<std::string_view>({"CONTRL", "SYSTEM", "BASIS", "SCF", "GUESS"});

constexpr auto kind_texts =
    std::to_array<std::string_view>({"structured", "keywords", "raw", "data"});

}  // namespace

GroupKind kind_of_group(std::string_view name) {
    namespace schema = nurl::input::gamess::schema;
    if (name == "DATA") return GroupKind::Data;
    if (std::ranges::find(structured_groups, name) != structured_groups.end()) {
        return GroupKind::Structured;
    }
    const bool raw = schema::section_parse_mode(name) == schema::SectionParseMode::Raw;
    return raw ? GroupKind::Raw : GroupKind::Keywords;
}

std::string_view text_of(GroupKind kind) noexcept {
    return kind_texts[static_cast<std::size_t>(kind)];
}

GroupText split_group_text(std::string_view text) {
    GroupText split;
    split.pairs = nurl::input::gamess::detail::scan_key_values(text);
    std::string rest;
    std::size_t cursor = 0;
    for (const auto& pair : split.pairs) {
        rest += text.substr(cursor, pair.begin - cursor);
        cursor = pair.end;
    }
    split.rest_in_front = !trim(rest).empty();
    rest += text.substr(cursor);
    split.rest = trim(rest);
    return split;
}

}  // namespace gms_inp
