/// @file
/// What is said about text that the schema does not describe.
#pragma once

#include <string>
#include <string_view>

namespace nurl::input::gamess::validation {

/// About a group that the schema does not know. The name is shown in upper case.
[[nodiscard]] std::string unknown_section_message(std::string_view section);

/// About a keyword that the schema does not list. The group is shown in upper case, the keyword as
/// it is.
[[nodiscard]] std::string unknown_keyword_message(std::string_view section, std::string_view key);

/// About text of a structured group that belongs to no keyword. The group is shown in upper case.
[[nodiscard]] std::string raw_text_message(std::string_view section);

}  // namespace nurl::input::gamess::validation
