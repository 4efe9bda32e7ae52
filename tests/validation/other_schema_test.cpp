#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "schema/schema_probe.hpp"
#include "schema/show.hpp"

using nurl::test::SchemaProbe;

namespace {

using Lines = std::vector<std::string>;

std::string unknown_keyword(const std::string& name, const std::string& upper_name,
                            const std::string& key) {
    return "Warning|" + name + '|' + key + "|Keyword '" + key +
           "' is not currently described by the schema for section $" + upper_name;
}

}  // namespace

TEST_CASE("Without a schema file every keyword of a built-in group is reported") {
    const SchemaProbe probe;
    CHECK(probe.ask({"validate= $CONTRL SCFTYP=RHF NPRINT=7 $END\n $SCF DIRSCF=.T. $END"}) ==
          Lines{unknown_keyword("contrl", "CONTRL", "NPRINT"),
                unknown_keyword("contrl", "CONTRL", "SCFTYP"),
                unknown_keyword("contrl", "CONTRL", "NPRINT"),
                unknown_keyword("scf", "SCF", "DIRSCF")});
}

TEST_CASE("Without a schema file groups that are not built in are not known") {
    const SchemaProbe probe;
    CHECK(probe.ask({"validate= $PCM SOLVNT=WATER $END\n $VEC\n 1 1 A=1\n $END\n"}) ==
          Lines{"Info|pcm||Section $PCM is not currently described by the GAMESS schema"});
}

TEST_CASE("The same deck gives other findings under another schema") {
    SchemaProbe probe;
    const std::string question = "validate= $CONTRL NPRINT=7 $END\n $PCM SOLVNT=WATER $END\n";
    probe.use_schema(
        "sections:\n"
        "  contrl:\n"
        "    entries:\n"
        "      NPRINT:\n"
        "  pcm:\n"
        "    entries:\n"
        "      IEF:\n");
    CHECK(probe.ask({question}) == Lines{unknown_keyword("pcm", "PCM", "SOLVNT")});
    probe.use_schema(
        "sections:\n  contrl:\n    alias_of: pcm\n  pcm:\n    entries:\n      nprint:\n");
    CHECK(probe.ask({question}) == Lines{unknown_keyword("pcm", "PCM", "SOLVNT")});
}

TEST_CASE("A group that is structured by the schema alone is checked for free text") {
    SchemaProbe probe;
    probe.use_schema(
        "sections:\n  pcm:\n    parse_mode: structured\n  scf:\n    parse_mode: raw\n");
    CHECK(probe.ask({"validate= $PCM\n some words\n $END\n $SCF\n some A=1\n $END\n"}).back() ==
          "Error|pcm||Structured section $PCM still contains non-keyword raw text");
}
