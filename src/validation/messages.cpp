#include "validation/messages.hpp"

#include "nurl/core/text.hpp"

namespace nurl::input::gamess::validation {

using core::text::to_upper_copy;

std::string unknown_section_message(std::string_view section) {
    return "Section $" + to_upper_copy(section) +
           " is not currently described by the GAMESS schema";
}

std::string unknown_keyword_message(std::string_view section, std::string_view key) {
    return "Keyword '" + std::string{key} +
           "' is not currently described by the schema for section $" + to_upper_copy(section);
}

std::string raw_text_message(std::string_view section) {
    return "Structured section $" + to_upper_copy(section) + " still contains non-keyword raw text";
}

}  // namespace nurl::input::gamess::validation
