/// @file
/// The ten typed records, for test cases that hold for each of them.
#pragma once

#include <optional>

#include <doctest/doctest.h>

#include "nurl/input/gamess/editor.hpp"
#include "nurl/input/gamess/typed/fields.hpp"

namespace nurl::input::gamess::test {

/// The public functions of one record.
template <class Record>
struct Functions {
    Record (*read)(const NamedSection&);
    std::optional<Record> (*get)(const GamessInput&);
    void (*set)(GamessInput&, const Record&);
    std::optional<Record> (InputEditor::*editor_get)() const;
    void (InputEditor::*editor_set)(const Record&);
};

template <class Record>
inline constexpr Functions<Record> functions{};

template <>
inline constexpr Functions<typed::TddftSection> functions<typed::TddftSection>{
    typed::as_tddft_section, typed::get_tddft_section, typed::set_tddft_section,
    &InputEditor::get_tddft_section, &InputEditor::set_tddft_section};
template <>
inline constexpr Functions<typed::StatptSection> functions<typed::StatptSection>{
    typed::as_statpt_section, typed::get_statpt_section, typed::set_statpt_section,
    &InputEditor::get_statpt_section, &InputEditor::set_statpt_section};
template <>
inline constexpr Functions<typed::ForceSection> functions<typed::ForceSection>{
    typed::as_force_section, typed::get_force_section, typed::set_force_section,
    &InputEditor::get_force_section, &InputEditor::set_force_section};
template <>
inline constexpr Functions<typed::PcmSection> functions<typed::PcmSection>{
    typed::as_pcm_section, typed::get_pcm_section, typed::set_pcm_section,
    &InputEditor::get_pcm_section, &InputEditor::set_pcm_section};
template <>
inline constexpr Functions<typed::FmoSection> functions<typed::FmoSection>{
    typed::as_fmo_section, typed::get_fmo_section, typed::set_fmo_section,
    &InputEditor::get_fmo_section, &InputEditor::set_fmo_section};
template <>
inline constexpr Functions<typed::SurfSection> functions<typed::SurfSection>{
    typed::as_surf_section, typed::get_surf_section, typed::set_surf_section,
    &InputEditor::get_surf_section, &InputEditor::set_surf_section};
template <>
inline constexpr Functions<typed::CcinpSection> functions<typed::CcinpSection>{
    typed::as_ccinp_section, typed::get_ccinp_section, typed::set_ccinp_section,
    &InputEditor::get_ccinp_section, &InputEditor::set_ccinp_section};
template <>
inline constexpr Functions<typed::EominpSection> functions<typed::EominpSection>{
    typed::as_eominp_section, typed::get_eominp_section, typed::set_eominp_section,
    &InputEditor::get_eominp_section, &InputEditor::set_eominp_section};
template <>
inline constexpr Functions<typed::MdSection> functions<typed::MdSection>{
    typed::as_md_section, typed::get_md_section, typed::set_md_section,
    &InputEditor::get_md_section, &InputEditor::set_md_section};
template <>
inline constexpr Functions<typed::DftbSection> functions<typed::DftbSection>{
    typed::as_dftb_section, typed::get_dftb_section, typed::set_dftb_section,
    &InputEditor::get_dftb_section, &InputEditor::set_dftb_section};

#define NURL_ALL_RECORDS                                                                     \
    nurl::input::gamess::typed::TddftSection, nurl::input::gamess::typed::StatptSection,     \
        nurl::input::gamess::typed::ForceSection, nurl::input::gamess::typed::PcmSection,    \
        nurl::input::gamess::typed::FmoSection, nurl::input::gamess::typed::SurfSection,     \
        nurl::input::gamess::typed::CcinpSection, nurl::input::gamess::typed::EominpSection, \
        nurl::input::gamess::typed::MdSection, nurl::input::gamess::typed::DftbSection

}  // namespace nurl::input::gamess::test
