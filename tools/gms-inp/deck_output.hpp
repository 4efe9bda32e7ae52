/// @file
/// Where text that the program made goes to.
#pragma once

#include <string>
#include <string_view>

namespace gms_inp {

/// Makes sure that an output is not a file that is read, whatever links lead there.
///
/// @param input   a file, or `-` for standard input
/// @param output  a file, or `-` for standard output, which is always fine
/// @throws std::runtime_error when both are the same file
void refuse_same_file(const std::string& input, const std::string& output);

/// Makes sure that a deck is not edited in place where reading uses up what is there: a pipe would
/// wait for ever for somebody to take the new text.
///
/// @param path  a file; one that does not exist, or is a directory, is fine here and fails when it
/// is read
/// @throws std::runtime_error when it is a pipe, a device or a socket
void require_editable_in_place(const std::string& path);

/// Writes text as a whole or not at all: other programs see the old file or the new one. Symbolic
/// links are followed, and the mode of a file that was there is kept.
///
/// @throws std::runtime_error when that fails; the message names the file, which is as it was
void write_file(const std::string& path, std::string_view text);

/// Writes text to a file as `write_file` does, or to standard output when `output` is `-`.
///
/// @throws std::runtime_error when it cannot be written
void write_output(const std::string& output, std::string_view text);

}  // namespace gms_inp
