#include "keyword_path.hpp"

#include <charconv>
#include <cstddef>
#include <stdexcept>
#include <system_error>

#include "ascii.hpp"

namespace gms_inp {

namespace {

[[noreturn]] void throw_bad_shape(std::string_view argument, std::string_view wanted) {
    throw std::runtime_error("expected " + std::string{wanted} + ", not '" + std::string{argument} +
                             "'");
}

std::string group_name(std::string_view text) {
    text = trim(text);
    if (text.starts_with('$')) text.remove_prefix(1);
    return to_upper(trim(text));
}

/// Reads a number from 1 on. @return whether `text` is one and nothing else
bool read_number(std::string_view text, std::uint64_t& number) noexcept {
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc{} && stop == end && number > 0;
}

}  // namespace

KeywordPath parse_path(std::string_view argument) {
    const std::size_t point = argument.find('.');
    KeywordPath path{.group = group_name(argument.substr(0, point)), .key = {}};
    if (point != std::string_view::npos) path.key = to_upper(trim(argument.substr(point + 1)));
    const bool lacks_key = point != std::string_view::npos && path.key.empty();
    if (path.group.empty() || path.group.find('#') != std::string::npos || lacks_key) {
        throw_bad_shape(argument, "GROUP or GROUP.KEY");
    }
    return path;
}

GroupPath parse_group_path(std::string_view argument) {
    const std::size_t hash = argument.find('#');
    GroupPath path{.group = group_name(argument.substr(0, hash))};
    bool fits = !path.group.empty();
    if (hash != std::string_view::npos) {
        const std::string_view choice = trim(argument.substr(hash + 1));
        path.copies = to_upper(choice) == "LAST" ? Copies::Last : Copies::Numbered;
        if (path.copies == Copies::Numbered) fits = fits && read_number(choice, path.number);
    }
    if (!fits) throw_bad_shape(argument, "GROUP, GROUP#n or GROUP#last");
    return path;
}

Assignment parse_assignment(std::string_view argument) {
    constexpr std::string_view wanted = "GROUP.KEY=VALUE";
    const std::size_t point = argument.find('.');
    if (point == std::string_view::npos) throw_bad_shape(argument, wanted);
    const std::size_t equals = argument.find('=', point);
    if (equals == std::string_view::npos) throw_bad_shape(argument, wanted);
    Assignment assignment{
        .path = {.group = group_name(argument.substr(0, point)),
                 .key = to_upper(trim(argument.substr(point + 1, equals - point - 1)))},
        .value = std::string{trim(argument.substr(equals + 1))}};
    const bool complete = !assignment.path.group.empty() &&
                          assignment.path.group.find('#') == std::string::npos &&
                          !assignment.path.key.empty() && !assignment.value.empty();
    if (!complete) throw_bad_shape(argument, wanted);
    return assignment;
}

std::string text_of(const KeywordPath& path) {
    std::string text = '$' + path.group;
    if (!path.key.empty()) text += '.' + path.key;
    return text;
}

std::string text_of(const GroupPath& path) {
    std::string text = '$' + path.group;
    if (path.copies == Copies::Numbered) text += '#' + std::to_string(path.number);
    if (path.copies == Copies::Last) text += "#last";
    return text;
}

}  // namespace gms_inp
