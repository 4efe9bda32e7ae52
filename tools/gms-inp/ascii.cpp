#include "ascii.hpp"

#include <algorithm>

namespace gms_inp {

std::string_view trim(std::string_view text) noexcept {
    while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
    while (!text.empty() && is_blank(text.back())) text.remove_suffix(1);
    return text;
}

std::string to_upper(std::string_view text) {
    std::string upper{text};
    std::ranges::transform(upper, upper.begin(), [](char c) { return to_upper(c); });
    return upper;
}

bool starts_with_ignoring_case(std::string_view text, std::string_view prefix) noexcept {
    return text.size() >= prefix.size() &&
           std::equal(prefix.begin(), prefix.end(), text.begin(),
                      [](char expected, char given) { return expected == to_upper(given); });
}

std::vector<std::string_view> words_of(std::string_view text) {
    std::vector<std::string_view> words;
    for (text = trim(text); !text.empty(); text = trim(text)) {
        const auto* const end = std::ranges::find_if(text, is_blank);
        const auto length = static_cast<std::size_t>(end - text.begin());
        words.push_back(text.substr(0, length));
        text.remove_prefix(length);
    }
    return words;
}

}  // namespace gms_inp
