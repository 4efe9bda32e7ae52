#include "nurl/input/gamess/editor.hpp"

namespace nurl::input::gamess {

std::optional<typed::TddftSection> InputEditor::get_tddft_section() const {
    return typed::get_tddft_section(input_);
}

void InputEditor::set_tddft_section(const typed::TddftSection& record) {
    typed::set_tddft_section(input_, record);
}

std::optional<typed::StatptSection> InputEditor::get_statpt_section() const {
    return typed::get_statpt_section(input_);
}

void InputEditor::set_statpt_section(const typed::StatptSection& record) {
    typed::set_statpt_section(input_, record);
}

std::optional<typed::ForceSection> InputEditor::get_force_section() const {
    return typed::get_force_section(input_);
}

void InputEditor::set_force_section(const typed::ForceSection& record) {
    typed::set_force_section(input_, record);
}

std::optional<typed::PcmSection> InputEditor::get_pcm_section() const {
    return typed::get_pcm_section(input_);
}

void InputEditor::set_pcm_section(const typed::PcmSection& record) {
    typed::set_pcm_section(input_, record);
}

std::optional<typed::FmoSection> InputEditor::get_fmo_section() const {
    return typed::get_fmo_section(input_);
}

void InputEditor::set_fmo_section(const typed::FmoSection& record) {
    typed::set_fmo_section(input_, record);
}

std::optional<typed::SurfSection> InputEditor::get_surf_section() const {
    return typed::get_surf_section(input_);
}

void InputEditor::set_surf_section(const typed::SurfSection& record) {
    typed::set_surf_section(input_, record);
}

std::optional<typed::CcinpSection> InputEditor::get_ccinp_section() const {
    return typed::get_ccinp_section(input_);
}

void InputEditor::set_ccinp_section(const typed::CcinpSection& record) {
    typed::set_ccinp_section(input_, record);
}

std::optional<typed::EominpSection> InputEditor::get_eominp_section() const {
    return typed::get_eominp_section(input_);
}

void InputEditor::set_eominp_section(const typed::EominpSection& record) {
    typed::set_eominp_section(input_, record);
}

std::optional<typed::MdSection> InputEditor::get_md_section() const {
    return typed::get_md_section(input_);
}

void InputEditor::set_md_section(const typed::MdSection& record) {
    typed::set_md_section(input_, record);
}

std::optional<typed::DftbSection> InputEditor::get_dftb_section() const {
    return typed::get_dftb_section(input_);
}

void InputEditor::set_dftb_section(const typed::DftbSection& record) {
    typed::set_dftb_section(input_, record);
}

}  // namespace nurl::input::gamess
