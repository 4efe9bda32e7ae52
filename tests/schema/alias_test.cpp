#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "schema/schema_probe.hpp"
#include "schema/show.hpp"

using nurl::test::SchemaProbe;

namespace {

using Lines = std::vector<std::string>;

/// A schema of groups s1, s2 and so on. Each is an alias of the next and lists a keyword of its
/// own.
std::string chain(int length) {
    std::string text = "sections:\n";
    for (int i = 1; i <= length; ++i) {
        const std::string number = std::to_string(i);
        text += "  s" + number + ":\n";
        if (i < length) text += "    alias_of: $S" + std::to_string(i + 1) + '\n';
        text += "    entries:\n      k" + number + ":\n";
    }
    return text;
}

/// A group with an alias and a keyword of its own.
std::string alias(const std::string& name, const std::string& target) {
    return "  " + name + ":\n    alias_of: " + target + "\n    entries:\n      of_" + name + ":\n";
}

}  // namespace

TEST_CASE("An alias answers with everything of its target") {
    SchemaProbe probe;
    probe.use_schema(
        "sections:\n"
        "  target:\n"
        "    parse_mode: structured\n"
        "    allow_raw_lines: no\n"
        "    allow_unknown_entries: no\n"
        "    entries:\n"
        "      X:\n"
        "        value_type: int\n"
        "  other:\n"
        "    parse_mode: raw\n"
        "    alias_of: $Target\n");
    CHECK(probe.ask({"section=$OTHER", "section=target"}) == Lines{"structured:x", "structured:x"});
    CHECK(probe.ask({"mode=other", "raw_lines=other", "unknown_entries=other", "entry=other/x"}) ==
          Lines{"structured", "no", "no", "int"});
}

TEST_CASE("Keywords listed under an alias are not found") {
    SchemaProbe probe;
    probe.use_schema(
        "sections:\n"
        "  other:\n"
        "    alias_of: target\n"
        "    entries:\n"
        "      mine:\n"
        "  target:\n"
        "    entries:\n"
        "      yours:\n");
    CHECK(probe.ask({"entry=other/mine", "entry=other/yours", "entry=target/mine"}) ==
          Lines{"none", "token", "none"});
}

TEST_CASE("An alias may lead to a built-in group and a built-in group may be an alias") {
    SchemaProbe probe;
    probe.use_schema(
        "sections:\n"
        "  cntrl:\n"
        "    alias_of: $contrl\n"
        "  vib2:\n"
        "    alias_of: scf\n");
    CHECK(probe.ask({"mode=cntrl", "mode=$VIB2"}) == Lines{"structured", "structured"});
}

TEST_CASE("An alias that leads nowhere or to itself is ignored") {
    SchemaProbe probe;
    probe.use_schema("sections:\n" + alias("dangling", "missing") + alias("self", "$SELF") +
                     alias("nothing", "$") + alias("first", "second") + alias("second", "missing") +
                     alias("third", "self"));
    CHECK(probe.ask({"section=dangling", "section=self", "section=nothing"}) ==
          Lines{"keywords:of_dangling", "keywords:of_self", "keywords:of_nothing"});
    CHECK(probe.ask({"section=first", "section=third"}) ==
          Lines{"keywords:of_second", "keywords:of_self"});
}

TEST_CASE("The target of an alias is normalised once more when it is looked up") {
    SchemaProbe probe;
    probe.use_schema("sections:\n" + alias("a", "$$b") + alias("b", "''") + alias("$$b", "''"));
    CHECK(probe.answer("section=a") == "keywords:of_b");
}

TEST_CASE("A chain of aliases is followed to its end") {
    SchemaProbe probe;
    probe.use_schema(chain(18));
    CHECK(probe.ask({"section=s1", "section=s2", "section=s17", "section=s18"}) ==
          Lines{"keywords:k18", "keywords:k18", "keywords:k18", "keywords:k18"});
}

TEST_CASE("A chain of aliases is followed for seventeen steps at the most") {
    SchemaProbe probe;
    probe.use_schema(chain(20));
    CHECK(probe.ask({"section=s1", "section=s2", "section=s3", "section=s4"}) ==
          Lines{"keywords:k18", "keywords:k19", "keywords:k20", "keywords:k20"});
    CHECK(probe.ask({"entry=s1/k18", "entry=s1/k20", "entry=s1/k1"}) ==
          Lines{"token", "none", "none"});
}

TEST_CASE("A circle of aliases ends where the seventeenth step leads") {
    SchemaProbe probe;
    probe.use_schema("sections:\n" + alias("a", "b") + alias("b", "a") + alias("c", "d") +
                     alias("d", "e") + alias("e", "c") + alias("f", "a"));
    CHECK(probe.ask({"section=a", "section=b"}) == Lines{"keywords:of_b", "keywords:of_a"});
    CHECK(probe.ask({"section=c", "section=d", "section=e"}) ==
          Lines{"keywords:of_e", "keywords:of_c", "keywords:of_d"});
    CHECK(probe.answer("section=f") == "keywords:of_a");
}
