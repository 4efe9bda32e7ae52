#include "source/wrap_pieces.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

#include "source/keyword_items.hpp"
#include "source/line_ends.hpp"

namespace nurl::input::gamess::source {

PieceCutter::PieceCutter(const Deck& deck, const Group& group)
    : text_(deck.text()), glues_lines_(group.name == "QUANPO") {
    add_tokens(deck, group);
    mark_inside_values();
}

std::vector<Piece> PieceCutter::pieces_of(Span line) {
    std::vector<Piece> pieces;
    while (next_ < tokens_.size() && tokens_[next_].span.begin < line.begin) ++next_;
    std::size_t end = next_;
    while (end < tokens_.size() && tokens_[end].span.begin < line.end) ++end;
    pieces.reserve(end - next_);
    for (; next_ < end; ++next_) {
        if (pieces.empty())
            pieces.push_back(piece_of(tokens_[next_]));
        else
            add(tokens_[next_], tokens_[next_ - 1], pieces);
    }
    if (!pieces.empty()) end_piece(pieces.back(), line.end);
    return pieces;
}

/// The tokens of a keyword are its name with the `=`, and the words of its value.
void PieceCutter::add_keyword(const Item& item) {
    const std::size_t equals = text_.find('=', item.span.begin);
    tokens_.push_back({{item.span.begin, equals + 1}, TokenKind::Key});
    for (const Span word : item.words) tokens_.push_back({word, TokenKind::Word});
}

/// Tokens are everything in a group but blanks, commas and the `>` that join lines. Comments inside
/// a value are listed behind it and have to be merged in.
void PieceCutter::add_tokens(const Deck& deck, const Group& group) {
    std::vector<Token> comments;
    tokens_.push_back({group.header, TokenKind::Header});
    for_each_keyword_item(deck.text(), group, [&](const Item& item) {
        if (item.kind == ItemKind::Keyword) add_keyword(item);
        if (item.kind == ItemKind::Text) tokens_.push_back({item.span, TokenKind::Text});
        if (item.kind == ItemKind::Comment)
            comments.push_back({without_trailing_blanks(text_, item.span), TokenKind::Comment});
    });
    if (!group.terminator.empty()) {
        const Span tail{group.terminator.begin, line_end(text_, group.terminator.end)};
        tokens_.push_back({without_trailing_blanks(text_, tail), TokenKind::End});
    }
    const auto place = [](const Token& token) { return token.span.begin; };
    std::vector<Token> merged;
    merged.reserve(tokens_.size() + comments.size());
    std::ranges::merge(tokens_, comments, std::back_inserter(merged), {}, place, place);
    tokens_ = std::move(merged);
}

void PieceCutter::mark_inside_values() noexcept {
    bool inside = false;
    for (std::size_t i = tokens_.size(); i-- > 0;) {
        Token& token = tokens_[i];
        if (token.kind != TokenKind::Comment) inside = token.kind == TokenKind::Word;
        token.inside_value = inside;
    }
}

/// Begins a piece with a token, or adds it to the last one where no fold may come between.
void PieceCutter::add(const Token& token, const Token& before, std::vector<Piece>& pieces) const {
    Piece& last = pieces.back();
    end_piece(last, token.span.begin);
    const bool apart = last.span.end < token.span.begin || text_[last.span.end - 1] == ',';
    if (!apart || !may_begin_line(token) || is_glue_sign(before)) {
        last.span.end = token.span.end;
        if (token.kind != TokenKind::Comment) last.core_end = core_end(token);
        return;
    }
    pieces.push_back(piece_of(token));
    pieces.back().is_value = before.kind == TokenKind::Key && token.kind == TokenKind::Word;
}

Piece PieceCutter::piece_of(const Token& token) const noexcept {
    Piece piece{token.span, core_end(token)};
    if (token.kind == TokenKind::Header) piece.kind = PieceKind::Header;
    if (token.kind == TokenKind::End) piece.kind = PieceKind::End;
    piece.glued = glues_lines_ && token.inside_value;
    return piece;
}

/// What follows a piece without being a token belongs to it, but for the blanks at the end. A `>`
/// behind a comment has to be read like any word.
void PieceCutter::end_piece(Piece& piece, std::size_t until) const noexcept {
    const Span behind = without_trailing_blanks(text_, {piece.span.end, until});
    if (behind.empty()) return;
    const bool is_core = piece.core_end == piece.span.end || text_[behind.end - 1] == '>';
    if (is_core) piece.core_end = behind.end;
    piece.span.end = behind.end;
}

/// A stray `$` would begin a group there, and the word before a `=` would lose it.
bool PieceCutter::may_begin_line(const Token& token) const noexcept {
    if (token.kind == TokenKind::End) return true;
    const char first = text_[token.span.begin];
    return first != '$' && first != '=' && !is_glue_sign(token);
}

/// A `>` that is a word is none any more where it ends a line.
bool PieceCutter::is_glue_sign(const Token& token) const noexcept {
    return glues_lines_ && token.span.size() == 1 && text_[token.span.begin] == '>';
}

std::size_t PieceCutter::core_end(const Token& token) noexcept {
    constexpr std::size_t end_marker_size = 4;
    if (token.kind == TokenKind::Comment) return token.span.begin;
    if (token.kind == TokenKind::End) return token.span.begin + end_marker_size;
    return token.span.end;
}

Span without_trailing_blanks(std::string_view text, Span span) noexcept {
    while (span.end > span.begin && is_padding(text[span.end - 1])) --span.end;
    return span;
}

}  // namespace nurl::input::gamess::source
