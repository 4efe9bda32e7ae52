#include "terminal.hpp"

#include <unistd.h>

#include "environment.hpp"

namespace gms_inp {

namespace {

constexpr std::string_view hex_digits = "0123456789ABCDEF";

/// The number of bytes that make up a control character at the start of `text`; 0 when none does.
std::size_t control_length(std::string_view text) noexcept {
    const auto byte = static_cast<unsigned char>(text[0]);
    if (byte < 0x20 || byte == 0x7F) return 1;
    if (byte != 0xC2 || text.size() < 2) return 0;
    const auto second = static_cast<unsigned char>(text[1]);
    return second >= 0x80 && second <= 0x9F ? 2 : 0;
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
        const std::size_t length = kept ? 0 : control_length(text);
        if (length == 0) out += text[0];
        for (const char c : text.substr(0, length)) append_escaped(c, out);
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return out;
}

bool is_terminal(std::FILE* stream) noexcept { return ::isatty(::fileno(stream)) == 1; }

bool wants_colour(std::FILE* stream) noexcept {
    return is_terminal(stream) && !is_set_in_environment("NO_COLOR");
}

}  // namespace gms_inp
