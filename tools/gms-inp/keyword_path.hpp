/// @file
/// How groups and keywords are named on the command line.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace gms_inp {

/// `GROUP` or `GROUP.KEY`.
struct KeywordPath {
    std::string group;  ///< upper case, no `$`; never empty
    std::string key;    ///< upper case; empty when the whole group is meant
};

/// Which copies of a group are meant.
enum class Copies {
    All,       ///< `GROUP`: not said
    Numbered,  ///< `GROUP#n`
    Last,      ///< `GROUP#last`
};

/// `GROUP`, `GROUP#n` or `GROUP#last`.
struct GroupPath {
    std::string group;            ///< upper case, no `$`; never empty
    Copies copies = Copies::All;  ///< which copies
    std::uint64_t number = 0;     ///< for `Copies::Numbered`, counted from 1
};

/// `GROUP.KEY=VALUE`.
struct Assignment {
    KeywordPath path;   ///< with a key
    std::string value;  ///< as given; never empty
};

/// Reads `GROUP[.KEY]`: any letter case, blanks around the names and one `$` in front are ignored;
/// the first point separates.
///
/// @throws std::runtime_error when a name is empty or the group holds a `#`
[[nodiscard]] KeywordPath parse_path(std::string_view argument);

/// Reads `GROUP[#n|#last]`: the name as by `parse_path`, `last` in any letter case.
///
/// @throws std::runtime_error when the name is empty, or what follows `#` is neither a number from
///         1 on nor `last`
[[nodiscard]] GroupPath parse_group_path(std::string_view argument);

/// Reads `GROUP.KEY=VALUE`: the first `=` behind the first point separates.
///
/// @throws std::runtime_error when point or `=` is missing, or a name or the value is empty
[[nodiscard]] Assignment parse_assignment(std::string_view argument);

/// The path as it is shown: `$GROUP` or `$GROUP.KEY`.
[[nodiscard]] std::string text_of(const KeywordPath& path);

/// The path as it is shown: `$GROUP`, `$GROUP#n` or `$GROUP#last`.
[[nodiscard]] std::string text_of(const GroupPath& path);

}  // namespace gms_inp
