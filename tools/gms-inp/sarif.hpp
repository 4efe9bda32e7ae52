/// @file
/// Findings as a SARIF log, which code hosts and editors read.
///
/// Source of the format: OASIS Static Analysis Results Interchange Format 2.1.0.
#pragma once

#include <span>
#include <string>

#include <nlohmann/json.hpp>

#include "line_table.hpp"
#include "nurl/input/gamess/source/check.hpp"

namespace gms_inp {

/// A log of one run over some decks.
class SarifLog {
public:
    /// Adds the findings of a deck.
    ///
    /// @param path   the deck as the command line names it, or `-` for standard input
    /// @param lines  of the text that the findings are about
    void add(const std::string& path,
             std::span<const nurl::input::gamess::source::Finding> findings,
             const LineTable& lines);

    /// Adds a message about a deck that could not be checked; the run then counts as failed.
    void add_failure(const std::string& message);

    /// The log with all rules. Columns count bytes; paths are relative to the current directory
    /// unless they were given as absolute ones.
    [[nodiscard]] nlohmann::ordered_json json() const;

private:
    nlohmann::ordered_json results_ = nlohmann::ordered_json::array();
    nlohmann::ordered_json failures_ = nlohmann::ordered_json::array();
};

/// A path as a URI reference: everything but letters, digits, `/` and `-._~` is percent-encoded,
/// and an absolute path begins with `file://`.
///
///     uri_of("my deck.inp");  // "my%20deck.inp"
[[nodiscard]] std::string uri_of(const std::string& path);

}  // namespace gms_inp
