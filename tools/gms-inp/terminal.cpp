#include "terminal.hpp"

#include <algorithm>
#include <unistd.h>

#include "environment.hpp"

namespace gms_inp {

namespace {

constexpr std::string_view hex_digits = "0123456789ABCDEF";

bool is_continuation(char c) noexcept { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; }

/// The number of bytes of the character at the start of `text`. What begins no character of UTF-8
/// counts as one of a single byte.
std::size_t character_length(std::string_view text) noexcept {
    const auto byte = static_cast<unsigned char>(text[0]);
    const std::size_t length = byte < 0xC2 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
    if (byte > 0xF4 || length > text.size()) return 1;
    return std::ranges::all_of(text.substr(1, length - 1), is_continuation) ? length : 1;
}

/// Whether a character is a control character for a terminal, be it one of UTF-8 or one of bytes.
bool is_control(std::string_view character) noexcept {
    const auto byte = static_cast<unsigned char>(character[0]);
    const auto is_c1 = [](char c) { return is_continuation(c) && (c & 0x20) == 0; };
    if (character.size() == 1) return byte < 0x20 || byte == 0x7F || is_c1(character[0]);
    return byte == 0xC2 && is_c1(character[1]);
}

void append_escaped(char c, std::string& out) {
    const auto byte = static_cast<unsigned char>(c);
    out += "\\x";
    out += hex_digits[byte >> 4U];
    out += hex_digits[byte & 0xFU];
}

}  // namespace

std::string escape_controls(std::string_view text, Keep keep) {
    std::string out;
    out.reserve(text.size());
    while (!text.empty()) {
        const bool kept = keep == Keep::LineEnds && (text[0] == '\n' || text[0] == '\t');
        const std::string_view character = text.substr(0, character_length(text));
        if (kept || !is_control(character)) {
            out += character;
        } else {
            for (const char c : character) append_escaped(c, out);
        }
        text.remove_prefix(character.size());
    }
    return out;
}

bool is_terminal(std::FILE* stream) noexcept { return ::isatty(::fileno(stream)) == 1; }

bool wants_colour(std::FILE* stream) noexcept {
    return is_terminal(stream) && !is_set_in_environment("NO_COLOR");
}

}  // namespace gms_inp
