/// @file
/// Comparing a deck with the schema.
///
/// Validation reports, it never changes the document and never throws for what it finds. Whether a
/// finding matters is the caller's decision.
#pragma once

#include <vector>

#include "nurl/input/gamess/export.hpp"
#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::validation {

/// Which checks run.
struct Options {
    bool report_unknown_sections = true;        ///< groups that the schema does not know
    bool report_unknown_keywords = true;        ///< keywords that the schema does not know
    bool report_raw_text_in_structured = true;  ///< free text inside structured groups

    bool operator==(const Options&) const = default;
};

/// Checks a whole document.
///
/// The `extra` lists of the structured records that are present come first, in the order CONTRL,
/// SYSTEM, BASIS, SCF, GUESS; then every group of `sections`, then every group of
/// `extra_sections`, as `validate_section` checks it. A structured group that was read stands in
/// both places, so an unknown keyword of it is reported twice.
///
/// @return the findings in that order; empty when there is nothing to report
///
/// Linear in the size of the document. Throws only on memory exhaustion. The first call of the
/// process loads the schema. Safe to call from several threads on an unchanging document.
[[nodiscard]] NURL_GMS_INP_EXPORT std::vector<Issue> validate(const GamessInput& input,
                                                              const Options& options);

/// Checks one group.
///
/// A group that the schema does not know gives one `Info` and no further findings. In a known
/// group, each keyword that the schema does not list gives a `Warning`, whether it is an entry or,
/// unless the group is raw, stands in a raw line; each raw line of a structured group that is
/// neither blank nor a comment (`!`, `#`) gives an `Error`.
///
/// @return the findings: keywords of entries, raw text, keywords of raw lines
///
/// Linear in the size of the group. Throws only on memory exhaustion.
[[nodiscard]] NURL_GMS_INP_EXPORT std::vector<Issue> validate_section(const NamedSection& section,
                                                                      const Options& options);

}  // namespace nurl::input::gamess::validation
