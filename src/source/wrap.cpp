// A line is cut into pieces that a fold never cuts, which are then laid out again one after the
// other. A piece goes on the next line when it does not fit and would fit there. Since the pieces
// of a folded line are the same, and stand where they are laid out, folding it again does nothing.
#include "nurl/input/gamess/source/wrap.hpp"

#include <string>
#include <string_view>
#include <utility>

#include "source/line_ends.hpp"
#include "source/wrap_pieces.hpp"

namespace nurl::input::gamess::source {

namespace {

constexpr std::string_view glue = " >";

/// Lays the pieces of one line out on several.
class LineFolder {
public:
    LineFolder(std::string_view text, Span line, std::vector<Piece> pieces, std::size_t columns)
        : text_(text), line_(line), columns_(columns), pieces_(std::move(pieces)) {
        indentation_ = text_.substr(line_.begin, pieces_.front().span.begin - line_.begin);
        indentation_ = indentation_.substr(0, indentation_.find_first_not_of(" \t\v\f"));
        if (indentation_.empty() && pieces_.front().kind == PieceKind::Header) indentation_ = " ";
    }

    void run(std::vector<Edit>& edits) {
        join_values();
        const std::string_view line_break = line_end_near(text_, line_.begin);
        std::size_t used = pieces_.front().span.end - line_.begin;
        for (std::size_t i = 1; i < pieces_.size(); ++i) {
            const Piece& piece = pieces_[i];
            const Span gap{pieces_[i - 1].span.end, piece.span.begin};
            const std::string_view begin = piece.kind == PieceKind::End ? " " : indentation_;
            const bool folds = helps_to_fold(i, used + gap.size(), begin.size());
            used = (folds ? begin.size() : used + gap.size()) + piece.span.size();
            if (!folds) continue;
            std::string between{piece.glued ? glue : ""};
            between.append(line_break).append(begin);
            add({gap, std::move(between)}, edits);
        }
    }

private:
    /// Joins each value to its `KEY=` unless the two together are too long for a line.
    void join_values() {
        std::size_t kept = 0;
        for (const Piece& piece : pieces_) {
            const bool joins =
                piece.is_value && fits(indentation_.size(),
                                       {pieces_[kept - 1].span.begin, piece.span.end}, piece.glued);
            if (!joins) {
                pieces_[kept++] = piece;
                continue;
            }
            pieces_[kept - 1].span.end = piece.span.end;
            pieces_[kept - 1].core_end = piece.core_end;
        }
        pieces_.resize(kept);
    }

    /// Half as much room again is enough, since a line can be folded every two bytes.
    static void add(Edit edit, std::vector<Edit>& edits) {
        if (edits.size() == edits.capacity()) edits.reserve(edits.size() + edits.size() / 2 + 1);
        edits.push_back(std::move(edit));
    }

    /// Whether a piece that would begin at column offset `here` has to go on the next line, where
    /// it would begin at `there`. When it is too long for both, what is no comment has to fit.
    [[nodiscard]] bool helps_to_fold(std::size_t i, std::size_t here,
                                     std::size_t there) const noexcept {
        const Piece& piece = pieces_[i];
        const bool glued = i + 1 < pieces_.size() && pieces_[i + 1].glued;
        if (fits(here, piece.span, glued)) return false;
        if (fits(there, piece.span, glued)) return true;
        const Span core{piece.span.begin, glued ? piece.span.end : piece.core_end};
        return !core.empty() && !fits(here, core, glued) && fits(there, core, glued);
    }

    [[nodiscard]] bool fits(std::size_t begin, Span span, bool glued) const noexcept {
        return begin + span.size() + (glued ? glue.size() : 0) <= columns_;
    }

    std::string_view text_;
    Span line_;
    std::size_t columns_;
    std::vector<Piece> pieces_;
    std::string_view indentation_;  // of the lines that come
};

/// The lines of a group that are too long, without the blanks at their ends.
std::vector<Span> long_lines(std::string_view text, const Group& group, std::size_t columns) {
    std::vector<Span> lines;
    for (std::size_t at = line_begin(text, group.header.begin); at < group.terminator.end;
         at = next_line(text, at)) {
        const Span line = without_trailing_blanks(text, {at, line_end(text, at)});
        if (line.size() > columns) lines.push_back(line);
    }
    return lines;
}

}  // namespace

std::vector<Edit> wrap(const Deck& deck, std::size_t columns) {
    std::vector<Edit> edits;
    for (const Group& group : deck.sections()) {
        if (!group.visible || group.kind != GroupKind::Keywords) continue;
        const std::vector<Span> lines = long_lines(deck.text(), group, columns);
        if (lines.empty()) continue;
        PieceCutter cutter(deck, group);
        for (const Span line : lines) {
            std::vector<Piece> pieces = cutter.pieces_of(line);
            if (!pieces.empty())
                LineFolder(deck.text(), line, std::move(pieces), columns).run(edits);
        }
    }
    return edits;
}

}  // namespace nurl::input::gamess::source
