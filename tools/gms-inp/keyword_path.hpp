/// @file
/// How groups and keywords are named on the command line.
#pragma once

#include <string>
#include <string_view>

namespace gms_inp {

/// `GROUP` or `GROUP.KEY`.
struct KeywordPath {
    std::string group;  ///< upper case, no `$`; never empty
    std::string key;    ///< upper case; empty when the whole group is meant
};

/// `GROUP.KEY=VALUE`.
struct Assignment {
    KeywordPath path;   ///< with a key
    std::string value;  ///< as given; never empty
};

/// Reads `GROUP[.KEY]`: any letter case, blanks around the names and one `$` in front are ignored;
/// the first point separates.
///
/// @throws std::runtime_error when a name is empty
[[nodiscard]] KeywordPath parse_path(std::string_view argument);

/// Reads `GROUP.KEY=VALUE`: the first `=` behind the first point separates.
///
/// @throws std::runtime_error when point or `=` is missing, or a name or the value is empty
[[nodiscard]] Assignment parse_assignment(std::string_view argument);

/// The path as it is shown: `$GROUP` or `$GROUP.KEY`.
[[nodiscard]] std::string text_of(const KeywordPath& path);

}  // namespace gms_inp
