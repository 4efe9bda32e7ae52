#include "model/structured_groups.hpp"

#include <string_view>
#include <type_traits>
#include <vector>

#include <doctest/doctest.h>

#include "model/printing.hpp"
#include "model/structured_fields.hpp"

using namespace nurl::input::gamess;
using namespace nurl::input::gamess::detail;
using Keywords = std::vector<std::string_view>;

namespace {

template <class Record>
Keywords keywords() {
    Keywords names;
    for (const auto& field : structured_fields<Record>) names.push_back(field.keyword);
    return names;
}

}  // namespace

TEST_CASE("Five groups have a structured record and DATA is none of them") {
    CHECK(Keywords(structured_names.begin(), structured_names.end()) ==
          Keywords{"CONTRL", "SYSTEM", "BASIS", "SCF", "GUESS"});
    for (const std::string_view name : structured_names) CHECK(is_structured(name));
    CHECK_FALSE(is_structured("DATA"));
    CHECK_FALSE(is_structured("contrl"));
    CHECK_FALSE(is_structured("$SCF"));
    CHECK_FALSE(is_structured(""));
}

TEST_CASE("Each structured group has its keywords in the order of writing") {
    CHECK(keywords<ControlSection>() == Keywords{"SCFTYP", "RUNTYP", "ICHARG", "MULT", "COORD",
                                                 "UNITS", "NOSYM", "MAXIT", "ISPHER", "EXETYP",
                                                 "DFTTYP", "CITYP", "TDDFT", "RELWFN", "PP"});
    CHECK(keywords<SystemSection>() == Keywords{"MWORDS", "MEMDDI"});
    CHECK(keywords<BasisSection>() ==
          Keywords{"GBASIS", "NGAUSS", "NDFUNC", "NPFUNC", "NFFUNC", "DIFFS", "DIFFSP"});
    CHECK(keywords<ScfSection>() == Keywords{"DIRSCF", "DIIS", "SOSCF", "FDIFF", "MOM"});
    CHECK(keywords<GuessSection>() == Keywords{"GUESS", "NORB"});
}

TEST_CASE("A keyword finds its own row and nothing else does") {
    CHECK(find_field<ControlSection>("MULT")->keyword == "MULT");
    CHECK(find_field<ControlSection>("mult") == nullptr);
    CHECK(find_field<ControlSection>("MULT(1)") == nullptr);
    CHECK(find_field<ControlSection>("") == nullptr);
    CHECK(find_field<GuessSection>("NORB")->keyword == "NORB");
    CHECK(find_field<GuessSection>("MULT") == nullptr);
}

TEST_CASE("A structured group is present once it has been engaged") {
    for (const std::string_view name : structured_names) {
        CAPTURE(name);
        GamessInput deck;
        CHECK_FALSE(structured_present(deck, name));
        engage_structured(deck, name);
        for (const std::string_view other : structured_names)
            CHECK(structured_present(deck, other) == (other == name));
    }
}

TEST_CASE("A structured group that is disengaged is present no more, and the others are") {
    for (const std::string_view name : structured_names) {
        CAPTURE(name);
        GamessInput deck;
        for (const std::string_view each : structured_names) engage_structured(deck, each);
        disengage_structured(deck, name);
        for (const std::string_view other : structured_names)
            CHECK(structured_present(deck, other) == (other != name));
    }
}

TEST_CASE("Engaging a group again keeps its record") {
    GamessInput deck;
    deck.scf.emplace().diis = true;
    engage_structured(deck, "SCF");
    CHECK(deck.scf->diis == true);
}

TEST_CASE("A name without a record is never present and engages nothing") {
    GamessInput deck;
    for (const std::string_view name : {"PCM", "DATA", "contrl", ""}) {
        engage_structured(deck, name);
        CHECK(deck == GamessInput{});
        CHECK_FALSE(structured_present(deck, name));
    }
}

TEST_CASE("Visiting gives the record of the name and null for an absent one") {
    GamessInput deck;
    deck.basis.emplace();
    const auto place = [](auto* record) { return static_cast<void*>(record); };
    CHECK(visit_structured(deck, "CONTRL", place) == &deck.control);
    CHECK(visit_structured(deck, "BASIS", place) == &*deck.basis);
    CHECK(visit_structured(deck, "SYSTEM", place) == nullptr);
    CHECK(visit_structured(deck, "SCF", place) == nullptr);
    CHECK(visit_structured(deck, "GUESS", place) == nullptr);
    CHECK(visit_structured(deck, "PCM", place) == nullptr);
}
