/// @file
/// Editing a deck by group and keyword.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/export.hpp"
#include "nurl/input/gamess/model.hpp"
#include "nurl/input/gamess/typed.hpp"
#include "nurl/input/gamess/validation.hpp"

namespace nurl::input::gamess {

/// Owns one document and edits it group by group and keyword by keyword.
///
/// Three kinds of group are told apart by name. `CONTRL`, `SYSTEM`, `BASIS`, `SCF` and `GUESS` are
/// structured: a keyword that their record has a member for goes there when its value converts,
/// every other one into the record's `extra`. `DATA` holds the molecule and has no keywords. All
/// others are generic and live in `sections` or `extra_sections`. Ten of these can also be read and
/// replaced as typed records. Of a generic group that stands more than once the first one is meant,
/// in `sections` before `extra_sections`; only `remove_section` takes all.
///
/// Group names and keywords may be given in any case; blanks, tabs and line ends around them and
/// one leading `$` of a group name are dropped. Values keep their case except where a record holds
/// text in upper case.
///
/// An edit is done as a whole or not at all: when it throws, for its content or for want of memory,
/// the document is as it was, without the group that the edit would have added. Only copying one
/// editor over another may stop half-way, since that goes member by member as for any plain value.
///
/// Editing and listing one group is linear in the size of that group and in the number of groups.
/// There is no undo. `const` members may be called concurrently; a change needs exclusive access.
///
///     InputEditor editor{parse_file("water.inp").input};
///     editor.set_keyword("CONTRL", "RUNTYP", "OPTIMIZE");
///     editor.input().write_file("water_opt.inp");
class InputEditor {
public:
    /// Takes a document over; nothing in it is changed.
    NURL_GMS_INP_EXPORT explicit InputEditor(GamessInput input) noexcept;

    /// The document as edited so far; valid as long as the editor.
    [[nodiscard]] NURL_GMS_INP_EXPORT const GamessInput& input() const noexcept;

    /// Moves the document out of the editor, which must not be used for editing afterwards.
    [[nodiscard]] NURL_GMS_INP_EXPORT GamessInput take() && noexcept;

    /// Whether the deck has a group. A structured group counts when its record is present, `$DATA`
    /// when any part of it would be written, a generic group when it is found by name.
    [[nodiscard]] NURL_GMS_INP_EXPORT bool has_section(std::string_view name) const;

    /// Makes sure that the deck has a group.
    ///
    /// A structured group that is absent is engaged empty and gets its place behind the groups of
    /// `sections`; it is written once it holds a keyword. A generic group is added empty to
    /// `sections`, or to `extra_sections` when no group was read. A blank name and `DATA` change
    /// nothing: `$DATA` exists only when the document came with one.
    NURL_GMS_INP_EXPORT void ensure_section(std::string_view name);

    /// Removes a group, all its copies included. `DATA` loses title, point group, atoms and lines.
    ///
    /// @return true when the deck had the group; false for a blank name
    NURL_GMS_INP_EXPORT bool remove_section(std::string_view name);

    /// The names of the groups, in the order in which the deck is written, each once, upper case,
    /// without `$`. Linear in the number of groups.
    [[nodiscard]] NURL_GMS_INP_EXPORT std::vector<std::string> section_names() const;

    /// The findings of `validation::validate` over the document.
    [[nodiscard]] NURL_GMS_INP_EXPORT std::vector<validation::Issue> validate(
        const validation::Options& options) const;

    /// Sets a keyword, creating its group when needed.
    ///
    /// In a structured group, a value that converts to the type of the record's member is stored
    /// there and leaves no copy in `extra`; logical members take `.T.`, `T`, `TRUE`, `YES`, `1`,
    /// `.F.`, `F`, `FALSE` and `NO` in any case, but not `0`; `UNITS` takes `BOHR` as bohr and
    /// everything else as angstrom. What has no member or does not convert is put into `extra`. A
    /// blank text is stored, but not written.
    ///
    /// In a generic group the first entry of the keyword is replaced or a new one appended; a later
    /// one keeps its value, which `get_keyword` then gives. The keyword is cut out of the raw
    /// lines. All raw lines are trimmed, in those with keywords runs of blanks become single ones,
    /// and those left blank disappear.
    ///
    /// @param value  may be text of this document
    /// @throws std::runtime_error "Section name and keyword must be non-empty" when either is
    ///         blank; "$DATA does not support key=value editing" for `DATA`; the document is then
    ///         unchanged
    NURL_GMS_INP_EXPORT void set_keyword(std::string_view section, std::string_view key,
                                         std::string_view value);

    /// Sets a keyword that is not there yet, or any keyword when `replace` is true.
    ///
    /// @return false, with the document unchanged, when the keyword is there and `replace` is false
    /// @throws as `set_keyword`
    NURL_GMS_INP_EXPORT bool add_keyword(std::string_view section, std::string_view key,
                                         std::string_view value, bool replace);

    /// Removes a keyword.
    ///
    /// In a structured group the record's member is cleared when it holds a value, and entries of
    /// that keyword in `extra` then stay; otherwise they are removed. In a generic group all
    /// entries of the keyword and its pairs in raw lines go. All raw lines are trimmed, and in
    /// those with keywords runs of blanks become single ones, also when nothing is removed; lines
    /// left blank stay.
    ///
    /// @return true when something was removed; false for blank names and for `DATA`
    NURL_GMS_INP_EXPORT bool remove_keyword(std::string_view section, std::string_view key);

    /// The value of a keyword as `list_keywords` gives it, or nothing when the group lacks it.
    [[nodiscard]] NURL_GMS_INP_EXPORT std::optional<std::string> get_keyword(
        std::string_view section, std::string_view key) const;

    /// Whether `get_keyword` gives a value.
    [[nodiscard]] NURL_GMS_INP_EXPORT bool has_keyword(std::string_view section,
                                                       std::string_view key) const;

    /// The keywords of a group.
    ///
    /// For a structured group these are the entries that would be written, in that order; for a
    /// generic group its entries and then the pairs in its raw lines, each keyword once, at its
    /// first place and with its last value. Empty for `DATA` and for a group that is absent.
    [[nodiscard]] NURL_GMS_INP_EXPORT std::vector<KeyValue> list_keywords(
        std::string_view section) const;

    /// One group as deck text, without a final newline (`$DATA` ends with one). Empty when the
    /// deck does not have the group.
    [[nodiscard]] NURL_GMS_INP_EXPORT std::string render_section(std::string_view section) const;

    /// `$TDDFT` as a typed record; nothing when the deck does not have the group.
    [[nodiscard]] NURL_GMS_INP_EXPORT std::optional<typed::TddftSection> get_tddft_section() const;
    /// Replaces `$TDDFT` as a whole, or adds it as `typed::set_tddft_section` does.
    NURL_GMS_INP_EXPORT void set_tddft_section(const typed::TddftSection& record);

    /// `$STATPT` as a typed record; nothing when the deck does not have the group.
    [[nodiscard]] NURL_GMS_INP_EXPORT std::optional<typed::StatptSection> get_statpt_section()
        const;
    /// Replaces `$STATPT` as a whole, or adds it as `typed::set_statpt_section` does.
    NURL_GMS_INP_EXPORT void set_statpt_section(const typed::StatptSection& record);

    /// `$FORCE` as a typed record; nothing when the deck does not have the group.
    [[nodiscard]] NURL_GMS_INP_EXPORT std::optional<typed::ForceSection> get_force_section() const;
    /// Replaces `$FORCE` as a whole, or adds it as `typed::set_force_section` does.
    NURL_GMS_INP_EXPORT void set_force_section(const typed::ForceSection& record);

    /// `$PCM` as a typed record; nothing when the deck does not have the group.
    [[nodiscard]] NURL_GMS_INP_EXPORT std::optional<typed::PcmSection> get_pcm_section() const;
    /// Replaces `$PCM` as a whole, or adds it as `typed::set_pcm_section` does.
    NURL_GMS_INP_EXPORT void set_pcm_section(const typed::PcmSection& record);

    /// `$FMO` as a typed record; nothing when the deck does not have the group.
    [[nodiscard]] NURL_GMS_INP_EXPORT std::optional<typed::FmoSection> get_fmo_section() const;
    /// Replaces `$FMO` as a whole, or adds it as `typed::set_fmo_section` does.
    NURL_GMS_INP_EXPORT void set_fmo_section(const typed::FmoSection& record);

    /// `$SURF` as a typed record; nothing when the deck does not have the group.
    [[nodiscard]] NURL_GMS_INP_EXPORT std::optional<typed::SurfSection> get_surf_section() const;
    /// Replaces `$SURF` as a whole, or adds it as `typed::set_surf_section` does.
    NURL_GMS_INP_EXPORT void set_surf_section(const typed::SurfSection& record);

    /// `$CCINP` as a typed record; nothing when the deck does not have the group.
    [[nodiscard]] NURL_GMS_INP_EXPORT std::optional<typed::CcinpSection> get_ccinp_section() const;
    /// Replaces `$CCINP` as a whole, or adds it as `typed::set_ccinp_section` does.
    NURL_GMS_INP_EXPORT void set_ccinp_section(const typed::CcinpSection& record);

    /// `$EOMINP` as a typed record; nothing when the deck does not have the group.
    [[nodiscard]] NURL_GMS_INP_EXPORT std::optional<typed::EominpSection> get_eominp_section()
        const;
    /// Replaces `$EOMINP` as a whole, or adds it as `typed::set_eominp_section` does.
    NURL_GMS_INP_EXPORT void set_eominp_section(const typed::EominpSection& record);

    /// `$MD` as a typed record; nothing when the deck does not have the group.
    [[nodiscard]] NURL_GMS_INP_EXPORT std::optional<typed::MdSection> get_md_section() const;
    /// Replaces `$MD` as a whole, or adds it as `typed::set_md_section` does.
    NURL_GMS_INP_EXPORT void set_md_section(const typed::MdSection& record);

    /// `$DFTB` as a typed record; nothing when the deck does not have the group.
    [[nodiscard]] NURL_GMS_INP_EXPORT std::optional<typed::DftbSection> get_dftb_section() const;
    /// Replaces `$DFTB` as a whole, or adds it as `typed::set_dftb_section` does.
    NURL_GMS_INP_EXPORT void set_dftb_section(const typed::DftbSection& record);

private:
    GamessInput input_;
};

}  // namespace nurl::input::gamess
