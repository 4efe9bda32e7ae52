/// @file
/// Taking the text of a group apart.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/reader.hpp"

namespace gms_inp {

/// How a group is held by the document and written from it.
enum class GroupKind {
    Structured,  ///< has a record of its own: `$CONTRL`, `$SYSTEM`, `$BASIS`, `$SCF`, `$GUESS`
    Keywords,    ///< entries and free text
    Raw,         ///< lines of text
    Data,        ///< the molecule
};

/// The kind of a group. Groups without a record are told apart by the schema.
///
/// @param name  upper case, without `$`
[[nodiscard]] GroupKind kind_of_group(std::string_view name);

/// The word for a kind, lower case.
[[nodiscard]] std::string_view text_of(GroupKind kind) noexcept;

/// A stretch of keyword text, taken apart.
struct GroupText {
    std::vector<nurl::input::gamess::detail::ScannedKeyValue> pairs;  ///< its `KEY=VALUE` pairs
    std::string rest;            ///< the text outside the pairs, trimmed
    bool rest_in_front = false;  ///< part of `rest` stands in front of the last pair
};

/// Takes keyword text apart as the reader does.
[[nodiscard]] GroupText split_group_text(std::string_view text);

}  // namespace gms_inp
