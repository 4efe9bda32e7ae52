// Lines are looked for with a search for line ends alone; only those that are too long cost more.
// Comments of keyword groups are known from their items and are passed in step with the lines.
#include "source/check/width.hpp"

#include <algorithm>
#include <string>

#include "model/text_view.hpp"
#include "source/check/line_room.hpp"
#include "source/line_ends.hpp"

namespace nurl::input::gamess::source::checks {

namespace {

class WidthCheck {
public:
    WidthCheck(const Context& context, const Group& group, Findings& findings)
        : context_(context),
          deck_(context.deck()),
          group_(group),
          keywords_(context.keywords_of(group)),
          findings_(findings) {
        if (keywords_ == nullptr) return;
        for (const Item& item : keywords_->items)
            if (item.kind == ItemKind::Comment) comments_.push_back(item.span);
    }

    void run() {
        const std::string_view text = deck_.text();
        if (group_.kind == GroupKind::Data) {
            const std::size_t title = next_line(text, group_.header.end);
            title_ = {title, line_end(text, title)};
        }
        const std::size_t end = group_.terminator.end;
        const std::string_view up_to_end = text.substr(0, end);
        for (std::size_t at = line_begin(text, group_.header.begin); at < end;) {
            const std::size_t stop = std::min(up_to_end.find('\n', at), end);
            if (stop - at > columns_read) check_lines({at, stop});
            at = stop + 1;
        }
    }

private:
    /// Checks what stands between two LF, where a CR may end lines too.
    void check_lines(Span lines) {
        for (std::size_t at = lines.begin; at < lines.end;) {
            const Span line{at, std::min(line_end(deck_.text(), at), lines.end)};
            if (line.size() > columns_read && (title_.empty() || line.begin != title_.begin))
                check(line);
            at = line.end + 1;
        }
    }

    void check(Span line) {
        const Span beyond = text_of({line.begin + columns_read, line.end}, line.begin);
        if (beyond.empty()) return;
        std::string message = "Text beyond column 80 of $" + group_.name + " is not read";
        if (!group_.terminator.empty() && group_.terminator.end == line.end)
            message += ", nor is the $END";
        findings_.add(beyond, std::move(message), {}, fold(line));
    }

    /// From the first to the last byte of the tail of a line that is neither blank nor in a
    /// comment.
    [[nodiscard]] Span text_of(Span tail, std::size_t line_begin) {
        if (keywords_ == nullptr) {
            const std::string_view line = deck_.text({line_begin, tail.end});
            const std::size_t mark = std::min(line.find('!'), line.size());
            return trimmed({tail.begin, std::max(tail.begin, line_begin + mark)});
        }
        Span found{tail.end, tail.begin};
        for (; comment_ < comments_.size() && comments_[comment_].begin < tail.end; ++comment_) {
            const Span comment = comments_[comment_];
            if (comment.end <= tail.begin) continue;
            widen(found, {tail.begin, std::max(tail.begin, comment.begin)});
            tail.begin = comment.end;
        }
        widen(found, tail);
        return found.begin < found.end ? found : Span{};
    }

    /// Widens a span to the text of another one.
    void widen(Span& found, Span part) const noexcept {
        const Span text = trimmed(part);
        if (text.empty()) return;
        found.begin = std::min(found.begin, text.begin);
        found.end = std::max(found.end, text.end);
    }

    [[nodiscard]] Span trimmed(Span span) const noexcept {
        while (!span.empty() && detail::is_blank(deck_.text()[span.end - 1])) --span.end;
        while (!span.empty() && detail::is_blank(deck_.text()[span.begin])) ++span.begin;
        return span;
    }

    /// Cuts a line into two behind a blank or a comma, when two lines are enough.
    [[nodiscard]] std::vector<Edit> fold(Span line) const {
        if (keywords_ == nullptr || keywords_->spec == nullptr || group_.name == "QUANPO")
            return {};
        const std::string_view text = deck_.text({line.begin, line_end(deck_.text(), line.end)});
        if (text.find_first_of("!'\"") != std::string_view::npos) return {};
        const std::size_t cut = last_cut(text, group_.terminator.begin - line.begin);
        if (cut == 0 || detail::trim_view(text.substr(cut)).size() + 1 > columns_read) return {};
        std::size_t kept = cut;
        while (is_padding(text[kept - 1])) --kept;
        return {{{line.begin + kept, line.begin + cut}, std::string{context_.line_end()} + " "}};
    }

    /// Where the last word begins, outside parentheses and not next to a `=`, that has all text
    /// before it within the columns read; 0 when the line must stay in one piece. There is text
    /// beyond those columns, so they end before the line does. A `$` may begin the second line only
    /// as the end of the group, not to become a header.
    [[nodiscard]] static std::size_t last_cut(std::string_view line, std::size_t end_of_group) {
        std::size_t cut = 0;
        std::size_t depth = 0;
        std::size_t end = 0;  // of the text so far
        char before = '=';    // its last byte; a line is not cut at its first word
        for (std::size_t i = 0; end <= columns_read; ++i) {
            const char c = line[i];
            if (is_padding(c)) continue;
            const bool begins = i > end || before == ',';
            const bool may_begin = c != '=' && c != ',' && (c != '$' || i == end_of_group);
            if (begins && may_begin && depth == 0 && before != '=') cut = i;
            if (c == '(') ++depth;
            if (c == ')' && depth > 0) --depth;
            before = c;
            end = i + 1;
        }
        return cut;
    }

    const Context& context_;
    const Deck& deck_;
    const Group& group_;
    const KeywordGroup* keywords_;
    Findings& findings_;
    std::vector<Span> comments_;  // ascending
    std::size_t comment_ = 0;     // the first behind the lines checked so far
    Span title_;                  // the title of a molecule; else empty
};

}  // namespace

void find_beyond_column_80(const Context& context, Findings& findings) {
    for (const Group& group : context.deck().sections())
        if (group.visible && group.kind != GroupKind::FixedColumns)
            WidthCheck(context, group, findings).run();
}

}  // namespace nurl::input::gamess::source::checks
