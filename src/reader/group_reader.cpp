#include "reader/group_reader.hpp"

#include <string_view>
#include <utility>

#include "model/text_view.hpp"
#include "nurl/core/text.hpp"
#include "nurl/input/gamess/schema.hpp"
#include "reader/pair_split.hpp"

namespace nurl::input::gamess::detail {

namespace {

constexpr std::string_view header_text_kept =
    " preserved non-keyword text from its header as raw text";
constexpr std::string_view body_text_kept = " preserved non-keyword body text as raw text";
constexpr std::string_view ended_by_header =
    " reached the next section before $END; treating it as implicitly terminated";
constexpr std::string_view ended_by_file = " reached end-of-file without $END";

/// The group under construction.
class GroupBody {
public:
    GroupBody(std::string name, std::vector<std::string>& warnings)
        : mode_(schema::section_parse_mode(name)),
          section_{std::move(name), {}, {}},
          warnings_(&warnings) {}

    /// Takes a piece of text; `kept` is the warning that free text in it is worth.
    void add(std::string_view text, std::string_view kept) {
        if (mode_ == schema::SectionParseMode::Raw)
            add_leftover(trim_view(text), kept);
        else
            add_keyword_text(text, kept);
    }

    void warn(std::string_view about) {
        warnings_->push_back("Section $" + section_.name + std::string{about});
    }

    [[nodiscard]] NamedSection take() && { return std::move(section_); }

private:
    void add_keyword_text(std::string_view text, std::string_view kept) {
        split_pairs(text, section_.entries, leftover_);
        add_leftover(trim_view(leftover_), kept);
    }

    void add_leftover(std::string_view text, std::string_view kept) {
        if (text.empty()) return;
        section_.raw_lines.emplace_back(text);
        if (mode_ == schema::SectionParseMode::Structured && !is_comment(text)) warn(kept);
    }

    schema::SectionParseMode mode_;
    NamedSection section_;
    std::vector<std::string>* warnings_;
    std::string leftover_;
};

/// Reads the lines behind the header. @return how the group ended, as a warning; empty for `$END`
std::string_view read_body(LineCursor& lines, GroupBody& body) {
    for (; !lines.at_end(); lines.advance()) {
        if (read_header(lines.line())) return ended_by_header;
        const CutText cut = cut_at_end(lines.line());
        body.add(cut.text, body_text_kept);
        if (cut.has_end) {
            lines.advance();
            return {};
        }
    }
    return ended_by_file;
}

}  // namespace

NamedSection read_group(const HeaderLine& header, LineCursor& lines,
                        std::vector<std::string>& warnings) {
    GroupBody body(core::text::to_upper_copy(header.name), warnings);
    const CutText cut = cut_at_end(header.remainder);
    body.add(cut.text, header_text_kept);
    lines.advance();
    if (!cut.has_end) {
        const std::string_view fault = read_body(lines, body);
        if (!fault.empty()) body.warn(fault);
    }
    return std::move(body).take();
}

}  // namespace nurl::input::gamess::detail
