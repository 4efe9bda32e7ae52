/// @file
/// What is known about GAMESS groups and keywords.
///
/// The knowledge is one table for the whole process: a built-in set of 23 groups, laid under a
/// schema file `gamess.yaml` that is found and read once, by the first query. A file that is
/// missing, unreadable or partly malformed gives a smaller table and no error. After the first
/// query the table never changes, so all queries may be made from any thread at any time.
///
/// The file is the value of the environment variable `NURL_GMS_INP_SCHEMA_YAML` when that names a
/// regular file, otherwise what `resolve_schema_path("")` finds. A UTF-8 byte-order mark at its
/// start is skipped.
///
/// Unless it says otherwise, a function here throws only on memory exhaustion and costs time linear
/// in the length of the names given, whatever the size of the table.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "nurl/input/gamess/export.hpp"

namespace nurl::input::gamess::schema {

/// How the reader treats the body of a group.
enum class SectionParseMode : std::int32_t {
    Structured = 0,  ///< keyword text with a structured record in the document, such as `$CONTRL`
    Keywords = 1,    ///< keyword text in generic form; also taken for groups that are not known
    Raw = 2,         ///< free-format text, kept line by line, such as `$VEC`
};

/// Kind of a keyword.
enum class EntryKind : std::int32_t {
    Unspecified = 0,  ///< the schema does not say
    Value = 1,        ///< a keyword that takes a value
    Flag = 2,         ///< a logical switch
};

/// What the schema says about one keyword.
struct EntrySpec {
    EntryKind kind = EntryKind::Unspecified;  ///< value or switch
    std::string value_type = "token";         ///< type word in lower case, any; see `source::check`
    bool indexed = false;                     ///< written with an index, such as `C(1)`
    bool repeated = false;                    ///< may occur more than once

    bool operator==(const EntrySpec&) const = default;
};

/// What the schema says about one group.
struct SectionSpec {
    bool known = false;                 ///< true for every group in the table
    bool requires_end = true;           ///< the group is closed by `$END`
    bool allow_unknown_entries = true;  ///< keywords that are not listed are tolerated
    bool allow_raw_lines = true;        ///< text that is no keyword is tolerated
    SectionParseMode parse_mode = SectionParseMode::Keywords;  ///< how the body is read
    std::string alias_of;  ///< normalised name of the group that stands for this one, or empty
    std::unordered_map<std::string, EntrySpec> entries;  ///< keywords by normalised name

    bool operator==(const SectionSpec&) const = default;
};

/// Looks for the schema file on disk.
///
/// @param explicit_path  a path to take before any other when it is a regular file; may be empty
/// @return the first regular file among `explicit_path`, the value of `NURL_GMS_INP_SCHEMA_YAML`,
///         and `resources/schemas/input/gamess.yaml` or `share/nurllib/schemas/input/gamess.yaml`
///         under the current directory, the directory of the program, the directory of this
///         library, and up to six parents of each; empty when there is none. In a process of
///         root, files below these directories count only where nobody else can write; the first
///         two paths are taken as they are.
///
/// Touches the file system on every call; the loaded table is not affected.
[[nodiscard]] NURL_GMS_INP_EXPORT std::string resolve_schema_path(const std::string& explicit_path);

/// Brings a group name to the form the table uses: trimmed, lower case, one leading `$` dropped.
///
///     normalize_section_name(" $Contrl ");  // "contrl"
[[nodiscard]] NURL_GMS_INP_EXPORT std::string normalize_section_name(std::string_view name);

/// Brings a keyword to the form the table uses: as a group name, and without an index suffix.
///
/// The suffix goes from the first `(` to a `)` at the very end; other parentheses stay.
///
///     normalize_entry_name(" ZMAT(2) ");  // "zmat"
///     normalize_entry_name("X(1)Y");      // "x(1)y"
[[nodiscard]] NURL_GMS_INP_EXPORT std::string normalize_entry_name(std::string_view name);

/// Finds a group, following its alias.
///
/// @param section  any spelling that `normalize_section_name` brings to the name
/// @return the description, or null when the group is not known. An alias that leads nowhere or to
///         itself is ignored; a chain is followed for seventeen steps at the most. Valid for the
///         life of the process.
[[nodiscard]] NURL_GMS_INP_EXPORT const SectionSpec* find_section(std::string_view section);

/// Finds a keyword of a group. Only the keywords of the group that the alias leads to count.
///
/// @param section  as for `find_section`
/// @param entry    any spelling that `normalize_entry_name` brings to the name; an index suffix
///                 does not count
/// @return the description, or null when the group or the keyword is not known; valid for the life
///         of the process
[[nodiscard]] NURL_GMS_INP_EXPORT const EntrySpec* find_entry(std::string_view section,
                                                              std::string_view entry);

/// Whether a group may hold text that is no keyword. @return true when the group is not known
[[nodiscard]] NURL_GMS_INP_EXPORT bool section_allows_raw_lines(std::string_view section);

/// How the body of a group is read. @return `Keywords` when the group is not known
[[nodiscard]] NURL_GMS_INP_EXPORT SectionParseMode section_parse_mode(std::string_view section);

/// Whether a group may hold keywords that are not listed. @return true when it is not known
[[nodiscard]] NURL_GMS_INP_EXPORT bool section_allows_unknown_entries(std::string_view section);

/// The names of all groups in the table, aliases included, in lower case without `$`.
///
/// @return sorted by bytes, ascending; O(n log n) in the number of groups
[[nodiscard]] NURL_GMS_INP_EXPORT std::vector<std::string> section_names();

}  // namespace nurl::input::gamess::schema
