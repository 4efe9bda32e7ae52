#include "editor/editor_names.hpp"

#include "model/text_view.hpp"
#include "nurl/core/text.hpp"

namespace nurl::input::gamess::detail {

using core::text::to_upper_copy;

namespace {

/// A group name but for its letter case.
std::string_view section_view(std::string_view name) noexcept {
    return without_dollar(editor_trim(name));
}

}  // namespace

std::string_view editor_trim(std::string_view text) noexcept {
    return trim_view_if(text,
                        [](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; });
}

bool is_editor_blank(std::string_view text) noexcept { return editor_trim(text).empty(); }

std::string editor_section_name(std::string_view name) { return to_upper_copy(section_view(name)); }

bool is_editor_section(std::string_view name, std::string_view expected) noexcept {
    return equal_ignoring_case(section_view(name), expected);
}

std::string editor_dollar_name(std::string_view name) {
    const std::string bare = editor_section_name(name);
    if (bare.empty()) return "$SECTION";
    return '$' + bare;
}

std::string editor_key_name(std::string_view key) { return to_upper_copy(editor_trim(key)); }

bool same_editor_key(std::string_view a, std::string_view b) noexcept {
    return equal_ignoring_case(editor_trim(a), editor_trim(b));
}

}  // namespace nurl::input::gamess::detail
