#include "source/line_ends.hpp"

#include <algorithm>
#include <cstdint>

namespace nurl::input::gamess::source {

namespace {

/// Whether the line end at `at`, if any, is complete there: the CR of a CR LF pair is not.
bool ends_line(std::string_view text, std::size_t at) noexcept {
    if (text[at] == '\n') return true;
    return text[at] == '\r' && (at + 1 == text.size() || text[at + 1] != '\n');
}

/// The line end at `at`, which must be one.
std::string_view line_end_at(std::string_view text, std::size_t at) noexcept {
    return text.substr(at, text.substr(at).starts_with("\r\n") ? 2 : 1);
}

}  // namespace

// Blocks are short enough for a byte to hold their count, which is what lets a compiler count many
// bytes at once.
std::size_t count_line_ends(std::string_view text, Span span) noexcept {
    constexpr std::size_t block = 128;
    const std::size_t last =
        std::min(span.end, text.size() - std::min<std::size_t>(text.size(), 1));
    std::size_t count = 0;
    std::size_t at = span.begin;
    for (; at + block <= last; at += block) {
        const char* const bytes = text.data() + at;
        std::uint8_t in_block = 0;
        for (std::size_t i = 0; i < block; ++i) {
            const unsigned line_feed = bytes[i] == '\n' ? 1U : 0U;
            const unsigned lone_return = bytes[i] == '\r' && bytes[i + 1] != '\n' ? 1U : 0U;
            in_block = static_cast<std::uint8_t>(in_block + line_feed + lone_return);
        }
        count += in_block;
    }
    for (; at < span.end; ++at) count += ends_line(text, at) ? 1U : 0U;
    return count;
}

std::size_t line_begin(std::string_view text, std::size_t offset) noexcept {
    while (offset > 0 && !is_line_end(text[offset - 1])) --offset;
    return offset;
}

std::size_t line_end(std::string_view text, std::size_t offset) noexcept {
    while (offset < text.size() && !is_line_end(text[offset])) ++offset;
    return offset;
}

std::size_t next_line(std::string_view text, std::size_t offset) noexcept {
    const std::size_t end = line_end(text, offset);
    return end == text.size() ? end : end + line_end_at(text, end).size();
}

std::string_view line_end_near(std::string_view text, std::size_t offset) noexcept {
    const std::size_t end = line_end(text, offset);
    if (end < text.size()) return line_end_at(text, end);
    const std::size_t begin = line_begin(text, offset);
    if (begin == 0) return "\n";
    const bool is_pair = begin > 1 && text[begin - 1] == '\n' && text[begin - 2] == '\r';
    return text.substr(begin - (is_pair ? 2 : 1), is_pair ? 2 : 1);
}

}  // namespace nurl::input::gamess::source
