#include "nurl/input/gamess/builder.hpp"

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <doctest/doctest.h>

#include "faults/fail_each.hpp"

using namespace nurl::input::gamess;
using nurl::test::fail_each_allocation_of;
using nurl::test::fail_each_allocation_of_change;

namespace {

using Call = std::function<void(InputBuilder&)>;

const std::string long_text = "a text that is longer than fifteen bytes";

/// A builder with something in every place.
InputBuilder filled() {
    InputBuilder builder;
    builder.set_coord(long_text)
        .set_basis_keyword(long_text)
        .set_system_mwords(100)
        .set_guess(long_text)
        .set_title(long_text)
        .set_point_group(long_text)
        .add_scf_keyword("A", long_text)
        .add_atom({"C", {}, 0.0, 0.0, 0.0})
        .add_section({long_text, {{"A", "1"}}, {long_text}});
    return builder;
}

void fail_each_allocation_of_calls(const std::vector<Call>& calls) {
    for (const InputBuilder& before : {InputBuilder{}, filled()}) {
        const bool is_fresh = before.input().atoms.empty();
        CAPTURE(is_fresh);
        for (std::size_t call = 0; call < calls.size(); ++call) {
            CAPTURE(call);
            fail_each_allocation_of_change(before, calls[call], &InputBuilder::input);
        }
    }
}

}  // namespace

TEST_CASE("A setter of the builder that fails leaves the document as it was") {
    fail_each_allocation_of_calls({
        [](InputBuilder& builder) { builder.set_charge_and_multiplicity(1, 2); },
        [](InputBuilder& builder) { builder.set_scftyp(long_text); },
        [](InputBuilder& builder) { builder.set_runtyp(long_text); },
        [](InputBuilder& builder) { builder.set_coord(long_text); },
        [](InputBuilder& builder) { builder.set_units(Units::Bohr); },
        [](InputBuilder& builder) { builder.set_nosym(true); },
        [](InputBuilder& builder) { builder.set_maxit(50); },
        [](InputBuilder& builder) { builder.set_basis_keyword(long_text); },
        [](InputBuilder& builder) { builder.set_ngauss(6); },
        [](InputBuilder& builder) { builder.set_system_mwords(1); },
        [](InputBuilder& builder) { builder.set_guess(long_text + long_text); },
        [](InputBuilder& builder) { builder.set_title(long_text + long_text); },
        [](InputBuilder& builder) { builder.set_point_group(long_text + long_text); },
        [](InputBuilder& builder) { builder.set_point_group(std::string(100, ' ')); },
    });
}

TEST_CASE("An adder of the builder that fails leaves the document as it was") {
    fail_each_allocation_of_calls({
        [](InputBuilder& builder) { builder.add_control_keyword(long_text, long_text); },
        [](InputBuilder& builder) { builder.add_system_keyword(long_text, long_text); },
        [](InputBuilder& builder) { builder.add_basis_keyword(long_text, long_text); },
        [](InputBuilder& builder) { builder.add_scf_keyword(long_text, long_text); },
        [](InputBuilder& builder) { builder.add_guess_keyword(long_text, long_text); },
        [](InputBuilder& builder) { builder.add_control_flag(long_text, true); },
        [](InputBuilder& builder) { builder.add_scf_flag(long_text, true); },
        [](InputBuilder& builder) { builder.add_basis_flag(long_text, true); },
        [](InputBuilder& builder) {
            const NamedSection section{long_text, {{long_text, "1"}}, {long_text}};
            builder.add_section(section);
        },
        [](InputBuilder& builder) {
            builder.add_section({long_text, {{long_text, "1"}}, {long_text}});
        },
    });
}

TEST_CASE("A molecule that cannot be stored leaves the document as it was") {
    const std::vector<AtomRecord> records(3, {"an atom label of some length", {}, 1.0, 2.0, 3.0});
    nurl::core::Geometry geometry;
    geometry.atoms.push_back({"oxygen", 0.0, 0.0, 0.0});
    geometry.atoms.push_back({"a label that is no element", 1.0, 0.0, 0.0});
    fail_each_allocation_of_calls({
        [&](InputBuilder& builder) { builder.add_atom(records[0]); },
        [&](InputBuilder& builder) { builder.add_atom(geometry.atoms[1]); },
        [&](InputBuilder& builder) { builder.set_geometry(records); },
        [&](InputBuilder& builder) { builder.set_geometry(geometry); },
    });
}

TEST_CASE("A group that the builder cannot take over stays with the caller") {
    using State = std::pair<InputBuilder, NamedSection>;
    const State before{filled(), {long_text, {{long_text, "1"}}, {long_text}}};
    fail_each_allocation_of_change(
        before, [](State& state) { state.first.add_section(std::move(state.second)); },
        [](const State& state) {
            return std::pair{state.first.input(), state.second};
        });
}

TEST_CASE("A builder is made, copied and rendered, or memory runs out") {
    const InputBuilder builder = filled();
    fail_each_allocation_of([] { return InputBuilder{}.input(); });
    fail_each_allocation_of([&builder] { return InputBuilder{builder}.input(); });
    fail_each_allocation_of([&builder] { return builder.to_string(); });
}
