/// @file
/// `$FMO` as a typed record: the fragment molecular orbital method.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "nurl/input/gamess/export.hpp"
#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::typed {

/// `$FMO`: the fragment molecular orbital method.
///
/// An absent optional and an empty list mean that the deck does not set the keyword. Tokens are
/// held in upper case.
struct FmoSection {
    std::optional<std::int32_t> nfrag;  ///< `NFRAG`: number of fragments
    std::optional<std::int32_t> nbody;  ///< `NBODY`: order of the many-body expansion: 1 to 3
    /// `RCORSD`: distance up to which pairs are treated with correlation, relative to van der Waals
    /// radii
    std::optional<double> rcorsd;
    /// `RCORBS`: distance up to which basis functions are kept, relative to van der Waals radii
    std::optional<double> rcorbs;
    std::optional<std::int32_t> modfd;    ///< `MODFD`: frozen domain and dimers: mode
    std::optional<std::int32_t> modgs;    ///< `MODGS`: grouping of fragments: mode
    std::optional<std::int32_t> nbuffmo;  ///< `NBUFFMO`: number of buffer fragments
    /// `RESDIM`: distance beyond which pairs are taken electrostatically, relative to van der Waals
    /// radii
    std::optional<std::int32_t> resdim;
    std::vector<std::int32_t> icharg;     ///< `ICHARG`: charge of each fragment, in units of e
    std::vector<std::int32_t> mult;       ///< `MULT`: spin multiplicity of each fragment
    std::vector<KeyValue> extra_entries;  ///< unknown keywords, and values that did not convert
    std::vector<std::string> raw_lines;   ///< text of the group that is no keyword entry

    bool operator==(const FmoSection&) const = default;
};

/// Reads a group as `$FMO`, whatever its name. What does not fit a member is kept in
/// `extra_entries`, and nothing is thrown for content. Linear in the size of the group.
[[nodiscard]] NURL_GMS_INP_EXPORT FmoSection as_fmo_section(const NamedSection& section);

/// Writes a record as the group `FMO`: its members in their order, then `extra_entries`, then
/// `raw_lines`. A default record gives a group without keywords.
[[nodiscard]] NURL_GMS_INP_EXPORT NamedSection to_named_section(const FmoSection& record);

/// Reads the `$FMO` of a document. @return nothing when the document has no such group
[[nodiscard]] NURL_GMS_INP_EXPORT std::optional<FmoSection> get_fmo_section(
    const GamessInput& input);

/// Replaces the `$FMO` of a document as a whole, keeping its place, or adds it where
/// `GamessInput::upsert_section` adds groups. The document is as it was when memory runs out.
NURL_GMS_INP_EXPORT void set_fmo_section(GamessInput& input, const FmoSection& record);

}  // namespace nurl::input::gamess::typed
