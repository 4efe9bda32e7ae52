/// @file
/// Reading deck text and deck files into the document model.
///
/// Reading never throws for content. What is odd but tolerable becomes a warning sentence, what
/// cannot be interpreted is kept as raw text, and only a text without any group fails.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/export.hpp"
#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess {

/// Reads the text of a deck.
///
/// Lines end at LF, CR LF or a lone CR; a UTF-8 byte-order mark at the very start is skipped. A
/// line whose first character that is not blank is `$`, with a name directly behind it, opens a
/// group; the first `$END` in any letter case closes it. Text between groups and behind `$END` is
/// not kept.
///
/// Each group but `$DATA` goes to `GamessInput::sections`; `$CONTRL`, `$SYSTEM`, `$BASIS`, `$SCF`
/// and `$GUESS` are also lifted into their structured records, where a value that does not convert
/// is kept in `extra`. `$DATA` fills `title`, `point_group`, `atoms` and `data_lines`; a second
/// one goes on where the first ended, text on its header included, so no title is overwritten.
///
/// @return the document with `ok` set when at least one group was found. Otherwise `error` is "The
///         input does not contain any GAMESS sections". Warnings tell of groups without `$END` and
///         of free text in structured groups; they never clear `ok`.
///
/// Linear in the length of the text. Throws only on memory exhaustion. The first call that meets a
/// group other than `$DATA` loads the schema. Any number of threads may read at once.
///
///     const ParseResult deck = parse_string(" $contrl scftyp=uhf mult=2 $end\n");
///     deck.input.control.scftyp;  // "UHF"
[[nodiscard]] NURL_GMS_INP_EXPORT ParseResult parse_string(std::string_view text);

/// Reads a deck file as `parse_string` reads its content.
///
/// @return as `parse_string`. When the path cannot be opened or read (a directory, a NUL in it, an
///         I/O error), a default result whose `error` is "Failed to open file: " and the path as
///         given.
[[nodiscard]] NURL_GMS_INP_EXPORT ParseResult parse_file(const std::string& path);

namespace detail {

/// One `KEY=VALUE` pair found in a stretch of group text. An entry point for callers that scan
/// group text themselves.
struct ScannedKeyValue {
    std::string key;        ///< keyword in upper case, with its index suffix: `NAME(2)`
    std::string value;      ///< value text, trimmed, case and inner blanks kept; never empty
    std::size_t begin = 0;  ///< offset of the first character of the key
    std::size_t end = 0;    ///< offset at which the value stopped

    bool operator==(const ScannedKeyValue&) const = default;
};

/// Finds the `KEY=VALUE` pairs in a stretch of group text.
///
/// A key starts at a letter and goes on over letters, digits and `_`; a balanced suffix in
/// parentheses directly behind it belongs to it. Blanks and line ends around `=` are allowed. A
/// value ends at a `$`, at blanks followed by `$` or by the next pair, or at the end of the text;
/// blanks in front of anything else belong to the value. Quotes and comments have no meaning here.
/// What is not part of a pair is skipped: use `begin` and `end` to find it.
///
/// @return the pairs in order of appearance, with ascending spans that do not overlap
///
/// Linear in the length of the text. Throws only on memory exhaustion.
///
///     scan_key_values("title=two words Next = 1");  // TITLE "two words", NEXT "1"
[[nodiscard]] NURL_GMS_INP_EXPORT std::vector<ScannedKeyValue> scan_key_values(
    std::string_view text);

}  // namespace detail

}  // namespace nurl::input::gamess
