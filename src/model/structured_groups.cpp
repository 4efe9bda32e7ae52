#include "model/structured_groups.hpp"

namespace nurl::input::gamess::detail {

bool structured_present(const GamessInput& input, std::string_view name) noexcept {
    if (name == "CONTRL") return input.has_control;
    return visit_structured(input, name, [](const auto* record) { return record != nullptr; });
}

void engage_structured(GamessInput& input, std::string_view name) noexcept {
    const auto engage = [](auto& record) {
        if (!record) record.emplace();
    };
    if (name == "CONTRL") input.has_control = true;
    if (name == "SYSTEM") engage(input.system);
    if (name == "BASIS") engage(input.basis);
    if (name == "SCF") engage(input.scf);
    if (name == "GUESS") engage(input.guess);
}

void disengage_structured(GamessInput& input, std::string_view name) noexcept {
    if (name == "CONTRL") input.has_control = false;
    if (name == "SYSTEM") input.system.reset();
    if (name == "BASIS") input.basis.reset();
    if (name == "SCF") input.scf.reset();
    if (name == "GUESS") input.guess.reset();
}

}  // namespace nurl::input::gamess::detail
