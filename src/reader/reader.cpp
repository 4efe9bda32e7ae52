#include "nurl/input/gamess/reader.hpp"

#include <cstddef>
#include <utility>
#include <vector>

#include "model/text_view.hpp"
#include "reader/data_group.hpp"
#include "reader/deck_line.hpp"
#include "reader/group_reader.hpp"
#include "reader/lift.hpp"
#include "reader/line_cursor.hpp"

namespace nurl::input::gamess {

namespace {

/// The number of headers from the line on which `lines` stands.
std::size_t count_headers(detail::LineCursor lines) noexcept {
    std::size_t count = 0;
    for (; !lines.at_end(); lines.advance())
        if (lines.has_dollar() && detail::read_header(lines.line())) ++count;
    return count;
}

/// Where groups stand close together, those still to come are counted once: twice the room that
/// they need would be much beside the text.
void make_room(const detail::LineCursor& lines, std::vector<NamedSection>& sections) {
    constexpr std::size_t few = 16;
    constexpr std::size_t far_apart = 64;  // bytes from one group to the next
    if (sections.size() < few || sections.size() < sections.capacity()) return;
    if (lines.offset() / far_apart < sections.size())
        sections.reserve(sections.size() + count_headers(lines));
}

void read_any_group(const detail::HeaderLine& header, detail::LineCursor& lines,
                    detail::GroupReader& groups, ParseResult& result) {
    if (detail::equal_ignoring_case(header.name, "DATA")) {
        detail::read_data_group(header, lines, result);
        return;
    }
    std::vector<NamedSection>& sections = result.input.sections;
    make_room(lines, sections);
    sections.push_back(groups.read(header, lines));
    detail::lift_structured(sections.back(), result.input);
}

}  // namespace

ParseResult parse_string(std::string_view text) {
    ParseResult result;
    detail::GroupReader groups(result.warnings);
    detail::LineCursor lines(detail::without_byte_order_mark(text));
    while (!lines.at_end()) {
        if (const auto header = detail::read_header(lines.line())) {
            result.ok = true;
            read_any_group(*header, lines, groups, result);
        } else {
            lines.advance();
        }
    }
    if (!result.ok) result.error = "The input does not contain any GAMESS sections";
    return result;
}

}  // namespace nurl::input::gamess
