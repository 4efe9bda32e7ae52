/// @file
/// The tokenizer of keyword text.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "reader/parenthesis_table.hpp"

namespace nurl::input::gamess::detail {

/// One pair as it stands in the text.
struct PairView {
    std::string_view key;    ///< as written, index suffix included
    std::string_view value;  ///< as written, without space, tab, LF and CR at its ends; not empty
    std::size_t begin = 0;   ///< offset of the key
    std::size_t end = 0;     ///< offset at which the value stopped
};

/// Finds `KEY=VALUE` pairs one after another; `scan_key_values` states the rules.
///
/// The text must outlive the scanner and the views it gives. A whole scan is linear in the length
/// of the text, and copies nothing unless parentheses are nested.
class PairScanner {
public:
    /// Starts at the beginning of `text`.
    explicit PairScanner(std::string_view text) noexcept : text_(text) {}

    /// The next pair, or nothing when there is none left.
    [[nodiscard]] std::optional<PairView> next();

private:
    /// A word that begins with a letter, with its index suffix.
    struct Word {
        std::size_t begin = 0;
        std::size_t end = 0;
        std::size_t behind = 0;  ///< offset behind the blanks that follow
    };

    [[nodiscard]] std::size_t skip_blanks(std::size_t from) const noexcept;
    [[nodiscard]] std::size_t suffix_end(std::size_t open);
    [[nodiscard]] Word read_word(std::size_t begin);
    [[nodiscard]] bool is_key(const Word& word) const noexcept;
    [[nodiscard]] std::optional<Word> next_key();
    [[nodiscard]] bool sees_key(std::size_t at);
    [[nodiscard]] std::size_t value_end(std::size_t begin);

    std::string_view text_;
    std::size_t position_ = 0;
    std::optional<Word> ahead_;  // the key that ended the last value
    ParenthesisTable nested_;
};

}  // namespace nurl::input::gamess::detail
