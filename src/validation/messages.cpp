#include "validation/messages.hpp"

#include <cstddef>
#include <initializer_list>

#include "nurl/core/text.hpp"

namespace nurl::input::gamess::validation {

using core::text::to_upper_copy;

namespace {

/// The pieces behind one another, in a text that has no more room than they take: there can be a
/// message for each few bytes of a deck.
std::string joined(std::initializer_list<std::string_view> pieces) {
    std::size_t size = 0;
    for (const std::string_view piece : pieces) size += piece.size();
    std::string text;
    text.reserve(size);
    for (const std::string_view piece : pieces) text += piece;
    return text;
}

}  // namespace

std::string unknown_section_message(std::string_view section) {
    return joined(
        {"Section $", to_upper_copy(section), " is not currently described by the GAMESS schema"});
}

std::string unknown_keyword_message(std::string_view section, std::string_view key) {
    return joined({"Keyword '", key, "' is not currently described by the schema for section $",
                   to_upper_copy(section)});
}

std::string raw_text_message(std::string_view section) {
    return joined(
        {"Structured section $", to_upper_copy(section), " still contains non-keyword raw text"});
}

}  // namespace nurl::input::gamess::validation
