#include <utility>

#include "model/logical.hpp"
#include "model/text_view.hpp"
#include "nurl/core/text.hpp"
#include "nurl/input/gamess/typed/detail.hpp"
#include "typed/pieces.hpp"

namespace nurl::input::gamess::typed::detail {

namespace {

using gamess::detail::trim_view;

template <class Value>
bool parse_list(std::string_view text, bool (*parse)(std::string_view, Value&),
                std::vector<Value>& list) {
    std::vector<Value> values;
    for (const std::string_view piece : split_pieces(text))
        if (!parse(piece, values.emplace_back())) return false;
    list = std::move(values);
    return true;
}

}  // namespace

std::vector<std::string_view> split_pieces(std::string_view text) {
    std::vector<std::string_view> pieces;
    while (!text.empty()) {
        const std::string_view piece = text.substr(0, text.find(','));
        text.remove_prefix(piece.size() < text.size() ? piece.size() + 1 : piece.size());
        if (!gamess::detail::is_blank_text(piece)) pieces.push_back(trim_view(piece));
    }
    return pieces;
}

bool parse_int_list(std::string_view text, std::vector<std::int32_t>& list) {
    return parse_list<std::int32_t>(text, core::text::try_parse_int, list);
}

bool parse_double_list(std::string_view text, std::vector<double>& list) {
    return parse_list<double>(text, core::text::try_parse_double, list);
}

bool try_parse_bool(std::string_view text, bool& value) {
    const auto parsed =
        gamess::detail::parse_logical(trim_view(text), gamess::detail::ZeroText::IsFalse);
    if (parsed) value = *parsed;
    return parsed.has_value();
}

std::string base_key(std::string_view key) {
    return core::text::to_upper_copy(gamess::detail::without_index(trim_view(key)));
}

}  // namespace nurl::input::gamess::typed::detail
