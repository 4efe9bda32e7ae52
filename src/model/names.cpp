#include "model/names.hpp"

#include "model/text_view.hpp"
#include "nurl/core/text.hpp"

namespace nurl::input::gamess::detail {

namespace {

/// The canonical name but for its letter case.
std::string_view name_view(std::string_view name) noexcept {
    const std::string_view bare = without_dollar(trim_view(name));
    return bare.empty() ? std::string_view{"SECTION"} : bare;
}

}  // namespace

bool same_section_name(std::string_view a, std::string_view b) noexcept {
    return equal_ignoring_case(name_view(a), name_view(b));
}

std::string bare_section_name(std::string_view name) {
    return core::text::to_upper_copy(name_view(name));
}

std::string dollar_section_name(std::string_view name) { return '$' + bare_section_name(name); }

}  // namespace nurl::input::gamess::detail
