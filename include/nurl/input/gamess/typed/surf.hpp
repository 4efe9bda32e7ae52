/// @file
/// `$SURF` as a typed record: a scan of the potential energy surface along one or two coordinates.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "nurl/input/gamess/export.hpp"
#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::typed {

/// `$SURF`: a scan of the potential energy surface along one or two coordinates.
///
/// An absent optional and an empty list mean that the deck does not set the keyword. Tokens are
/// held in upper case.
struct SurfSection {
    std::optional<std::string> runtp1;  ///< `RUNTP1`: kind of run at each point
    /// `RUNTP2`: kind of a second run at each point; NONE for none
    std::optional<std::string> runtp2;
    std::optional<std::string> scftp1;  ///< `SCFTP1`: wavefunction of the first run
    std::optional<std::string> scftp2;  ///< `SCFTP2`: wavefunction of the second run
    std::optional<std::string> cityp1;  ///< `CITYP1`: configuration interaction of the first run
    std::optional<std::string> cityp2;  ///< `CITYP2`: configuration interaction of the second run
    /// `MPLEV1`: order of perturbation theory of the first run
    std::optional<std::int32_t> mplev1;
    /// `MPLEV2`: order of perturbation theory of the second run
    std::optional<std::int32_t> mplev2;
    std::optional<std::string> cctyp1;  ///< `CCTYP1`: coupled-cluster level of the first run
    std::optional<std::string> cctyp2;  ///< `CCTYP2`: coupled-cluster level of the second run
    std::optional<std::string> dftyp1;  ///< `DFTYP1`: functional of the first run
    std::optional<std::string> dftyp2;  ///< `DFTYP2`: functional of the second run
    std::vector<std::int32_t> ivec1;    ///< `IVEC1`: two atoms whose vector is the first coordinate
    std::vector<std::int32_t> igrp1;    ///< `IGRP1`: atoms that move along the first coordinate
    std::optional<double> orig1;        ///< `ORIG1`: start of the first coordinate, in angstrom
    std::optional<double> disp1;        ///< `DISP1`: step of the first coordinate, in angstrom
    std::optional<std::int32_t> ndisp1;  ///< `NDISP1`: number of steps along the first coordinate
    /// `GRID1`: points of the first coordinate in place of even steps, in angstrom
    std::vector<double> grid1;
    std::vector<std::int32_t> ivec2;  ///< `IVEC2`: two atoms whose vector is the second coordinate
    std::vector<std::int32_t> igrp2;  ///< `IGRP2`: atoms that move along the second coordinate
    std::optional<double> orig2;      ///< `ORIG2`: start of the second coordinate, in angstrom
    std::optional<double> disp2;      ///< `DISP2`: step of the second coordinate, in angstrom
    std::optional<std::int32_t> ndisp2;  ///< `NDISP2`: number of steps along the second coordinate
    /// `GRID2`: points of the second coordinate in place of even steps, in angstrom
    std::vector<double> grid2;
    std::vector<KeyValue> extra_entries;  ///< unknown keywords, and values that did not convert
    std::vector<std::string> raw_lines;   ///< text of the group that is no keyword entry

    bool operator==(const SurfSection&) const = default;
};

/// Reads a group as `$SURF`, whatever its name. What does not fit a member is kept in
/// `extra_entries`, and nothing is thrown for content. Linear in the size of the group.
[[nodiscard]] NURL_GMS_INP_EXPORT SurfSection as_surf_section(const NamedSection& section);

/// Writes a record as the group `SURF`: its members in their order, then `extra_entries`, then
/// `raw_lines`. A default record gives a group without keywords.
[[nodiscard]] NURL_GMS_INP_EXPORT NamedSection to_named_section(const SurfSection& record);

/// Reads the `$SURF` of a document. @return nothing when the document has no such group
[[nodiscard]] NURL_GMS_INP_EXPORT std::optional<SurfSection> get_surf_section(
    const GamessInput& input);

/// Replaces the `$SURF` of a document as a whole, keeping its place, or adds it where
/// `GamessInput::upsert_section` adds groups. The document is as it was when memory runs out.
NURL_GMS_INP_EXPORT void set_surf_section(GamessInput& input, const SurfSection& record);

}  // namespace nurl::input::gamess::typed
