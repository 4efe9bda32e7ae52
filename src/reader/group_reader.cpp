#include "reader/group_reader.hpp"

#include <algorithm>
#include <utility>

#include "model/text_view.hpp"
#include "nurl/core/text.hpp"

namespace nurl::input::gamess::detail {

namespace {

constexpr std::string_view header_text_kept =
    " preserved non-keyword text from its header as raw text";
constexpr std::string_view body_text_kept = " preserved non-keyword body text as raw text";
constexpr std::string_view ended_by_header =
    " reached the next section before $END; treating it as implicitly terminated";
constexpr std::string_view ended_by_file = " reached end-of-file without $END";

/// Makes room for one more. Half as much again is enough, since lines can be as short as two bytes.
void make_room(std::vector<std::string>& lines) {
    if (lines.size() == lines.capacity()) lines.reserve(lines.size() + lines.size() / 2 + 1);
}

}  // namespace

NamedSection GroupReader::read(const HeaderLine& header, LineCursor& lines) {
    section_.name = core::text::to_upper_copy(header.name);
    mode_ = schema::section_parse_mode(section_.name);
    pairs_.clear();
    const CutText cut = cut_at_end(header.remainder);
    add(cut.text, header_text_kept);
    lines.advance();
    if (!cut.has_end) {
        reserve_raw_lines(lines);
        const std::string_view fault = read_body(lines);
        if (!fault.empty()) warn(fault);
    }
    section_.entries = to_entries(pairs_);
    return std::exchange(section_, {});
}

/// The lines of a punched group are of one length and go on to its `$END`, so their number is
/// known. Short ones are not taken at their word: what they make room for must not outgrow the
/// text.
void GroupReader::reserve_raw_lines(const LineCursor& lines) {
    constexpr std::size_t least_line = 64;
    if (mode_ != schema::SectionParseMode::Raw || lines.at_end()) return;
    section_.raw_lines.reserve(lines.bytes_before_dollar() /
                               std::max(lines.line().size() + 1, least_line));
}

/// Reads the lines behind the header. @return how the group ended, as a warning; empty for `$END`
std::string_view GroupReader::read_body(LineCursor& lines) {
    for (; !lines.at_end(); lines.advance()) {
        if (!lines.has_dollar()) {
            add(lines.line(), body_text_kept);
            continue;
        }
        if (read_header(lines.line())) return ended_by_header;
        const CutText cut = cut_at_end(lines.line());
        add(cut.text, body_text_kept);
        if (cut.has_end) {
            lines.advance();
            return {};
        }
    }
    return ended_by_file;
}

/// Takes a piece of text; `kept` is the warning that free text in it is worth.
void GroupReader::add(std::string_view text, std::string_view kept) {
    const bool is_raw = mode_ == schema::SectionParseMode::Raw;
    if (!is_raw) split_pairs(text, pairs_, leftover_);
    const std::string_view rest = trim_view(is_raw ? text : leftover_);
    if (rest.empty()) return;
    make_room(section_.raw_lines);
    section_.raw_lines.emplace_back(rest);
    if (mode_ == schema::SectionParseMode::Structured && !is_comment(rest)) warn(kept);
}

void GroupReader::warn(std::string_view about) {
    make_room(*warnings_);
    warnings_->push_back("Section $" + section_.name + std::string{about});
}

}  // namespace nurl::input::gamess::detail
