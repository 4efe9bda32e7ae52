/// @file
/// `$FORCE` as a typed record: the Hessian and the vibrational frequencies.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "nurl/input/gamess/export.hpp"
#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::typed {

/// `$FORCE`: the Hessian and the vibrational frequencies.
///
/// An absent optional and an empty list mean that the deck does not set the keyword. Tokens are
/// held in upper case.
struct ForceSection {
    /// `METHOD`: way to the Hessian: ANALYTIC, SEMINUM or FULLNUM
    std::optional<std::string> method;
    std::optional<bool> rdhess;  ///< `RDHESS`: the Hessian is read from `$HESS`
    /// `PURIFY`: translations and rotations are removed from the Hessian
    std::optional<bool> purify;
    std::optional<bool> prtifc;  ///< `PRTIFC`: internal force constants are printed
    /// `HSSTYP`: form of the Hessian treatment, such as GENERAL
    std::optional<std::string> hsstyp;
    /// `NVIB`: displacements of each coordinate: 1 forward, 2 forward and back
    std::optional<std::int32_t> nvib;
    std::vector<double> vibsiz;          ///< `VIBSIZ`: length of the displacements, in bohr
    std::optional<std::int32_t> nprt;    ///< `NPRT`: amount of printing
    std::optional<std::int32_t> npun;    ///< `NPUN`: amount of punching
    std::optional<std::int32_t> nprhss;  ///< `NPRHSS`: amount of printing of the Hessian
    std::optional<std::int32_t> nzpha;   ///< `NZPHA`: zero-point handling of the normal modes
    std::vector<std::int32_t> jactat;    ///< `JACTAT`: atoms of a partial vibrational analysis
    std::optional<double> vdospa;        ///< `VDOSPA`: width of the vibrational density of states
    std::optional<bool> vibanl;          ///< `VIBANL`: normal modes are analysed
    std::optional<double> sclfac;        ///< `SCLFAC`: factor on the frequencies
    std::vector<double> temp;            ///< `TEMP`: temperatures of the thermochemistry, in kelvin
    std::vector<double> freq;  ///< `FREQ`: frequencies to use in place of computed ones, in cm^-1
    /// `PRTSCN`: contributions of each vibration to the thermochemistry are printed
    std::optional<bool> prtscn;
    std::optional<bool> decomp;  ///< `DECOMP`: frequencies are decomposed into internal coordinates
    std::optional<bool> projct;  ///< `PROJCT`: translations and rotations are projected out
    std::vector<KeyValue> extra_entries;  ///< unknown keywords, and values that did not convert
    std::vector<std::string> raw_lines;   ///< text of the group that is no keyword entry

    bool operator==(const ForceSection&) const = default;
};

/// Reads a group as `$FORCE`, whatever its name. What does not fit a member is kept in
/// `extra_entries`, and nothing is thrown for content. Linear in the size of the group.
[[nodiscard]] NURL_GMS_INP_EXPORT ForceSection as_force_section(const NamedSection& section);

/// Writes a record as the group `FORCE`: its members in their order, then `extra_entries`, then
/// `raw_lines`. A default record gives a group without keywords.
[[nodiscard]] NURL_GMS_INP_EXPORT NamedSection to_named_section(const ForceSection& record);

/// Reads the `$FORCE` of a document. @return nothing when the document has no such group
[[nodiscard]] NURL_GMS_INP_EXPORT std::optional<ForceSection> get_force_section(
    const GamessInput& input);

/// Replaces the `$FORCE` of a document as a whole, keeping its place, or adds it where
/// `GamessInput::upsert_section` adds groups. The document is as it was when memory runs out.
NURL_GMS_INP_EXPORT void set_force_section(GamessInput& input, const ForceSection& record);

}  // namespace nurl::input::gamess::typed
