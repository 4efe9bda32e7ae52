/// @file
/// The pieces that typed records are read and written with. Entry points for hosts that model
/// further groups in the same manner.
///
/// Nothing here reports errors or throws for content: a parser that fails returns false and leaves
/// its output as it was, a writer skips what is absent. When memory runs out, lists and documents
/// are as they were.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/export.hpp"
#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::typed::detail {

/// What a group holds, wherever the reader left it.
struct SectionContent {
    std::vector<KeyValue> entries;  ///< keywords in upper case with their index, values trimmed
    std::vector<std::string> raw_lines;  ///< text that is no keyword entry

    bool operator==(const SectionContent&) const = default;
};

/// Reads integers separated by commas; blanks around them and empty pieces do not count.
///
/// @param list  replaced as a whole; emptied by a text without any piece
/// @return      false, with `list` untouched, when a piece is no 32-bit decimal integer. Blanks do
///              not separate, and a repeat count such as `3*0` is no integer.
///
///     parse_int_list("1, 2,,3", list);  // true: 1 2 3
[[nodiscard]] NURL_GMS_INP_EXPORT bool parse_int_list(std::string_view text,
                                                      std::vector<std::int32_t>& list);

/// Reads reals separated by commas, as `parse_int_list` reads integers. Exponents may be written
/// with `E` or `D`.
[[nodiscard]] NURL_GMS_INP_EXPORT bool parse_double_list(std::string_view text,
                                                         std::vector<double>& list);

/// Reads a logical value: `.T.`, `TRUE`, `T`, `1`, `YES` or `.F.`, `FALSE`, `F`, `0`, `NO`, in any
/// case and with blanks around it. @return false, with `value` untouched, for every other text
[[nodiscard]] NURL_GMS_INP_EXPORT bool try_parse_bool(std::string_view text, bool& value);

/// A keyword in upper case, trimmed, without the index suffix that ends it.
///
///     base_key(" nstate(1) ");  // "NSTATE"
///     base_key("X(1)Y");        // "X(1)Y"
[[nodiscard]] NURL_GMS_INP_EXPORT std::string base_key(std::string_view key);

/// Gathers the keyword entries of a group: its entries in order, then the pairs in its raw lines.
///
/// A raw line without pairs is kept verbatim unless it is blank; of a line with pairs, what is left
/// is kept, joined without separators and trimmed. Linear in the size of the group.
[[nodiscard]] NURL_GMS_INP_EXPORT SectionContent
collect_section_content(const NamedSection& section);

/// Appends an integer in decimal; nothing when it is absent. Like all `push_` functions, it stores
/// the key trimmed and in upper case, and appends nothing under a blank key.
NURL_GMS_INP_EXPORT void push_optional_int(std::vector<KeyValue>& entries, std::string_view key,
                                           std::optional<std::int32_t> value);

/// Appends a real with 15 significant digits, `E` for an exponent, and no trailing zeros; nothing
/// when it is absent. Infinities and NaNs are written as INF and NAN, which no reader takes.
///
///     push_optional_double(entries, "opttol", 1e-5);  // OPTTOL, 1E-05
NURL_GMS_INP_EXPORT void push_optional_double(std::vector<KeyValue>& entries, std::string_view key,
                                              std::optional<double> value);

/// Appends ".T." or ".F."; nothing when the value is absent.
NURL_GMS_INP_EXPORT void push_optional_bool(std::vector<KeyValue>& entries, std::string_view key,
                                            std::optional<bool> value);

/// Appends a word in upper case, trimmed; nothing when it is absent or blank.
NURL_GMS_INP_EXPORT void push_optional_token(std::vector<KeyValue>& entries, std::string_view key,
                                             const std::optional<std::string>& value);

/// Appends integers joined by commas; nothing when there is none. No index is added: the key is to
/// come with the one it is written with.
NURL_GMS_INP_EXPORT void push_int_list(std::vector<KeyValue>& entries, std::string_view key,
                                       const std::vector<std::int32_t>& list);

/// Appends reals joined by commas, each as `push_optional_double` writes it.
NURL_GMS_INP_EXPORT void push_double_list(std::vector<KeyValue>& entries, std::string_view key,
                                          const std::vector<double>& list);

/// Puts a group together: the name trimmed and in upper case, the entries as they are, the extra
/// entries with trimmed texts and keys in upper case (also those without a value), the raw lines.
[[nodiscard]] NURL_GMS_INP_EXPORT NamedSection
make_named_section(std::string name, std::vector<KeyValue> entries,
                   std::vector<KeyValue> extra_entries, std::vector<std::string> raw_lines);

/// Replaces the content of a group, or adds it where `GamessInput::upsert_section` adds groups. The
/// group is named `name`, trimmed and in upper case, and keeps its place. The document is as it was
/// when memory runs out.
NURL_GMS_INP_EXPORT void set_named_section(GamessInput& input, std::string_view name,
                                           NamedSection section);

/// Reads the group of a name with `parse`. @return nothing when the document has no such group; a
/// group that is there but empty gives what `parse` makes of it
template <class T>
[[nodiscard]] std::optional<T> get_section_model(const GamessInput& input, std::string_view name,
                                                 T (*parse)(const NamedSection&)) {
    const NamedSection* const section = input.find_section(name);
    if (section == nullptr) return std::nullopt;
    return parse(*section);
}

}  // namespace nurl::input::gamess::typed::detail
