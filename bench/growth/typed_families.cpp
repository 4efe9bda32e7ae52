// Groups as typed records.
#include <array>
#include <string>
#include <utility>

#include "growth/family.hpp"
#include "growth/measure.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "nurl/input/gamess/typed.hpp"

namespace nurl::bench::growth {

namespace {

using nurl::input::gamess::GamessInput;
namespace typed = nurl::input::gamess::typed;

GamessInput document(const Input& input) {
    return nurl::input::gamess::parse_string(input.text).input;
}

/// The text as the only raw line of a group.
GamessInput raw_document(const Input& input) {
    GamessInput document;
    document.sections.push_back({"TDDFT", {}, {input.text}});
    return document;
}

void get_from(const GamessInput& document) {
    const auto record = measured([&] { return typed::get_tddft_section(document); });
    require(record.has_value());
}

void get(const Input& input) { get_from(document(input)); }
void get_raw(const Input& input) { get_from(raw_document(input)); }

void get_dynamics(const Input& input) {
    const GamessInput deck = document(input);
    require(measured([&] { return typed::get_md_section(deck); }).has_value());
}

void set_in(GamessInput document) {
    const auto record = typed::get_tddft_section(document);
    require(record.has_value());
    require(measured([&] { return typed::set_tddft_section(document, *record), true; }));
}

void set(const Input& input) { set_in(document(input)); }
void set_raw(const Input& input) { set_in(raw_document(input)); }

constexpr Shape one_keyword{" $TDDFT\n", " MULT=1\n", " $END\n"};
constexpr Shape pieces{" $TDDFT\n", " IXCORE(%)=1\n", " $END\n"};
constexpr Shape integers{" $TDDFT IXCORE(1)=", "1,", "1 $END\n"};
constexpr Shape reals{" $TDDFT PFREQ(1)=", "0.1,", "0.1 $END\n"};
constexpr Shape unknown{" $TDDFT\n", " K%=1\n", " $END\n"};
constexpr Shape text{" $TDDFT\n", "free text\n", " $END\n"};
constexpr Shape pairs{"", "K%=1 "};

constexpr auto families = std::to_array<Family>({
    {"read a record of one keyword given n times", one_keyword, get, things},
    {"read a record of a list in n pieces", pieces, get, things},
    {"read a record of n integers", integers, get, words},
    {"read a record of n reals", reals, get, words},
    {"read a record of n integers of which the last is none",
     {" $TDDFT IXCORE(1)=", "1,", "x $END\n"},
     get,
     words},
    {"read a record of n commas", {" $TDDFT IXCORE(1)=1", ",", " $END\n"}, get, bytes},
    {"read a record of n lists of which the last counts",
     {" $TDDFT\n", " NSTATE(%)=1,2\n", " $END\n"},
     get,
     things},
    {"read a record of n unknown keywords", unknown, get, things},
    {"read a record of n raw lines", text, get, things},
    {"read a record of a raw line of n pairs", pairs, get_raw, things},
    {"read a record of a raw line of n open parentheses", {"A=1 ", "b( "}, get_raw, words},
    {"read a record with more keywords of n unknown ones",
     {" $MD\n", " K%=1\n", " $END\n"},
     get_dynamics,
     things},
    {"write a record of n integers", integers, set, words},
    {"write a record of n reals", reals, set, words},
    {"write a record of n unknown keywords", unknown, set, things},
    {"write a record of n raw lines", text, set, swift_things},
    {"write a record of a raw line of n pairs", pairs, set_raw, things},
    {"write a record among n groups",
     {"", " $G% A=1 $END\n", " $TDDFT MULT=1 $END\n"},
     set,
     things},
});

}  // namespace

std::span<const Family> typed_families() noexcept { return families; }

}  // namespace nurl::bench::growth
