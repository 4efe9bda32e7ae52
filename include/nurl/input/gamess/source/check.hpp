/// @file
/// Finding what is wrong in a deck, and where, before GAMESS does.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/export.hpp"
#include "nurl/input/gamess/model.hpp"
#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

/// What a rule looks for.
struct Rule {
    std::string_view name;  ///< stable, lower case with hyphens: "missing-end"
    validation::Severity severity =
        validation::Severity::Info;  ///< of its findings. `Error` means
                                     ///< that GAMESS would stop, or compute something else than
                                     ///< what is written; `Info` is worth a look and no more
    std::string_view summary;        ///< one line, lower case, without a full stop
    std::string_view explanation;  ///< one paragraph: what GAMESS does, why it matters, what to do
};

/// All rules, by name in ascending order; valid for the life of the process. `docs/rules.md` tells
/// what each of them is about and what they find in real decks.
[[nodiscard]] NURL_GMS_INP_EXPORT std::span<const Rule> rules() noexcept;

/// The rule of a name, or null. Any letter case.
[[nodiscard]] NURL_GMS_INP_EXPORT const Rule* find_rule(std::string_view name) noexcept;

/// Which rules run.
struct CheckOptions {
    std::vector<std::string>
        disabled;  ///< names of rules that do not run; unknown ones are ignored
};

/// One finding.
struct Finding {
    std::string rule;                                            ///< name of the rule that found it
    validation::Severity severity = validation::Severity::Info;  ///< the rule's
    Span span;                                                   ///< the bytes it is about
    Position position;                                           ///< where `span` begins
    std::string message;    ///< a sentence without a full stop, on one line
    std::string hint;       ///< what may have been meant: "did you mean MAXIT?"; often empty
    std::vector<Edit> fix;  ///< edits that mend it without changing what the rest of the deck says,
                            ///< for `Deck::apply`; empty when only the author can know

    bool operator==(const Finding&) const = default;
};

/// Checks a deck by all rules that are not disabled.
///
/// @return the findings by place, those at the same place by name of their rule
///
/// O(n log n) in the length of the text. Holds no more than 700 bytes of memory for each byte of it
/// and 64 KiB. Throws only on memory exhaustion. The first call of the process loads the schema.
/// Safe to call from several threads on an unchanging deck.
///
///     for (const source::Finding& finding : source::check(deck)) report(finding);
[[nodiscard]] NURL_GMS_INP_EXPORT std::vector<Finding> check(const Deck& deck,
                                                             const CheckOptions& options = {});

}  // namespace nurl::input::gamess::source
