#include "diagnostics.hpp"

#include <array>
#include <cstdio>

#include "terminal.hpp"

namespace gms_inp {

namespace {

struct WeightText {
    std::string_view word;
    std::string_view colour;
};

constexpr auto weight_texts = std::to_array<WeightText>({
    {"note", "\033[36m"},
    {"info", "\033[36m"},
    {"warning", "\033[33m"},
    {"error", "\033[31m"},
    {"fixed", "\033[32m"},
});

constexpr std::string_view colour_end = "\033[0m";

const WeightText& row_of(Weight weight) noexcept {
    return weight_texts[static_cast<std::size_t>(weight)];
}

}  // namespace

std::string_view text_of(Weight weight) noexcept { return row_of(weight).word; }

std::string format(const Diagnostic& diagnostic, Colour colour) {
    const WeightText& weight = row_of(diagnostic.weight);
    std::string text = escape_controls(diagnostic.place, Keep::Nothing) + ':';
    if (diagnostic.line > 0) text += std::to_string(diagnostic.line) + ':';
    if (diagnostic.column > 0) text += std::to_string(diagnostic.column) + ':';
    text += ' ';
    if (colour == Colour::On) text += weight.colour;
    text += weight.word;
    if (colour == Colour::On) text += colour_end;
    text += ": ";
    text += escape_controls(diagnostic.message, Keep::Nothing);
    text += '\n';
    return text;
}

void complain(const Diagnostic& diagnostic) {
    const Colour colour = wants_colour(stderr) ? Colour::On : Colour::Off;
    const std::string text = format(diagnostic, colour);
    static_cast<void>(std::fwrite(text.data(), 1, text.size(), stderr));
}

std::string shown_name(const std::string& path) { return path == "-" ? "<stdin>" : path; }

}  // namespace gms_inp
