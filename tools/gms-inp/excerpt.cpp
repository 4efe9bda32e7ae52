#include "excerpt.hpp"

#include <algorithm>

#include "terminal.hpp"

namespace gms_inp {

namespace {

constexpr std::size_t shown_bytes = 100;    // of a line
constexpr std::size_t bytes_in_front = 40;  // of the place, when the line is cut
constexpr std::size_t number_width = 5;
constexpr int max_continuations = 3;  // of a character
constexpr std::string_view cut_mark = "...";

/// Whether a byte goes on with the character that an earlier one began, in UTF-8.
bool is_continuation(char c) noexcept { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; }

/// The part of a line that is shown.
struct Window {
    std::size_t begin = 0;
    std::size_t end = 0;
};

Window window_of(std::string_view line, std::size_t place) noexcept {
    if (line.size() <= shown_bytes) return {0, line.size()};
    Window window;
    if (place > shown_bytes - bytes_in_front)
        window.begin = std::min(place - bytes_in_front, line.size() - shown_bytes);
    window.end = window.begin + shown_bytes;
    for (int step = 0; step < max_continuations; ++step) {
        if (window.begin > 0 && is_continuation(line[window.begin])) --window.begin;
        if (window.end < line.size() && is_continuation(line[window.end])) ++window.end;
    }
    return window;
}

/// As many places as `text` takes on the screen when it is escaped, a tab for each tab.
std::string filled(std::string_view text, char filler) {
    std::string result;
    for (const char c : escape_controls(text, Keep::LineEnds)) {
        if (c == '\t') result += filler == ' ' ? '\t' : filler;
        if (c != '\t' && !is_continuation(c)) result += filler;
    }
    return result;
}

std::string gutter(const std::string& number) {
    const std::size_t width = std::max(number_width, number.size());
    return std::string(width - number.size(), ' ') + number + " | ";
}

}  // namespace

std::string excerpt(const Marked& marked) {
    const std::size_t place = std::min(marked.column - 1, marked.line.size());
    const Window window = window_of(marked.line, place);
    const std::string_view shown = marked.line.substr(window.begin, window.end - window.begin);
    const bool cut_in_front = window.begin > 0;
    const std::string number = std::to_string(marked.number);

    std::string text = gutter(number);
    if (cut_in_front) text += cut_mark;
    text += escape_controls(shown, Keep::LineEnds);
    if (window.end < marked.line.size()) text += cut_mark;
    text += '\n';

    const std::string_view front = shown.substr(0, place - window.begin);
    const std::string_view under = shown.substr(front.size()).substr(0, marked.length);
    std::string marks = filled(under, '~');
    if (marks.empty()) marks = "~";
    marks.front() = '^';
    text += gutter(std::string(number.size(), ' '));
    if (cut_in_front) text += std::string(cut_mark.size(), ' ');
    text += filled(front, ' ');
    text += marks;
    text += '\n';
    return text;
}

}  // namespace gms_inp
