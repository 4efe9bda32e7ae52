/// @file
/// Finding keywords over all copies of a group.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

/// A group name as a deck is asked for it: trimmed, upper case, one leading `$` dropped.
[[nodiscard]] std::string asked_section(std::string_view name);

/// A keyword as it is written: trimmed, upper case, without blanks in its index.
[[nodiscard]] std::string written_key(std::string_view key);

/// A keyword as a deck is asked for it: as `written_key`, and without an index `(1)`.
[[nodiscard]] std::string asked_key(std::string_view key);

/// Whether the keyword of an item is the one asked for by `asked_key`.
[[nodiscard]] bool is_key(const Item& item, std::string_view asked) noexcept;

/// A keyword of a deck with the group it stands in.
struct FoundKeyword {
    Group group;  ///< a copy
    Item item;    ///< a keyword
};

/// The keyword whose value counts; nothing when there is none.
///
/// @param section  by `asked_section`
/// @param key      by `asked_key`
[[nodiscard]] std::optional<FoundKeyword> find_last(const Deck& deck, std::string_view section,
                                                    std::string_view key);

}  // namespace nurl::input::gamess::source
