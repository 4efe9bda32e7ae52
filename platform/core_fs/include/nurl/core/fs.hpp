/// @file
/// Writing files so that nothing is lost when it fails.
#pragma once

#include <string>
#include <string_view>

namespace nurl::core::fs {

/// Makes a text the whole content of a file, all or nothing.
///
/// The text goes to a temporary file beside the target, is flushed to disk, and takes the target's
/// place in one step: other programs see the old text or the new one, never a part. The new file
/// has the mode bits of the old one and, where the system allows it, owner and group; set-user-ID
/// and set-group-ID bits go where it does not. A file that was not there gets the mode 0666 less
/// the umask. Symbolic links are followed, to a file that does not exist yet too; further hard
/// links to the old file keep the old text.
///
/// A process that is killed meanwhile leaves the old text or the new one too, but may leave the
/// temporary file, which is named `.nurl-*.tmp`.
///
/// A target that is not a regular file, such as a pipe or a terminal, is written directly, and so
/// is an open descriptor of this process named as `/dev/stdout`, `/dev/fd/N` or `/proc/self/fd/N`,
/// whatever is behind it. A named pipe is waited for until somebody opens it for reading; a pipe
/// whose readers have gone raises SIGPIPE, as any write to it does.
///
/// @param path  absolute, or relative to the current directory, and not longer than the system
///              takes; its directory must exist
/// @param text  the bytes to write, NUL included; may be empty
/// @return      true when the whole text is written and flushed. False when anything failed, for
///              instance when the path is empty, contains a NUL byte, or names a directory or a
///              file that the caller may not write. Then an old regular file is as it was and the
///              temporary file is removed; a target written directly may have got a part.
///
/// Linear in the length of the text, plus the time the disk needs. Throws only on memory
/// exhaustion, with the same promise. May be called from any thread; of two calls on one path the
/// later wins.
///
///     if (!write_text_file("water.inp", text)) report("cannot write water.inp");
[[nodiscard]] bool write_text_file(const std::string& path, std::string_view text);

}  // namespace nurl::core::fs
