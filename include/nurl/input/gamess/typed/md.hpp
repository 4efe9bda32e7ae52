/// @file
/// `$MD` as a typed record: molecular dynamics.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "nurl/input/gamess/export.hpp"
#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::typed {

/// `$MD`: molecular dynamics.
///
/// An absent optional and an empty list mean that the deck does not set the keyword. Tokens are
/// held in upper case.
struct MdSection {
    std::optional<std::string> mdint;  ///< `MDINT`: integrator: FROG or VVERLET
    std::optional<double> dt;          ///< `DT`: time step, in seconds
    /// `NVTNH`: chain of Nose-Hoover thermostats; 0 for constant energy
    std::optional<std::int32_t> nvtnh;
    std::optional<std::int32_t> nsteps;  ///< `NSTEPS`: number of steps
    /// `TTOTAL`: time already passed when the run is a continuation, in seconds
    std::optional<double> ttotal;
    std::vector<double> batht;   ///< `BATHT`: temperatures of the bath, in kelvin
    std::optional<bool> rstemp;  ///< `RSTEMP`: velocities are rescaled to hold the temperature
    /// `DTEMP`: deviation of temperature that is tolerated before rescaling, in kelvin
    std::optional<double> dtemp;
    std::optional<bool> rsrand;          ///< `RSRAND`: velocities are drawn anew at intervals
    std::optional<std::int32_t> nrand;   ///< `NRAND`: steps between two such draws
    std::optional<std::int32_t> nvtoff;  ///< `NVTOFF`: step at which the thermostat is switched off
    std::optional<std::int32_t> jevery;  ///< `JEVERY`: steps between two records of the trajectory
    std::optional<std::int32_t> kevery;  ///< `KEVERY`: steps between two restart records
    std::optional<bool> prod;    ///< `PROD`: averages are taken: the run is past equilibration
    std::optional<double> delr;  ///< `DELR`: width of the bins of radial distributions, in angstrom
    std::optional<std::int32_t> nprop;  ///< `NPROP`: steps between two property calculations
    std::optional<bool> pbcout;  ///< `PBCOUT`: coordinates are written folded into the periodic box
    std::optional<bool> ssbp;    ///< `SSBP`: a spherical boundary holds the solvent
    /// `SFORCE`: force constant of that boundary, in kcal/mol/angstrom^2
    std::optional<double> sforce;
    std::optional<bool> ccms;  ///< `CCMS`: the centre of mass is held in place
    /// `CFORCE`: force constant of that restraint, in kcal/mol/angstrom^2
    std::optional<double> cforce;
    std::vector<double> droff;  ///< `DROFF`: distances at which the boundary sets in, in angstrom
    std::optional<bool> usamp;  ///< `USAMP`: umbrella sampling
    /// `UFORCE`: force constant of the umbrella, in kcal/mol/angstrom^2
    std::optional<double> uforce;
    std::vector<double> rzero;           ///< `RZERO`: centres of the umbrella, in angstrom
    std::optional<std::int32_t> iustyp;  ///< `IUSTYP`: kind of the umbrella coordinate
    std::vector<std::int32_t> ipair;     ///< `IPAIR`: atoms or fragments of the umbrella coordinate
    std::vector<double> prvec;  ///< `PRVEC`: vectors that the umbrella coordinate is projected on
    std::optional<std::int32_t> mremd;  ///< `MREMD`: replica exchange: 0 off
    /// `MODFLU`: analysis of fluctuations, a sum of option bits
    std::optional<std::int32_t> modflu;
    std::optional<std::int32_t> levery;  ///< `LEVERY`: steps between two exchanges of replicas
    /// `TRJFMT`: format of the coordinates in the trajectory, in the spelling of Fortran (case
    /// kept)
    std::optional<std::string> trjfmt;
    std::vector<std::int32_t> irattl;  ///< `IRATTL`: atoms of the bonds held rigid
    std::vector<double> ratlen;        ///< `RATLEN`: lengths of those bonds, in angstrom
    std::vector<double> rattol;        ///< `RATTOL`: tolerances of those bonds
    /// `IRATIT`: largest number of iterations that hold the bonds
    std::optional<std::int32_t> iratit;
    std::optional<bool> namd;           ///< `NAMD`: nonadiabatic dynamics between electronic states
    std::optional<std::int32_t> ndtlf;  ///< `NDTLF`: electronic steps within one nuclear step
    std::optional<double> thrshe;       ///< `THRSHE`: energy gap below which states may be changed
    std::optional<bool> ndrst;          ///< `NDRST`: the run goes on from saved nonadiabatic data
    std::optional<bool> newrnd;         ///< `NEWRND`: a new sequence of random numbers
    /// `MBT`: translational velocities are drawn from a Maxwell-Boltzmann distribution
    std::optional<bool> mbt;
    /// `MBR`: rotational velocities are drawn from a Maxwell-Boltzmann distribution
    std::optional<bool> mbr;
    std::optional<bool> qrand;  ///< `QRAND`: orientations are random
    /// `READ`: positions and velocities are read from the following members
    std::optional<bool> read;
    std::vector<double> tvelqm;           ///< `TVELQM`: velocities of the quantum-mechanical atoms
    std::vector<double> tvel;             ///< `TVEL`: translational velocities of the fragments
    std::vector<double> rvel;             ///< `RVEL`: rotational velocities of the fragments
    std::vector<double> rmom;             ///< `RMOM`: angular momenta of the fragments
    std::vector<double> quat;             ///< `QUAT`: orientations of the fragments, as quaternions
    std::vector<double> quat1d;           ///< `QUAT1D`: first time derivatives of the quaternions
    std::vector<double> quat2d;           ///< `QUAT2D`: second time derivatives of the quaternions
    std::vector<KeyValue> extra_entries;  ///< unknown keywords, and values that did not convert
    std::vector<std::string> raw_lines;   ///< text of the group that is no keyword entry

    bool operator==(const MdSection&) const = default;
};

/// Reads a group as `$MD`, whatever its name. What does not fit a member is kept in
/// `extra_entries`, and nothing is thrown for content. Linear in the size of the group.
[[nodiscard]] NURL_GMS_INP_EXPORT MdSection as_md_section(const NamedSection& section);

/// Writes a record as the group `MD`: its members in their order, then `extra_entries`, then
/// `raw_lines`. A default record gives a group without keywords.
[[nodiscard]] NURL_GMS_INP_EXPORT NamedSection to_named_section(const MdSection& record);

/// Reads the `$MD` of a document. @return nothing when the document has no such group
[[nodiscard]] NURL_GMS_INP_EXPORT std::optional<MdSection> get_md_section(const GamessInput& input);

/// Replaces the `$MD` of a document as a whole, keeping its place, or adds it where
/// `GamessInput::upsert_section` adds groups. The document is as it was when memory runs out.
NURL_GMS_INP_EXPORT void set_md_section(GamessInput& input, const MdSection& record);

}  // namespace nurl::input::gamess::typed
