/// @file
/// The five groups that have a structured record in the document.
#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <type_traits>

#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::detail {

/// Their bare names, in the order in which groups that were never read are written.
inline constexpr std::array<std::string_view, 5> structured_names{"CONTRL", "SYSTEM", "BASIS",
                                                                  "SCF", "GUESS"};

/// Whether a bare upper-case name is one of them.
constexpr bool is_structured(std::string_view name) noexcept {
    return std::ranges::find(structured_names, name) != structured_names.end();
}

/// Whether the named structured group belongs to the deck; false for other names.
[[nodiscard]] bool structured_present(const GamessInput& input, std::string_view name) noexcept;

/// Makes the named structured group belong to the deck, keeping a record that is there. Other names
/// change nothing.
void engage_structured(GamessInput& input, std::string_view name) noexcept;

/// Takes a structured group out of the deck, but for its copies in the lists. The record of CONTRL
/// keeps its values. Other names change nothing.
void disengage_structured(GamessInput& input, std::string_view name) noexcept;

/// Calls `visit` with a pointer to the record of the named structured group.
///
/// The record of CONTRL exists whether or not the group belongs to the deck; the pointer to an
/// absent record of another group is null. @return what `visit` returns, or a default value of that
/// type when the name is none of the five
template <class Input, class Visitor>
auto visit_structured(Input& input, std::string_view name, Visitor visit) {
    const auto pointer_to = [](auto& record) { return record ? &*record : nullptr; };
    using Result = std::invoke_result_t<Visitor, decltype(&input.control)>;
    if (name == "CONTRL") return visit(&input.control);
    if (name == "SYSTEM") return visit(pointer_to(input.system));
    if (name == "BASIS") return visit(pointer_to(input.basis));
    if (name == "SCF") return visit(pointer_to(input.scf));
    if (name == "GUESS") return visit(pointer_to(input.guess));
    return Result();
}

}  // namespace nurl::input::gamess::detail
