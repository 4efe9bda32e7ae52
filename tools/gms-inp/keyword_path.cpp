#include "keyword_path.hpp"

#include <stdexcept>

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

}  // namespace

KeywordPath parse_path(std::string_view argument) {
    const std::size_t point = argument.find('.');
    KeywordPath path{.group = group_name(argument.substr(0, point)), .key = {}};
    if (point != std::string_view::npos) path.key = to_upper(trim(argument.substr(point + 1)));
    if (path.group.empty() || (point != std::string_view::npos && path.key.empty())) {
        throw_bad_shape(argument, "GROUP or GROUP.KEY");
    }
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
    const bool complete =
        !assignment.path.group.empty() && !assignment.path.key.empty() && !assignment.value.empty();
    if (!complete) throw_bad_shape(argument, wanted);
    return assignment;
}

std::string text_of(const KeywordPath& path) {
    std::string text = '$' + path.group;
    if (!path.key.empty()) text += '.' + path.key;
    return text;
}

}  // namespace gms_inp
