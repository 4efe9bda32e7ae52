/// @file
/// Standard output, and nothing lost on the way to it.
#pragma once

#include <string_view>

#include <nlohmann/json_fwd.hpp>

namespace gms_inp {

/// Writes text to standard output.
///
/// @throws std::runtime_error when the text cannot be written
void print(std::string_view text);

/// Writes deck text to standard output: byte by byte, but on a terminal with control characters
/// other than newline and tab escaped.
///
/// @throws std::runtime_error when the text cannot be written
void print_deck_text(std::string_view text);

/// Writes JSON to standard output, indented, ASCII only; bytes that are not UTF-8 become U+FFFD.
///
/// @throws std::runtime_error when the text cannot be written
void print_json(const nlohmann::ordered_json& json);

/// Hands everything that was written over to the system.
///
/// @throws std::runtime_error when that fails, as on a full disk
void finish_output();

}  // namespace gms_inp
