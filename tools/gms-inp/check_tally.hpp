/// @file
/// What has been found in all decks that were checked.
#pragma once

#include <cstddef>
#include <span>
#include <string>

#include <nlohmann/json_fwd.hpp>

#include "exit_code.hpp"
#include "nurl/input/gamess/source/check.hpp"

namespace gms_inp {

/// Counts of decks and findings.
struct CheckTally {
    std::size_t files = 0;       ///< decks that were asked for
    std::size_t errors = 0;      ///< findings that remain
    std::size_t warnings = 0;    ///< findings that remain
    std::size_t notes = 0;       ///< findings that remain and do not count
    std::size_t fixed = 0;       ///< findings that are no more
    std::size_t unreadable = 0;  ///< decks that could not be checked
    std::size_t unwritten = 0;   ///< decks whose fixes could not be written

    /// Counts the findings of a deck by severity.
    void add(std::span<const nurl::input::gamess::source::Finding> findings) noexcept;

    /// Trouble when a deck could not be read or written, findings when there are errors or
    /// warnings.
    [[nodiscard]] ExitCode exit_code() const noexcept;
};

/// The counts as a line: "2 files: 1 error, 3 notes".
[[nodiscard]] std::string text_of(const CheckTally& tally);

/// The counts as an object, a member for each.
[[nodiscard]] nlohmann::ordered_json json_of(const CheckTally& tally);

}  // namespace gms_inp
