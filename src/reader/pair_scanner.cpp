// One walk over the text. A value can only be ended by looking ahead behind each run of blanks for
// another `KEY =`; a word that turns out to be none is looked at a second time as part of the
// value. Index suffixes without inner parentheses are found by stepping to the next parenthesis,
// nested ones through a table, so no stretch of text is searched more than a fixed number of times.
#include "reader/pair_scanner.hpp"

#include "model/text_view.hpp"

namespace nurl::input::gamess::detail {

namespace {

/// Narrower than white space in general: vertical tab and form feed belong to a value.
constexpr bool is_value_padding(char c) noexcept {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

}  // namespace

std::optional<PairView> PairScanner::next() {
    while ((position_ = find_letter(position_)) < text_.size()) {
        const std::size_t begin = position_;
        position_ = key_end(begin);
        const std::string_view key = text_.substr(begin, position_ - begin);
        const std::size_t equals = skip_blanks(position_);
        if (equals == text_.size() || text_[equals] != '=') continue;

        const std::size_t value_begin = skip_blanks(equals + 1);
        position_ = value_end(value_begin);
        const std::string_view value =
            trim_view_if(text_.substr(value_begin, position_ - value_begin), is_value_padding);
        if (!value.empty()) return PairView{key, value, begin, position_};
    }
    return std::nullopt;
}

std::size_t PairScanner::skip_blanks(std::size_t from) const noexcept {
    while (from < text_.size() && is_blank(text_[from])) ++from;
    return from;
}

std::size_t PairScanner::find_letter(std::size_t from) const noexcept {
    while (from < text_.size() && !is_letter(text_[from])) ++from;
    return from;
}

std::size_t PairScanner::key_end(std::size_t begin) {
    std::size_t end = begin;
    while (end < text_.size() && is_name_character(text_[end])) ++end;
    return end < text_.size() && text_[end] == '(' ? suffix_end(end) : end;
}

std::size_t PairScanner::suffix_end(std::size_t open) {
    std::size_t next = open + 1;
    while (next < text_.size() && text_[next] != '(' && text_[next] != ')') ++next;
    if (next == text_.size()) return open;
    return text_[next] == ')' ? next + 1 : nested_.end_of(text_, open);
}

bool PairScanner::is_pair(std::size_t begin) {
    if (!is_letter(text_[begin])) return false;
    const std::size_t equals = skip_blanks(key_end(begin));
    return equals < text_.size() && text_[equals] == '=';
}

std::size_t PairScanner::value_end(std::size_t begin) {
    std::size_t at = begin;
    while (at < text_.size() && text_[at] != '$') {
        if (!is_blank(text_[at])) {
            ++at;
            continue;
        }
        const std::size_t next = skip_blanks(at);
        if (next < text_.size() && (text_[next] == '$' || is_pair(next))) return at;
        at = next;
    }
    return at;
}

}  // namespace nurl::input::gamess::detail
