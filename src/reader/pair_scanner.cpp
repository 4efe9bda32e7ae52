// One walk over the text. A value can only be ended by looking ahead behind each run of blanks for
// another `KEY =`; the key found there is remembered, and a word that turns out to be none is
// looked at a second time as part of the value. Index suffixes without inner parentheses are found
// by stepping to the next parenthesis, nested ones through a table, so no stretch of text is
// searched more than a fixed number of times.
#include "reader/pair_scanner.hpp"

#include <utility>

#include "model/text_view.hpp"

namespace nurl::input::gamess::detail {

namespace {

/// Narrower than white space in general: vertical tab and form feed belong to a value.
constexpr bool is_value_padding(char c) noexcept {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

}  // namespace

std::optional<PairView> PairScanner::next() {
    while (const std::optional<Word> key = next_key()) {
        const std::size_t value_begin = skip_blanks(key->behind + 1);
        position_ = value_end(value_begin);
        const std::string_view value =
            trim_view_if(text_.substr(value_begin, position_ - value_begin), is_value_padding);
        if (!value.empty())
            return PairView{text_.substr(key->begin, key->end - key->begin), value, key->begin,
                            position_};
    }
    return std::nullopt;
}

std::size_t PairScanner::skip_blanks(std::size_t from) const noexcept {
    return skip_class(text_, Blank, from);
}

std::size_t PairScanner::suffix_end(std::size_t open) {
    std::size_t next = open + 1;
    while (next < text_.size() && text_[next] != '(' && text_[next] != ')') ++next;
    if (next == text_.size()) return open;
    return text_[next] == ')' ? next + 1 : nested_.end_of(text_, open);
}

PairScanner::Word PairScanner::read_word(std::size_t begin) {
    std::size_t end = skip_class(text_, name_characters, begin);
    if (end < text_.size() && text_[end] == '(') end = suffix_end(end);
    return {begin, end, skip_blanks(end)};
}

bool PairScanner::is_key(const Word& word) const noexcept {
    return word.behind < text_.size() && text_[word.behind] == '=';
}

std::optional<PairScanner::Word> PairScanner::next_key() {
    if (ahead_) return std::exchange(ahead_, std::nullopt);
    while ((position_ = find_class(text_, Letter, position_)) < text_.size()) {
        const Word word = read_word(position_);
        if (is_key(word)) return word;
        position_ = word.end;
    }
    return std::nullopt;
}

bool PairScanner::sees_key(std::size_t at) {
    if (at == text_.size() || !is_letter(text_[at])) return false;
    const Word word = read_word(at);
    if (is_key(word)) ahead_ = word;
    return ahead_.has_value();
}

std::size_t PairScanner::value_end(std::size_t begin) {
    std::size_t at = begin;
    while ((at = find_class(text_, Blank | Dollar, at)) < text_.size() && text_[at] != '$') {
        const std::size_t next = skip_blanks(at);
        if (text_.substr(next).starts_with('$') || sees_key(next)) return at;
        at = next;
    }
    return at;
}

}  // namespace nurl::input::gamess::detail
