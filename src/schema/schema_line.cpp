#include "schema/schema_line.hpp"

#include <algorithm>
#include <array>

#include "model/text_view.hpp"

namespace nurl::input::gamess::schema {

namespace {

using detail::trim_view;

std::string_view without_comment(std::string_view line) noexcept {
    if (line.find('#') == std::string_view::npos) return line;
    char quote = '\0';
    for (std::size_t at = 0; at < line.size(); ++at) {
        const char c = line[at];
        if (quote == '\0' && c == '#') return line.substr(0, at);
        if (c != '\'' && c != '"') continue;
        if (quote == '\0')
            quote = c;
        else if (quote == c)
            quote = '\0';
    }
    return line;
}

std::string_view unquote(std::string_view text) noexcept {
    text = trim_view(text);
    const bool is_quoted = text.size() >= 2 && text.front() == text.back() &&
                           (text.front() == '"' || text.front() == '\'');
    return is_quoted ? text.substr(1, text.size() - 2) : text;
}

}  // namespace

SchemaLine read_line(std::string_view line) noexcept {
    const std::string_view content = without_comment(line);
    std::size_t indentation = 0;
    while (indentation < content.size() && content[indentation] == ' ') ++indentation;
    return {trim_view(content.substr(indentation)), indentation};
}

std::optional<Property> read_property(std::string_view text) noexcept {
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos) return std::nullopt;
    return Property{plain_word(text.substr(0, colon)), unquote(text.substr(colon + 1))};
}

std::vector<std::string_view> read_list(std::string_view value) {
    std::vector<std::string_view> items;
    if (!value.starts_with('[') || !value.ends_with(']')) return items;
    std::string_view rest = value.substr(1, value.size() - 2);
    items.reserve(static_cast<std::size_t>(std::ranges::count(rest, ',')) + 1);
    while (!rest.empty()) {
        const std::size_t comma = std::min(rest.find(','), rest.size());
        const std::string_view item = unquote(rest.substr(0, comma));
        if (!item.empty()) items.push_back(item);
        rest.remove_prefix(std::min(comma + 1, rest.size()));
    }
    return items;
}

bool read_flag(std::string_view value, bool otherwise) noexcept {
    constexpr std::array<std::string_view, 4> true_words{"true", "yes", "on", "1"};
    constexpr std::array<std::string_view, 4> false_words{"false", "no", "off", "0"};
    const auto is_spelled = [value](std::string_view word) { return is_word(value, word); };
    if (std::ranges::any_of(true_words, is_spelled)) return true;
    if (std::ranges::any_of(false_words, is_spelled)) return false;
    return otherwise;
}

bool is_word(std::string_view value, std::string_view word) noexcept {
    return detail::equal_ignoring_case(plain_word(value), word);
}

}  // namespace nurl::input::gamess::schema
