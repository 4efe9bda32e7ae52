/// @file
/// Turning keyword text into members of a structured record.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include "model/logical.hpp"
#include "model/structured_fields.hpp"
#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::detail {

/// Converts trimmed keyword text to the type of a member; nothing when it does not convert.
///
/// Texts always convert, to upper case. Integers are decimal and fit in 32 bits. Units always
/// convert: BOHR in any case is bohr, every other text is angstrom. Logical values are spelled as
/// `parse_logical` says.
template <class Value>
std::optional<Value> convert(std::string_view text, ZeroText zero);

template <>
std::optional<std::string> convert(std::string_view text, ZeroText zero);
template <>
std::optional<std::int32_t> convert(std::string_view text, ZeroText zero);
template <>
std::optional<Units> convert(std::string_view text, ZeroText zero);
template <>
std::optional<bool> convert(std::string_view text, ZeroText zero);

/// Stores a value in a flagged member and raises its flag.
template <class Record, class Value>
bool store_in(const Flagged<Record, Value>& member, std::string_view text, ZeroText zero,
              Record& into) {
    auto value = convert<Value>(text, zero);
    if (!value) return false;
    into.*member.value = std::move(*value);
    into.*member.given = true;
    return true;
}

/// Stores a value in an optional member.
template <class Record, class Value>
bool store_in(Optional<Record, Value> member, std::string_view text, ZeroText zero, Record& into) {
    auto value = convert<Value>(text, zero);
    if (!value) return false;
    into.*member = std::move(value);
    return true;
}

/// Stores `text` in the member that `field` names.
///
/// @param text  trimmed
/// @return false, with `into` untouched, when the text does not convert
template <class Record>
bool store_value(const StructuredField<Record>& field, std::string_view text, ZeroText zero,
                 Record& into) {
    return std::visit([&](const auto& member) { return store_in(member, text, zero, into); },
                      field.member);
}

}  // namespace nurl::input::gamess::detail
