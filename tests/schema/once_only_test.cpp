#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "schema/schema_probe.hpp"
#include "schema/show.hpp"

using nurl::test::SchemaProbe;

namespace {

using Lines = std::vector<std::string>;

constexpr const char* one = "sections:\n  one:\n    parse_mode: raw\n";
constexpr const char* two = "sections:\n  two:\n    parse_mode: raw\n";

}  // namespace

TEST_CASE("The variable is read by the first query alone") {
    SchemaProbe probe;
    probe.use_schema(one);
    const std::string change = "variable=" + probe.make_file("two.yaml", two);
    CHECK(probe.ask({"mode=one", change, "mode=one", "mode=two"}) ==
          Lines{"raw", "set", "raw", "keywords"});
    CHECK(probe.ask({change, "mode=one", "mode=two"}) == Lines{"set", "keywords", "raw"});
}

TEST_CASE("The file is read by the first query alone") {
    SchemaProbe probe;
    const std::string file = probe.make_file("one.yaml", one);
    probe.set_variable(file);
    CHECK(probe.ask({"mode=one", "empty=" + file, "mode=one"}) == Lines{"raw", "emptied", "raw"});
    CHECK(probe.ask({"mode=one"}) == Lines{"keywords"});
}

TEST_CASE("Every query loads the schema when it is the first") {
    SchemaProbe probe;
    probe.use_schema(one);
    const std::string change = "variable=" + probe.make_file("two.yaml", two);
    for (const char* first : {"names=", "section=x", "entry=x/y", "mode=x", "raw_lines=x",
                              "unknown_entries=x", "read= $X $END", "validate= $CONTRL $END"}) {
        CAPTURE(first);
        const Lines answers = probe.ask({first, change, "mode=one", "mode=two"});
        REQUIRE(answers.size() == 4);
        CHECK(answers[2] == "raw");
        CHECK(answers[3] == "keywords");
    }
}

TEST_CASE("Reading a deck of nothing but DATA does not load the schema") {
    SchemaProbe probe;
    probe.use_schema(one);
    const std::string change = "variable=" + probe.make_file("two.yaml", two);
    CHECK(probe.ask({"read= $DATA\ntitle\nC1\n $END\n", change, "mode=two"}) ==
          Lines{"0", "set", "raw"});
}

TEST_CASE("Resolving the path looks again on every call and leaves the table alone") {
    SchemaProbe probe;
    const std::string first = probe.make_file("one.yaml", one);
    const std::string second = probe.make_file("two.yaml", two);
    probe.set_variable(first);
    CHECK(probe.ask({"resolve=", "variable=" + second, "resolve=", "mode=two"}) ==
          Lines{first, "set", second, "raw"});
    CHECK(probe.ask({"mode=one", "variable=" + second, "resolve=", "mode=two", "mode=one"}) ==
          Lines{"raw", "set", second, "keywords", "raw"});
}

TEST_CASE("Eight threads that make the first query at once all see the same schema") {
    SchemaProbe probe;
    std::string schema = "sections:\n  other:\n    alias_of: target\n  target:\n    entries:\n";
    for (int i = 0; i < 1000; ++i) schema += "      x" + std::to_string(i) + "y:\n";
    probe.use_schema(schema + "      x:\n");
    for (int run = 0; run < 5; ++run) CHECK(probe.answer("threads=$OTHER") == "8 alike");
    CHECK(probe.answer("threads=$NOSUCH") == "8 alike");
}
