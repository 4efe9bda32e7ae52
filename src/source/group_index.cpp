// Nothing but a `$` can begin or end a group, so the text is searched for that byte alone and only
// the surroundings of each hit are looked at. Whatever has to be known about the bytes between two
// hits (is there a line end, is a comment open) is carried along from one hit to the next, so that
// no stretch is searched more than a fixed number of times, however many hits a line has.
#include "source/group_index.hpp"

#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "model/text_view.hpp"
#include "nurl/core/text.hpp"
#include "nurl/input/gamess/schema.hpp"
#include "source/group_kinds.hpp"
#include "source/line_ends.hpp"

namespace nurl::input::gamess::source {

namespace {

constexpr std::string_view end_marker = "$END";

class Indexer {
public:
    explicit Indexer(std::string_view text) noexcept
        : text_(text), text_begin_(text.size() - detail::without_byte_order_mark(text).size()) {}

    /// The groups; nothing when they stand so close together that they have to be counted first.
    std::optional<std::vector<Group>> run() {
        walk();
        if (must_count_) return std::nullopt;
        mark_named_groups(text_, groups_);
        return std::move(groups_);
    }

    /// The number of groups that `run` finds.
    std::size_t count() {
        keeps_last_only_ = true;
        walk();
        return begun_;
    }

    /// Makes room for a number of groups. They need not be counted any more.
    void reserve(std::size_t number) { groups_.reserve(number); }

private:
    void walk() {
        for (std::size_t at = text_.find('$'); at != std::string_view::npos && !must_count_;
             at = text_.find('$', at + 1)) {
            look_at(at);
            seen_ = at;
        }
        if (open_) close({text_.size(), text_.size()});
    }

    void look_at(std::size_t at) {
        follow_comment(at);
        follow_line_of_end(at);
        if (detail::starts_with_ignoring_case(text_.substr(at), end_marker)) {
            if (open_ && !in_comment_) end_group(at);
            return;
        }
        const bool first = is_first_on_line(at);
        const std::size_t name_end = end_of_name(at);
        if (name_end == at + 1 || !may_be_header(first)) return;
        std::string name = core::text::to_upper_copy(text_.substr(at + 1, name_end - at - 1));
        const bool visible = first && (is_in_column_two(at) || is_found_in_any_column(name));
        if (open_ && !visible && groups_.back().visible) return;
        if (!first && schema::find_section(name) == nullptr) return;
        if (open_) close({blanks_begin(at), blanks_begin(at)});
        begin_group(std::move(name), visible, {at, name_end});
    }

    /// Whether a header may stand here: first on its line, or between groups behind an $END.
    [[nodiscard]] bool may_be_header(bool first) const noexcept {
        if (!open_) return first || on_line_of_end_;
        return first && !has_inner_headers(groups_.back().name);
    }

    /// Carries on over the bytes since the last hit whether a `!` hides what follows on its line.
    void follow_comment(std::size_t at) noexcept {
        if (!open_) return;
        const GroupKind kind = groups_.back().kind;
        if (kind == GroupKind::FixedColumns) return;
        for (std::size_t i = at; i > comment_seen_; --i) {
            if (!is_line_end(text_[i - 1])) continue;
            comment_seen_ = i;
            in_comment_ = false;
            break;
        }
        for (; comment_seen_ < at; ++comment_seen_) {
            if (text_[comment_seen_] != '!') continue;
            in_comment_ = kind != GroupKind::Keywords || !in_comment_;
        }
    }

    [[nodiscard]] bool is_first_on_line(std::size_t at) const noexcept {
        const std::size_t begin = blanks_begin(at);
        return begin == text_begin_ || is_line_end(text_[begin - 1]);
    }

    [[nodiscard]] bool is_in_column_two(std::size_t at) const noexcept {
        return at > 0 && text_[at - 1] == ' ' && (at == 1 || is_line_end(text_[at - 2]));
    }

    /// Carries on over the bytes since the last hit whether a group ended on this line.
    void follow_line_of_end(std::size_t at) noexcept {
        for (std::size_t i = seen_; on_line_of_end_ && i < at; ++i)
            on_line_of_end_ = !is_line_end(text_[i]);
    }

    [[nodiscard]] std::size_t end_of_name(std::size_t at) const noexcept {
        std::size_t end = at + 1;
        while (end < text_.size() && !detail::is_blank(text_[end]) && text_[end] != '$') ++end;
        return end;
    }

    /// Where the blanks in front of a header begin: a group that it ends does not own them.
    [[nodiscard]] std::size_t blanks_begin(std::size_t at) const noexcept {
        while (at > text_begin_ && is_padding(text_[at - 1])) --at;
        return at;
    }

    void begin_group(std::string name, bool visible, Span header) {
        if (const std::size_t ends = count_line_ends(text_, {counted_, header.begin}); ends > 0) {
            line_ += ends;
            line_begin_ = line_begin(text_, header.begin);
        }
        counted_ = header.begin;
        const std::size_t column = header.begin - line_begin_ + 1;
        const GroupKind kind = kind_of_group(name);
        if (!has_room(header.begin)) return;
        const std::size_t occurrence =
            keeps_last_only_ ? 0 : ++occurrences_[name + (visible ? '+' : '-')];
        groups_.push_back(
            {std::move(name), occurrence, kind, visible, line_, column, header, {}, {}});
        open_ = true;
        comment_seen_ = header.end;
        in_comment_ = false;
    }

    /// Whether one more group may be kept. Where many stand close together, the room that doubling
    /// makes would be much beside the text.
    bool has_room(std::size_t at) {
        constexpr std::size_t few = 16;
        constexpr std::size_t far_apart = 64;  // bytes from one group to the next
        ++begun_;
        if (keeps_last_only_)
            groups_.clear();
        else if (groups_.size() >= few && groups_.size() == groups_.capacity())
            must_count_ = at / far_apart < groups_.size();
        return !must_count_;
    }

    void end_group(std::size_t at) {
        close({at, at + end_marker.size()});
        on_line_of_end_ = true;
    }

    void close(Span terminator) noexcept {
        Group& group = groups_.back();
        group.body = {group.header.end, terminator.begin};
        group.terminator = terminator;
        open_ = false;
    }

    std::string_view text_;
    std::size_t text_begin_;  // behind a byte-order mark
    std::vector<Group> groups_;
    std::unordered_map<std::string, std::size_t> occurrences_;  // by name and visibility
    std::size_t begun_ = 0;                                     // groups begun
    bool keeps_last_only_ = false;                              // they are only counted
    bool must_count_ = false;                                   // before more are kept
    bool open_ = false;                                         // the last group has not ended
    bool in_comment_ = false;                                   // at comment_seen_, inside a group
    bool on_line_of_end_ = false;   // no line end since the last group ended
    std::size_t comment_seen_ = 0;  // up to here comments were followed
    std::size_t seen_ = 0;          // the last hit
    std::size_t counted_ = 0;       // up to here line ends were counted
    std::size_t line_ = 1;          // the line of counted_
    std::size_t line_begin_ = 0;    // where that line begins
};

}  // namespace

std::vector<Group> index_groups(std::string_view text) {
    if (auto groups = Indexer(text).run()) return *std::move(groups);
    Indexer indexer(text);
    indexer.reserve(Indexer(text).count());
    return *indexer.run();
}

}  // namespace nurl::input::gamess::source
