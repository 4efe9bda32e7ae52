/// @file
/// How the program ends.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace gms_inp {

/// Exit status of the program.
enum class ExitCode : int {
    Fine = 0,      ///< done, nothing to complain about
    Findings = 1,  ///< findings, differences, or a group or keyword that is not there
    Trouble = 2,   ///< wrong usage, a file that cannot be read or written, an edit that cannot be
                   ///< done
};

/// An exit status and what it tells the user.
struct ExitCodeText {
    ExitCode code;          ///< the status
    std::string_view text;  ///< one phrase for the help text
};

/// Every exit status with its text, ascending.
inline constexpr auto exit_code_texts = std::to_array<ExitCodeText>({
    {ExitCode::Fine, "done, nothing to complain about"},
    {ExitCode::Findings, "findings, differences, or a group or keyword that is not there"},
    {ExitCode::Trouble, "wrong usage, or a file that cannot be read, edited or written"},
});

/// The status as the operating system takes it.
[[nodiscard]] constexpr int status_of(ExitCode code) noexcept { return static_cast<int>(code); }

/// The table as a paragraph of the help text, a line for each status.
[[nodiscard]] std::string exit_code_help();

}  // namespace gms_inp
