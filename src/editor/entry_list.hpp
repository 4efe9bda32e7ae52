/// @file
/// Lists of entries in which a keyword counts once.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::detail {

/// Replaces the value of the first entry of a keyword, or appends an entry. Linear in the list; the
/// list is as it was when memory runs out.
void upsert_entry(std::vector<KeyValue>& entries, std::string_view key, std::string_view value);

/// Removes every entry of a keyword. @return whether there was one
bool erase_entries(std::vector<KeyValue>& entries, std::string_view key) noexcept;

/// Collects entries as repeated `upsert_entry` does, in constant time each.
class KeywordList {
public:
    /// Adds an entry, or gives its value to the entry of that keyword.
    void upsert(std::string_view key, std::string_view value);

    /// The entries, each keyword at its first place with its last value and first spelling.
    [[nodiscard]] std::vector<KeyValue> take() && noexcept;

private:
    std::vector<KeyValue> entries_;
    std::unordered_map<std::string, std::size_t> place_of_;
};

}  // namespace nurl::input::gamess::detail
