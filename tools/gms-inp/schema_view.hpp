/// @file
/// What the schema says, sorted and spelled as in decks.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/schema.hpp"

namespace gms_inp {

/// A keyword of a group.
struct KeywordView {
    std::string name;                              ///< upper case, without index
    nurl::input::gamess::schema::EntrySpec entry;  ///< what is known of it
};

/// A group.
struct GroupView {
    std::string name;                                         ///< upper case, without `$`
    const nurl::input::gamess::schema::SectionSpec* section;  ///< what is known of it; never null
    std::vector<std::string> same_as;   ///< other groups of the same description, sorted
    std::vector<KeywordView> keywords;  ///< its keywords, sorted
};

/// Every group of the schema, sorted by name.
[[nodiscard]] std::vector<GroupView> groups_of_schema();

/// One group, or nothing when the schema does not know it.
[[nodiscard]] std::optional<GroupView> group_of_schema(std::string_view name);

/// Says on standard error when the schema lists no keyword of any group, as without a schema file.
void warn_of_empty_schema();

/// The word for a mode, lower case.
[[nodiscard]] std::string_view text_of(nurl::input::gamess::schema::SectionParseMode mode) noexcept;

/// The word for a kind of keyword, lower case.
[[nodiscard]] std::string_view text_of(nurl::input::gamess::schema::EntryKind kind) noexcept;

}  // namespace gms_inp
