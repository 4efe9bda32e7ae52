#include "nurl/input/gamess/typed.hpp"
#include "nurl/input/gamess/typed/fields.hpp"
#include "typed/record_io.hpp"

namespace nurl::input::gamess::typed {

using detail::get_record;
using detail::read_record;
using detail::set_record;
using detail::write_record;

TddftSection as_tddft_section(const NamedSection& section) {
    return read_record<TddftSection>(section);
}
NamedSection to_named_section(const TddftSection& record) { return write_record(record); }
std::optional<TddftSection> get_tddft_section(const GamessInput& input) {
    return get_record<TddftSection>(input);
}
void set_tddft_section(GamessInput& input, const TddftSection& record) {
    set_record(input, record);
}

StatptSection as_statpt_section(const NamedSection& section) {
    return read_record<StatptSection>(section);
}
NamedSection to_named_section(const StatptSection& record) { return write_record(record); }
std::optional<StatptSection> get_statpt_section(const GamessInput& input) {
    return get_record<StatptSection>(input);
}
void set_statpt_section(GamessInput& input, const StatptSection& record) {
    set_record(input, record);
}

ForceSection as_force_section(const NamedSection& section) {
    return read_record<ForceSection>(section);
}
NamedSection to_named_section(const ForceSection& record) { return write_record(record); }
std::optional<ForceSection> get_force_section(const GamessInput& input) {
    return get_record<ForceSection>(input);
}
void set_force_section(GamessInput& input, const ForceSection& record) {
    set_record(input, record);
}

PcmSection as_pcm_section(const NamedSection& section) { return read_record<PcmSection>(section); }
NamedSection to_named_section(const PcmSection& record) { return write_record(record); }
std::optional<PcmSection> get_pcm_section(const GamessInput& input) {
    return get_record<PcmSection>(input);
}
void set_pcm_section(GamessInput& input, const PcmSection& record) { set_record(input, record); }

FmoSection as_fmo_section(const NamedSection& section) { return read_record<FmoSection>(section); }
NamedSection to_named_section(const FmoSection& record) { return write_record(record); }
std::optional<FmoSection> get_fmo_section(const GamessInput& input) {
    return get_record<FmoSection>(input);
}
void set_fmo_section(GamessInput& input, const FmoSection& record) { set_record(input, record); }

SurfSection as_surf_section(const NamedSection& section) {
    return read_record<SurfSection>(section);
}
NamedSection to_named_section(const SurfSection& record) { return write_record(record); }
std::optional<SurfSection> get_surf_section(const GamessInput& input) {
    return get_record<SurfSection>(input);
}
void set_surf_section(GamessInput& input, const SurfSection& record) { set_record(input, record); }

CcinpSection as_ccinp_section(const NamedSection& section) {
    return read_record<CcinpSection>(section);
}
NamedSection to_named_section(const CcinpSection& record) { return write_record(record); }
std::optional<CcinpSection> get_ccinp_section(const GamessInput& input) {
    return get_record<CcinpSection>(input);
}
void set_ccinp_section(GamessInput& input, const CcinpSection& record) {
    set_record(input, record);
}

EominpSection as_eominp_section(const NamedSection& section) {
    return read_record<EominpSection>(section);
}
NamedSection to_named_section(const EominpSection& record) { return write_record(record); }
std::optional<EominpSection> get_eominp_section(const GamessInput& input) {
    return get_record<EominpSection>(input);
}
void set_eominp_section(GamessInput& input, const EominpSection& record) {
    set_record(input, record);
}

MdSection as_md_section(const NamedSection& section) { return read_record<MdSection>(section); }
NamedSection to_named_section(const MdSection& record) { return write_record(record); }
std::optional<MdSection> get_md_section(const GamessInput& input) {
    return get_record<MdSection>(input);
}
void set_md_section(GamessInput& input, const MdSection& record) { set_record(input, record); }

DftbSection as_dftb_section(const NamedSection& section) {
    return read_record<DftbSection>(section);
}
NamedSection to_named_section(const DftbSection& record) { return write_record(record); }
std::optional<DftbSection> get_dftb_section(const GamessInput& input) {
    return get_record<DftbSection>(input);
}
void set_dftb_section(GamessInput& input, const DftbSection& record) { set_record(input, record); }

}  // namespace nurl::input::gamess::typed
