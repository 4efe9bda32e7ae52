/// @file
/// Building a new deck call by call.
#pragma once

#include <string>
#include <vector>

#include "nurl/core/geometry.hpp"
#include "nurl/input/gamess/export.hpp"
#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess {

/// Assembles one document.
///
/// A fresh builder holds a restricted Hartree-Fock energy of a neutral singlet: `$CONTRL` with
/// `SCFTYP=RHF`, `RUNTYP=ENERGY`, `ICHARG=0` and `MULT=1`, and an empty `$DATA` of point group C1.
///
/// Setters replace, adders append; both return the builder, so calls chain. Nothing is validated
/// and nothing but memory exhaustion throws, except `write_file`. A call that throws leaves the
/// document as it was. A builder is a plain value: it may be copied, rendered, changed and rendered
/// again; copying one over another goes member by member and may stop half-way.
///
///     const std::string deck = InputBuilder{}
///                                  .set_title("Water")
///                                  .set_runtyp("optimize")
///                                  .set_basis_keyword("N31")
///                                  .set_ngauss(6)
///                                  .add_atom({"O", {}, 0.0, 0.0, 0.1173})
///                                  .to_string();
class InputBuilder {
public:
    /// Starts with the document described above.
    NURL_GMS_INP_EXPORT InputBuilder();

    /// The document as built so far; valid as long as the builder.
    [[nodiscard]] NURL_GMS_INP_EXPORT const GamessInput& input() const noexcept;

    /// Sets `ICHARG`, in units of e, and `MULT`, the spin multiplicity 2S+1.
    NURL_GMS_INP_EXPORT InputBuilder& set_charge_and_multiplicity(int charge, int multiplicity);

    /// Sets `SCFTYP`. The text is stored in upper case, not trimmed.
    NURL_GMS_INP_EXPORT InputBuilder& set_scftyp(std::string scftyp);

    /// Sets `RUNTYP`. The text is stored in upper case, not trimmed.
    NURL_GMS_INP_EXPORT InputBuilder& set_runtyp(std::string runtyp);

    /// Sets `COORD`. The text is stored in upper case, not trimmed.
    NURL_GMS_INP_EXPORT InputBuilder& set_coord(std::string coord);

    /// Sets `UNITS`, the unit of the coordinates of `$DATA`. Coordinates are not converted.
    NURL_GMS_INP_EXPORT InputBuilder& set_units(Units units);

    /// Sets `NOSYM`.
    NURL_GMS_INP_EXPORT InputBuilder& set_nosym(bool nosym);

    /// Sets `MAXIT`, the limit of SCF iterations.
    NURL_GMS_INP_EXPORT InputBuilder& set_maxit(int maxit);

    /// Sets `GBASIS` of `$BASIS`. The text is stored whole, in upper case.
    NURL_GMS_INP_EXPORT InputBuilder& set_basis_keyword(std::string gbasis);

    /// Sets `NGAUSS` of `$BASIS`.
    NURL_GMS_INP_EXPORT InputBuilder& set_ngauss(int ngauss);

    /// Sets `MWORDS` of `$SYSTEM`, memory in 10^6 words of 8 bytes.
    NURL_GMS_INP_EXPORT InputBuilder& set_system_mwords(int mwords);

    /// Sets `GUESS` of `$GUESS`. The text is stored in upper case.
    NURL_GMS_INP_EXPORT InputBuilder& set_guess(std::string guess);

    /// Sets the title of `$DATA`, exactly as given.
    NURL_GMS_INP_EXPORT InputBuilder& set_title(std::string title);

    /// Sets the point group of `$DATA`, exactly as given; a blank text gives "C1".
    NURL_GMS_INP_EXPORT InputBuilder& set_point_group(std::string point_group);

    /// Appends an atom, in the unit of `set_units`.
    ///
    /// The symbol is brought to its canonical spelling. A charge that is absent becomes the atomic
    /// number when the symbol is an element; one that is given stays.
    NURL_GMS_INP_EXPORT InputBuilder& add_atom(const AtomRecord& atom);

    /// Appends an atom of the family's own type, as the other overload does.
    NURL_GMS_INP_EXPORT InputBuilder& add_atom(const core::Atom& atom);

    /// Replaces all atoms by the given ones, each as `add_atom` takes it.
    NURL_GMS_INP_EXPORT InputBuilder& set_geometry(const std::vector<AtomRecord>& atoms);

    /// Replaces all atoms by those of a geometry, whose coordinates must be in the unit of
    /// `set_units`.
    NURL_GMS_INP_EXPORT InputBuilder& set_geometry(const core::Geometry& geometry);

    /// Appends a keyword to `$CONTRL`. Like all keyword adders: the key is stored trimmed and in
    /// upper case, the value trimmed, behind the keywords that have a setter; adding one twice
    /// gives two entries, and nothing checks that the keyword is known or not empty.
    NURL_GMS_INP_EXPORT InputBuilder& add_control_keyword(std::string key, std::string value);

    /// Appends a keyword to `$SYSTEM`.
    NURL_GMS_INP_EXPORT InputBuilder& add_system_keyword(std::string key, std::string value);

    /// Appends a keyword to `$BASIS`.
    NURL_GMS_INP_EXPORT InputBuilder& add_basis_keyword(std::string key, std::string value);

    /// Appends a keyword to `$SCF`.
    NURL_GMS_INP_EXPORT InputBuilder& add_scf_keyword(std::string key, std::string value);

    /// Appends a keyword to `$GUESS`.
    NURL_GMS_INP_EXPORT InputBuilder& add_guess_keyword(std::string key, std::string value);

    /// Appends a logical keyword to `$CONTRL`, as ".T." or ".F.".
    NURL_GMS_INP_EXPORT InputBuilder& add_control_flag(std::string key, bool value);

    /// Appends a logical keyword to `$SCF`, as ".T." or ".F.".
    NURL_GMS_INP_EXPORT InputBuilder& add_scf_flag(std::string key, bool value);

    /// Appends a logical keyword to `$BASIS`, as ".T." or ".F.".
    NURL_GMS_INP_EXPORT InputBuilder& add_basis_flag(std::string key, bool value);

    /// Appends a whole group behind the others. It is stored as given; groups of the same name stay
    /// beside it.
    NURL_GMS_INP_EXPORT InputBuilder& add_section(const NamedSection& section);

    /// As the other overload, taking the group over.
    NURL_GMS_INP_EXPORT InputBuilder& add_section(NamedSection&& section);

    /// The deck as `GamessInput::to_string` writes it.
    [[nodiscard]] NURL_GMS_INP_EXPORT std::string to_string() const;

    /// Saves the deck as `GamessInput::write_file` does.
    ///
    /// @throws std::runtime_error "Failed to write GAMESS input file: " and the path
    NURL_GMS_INP_EXPORT void write_file(const std::string& path) const;

private:
    GamessInput input_;
};

}  // namespace nurl::input::gamess
