/// @file
/// Printing what `check` found, deck by deck, in one of three formats.
#pragma once

#include <span>
#include <string>

#include <nlohmann/json.hpp>

#include "check_tally.hpp"
#include "nurl/input/gamess/source/check.hpp"
#include "nurl/input/gamess/source/deck.hpp"
#include "sarif.hpp"

namespace gms_inp {

/// How findings are printed.
enum class ReportFormat {
    Text,   ///< a line for each finding; on a terminal with the line of the deck
    Json,   ///< one object with all decks
    Sarif,  ///< a SARIF log
};

/// The format of a name, in any letter case.
///
/// @throws std::runtime_error when it is none of `text`, `json` and `sarif`
[[nodiscard]] ReportFormat format_named(const std::string& name);

/// What a check of one deck gave.
struct DeckReport {
    const std::string& path;                                        ///< as on the command line
    const nurl::input::gamess::source::Deck& deck;                  ///< what `remains` is about
    std::span<const nurl::input::gamess::source::Finding> fixed;    ///< findings that are no more
    std::span<const nurl::input::gamess::source::Finding> remains;  ///< findings
};

/// Prints reports: text as they come, the other formats at the end.
class CheckReport {
public:
    /// A report without decks.
    ///
    /// @param quiet  only the summary is printed; for text
    CheckReport(ReportFormat format, bool quiet) : format_{format}, quiet_{quiet} {}

    /// Takes the findings of a deck.
    ///
    /// @throws std::runtime_error when they cannot be printed, as all members here
    void add(const DeckReport& report);

    /// Takes a deck that could not be checked.
    void add_failure(const std::string& path, const std::string& message);

    /// Prints what is left to print.
    void finish(const CheckTally& tally) const;

private:
    ReportFormat format_;
    bool quiet_;
    nlohmann::ordered_json files_ = nlohmann::ordered_json::array();
    SarifLog log_;
};

}  // namespace gms_inp
