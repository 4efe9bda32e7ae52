/// @file
/// Reading one group other than `$DATA` in generic form.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/model.hpp"
#include "nurl/input/gamess/schema.hpp"
#include "reader/deck_line.hpp"
#include "reader/line_cursor.hpp"
#include "reader/pair_split.hpp"

namespace nurl::input::gamess::detail {

/// Reads the groups of one text, one after another with the same working memory.
///
/// Keyword text becomes entries; what is left of a line, or every line of a raw group, becomes a
/// raw line. The schema says which of the two a group is.
class GroupReader {
public:
    /// @param warnings  takes a sentence for a missing `$END` and for free text in a structured
    /// group
    explicit GroupReader(std::vector<std::string>& warnings) noexcept : warnings_(&warnings) {}

    /// Reads a group up to its `$END`, the next header or the end of the text.
    ///
    /// @param header  the header of the group, on which `lines` stands
    /// @param lines   moved behind the group, or onto the header that ended it
    [[nodiscard]] NamedSection read(const HeaderLine& header, LineCursor& lines);

private:
    void reserve_raw_lines(const LineCursor& lines);
    std::string_view read_body(LineCursor& lines);
    void add(std::string_view text, std::string_view kept);
    void warn(std::string_view about);

    std::vector<std::string>* warnings_;
    NamedSection section_;  // under construction
    schema::SectionParseMode mode_ = schema::SectionParseMode::Keywords;
    std::vector<PairText> pairs_;  // its pairs, which become entries all at once
    std::string leftover_;         // of one line
};

}  // namespace nurl::input::gamess::detail
