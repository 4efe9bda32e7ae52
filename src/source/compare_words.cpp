#include "source/compare_words.hpp"

#include <algorithm>
#include <cstddef>
#include <string>

#include "nurl/input/gamess/source/wrap.hpp"
#include "source/line_ends.hpp"
#include "source/word_value.hpp"

namespace nurl::input::gamess::source {

namespace {

/// What stands between two words, outside comments.
struct Gap {
    std::size_t commas = 0;
    bool has_unglued_line_end = false;  // one without a `>` since the last line end
};

/// A gap without its comments. A second `!` ends a comment in keyword groups only.
std::string without_comments(std::string_view gap, bool comments_close) {
    std::string rest;
    bool in_comment = false;
    for (const char c : gap) {
        if (is_line_end(c)) in_comment = false;
        if (c == '!')
            in_comment = !(in_comment && comments_close);
        else if (!in_comment)
            rest += c;
    }
    return rest;
}

Gap look_into(std::string_view written, bool comments_close) {
    const std::string gap = without_comments(written, comments_close);
    Gap seen;
    bool is_glued = false;
    for (std::size_t i = 0; i < gap.size(); ++i) {
        if (gap[i] == ',') ++seen.commas;
        if (gap[i] == '>') is_glued = true;
        const bool ends_pair = gap[i] == '\n' && i > 0 && gap[i - 1] == '\r';
        if (!is_line_end(gap[i]) || ends_pair) continue;
        seen.has_unglued_line_end = seen.has_unglued_line_end || !is_glued;
        is_glued = false;
    }
    return seen;
}

/// One comma separates two words. Each further one, and each before the first word, stands behind
/// something that is missing.
void add_missing(std::size_t commas, ComparedWords& words) {
    const std::size_t separators = words.empty() ? 0 : std::min<std::size_t>(commas, 1);
    words.insert(words.end(), commas - separators, std::string_view{});
}

bool is_zero(std::string_view word) { return real_of(word) == 0.0; }

}  // namespace

ComparedWords card_words(std::string_view text, const Item& card) {
    ComparedWords words;
    std::size_t at = card.span.begin;
    for (const Span word : card.words) {
        add_missing(look_into(text.substr(at, word.begin - at), false).commas, words);
        words.push_back(text.substr(word.begin, word.size()));
        at = word.end;
    }
    add_missing(look_into(text.substr(at, card.span.end - at), false).commas, words);
    return words;
}

ComparedWords value_words(std::string_view text, const Item& keyword, bool glues_lines) {
    ComparedWords words;
    std::size_t at = text.find('=', keyword.span.begin) + 1;
    for (const Span word : keyword.words) {
        const Gap gap = look_into(text.substr(at, word.begin - at), true);
        add_missing(gap.commas, words);
        if (glues_lines && gap.has_unglued_line_end) words.emplace_back("\n");
        words.push_back(text.substr(word.begin, word.size()));
        at = word.end;
    }
    return words;
}

bool same_words(const ComparedWords& a, const ComparedWords& b, WordRule rule) {
    const ComparedWords& longer = a.size() < b.size() ? b : a;
    const ComparedWords& shorter = a.size() < b.size() ? a : b;
    if (rule != WordRule::Padded && longer.size() != shorter.size()) return false;
    for (std::size_t i = 0; i < shorter.size(); ++i) {
        const bool same =
            rule == WordRule::Exact ? longer[i] == shorter[i] : same_word(longer[i], shorter[i]);
        if (!same) return false;
    }
    return std::all_of(longer.begin() + static_cast<std::ptrdiff_t>(shorter.size()), longer.end(),
                       is_zero);
}

std::string shown_name(std::string_view name) { return std::string{name.substr(0, line_width)}; }

std::string joined(const ComparedWords& words) {
    std::string text;
    for (const std::string_view word : words) {
        if (!text.empty()) text += ' ';
        text += word;
    }
    return text;
}

}  // namespace nurl::input::gamess::source
