/// @file
/// The keywords that the five structured groups have a member for: one row a keyword. Reading,
/// writing and editing walk these tables, and their order is the order of writing.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::detail {

/// What becomes of a flagged value when its keyword is removed.
enum class OnRemoval {
    KeepsValue,   ///< only the flag goes
    ClearsValue,  ///< the value goes back to its empty state too
};

/// A member that always holds a value, beside the flag that tells whether the deck gives it.
/// A flagged `bool` is written "1" or "0".
template <class Record, class Value>
struct Flagged {
    Value Record::*value;
    bool Record::*given;
    OnRemoval on_removal = OnRemoval::KeepsValue;
};

template <class Record, class Value>
Flagged(Value Record::*, bool Record::*) -> Flagged<Record, Value>;
template <class Record, class Value>
Flagged(Value Record::*, bool Record::*, OnRemoval) -> Flagged<Record, Value>;

/// An optional member. An optional `bool` is written ".T." or ".F.".
template <class Record, class Value>
using Optional = std::optional<Value> Record::*;

/// One keyword and where its value lives.
template <class Record>
struct StructuredField {
    using Member =
        std::variant<Flagged<Record, std::string>, Flagged<Record, std::int32_t>,
                     Flagged<Record, Units>, Flagged<Record, bool>, Optional<Record, std::string>,
                     Optional<Record, std::int32_t>, Optional<Record, bool>>;

    std::string_view keyword;
    Member member;
};

/// The table of a record.
template <class Record>
inline constexpr std::array<StructuredField<Record>, 0> structured_fields{};

template <>
inline constexpr auto structured_fields<ControlSection> =
    std::to_array<StructuredField<ControlSection>>({
        {"SCFTYP", Flagged{&ControlSection::scftyp, &ControlSection::has_scftyp}},
        {"RUNTYP", Flagged{&ControlSection::runtyp, &ControlSection::has_runtyp}},
        {"ICHARG", Flagged{&ControlSection::icharg, &ControlSection::has_icharg}},
        {"MULT", Flagged{&ControlSection::mult, &ControlSection::has_mult}},
        {"COORD",
         Flagged{&ControlSection::coord, &ControlSection::has_coord, OnRemoval::ClearsValue}},
        {"UNITS", Flagged{&ControlSection::units, &ControlSection::has_units}},
        {"NOSYM", Flagged{&ControlSection::nosym, &ControlSection::has_nosym}},
        {"MAXIT", &ControlSection::maxit},
        {"ISPHER", &ControlSection::ispher},
        {"EXETYP", &ControlSection::exetyp},
        {"DFTTYP", &ControlSection::dfttyp},
        {"CITYP", &ControlSection::cityp},
        {"TDDFT", &ControlSection::tddft},
        {"RELWFN", &ControlSection::relwfn},
        {"PP", &ControlSection::pp},
    });

template <>
inline constexpr auto structured_fields<SystemSection> =
    std::to_array<StructuredField<SystemSection>>({
        {"MWORDS", &SystemSection::mwords},
        {"MEMDDI", &SystemSection::memddi},
    });

template <>
inline constexpr auto structured_fields<BasisSection> =
    std::to_array<StructuredField<BasisSection>>({
        {"GBASIS", &BasisSection::gbasis},
        {"NGAUSS", &BasisSection::ngauss},
        {"NDFUNC", &BasisSection::ndfunc},
        {"NPFUNC", &BasisSection::npfunc},
        {"NFFUNC", &BasisSection::nffunc},
        {"DIFFS", &BasisSection::diffs},
        {"DIFFSP", &BasisSection::diffsp},
    });

template <>
inline constexpr auto structured_fields<ScfSection> = std::to_array<StructuredField<ScfSection>>({
    {"DIRSCF", &ScfSection::dirscf},
    {"DIIS", &ScfSection::diis},
    {"SOSCF", &ScfSection::soscf},
    {"FDIFF", &ScfSection::fdiff},
    {"MOM", &ScfSection::mom},
});

template <>
inline constexpr auto structured_fields<GuessSection> =
    std::to_array<StructuredField<GuessSection>>({
        {"GUESS", &GuessSection::guess},
        {"NORB", &GuessSection::norb},
    });

/// The row of a keyword. @param keyword  in upper case  @return null when there is none
template <class Record>
constexpr const StructuredField<Record>* find_field(std::string_view keyword) noexcept {
    constexpr const auto& fields = structured_fields<Record>;
    const auto* const hit = std::ranges::find(fields, keyword, &StructuredField<Record>::keyword);
    return hit == fields.end() ? nullptr : hit;
}

}  // namespace nurl::input::gamess::detail
