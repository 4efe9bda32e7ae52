/// @file
/// Every keyword that a structured group has a member for, with sample values: one row a value.
#pragma once

#include <array>
#include <span>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/model.hpp"

namespace nurl::test {

/// The bare names of the structured groups, in the order of writing.
inline constexpr std::array<std::string_view, 5> structured_groups{"CONTRL", "SYSTEM", "BASIS",
                                                                   "SCF", "GUESS"};

/// What a member holds.
enum class ValueKind { Text, Integer, Units, Logical };

/// A keyword with a value that converts.
struct StructuredValue {
    std::string_view group;                          ///< bare name of the group
    std::string_view keyword;                        ///< in upper case
    ValueKind kind;                                  ///< what its member holds
    std::string_view given;                          ///< one way to spell the value
    std::string_view written;                        ///< the value as decks are written
    void (*put)(nurl::input::gamess::GamessInput&);  ///< sets the member of a group that is there
};

/// The rows, the keywords of each group in the order of writing.
[[nodiscard]] std::span<const StructuredValue> structured_values();

/// Makes a structured group belong to the deck, with a default record.
void add_structured(nurl::input::gamess::GamessInput& deck, std::string_view group);

/// The further entries of a structured group that is there.
[[nodiscard]] std::vector<nurl::input::gamess::KeyValue>& extra_of(
    nurl::input::gamess::GamessInput& deck, std::string_view group);

/// A deck that holds nothing but one structured group with a default record.
[[nodiscard]] nurl::input::gamess::GamessInput deck_with(std::string_view group);

}  // namespace nurl::test
