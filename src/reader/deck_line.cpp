#include "reader/deck_line.hpp"

#include <algorithm>

#include "model/text_view.hpp"

namespace nurl::input::gamess::detail {

namespace {

constexpr std::string_view end_marker = "$END";

}  // namespace

std::optional<HeaderLine> read_header(std::string_view line) noexcept {
    const std::string_view text = trim_view(line);
    if (!text.starts_with('$') || starts_with_ignoring_case(text, end_marker)) return std::nullopt;
    const auto* const name_begin = text.begin() + 1;
    const auto* const name_end =
        std::find_if(name_begin, text.end(), [](char c) { return is_blank(c) || c == '$'; });
    if (name_begin == name_end) return std::nullopt;
    return HeaderLine{{name_begin, name_end}, {name_end, text.end()}};
}

CutText cut_at_end(std::string_view line) noexcept {
    for (std::size_t at = line.find('$'); at != std::string_view::npos; at = line.find('$', at + 1))
        if (starts_with_ignoring_case(line.substr(at), end_marker))
            return {line.substr(0, at), true};
    return {line, false};
}

}  // namespace nurl::input::gamess::detail
