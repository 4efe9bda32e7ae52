// The texts of one length are numbered, and the digits of the number name the tokens.
#include "second_reading/every_text.hpp"

#include <charconv>
#include <cstdlib>
#include <string_view>

namespace nurl::test {

namespace {

std::string text_of(const std::vector<std::string>& tokens, std::size_t length,
                    std::size_t number) {
    std::string text;
    for (std::size_t i = 0; i < length; ++i) {
        text += tokens[number % tokens.size()];
        number /= tokens.size();
    }
    return text;
}

/// `text` in quotes, with what cannot be seen written as an escape.
std::string shown(const std::string& text) {
    std::string out = "\"";
    for (const char c : text) {
        if (c == '\n')
            out += "\\n";
        else if (c == '\t')
            out += "\\t";
        else if (c == '\r')
            out += "\\r";
        else
            out += c;
    }
    return out + '"';
}

}  // namespace

std::size_t count_texts(std::size_t tokens, std::size_t length) {
    std::size_t all = 0;
    std::size_t of_length = 1;
    for (std::size_t i = 0; i <= length; ++i) {
        all += of_length;
        of_length *= tokens;
    }
    return all;
}

Comparison compare_every_text(const std::vector<std::string>& tokens, std::size_t length,
                              const std::function<bool(const std::string&)>& is_same) {
    Comparison comparison;
    std::size_t of_length = 1;
    for (std::size_t count = 0; count <= length; ++count) {
        for (std::size_t number = 0; number < of_length; ++number) {
            const std::string text = text_of(tokens, count, number);
            ++comparison.texts;
            if (is_same(text)) continue;
            comparison.first_difference = shown(text);
            return comparison;
        }
        of_length *= tokens.size();
    }
    return comparison;
}

std::size_t exhaustive_length(std::size_t otherwise) {
    const char* const value = std::getenv("NURL_TEST_EXHAUSTIVE");
    const std::string_view text = value == nullptr ? "" : value;
    std::size_t length = otherwise;
    std::from_chars(text.data(), text.data() + text.size(), length);
    return length;
}

}  // namespace nurl::test
