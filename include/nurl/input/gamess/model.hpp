/// @file
/// The in-memory model of a GAMESS input deck.
///
/// Every type here is a plain value: public members in a fixed order, owned strings and lists, no
/// invariants beyond what the member comments say. Strings are byte strings; bytes outside ASCII
/// and NUL pass through untouched. A deck that was read keeps each group twice where that helps:
/// in generic form in `GamessInput::sections`, and the five common groups also as structured
/// records, which are what the writer trusts.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/export.hpp"

namespace nurl::input::gamess {

/// Unit of the atom coordinates of `$DATA`.
enum class Units : std::int32_t {
    Angstrom = 0,  ///< keyword text "ANGS"
    Bohr = 1,      ///< keyword text "BOHR"
};

/// The text that `UNITS=` of `$CONTRL` takes for a unit.
///
/// @return "BOHR" for `Units::Bohr`, "ANGS" for every other value, those outside the enumeration
///         included
[[nodiscard]] NURL_GMS_INP_EXPORT std::string units_keyword(Units units);

/// One `KEY=VALUE` entry of a group.
struct KeyValue {
    std::string key;    ///< keyword; the reader stores it trimmed and upper-cased
    std::string value;  ///< value text without the `=`; the reader trims it and keeps its case

    bool operator==(const KeyValue&) const = default;
};

/// One group of a deck in generic form.
struct NamedSection {
    std::string name;                    ///< group name without the leading `$`, such as "SCF"
    std::vector<KeyValue> entries;       ///< keyword entries in input order, duplicates kept
    std::vector<std::string> raw_lines;  ///< text that is not `KEY=VALUE`, one element a line

    bool operator==(const NamedSection&) const = default;
};

/// One atom of `$DATA`.
struct AtomRecord {
    std::string symbol;                    ///< atom label, as written
    std::optional<double> nuclear_charge;  ///< nuclear charge in units of e; absent when unknown
    double x = 0.0;                        ///< Cartesian coordinate in `ControlSection::units`
    double y = 0.0;                        ///< Cartesian coordinate in `ControlSection::units`
    double z = 0.0;                        ///< Cartesian coordinate in `ControlSection::units`

    bool operator==(const AtomRecord&) const = default;
};

/// The structured `$CONTRL` group: what is computed, and how.
///
/// The eight flags tell which of the first keywords the deck gives explicitly; only those are
/// written. Optional members speak for themselves. Text members hold upper case.
struct ControlSection {
    bool has_scftyp = false;  ///< `SCFTYP` is given
    bool has_runtyp = false;  ///< `RUNTYP` is given
    bool has_icharg = false;  ///< `ICHARG` is given
    bool has_mult = false;    ///< `MULT` is given
    bool has_coord = false;   ///< `COORD` is given
    bool has_units = false;   ///< `UNITS` is given
    bool has_nosym = false;   ///< `NOSYM` is given
    bool reserved = false;    ///< kept free for one more keyword; nothing sets or reads it

    std::string scftyp = "RHF";          ///< `SCFTYP`: kind of wavefunction
    std::string runtyp = "ENERGY";       ///< `RUNTYP`: kind of run
    std::int32_t icharg = 0;             ///< `ICHARG`: charge of the molecule in units of e
    std::int32_t mult = 1;               ///< `MULT`: spin multiplicity 2S+1
    std::string coord;                   ///< `COORD`: kind of coordinates in `$DATA`
    Units units = Units::Angstrom;       ///< `UNITS`: unit of lengths in `$DATA`
    bool nosym = false;                  ///< `NOSYM`: the point group is not made use of
    std::optional<std::int32_t> maxit;   ///< `MAXIT`: limit of SCF iterations
    std::optional<std::int32_t> ispher;  ///< `ISPHER`: spherical (1) or Cartesian (-1) functions
    std::optional<std::string> exetyp;   ///< `EXETYP`: run, or check the input only
    std::optional<std::string> dfttyp;   ///< `DFTTYP`: density functional
    std::optional<std::string> cityp;    ///< `CITYP`: kind of configuration interaction
    std::optional<std::string> tddft;    ///< `TDDFT`: time-dependent treatment
    std::optional<std::string> relwfn;   ///< `RELWFN`: relativistic treatment
    std::optional<std::string> pp;       ///< `PP`: effective core or model core potential
    std::vector<KeyValue> extra;         ///< all other entries, and values that did not convert

    bool operator==(const ControlSection&) const = default;
};

/// The structured `$SYSTEM` group: memory of the run.
struct SystemSection {
    std::optional<std::int32_t> mwords;  ///< `MWORDS`: replicated memory in 10^6 words of 8 bytes
    std::optional<std::int32_t> memddi;  ///< `MEMDDI`: distributed memory in 10^6 words of 8 bytes
    std::vector<KeyValue> extra;         ///< all other entries, and values that did not convert

    bool operator==(const SystemSection&) const = default;
};

/// The structured `$BASIS` group: the basis set by name.
struct BasisSection {
    std::optional<std::string> gbasis;   ///< `GBASIS`: name of the basis set family
    std::optional<std::int32_t> ngauss;  ///< `NGAUSS`: number of Gaussians, as in N31 with 6
    std::optional<std::int32_t> ndfunc;  ///< `NDFUNC`: sets of d functions on heavy atoms
    std::optional<std::int32_t> npfunc;  ///< `NPFUNC`: sets of p functions on light atoms
    std::optional<std::int32_t> nffunc;  ///< `NFFUNC`: sets of f functions on heavy atoms
    std::optional<bool> diffs;           ///< `DIFFS`: diffuse s function on light atoms
    std::optional<bool> diffsp;          ///< `DIFFSP`: diffuse sp shell on heavy atoms
    std::vector<KeyValue> extra;         ///< all other entries, and values that did not convert

    bool operator==(const BasisSection&) const = default;
};

/// The structured `$SCF` group: how the SCF equations are solved.
struct ScfSection {
    std::optional<bool> dirscf;   ///< `DIRSCF`: integrals are recomputed, not stored
    std::optional<bool> diis;     ///< `DIIS`: convergence by direct inversion
    std::optional<bool> soscf;    ///< `SOSCF`: approximate second-order convergence
    std::optional<bool> fdiff;    ///< `FDIFF`: Fock matrix built from density differences
    std::optional<bool> mom;      ///< `MOM`: occupation by maximum overlap
    std::vector<KeyValue> extra;  ///< all other entries, and values that did not convert

    bool operator==(const ScfSection&) const = default;
};

/// The structured `$GUESS` group: the starting orbitals.
struct GuessSection {
    std::optional<std::string> guess;  ///< `GUESS`: where the starting orbitals come from
    std::optional<std::int32_t> norb;  ///< `NORB`: number of orbitals read from `$VEC`
    std::vector<KeyValue> extra;       ///< all other entries, and values that did not convert

    bool operator==(const GuessSection&) const = default;
};

/// One whole deck.
///
/// A default-constructed document is an empty deck as the reader starts it: no group present, no
/// flag set, empty title and point group.
///
/// Group names given to the members are compared in canonical form: blanks around them and one
/// leading `$` are dropped, letter case does not count, and an empty name stands for "SECTION".
///
/// Of the lines of `$DATA`, an empty one is not kept; one of blanks is, also the blank in front of
/// its `$END`. So `data_lines` grow by one line each time a written deck is read again.
struct GamessInput {
    bool has_control = false;                  ///< `$CONTRL` belongs to the deck
    bool has_data = false;                     ///< `$DATA` belongs to the deck
    ControlSection control;                    ///< `$CONTRL`; counts only with `has_control`
    std::optional<SystemSection> system;       ///< `$SYSTEM`
    std::optional<BasisSection> basis;         ///< `$BASIS`
    std::optional<ScfSection> scf;             ///< `$SCF`
    std::optional<GuessSection> guess;         ///< `$GUESS`
    std::vector<NamedSection> extra_sections;  ///< groups added in code, in the order added
    std::vector<NamedSection> sections;        ///< groups read, in input order, structured included
    std::string title;                         ///< title line of `$DATA`
    std::string point_group;                   ///< point-group line of `$DATA`, such as "CNV 2"
    std::vector<AtomRecord> atoms;             ///< atoms of `$DATA`, in input order
    std::vector<std::string> data_lines;       ///< other lines of `$DATA`, verbatim

    bool operator==(const GamessInput&) const = default;

    /// Finds a group by name among `sections`, then among `extra_sections`.
    ///
    /// @param name  any case, with or without the leading `$`; blanks around it are ignored
    /// @return      the first match, or null; valid until a group is added to or removed from
    ///              either list
    ///
    /// Linear in the number of groups, throws nothing. Concurrent calls on an unchanging document
    /// are safe.
    ///
    ///     if (const NamedSection* pcm = deck.find_section("$pcm")) inspect(*pcm);  // finds "PCM"
    [[nodiscard]] NURL_GMS_INP_EXPORT const NamedSection* find_section(
        std::string_view name) const noexcept;

    /// As the other overload, for changing the group in place.
    [[nodiscard]] NURL_GMS_INP_EXPORT NamedSection* find_section(std::string_view name) noexcept;

    /// Gives the group of a name, adding an empty one when there is none.
    ///
    /// A new group joins the groups of its own origin: `sections` when the document has any group
    /// read from text, `extra_sections` otherwise. Its name is stored in canonical form. The
    /// structured records are never touched, also when `name` is one of theirs.
    ///
    /// @return the group; valid until a group is added to or removed from either list
    ///
    /// Linear in the number of groups. Throws only on memory exhaustion, and then the document is
    /// as it was.
    NURL_GMS_INP_EXPORT NamedSection& upsert_section(std::string name);

    /// Renders the deck as GAMESS input text in canonical layout.
    ///
    /// Groups read come first, in text order, each structured group written from its record at the
    /// place of its first copy; then the structured groups that were never read, in the order
    /// CONTRL, SYSTEM, BASIS, SCF, GUESS; then `extra_sections`; `$DATA` is last. Every group is
    /// one line unless it has raw lines; there is no limit of line length. `$DATA` is written when
    /// `has_data` is set or any of its parts holds something.
    ///
    /// Values are written as they are: nothing checks that the text reads back. Reals are written
    /// with a decimal point whatever the locale.
    ///
    /// @return the text, each line ended by a newline; empty for an empty document
    ///
    /// Linear in the size of the document. Throws only on memory exhaustion.
    [[nodiscard]] NURL_GMS_INP_EXPORT std::string to_string() const;

    /// Renders the deck and saves it under `path`, replacing a file that is there.
    ///
    /// @throws std::runtime_error "Failed to write GAMESS input file: " and the path, when any
    ///         step of saving fails; an existing file is then as it was, while a pipe or a device
    ///         may have got a part of the text. `std::bad_alloc` comes before anything is written
    NURL_GMS_INP_EXPORT void write_file(const std::string& path) const;
};

/// What reading a deck gives.
struct ParseResult {
    GamessInput input;                  ///< the document, filled as far as the text allowed
    bool ok = false;                    ///< at least one group was found
    std::string error;                  ///< why `ok` is false; empty otherwise
    std::vector<std::string> warnings;  ///< tolerated faults, one sentence each, in input order

    bool operator==(const ParseResult&) const = default;
};

namespace validation {

/// Weight of a finding.
enum class Severity : std::int32_t {
    Info = 0,     ///< a group that the schema does not describe
    Warning = 1,  ///< a keyword that the schema does not describe for its group
    Error = 2,    ///< free text inside a group that has a structured record
};

/// One finding of validation.
struct Issue {
    Severity severity = Severity::Info;  ///< weight of the finding
    std::string section;                 ///< group it concerns: lower case, no `$`
    std::string key;      ///< keyword it concerns, upper case; empty when the whole group is meant
    std::string message;  ///< a complete sentence for the user

    bool operator==(const Issue&) const = default;
};

}  // namespace validation

}  // namespace nurl::input::gamess
