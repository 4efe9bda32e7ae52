/// @file
/// Cutting the lines of a keyword group where they may be folded.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

/// A `$END` on a line of its own stands in column 2, whatever the lines above do.
enum class PieceKind {
    Header,  ///< begins with the `$NAME` of the group
    End,     ///< begins with its `$END`; all that follows on the line belongs to it
    Other,   ///< anything else
};

/// A stretch of a line that a fold never cuts, with the commas behind it. Between two pieces of a
/// line are blanks, or nothing behind a comma.
struct Piece {
    Span span;  ///< all of it
    std::size_t core_end =
        0;  ///< where the comment, or the text behind `$END`, that ends it begins
    PieceKind kind = PieceKind::Other;  ///< what it begins with
    bool is_value = false;              ///< begins a value whose `KEY=` is the piece before it
    bool glued = false;                 ///< a fold before it needs a `>` at the end of the line
};

/// Cuts lines of one keyword group into pieces.
class PieceCutter {
public:
    /// The deck and the group must outlive the cutter. Linear in the length of the group.
    PieceCutter(const Deck& deck, const Group& group);

    /// The pieces of a line in ascending order; none for a line with nothing but commas.
    ///
    /// @param line  must lie behind that of an earlier call
    [[nodiscard]] std::vector<Piece> pieces_of(Span line);

private:
    enum class TokenKind { Header, Key, Word, Text, Comment, End };

    struct Token {
        Span span;
        TokenKind kind = TokenKind::Word;
        bool inside_value = false;  // a word of the value that it stands in follows it, or is it
    };

    void add_keyword(const Item& item);
    void add_tokens(const Deck& deck, const Group& group);
    void mark_inside_values() noexcept;
    void add(const Token& token, const Token& before, std::vector<Piece>& pieces) const;
    [[nodiscard]] Piece piece_of(const Token& token) const noexcept;
    void end_piece(Piece& piece, std::size_t until) const noexcept;
    [[nodiscard]] bool may_begin_line(const Token& token) const noexcept;
    [[nodiscard]] bool is_glue_sign(const Token& token) const noexcept;
    [[nodiscard]] static std::size_t core_end(const Token& token) noexcept;

    std::string_view text_;
    bool glues_lines_;  // a value goes on in the next line only behind a `>`
    std::vector<Token> tokens_;
    std::size_t next_ = 0;  // the first token that no line took
};

/// A span without the blanks and tabs at its end.
[[nodiscard]] Span without_trailing_blanks(std::string_view text, Span span) noexcept;

}  // namespace nurl::input::gamess::source
