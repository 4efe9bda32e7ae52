#include "reader/structured_values.hpp"

#include "model/text_view.hpp"
#include "nurl/core/text.hpp"

namespace nurl::input::gamess::detail {

template <>
std::optional<std::string> convert(std::string_view text, ZeroText /*zero*/) {
    return core::text::to_upper_copy(text);
}

template <>
std::optional<std::int32_t> convert(std::string_view text, ZeroText /*zero*/) {
    std::int32_t value = 0;
    if (!core::text::try_parse_int(text, value)) return std::nullopt;
    return value;
}

template <>
std::optional<Units> convert(std::string_view text, ZeroText /*zero*/) {
    return equal_ignoring_case(text, "BOHR") ? Units::Bohr : Units::Angstrom;
}

template <>
std::optional<bool> convert(std::string_view text, ZeroText zero) {
    return parse_logical(text, zero);
}

}  // namespace nurl::input::gamess::detail
