// The rules are those of `parse_string`: a line whose first non-blank character is `$` opens a
// group, unless it starts with `$END` or has no name; the first `$END` on a line closes it.
#include "deck_walk.hpp"

#include <algorithm>

#include "ascii.hpp"

namespace gms_inp {

namespace {

constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
constexpr std::string_view end_marker = "$END";

/// The group name of a header line; empty when `trimmed` is no header line.
std::string_view header_name(std::string_view trimmed) noexcept {
    if (!trimmed.starts_with('$')) return {};
    if (starts_with_ignoring_case(trimmed, end_marker)) return {};
    const std::string_view behind = trimmed.substr(1);
    const auto* const end =
        std::ranges::find_if(behind, [](char c) { return is_blank(c) || c == '$'; });
    return behind.substr(0, static_cast<std::size_t>(end - behind.begin()));
}

/// Cuts `line.text` at its end marker.
void cut_at_end_marker(DeckLine& line) noexcept {
    std::size_t marker = line.text.find('$');
    while (marker != std::string_view::npos &&
           !starts_with_ignoring_case(line.text.substr(marker), end_marker)) {
        marker = line.text.find('$', marker + 1);
    }
    if (marker == std::string_view::npos) return;
    line.closes = true;
    line.behind_end = line.text.substr(marker + end_marker.size());
    line.text = line.text.substr(0, marker);
}

}  // namespace

DeckWalk::DeckWalk(std::string_view text) noexcept : rest_{text} {
    if (rest_.starts_with(byte_order_mark)) rest_.remove_prefix(byte_order_mark.size());
}

std::optional<DeckLine> DeckWalk::next() {
    const std::optional<std::string_view> whole = take_line();
    if (!whole) return std::nullopt;
    DeckLine line;
    line.number = ++number_;
    line.text = *whole;
    const std::string_view trimmed = trim(*whole);
    if (const std::string_view name = header_name(trimmed); !name.empty()) {
        group_ = to_upper(name);
        line.role = LineRole::Header;
        line.text = trimmed.substr(1 + name.size());
    } else if (inside_) {
        line.role = LineRole::Body;
    } else {
        return line;
    }
    line.group = group_;
    cut_at_end_marker(line);
    inside_ = !line.closes;
    return line;
}

std::optional<std::string_view> DeckWalk::take_line() noexcept {
    if (rest_.empty()) return std::nullopt;
    const std::size_t end = std::min(rest_.find_first_of("\r\n"), rest_.size());
    const std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(end);
    rest_.remove_prefix(rest_.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, rest_.size()));
    return line;
}

}  // namespace gms_inp
