#include <doctest/doctest.h>
#include <nlohmann/json.hpp>

#include "tool/workplace.hpp"

using nlohmann::ordered_json;
using nurl::test::Outcome;
using nurl::test::Workplace;

TEST_CASE("A typed record is shown with every member, absent ones as null") {
    const Workplace place;
    place.make("pcm.inp", " $PCM SOLVNT=water EPS=78.39 ICAV=1 FOO=1\n note $END\n");
    const Outcome outcome = place.run({"show", "pcm.inp", "--typed", "pcm", "--json"});
    CHECK(outcome.status == 0);
    CHECK(ordered_json::parse(outcome.out) == ordered_json::parse(R"({
        "solvnt": "WATER", "eps": 78.39, "epsinf": null, "icomp": null, "idisp": null,
        "ifield": null, "icav": 1, "rinfx": null, "rsolv": null, "ntsang": null,
        "extra_entries": [{"key": "FOO", "value": "1"}], "raw_lines": ["note"]})"));
}

TEST_CASE("Lists and logical values of a typed record are lists and logical values of JSON") {
    const Workplace place;
    place.make("md.inp",
               " $MD BATHT(1)=300,310 PROD=.T. TRJFMT=Xyz $END $DFTB\n"
               " $DFTB MAXANG(1)=s,p $END\n $TDDFT NSTATE=3 $END\n"
               " $FORCE VIBSIZ=0.01 $END\n");
    const auto show = [&place](const std::string& group) {
        return ordered_json::parse(place.run({"show", "md.inp", "--typed", group, "--json"}).out);
    };
    CHECK(show("MD")["batht"] == ordered_json{300.0, 310.0});
    CHECK(show("MD")["prod"] == true);
    CHECK(show("MD")["trjfmt"] == "Xyz");
    CHECK(show("MD")["prvec"] == ordered_json::array());
    CHECK(show("$dftb")["maxang"] == ordered_json{"S", "P"});
    CHECK(show("TDDFT")["nstate"] == ordered_json{3});
    CHECK(show("FORCE")["vibsiz"] == ordered_json{0.01});
}

TEST_CASE("Without --json a typed record is shown line by line") {
    const Workplace place;
    place.make("s.inp", " $STATPT NSTEP=5 IFREEZ(1)=1,2 $END\n");
    const Outcome outcome = place.run({"show", "s.inp", "--typed", "STATPT"});
    CHECK(outcome.status == 0);
    CHECK(outcome.out.find("nstep = 5\n") != std::string::npos);
    CHECK(outcome.out.find("ifreez[1] = 2\n") != std::string::npos);
    CHECK(outcome.out.find("method = null\n") != std::string::npos);
}

TEST_CASE("A typed group that the deck lacks has status 1, one without a record status 2") {
    const Workplace place;
    place.make("s.inp", " $STATPT NSTEP=5 $END\n");
    CHECK(place.run({"show", "s.inp", "--typed", "MD"}) ==
          Outcome{1, "", "s.inp: error: no group $MD\n"});
    CHECK(
        place.run({"show", "s.inp", "--typed", "CONTRL"}) ==
        Outcome{2, "",
                "gms-inp: error: no typed record for $CONTRL; there is one for TDDFT STATPT FORCE "
                "PCM FMO SURF CCINP EOMINP MD DFTB\n"});
}
