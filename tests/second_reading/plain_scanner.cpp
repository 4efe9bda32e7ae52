// One statement for each rule, in the order of the rules, with a position that only moves ahead.
#include "second_reading/plain_scanner.hpp"

#include <cstddef>

#include "second_reading/plain_text.hpp"

namespace nurl::test {

namespace {

using input::gamess::detail::ScannedKeyValue;

std::size_t behind_blanks(const std::string& text, std::size_t at) {
    while (at < text.size() && plain::is_blank(text[at])) ++at;
    return at;
}

/// Behind the `)` that closes the `(` at `open`; `open` itself when nothing closes it.
std::size_t behind_suffix(const std::string& text, std::size_t open) {
    int depth = 0;
    for (std::size_t at = open; at < text.size(); ++at) {
        if (text[at] == '(') ++depth;
        if (text[at] == ')') --depth;
        if (depth == 0) return at + 1;
    }
    return open;
}

/// Behind a name and the suffix in parentheses that follows it without a blank.
std::size_t behind_key(const std::string& text, std::size_t letter) {
    std::size_t at = letter;
    while (at < text.size() &&
           (plain::is_letter(text[at]) || plain::is_digit(text[at]) || text[at] == '_'))
        ++at;
    return at < text.size() && text[at] == '(' ? behind_suffix(text, at) : at;
}

bool has_equals_sign(const std::string& text, std::size_t behind_key) {
    const std::size_t at = behind_blanks(text, behind_key);
    return at < text.size() && text[at] == '=';
}

bool is_pair_at(const std::string& text, std::size_t at) {
    return at < text.size() && plain::is_letter(text[at]) &&
           has_equals_sign(text, behind_key(text, at));
}

std::size_t value_end(const std::string& text, std::size_t begin) {
    for (std::size_t at = begin; at < text.size(); ++at) {
        if (text[at] == '$') return at;
        if (!plain::is_blank(text[at])) continue;
        const std::size_t next = behind_blanks(text, at);
        if (next < text.size() && text[next] == '$') return at;
        if (is_pair_at(text, next)) return at;
    }
    return text.size();
}

}  // namespace

std::vector<ScannedKeyValue> scan_plainly(const std::string& text) {
    std::vector<ScannedKeyValue> pairs;
    std::size_t at = 0;
    while (at < text.size()) {
        if (!plain::is_letter(text[at])) {
            ++at;
            continue;
        }
        const std::size_t key_begin = at;
        const std::size_t key_end = behind_key(text, at);
        at = key_end;
        if (!has_equals_sign(text, key_end)) continue;
        const std::size_t value_begin = behind_blanks(text, behind_blanks(text, key_end) + 1);
        at = value_end(text, value_begin);
        const std::string key = plain::upper(text.substr(key_begin, key_end - key_begin));
        const std::string value =
            plain::trimmed(text.substr(value_begin, at - value_begin), " \t\n\r");
        if (!value.empty()) pairs.push_back({key, value, key_begin, at});
    }
    return pairs;
}

}  // namespace nurl::test
