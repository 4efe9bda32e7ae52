/// @file
/// Messages with a place and a weight.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace gms_inp {

/// Weight of a message.
enum class Weight {
    Note,     ///< worth knowing
    Info,     ///< a finding that does not count
    Warning,  ///< a finding that counts
    Error,    ///< a finding that counts, or trouble
    Fixed,    ///< a finding that is no more
};

/// Whether a message is coloured.
enum class Colour {
    Off,  ///< plain text
    On,   ///< escape sequences around the weight
};

/// A message to the user.
struct Diagnostic {
    std::string_view place;    ///< name of a file, or of the program
    std::size_t line = 0;      ///< line of the file, from 1; 0 when there is none
    std::size_t column = 0;    ///< column of the line, from 1; 0 when there is none
    Weight weight;             ///< how much it matters
    std::string_view message;  ///< a sentence
};

/// The word for a weight, lower case.
[[nodiscard]] std::string_view text_of(Weight weight) noexcept;

/// A message as one line, `place:line:column: weight: message` and a newline, with control
/// characters escaped.
[[nodiscard]] std::string format(const Diagnostic& diagnostic, Colour colour);

/// Writes a message to standard error, coloured on a terminal. Failures are ignored: there is no
/// better place to report them.
void complain(const Diagnostic& diagnostic);

/// The name under which a file is reported: the path, or "<stdin>" for `-`.
[[nodiscard]] std::string shown_name(const std::string& path);

}  // namespace gms_inp
