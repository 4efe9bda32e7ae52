#include "difference_text.hpp"

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include <nlohmann/json.hpp>

#include "terminal.hpp"

namespace gms_inp {

namespace source = nurl::input::gamess::source;
using Json = nlohmann::ordered_json;

namespace {

/// Values longer than this, together, get lines of their own.
constexpr std::size_t one_line_width = 60;

constexpr auto kind_texts = std::to_array<std::string_view>({"group", "keyword", "line"});

std::string shown(std::string_view text) {
    return text.empty() ? "(empty)" : escape_controls(text, Keep::Nothing);
}

std::string line_of(const source::Position& position) {
    return "line " + std::to_string(position.line);
}

/// Where a difference is, in parentheses and with two blanks in front.
std::string place_note(const source::Difference& difference, const DeckNames& names) {
    const auto& before = difference.before_position;
    const auto& after = difference.after_position;
    if (before && after && before->line == after->line) return "  (" + line_of(*before) + ")";
    if (before && after) return "  (" + line_of(*before) + " -> " + line_of(*after) + ")";
    if (!before && !after) return {};
    const std::string& name = before ? names.a : names.b;
    return "  (only in " + escape_controls(name, Keep::Nothing) + ", " +
           line_of(before ? *before : *after) + ")";
}

/// Both values behind one another, or the only one; empty when that is too long for a line.
std::string short_values(const source::Difference& difference) {
    if (difference.before.size() + difference.after.size() > one_line_width) return {};
    if (!difference.before_position) return shown(difference.after);
    if (!difference.after_position) return shown(difference.before);
    return shown(difference.before) + " -> " + shown(difference.after);
}

void append_lines(const source::Difference& difference, std::string& text) {
    if (difference.before_position) text += "- " + shown(difference.before) + '\n';
    if (difference.after_position) text += "+ " + shown(difference.after) + '\n';
}

Json line_json(const std::optional<source::Position>& position) {
    return position ? Json(position->line) : Json();
}

Json column_json(const std::optional<source::Position>& position) {
    return position ? Json(position->column) : Json();
}

Json value_json(const std::optional<source::Position>& position, const std::string& value) {
    return position ? Json(value) : Json();
}

}  // namespace

std::string place_of(const source::Difference& difference) {
    std::string place = difference.group;
    if (difference.occurrence > 1) place += '#' + std::to_string(difference.occurrence);
    if (difference.key.empty()) return place;
    place += difference.kind == source::DifferenceKind::Keyword ? '.' : ' ';
    return place + difference.key;
}

std::string text_of(const source::Difference& difference, const DeckNames& names) {
    std::string text = escape_controls(place_of(difference), Keep::Nothing);
    const std::string note = place_note(difference, names) + '\n';
    if (difference.kind == source::DifferenceKind::Group) return text + note;
    if (difference.kind == source::DifferenceKind::Keyword) {
        const std::string values = short_values(difference);
        if (!values.empty()) return text + ": " + values + note;
    }
    text += note;
    append_lines(difference, text);
    return text;
}

Json json_of(std::span<const source::Difference> differences, const DeckNames& names) {
    Json list = Json::array();
    for (const source::Difference& difference : differences) {
        const auto& before = difference.before_position;
        const auto& after = difference.after_position;
        list.push_back({{"kind", kind_texts[static_cast<std::size_t>(difference.kind)]},
                        {"group", difference.group},
                        {"occurrence", difference.occurrence},
                        {"key", difference.key},
                        {"before", value_json(before, difference.before)},
                        {"after", value_json(after, difference.after)},
                        {"before_line", line_json(before)},
                        {"before_column", column_json(before)},
                        {"after_line", line_json(after)},
                        {"after_column", column_json(after)}});
    }
    return {{"a", names.a}, {"b", names.b}, {"differences", list}};
}

}  // namespace gms_inp
