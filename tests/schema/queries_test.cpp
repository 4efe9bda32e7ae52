#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>
#include <rapidcheck.h>

#include "nurl/input/gamess/schema.hpp"
#include "schema/schema_probe.hpp"
#include "schema/show.hpp"

using nurl::input::gamess::schema::find_entry;
using nurl::input::gamess::schema::find_section;
using nurl::input::gamess::schema::section_allows_raw_lines;
using nurl::input::gamess::schema::section_allows_unknown_entries;
using nurl::input::gamess::schema::section_names;
using nurl::input::gamess::schema::section_parse_mode;
using nurl::input::gamess::schema::SectionParseMode;
using nurl::test::SchemaProbe;

namespace {

using Lines = std::vector<std::string>;

}  // namespace

TEST_CASE("All spellings of a group name find the same group") {
    const auto* const spec = find_section("contrl");
    REQUIRE(spec != nullptr);
    for (const char* name : {"$CONTRL", " Contrl ", "$contrl", "\t$Contrl\r\n", "CONTRL"}) {
        CAPTURE(name);
        CHECK(find_section(name) == spec);
    }
    for (const char* name : {"$$CONTRL", "$ CONTRL", "CONTRL(1)", "CONTR", ""}) {
        CAPTURE(name);
        CHECK(find_section(name) == nullptr);
    }
}

TEST_CASE("All spellings of a keyword find the same keyword") {
    SchemaProbe probe;
    probe.use_schema(
        "sections:\n"
        "  contrl:\n"
        "    entries:\n"
        "      SCFTYP:\n"
        "        value_type: word\n"
        "      x:\n"
        "        value_type: array\n"
        "      y(1)z:\n"
        "        value_type: odd\n");
    CHECK(probe.ask({"entry=$CONTRL/SCFTYP", "entry=contrl/ scftyp ", "entry= Contrl /$scftyp",
                     "entry=$CONTRL/SCFTYP(3)"}) == Lines{"word", "word", "word", "word"});
    CHECK(probe.ask({"entry=$CONTRL/X(2)", "entry=contrl/x", "entry=contrl/X ( 1 , 2 )"}) ==
          Lines{"array", "array", "array"});
    CHECK(probe.ask({"entry=contrl/Y(1)Z", "entry=contrl/Y", "entry=contrl/", "entry=scf/scftyp",
                     "entry=nosuch/scftyp", "entry=/", "entry=contrl/$$scftyp"}) ==
          Lines{"odd", "none", "none", "none", "none", "none", "none"});
}

TEST_CASE("A keyword found is one of the group found") {
    const auto* const spec = find_section("contrl");
    REQUIRE(spec != nullptr);
    const auto* const entry = find_entry(" $CONTRL", "scftyp(1)");
    REQUIRE(entry != nullptr);
    CHECK(entry == &spec->entries.at("scftyp"));
}

TEST_CASE("Groups answer for their own permissions and mode") {
    SchemaProbe probe;
    probe.use_schema(
        "sections:\n"
        "  a:\n"
        "    allow_raw_lines: no\n"
        "  b:\n"
        "    allow_unknown_entries: no\n"
        "  c:\n"
        "    parse_mode: raw\n"
        "    requires_end: no\n"
        "  d:\n"
        "    parse_mode: structured\n");
    CHECK(probe.ask({"raw_lines=$A", "raw_lines=b", "raw_lines=c"}) == Lines{"no", "yes", "yes"});
    CHECK(probe.ask({"unknown_entries= a", "unknown_entries=$B ", "unknown_entries=C"}) ==
          Lines{"yes", "no", "yes"});
    CHECK(probe.ask({"mode=a", "mode=$c", "mode= D "}) == Lines{"keywords", "raw", "structured"});
}

TEST_CASE("A group that is not known gives the safe answers") {
    for (const char* name : {"$NOSUCH", "nosuch", "", "$", " ", "$$CONTRL", "CONTRL(1)", "\xC9"}) {
        CAPTURE(name);
        CHECK(find_section(name) == nullptr);
        CHECK(find_entry(name, "SCFTYP") == nullptr);
        CHECK(section_parse_mode(name) == SectionParseMode::Keywords);
        CHECK(section_allows_raw_lines(name));
        CHECK(section_allows_unknown_entries(name));
    }
}

TEST_CASE("Without a schema file the built-in groups are all there is") {
    const SchemaProbe probe;
    REQUIRE(probe.answer("resolve=").empty());
    CHECK(probe.answer("names=") ==
          "alpdr,basis,cisvec,contrl,data,datal,datas,dftbao,dftbsk,dipdr,dm,eqgeom,glowt,grad,"
          "guess,hess,hlowt,scf,system,vec,vib,vib2,vibscf");
    CHECK(probe.ask({"mode=$DATA", "mode=$CONTRL", "mode=$NOSUCH"}) ==
          Lines{"raw", "structured", "keywords"});
    CHECK(probe.ask({"raw_lines=$NOSUCH", "unknown_entries=$NOSUCH", "section=$NOSUCH"}) ==
          Lines{"yes", "yes", "none"});
    CHECK(probe.ask({"section=$SCF", "entry=$CONTRL/SCFTYP"}) == Lines{"structured:", "none"});
}

TEST_CASE("The list of names is sorted by bytes and holds aliases and odd names as stored") {
    SchemaProbe probe;
    probe.use_schema(
        "sections:\n"
        "  ZZZ:\n"
        "  $cntrl:\n"
        "    alias_of: contrl\n"
        "  $$x:\n"
        "  $:\n"
        "  \xC3\xA9:\n"
        "  a_b:\n"
        "  a b:\n"
        "  a9:\n"
        "  aa:\n");
    CHECK(probe.answer("names=") ==
          ",$x,a b,a9,a_b,aa,alpdr,basis,cisvec,cntrl,contrl,data,datal,datas,dftbao,dftbsk,dipdr,"
          "dm,eqgeom,glowt,grad,guess,hess,hlowt,scf,system,vec,vib,vib2,vibscf,zzz,\xC3\xA9");
}

TEST_CASE("A group and a keyword whose names normalise to nothing are found by such names") {
    SchemaProbe probe;
    probe.use_schema(
        "sections:\n"
        "  $:\n"
        "  a:\n"
        "    entries:\n"
        "      (1):\n");
    CHECK(probe.ask({"section=", "section=$", "section=  "}) ==
          Lines{"keywords:", "keywords:", "keywords:"});
    CHECK(probe.ask({"entry=a/", "entry=a/(7)", "entry=a/$", "entry=$/x"}) ==
          Lines{"token", "token", "token", "none"});
}

TEST_CASE("The list of names is ascending and made of groups that are found") {
    const std::vector<std::string> names = section_names();
    CHECK(names.size() >= 23);
    CHECK(std::ranges::is_sorted(names));
    CHECK(std::ranges::adjacent_find(names) == names.end());
    for (const std::string& name : names) {
        CAPTURE(name);
        CHECK(find_section(name) != nullptr);
    }
}

TEST_CASE("No name makes a query throw and all queries agree on whether it is known") {
    CHECK(rc::check([](const std::string& name, const std::string& keyword) {
        const auto* const spec = find_section(name);
        const auto* const entry = find_entry(name, keyword);
        RC_ASSERT(section_parse_mode(name) ==
                  (spec != nullptr ? spec->parse_mode : SectionParseMode::Keywords));
        RC_ASSERT(section_allows_raw_lines(name) == (spec == nullptr || spec->allow_raw_lines));
        RC_ASSERT(section_allows_unknown_entries(name) ==
                  (spec == nullptr || spec->allow_unknown_entries));
        RC_ASSERT(spec != nullptr || entry == nullptr);
    }));
}
