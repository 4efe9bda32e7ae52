#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

#include "schema/schema_probe.hpp"
#include "schema/show.hpp"
#include "support/temporary_directory.hpp"

using nurl::test::resources_file;
using nurl::test::SchemaProbe;
using nurl::test::share_file;
using std::filesystem::path;

namespace {

using Lines = std::vector<std::string>;

/// A schema that makes a group of the given name raw.
std::string schema_of(std::string_view name) {
    return "sections:\n  " + std::string{name} + ":\n    parse_mode: raw\n";
}

/// The groups among these that the schema of the probe knows.
std::string known(const SchemaProbe& probe, const Lines& groups) {
    std::string result;
    for (const std::string& group : groups)
        if (probe.answer("mode=" + group) == "raw") result += group;
    return result;
}

}  // namespace

TEST_CASE("The variable names the schema file") {
    SchemaProbe probe;
    const std::string file = probe.make_file("any.txt", schema_of("a"));
    probe.set_variable(file);
    CHECK(probe.ask({"mode=a", "resolve="}) == Lines{"raw", file});
}

TEST_CASE("The variable may hold a path relative to the current directory") {
    SchemaProbe probe;
    probe.make_file("below/schema.yaml", schema_of("a"));
    probe.run_in("below/further");
    probe.set_variable("../schema.yaml");
    CHECK(probe.ask({"mode=a", "resolve="}) == Lines{"raw", "../schema.yaml"});
}

TEST_CASE("A variable that names no regular file is passed over") {
    SchemaProbe probe;
    for (const std::string& value :
         {std::string{}, probe.place().string(), probe.place().string() + "/missing",
          std::string{"/dev/null"}, std::string{" "}}) {
        CAPTURE(value);
        probe.set_variable(value);
        CHECK(probe.ask({"resolve=", "mode=data", "mode=a"}) == Lines{"", "raw", "keywords"});
    }
    const std::string file = probe.make_file(resources_file, schema_of("a"));
    for (const std::string& value :
         {std::string{}, probe.place().string(), std::string{"missing"}}) {
        CAPTURE(value);
        probe.set_variable(value);
        CHECK(probe.ask({"resolve=", "mode=a"}) == Lines{file, "raw"});
    }
}

TEST_CASE("The variable goes before the schema files around") {
    SchemaProbe probe;
    probe.make_file(resources_file, schema_of("a"));
    probe.make_file(share_file, schema_of("b"));
    probe.use_schema(schema_of("c"));
    CHECK(known(probe, {"a", "b", "c"}) == "c");
}

TEST_CASE("Both places below the current directory are searched") {
    for (const std::string_view name : {resources_file, share_file}) {
        CAPTURE(name);
        const SchemaProbe probe;
        const std::string file = probe.make_file(name, schema_of("a"));
        CHECK(probe.ask({"resolve=", "mode=a"}) == Lines{file, "raw"});
    }
}

TEST_CASE("Of the two places below one directory the resources go first") {
    const SchemaProbe probe;
    probe.make_file(share_file, schema_of("b"));
    const std::string file = probe.make_file(resources_file, schema_of("a"));
    CHECK(probe.answer("resolve=") == file);
    CHECK(known(probe, {"a", "b"}) == "a");
}

TEST_CASE("Six parents of the current directory are searched and the seventh is not") {
    for (const std::string_view name : {resources_file, share_file}) {
        CAPTURE(name);
        SchemaProbe probe;
        const std::string file = probe.make_file(name, schema_of("a"));
        probe.run_in("1/2/3/4/5/6");
        CHECK(probe.ask({"resolve=", "mode=a"}) == Lines{file, "raw"});
        probe.run_in("1/2/3/4/5/6/7");
        CHECK(probe.ask({"resolve=", "mode=a", "mode=data"}) == Lines{"", "keywords", "raw"});
    }
}

TEST_CASE("The nearest parent goes before the farther ones") {
    SchemaProbe probe;
    probe.make_file(resources_file, schema_of("a"));
    probe.make_file(path{"1"} / share_file, schema_of("b"));
    probe.run_in("1/2");
    CHECK(known(probe, {"a", "b"}) == "b");
    probe.make_file(path{"1/2"} / share_file, schema_of("c"));
    CHECK(known(probe, {"a", "b", "c"}) == "c");
}

TEST_CASE("A directory in the place of a schema file is passed over") {
    const SchemaProbe probe;
    std::filesystem::create_directories(probe.place() / resources_file);
    const std::string file = probe.make_file(share_file, schema_of("a"));
    CHECK(probe.ask({"resolve=", "mode=a"}) == Lines{file, "raw"});
}

TEST_CASE("Six parents of the directory of the program are searched and the seventh is not") {
    const SchemaProbe deep("1/2/3/4/5/6/7");
    const std::string far = (deep.home() / share_file).string();
    nurl::test::make_file(far, schema_of("a"));
    CHECK(deep.ask({"resolve=", "mode=a"}) == Lines{"", "keywords"});
    const SchemaProbe probe("1/2/3/4/5/6");
    const std::string near = (probe.home() / share_file).string();
    nurl::test::make_file(near, schema_of("a"));
    CHECK(probe.ask({"resolve=", "mode=a"}) == Lines{near, "raw"});
}

TEST_CASE("The current directory and its parents go before the directory of the program") {
    SchemaProbe probe;
    nurl::test::make_file(probe.home() / resources_file, schema_of("a"));
    CHECK(known(probe, {"a", "b"}) == "a");
    probe.make_file(share_file, schema_of("b"));
    probe.run_in("1/2/3");
    CHECK(known(probe, {"a", "b"}) == "b");
}

TEST_CASE("An explicit path that is a regular file is resolved to itself") {
    SchemaProbe probe;
    const std::string file = probe.make_file("explicit.txt", "");
    probe.make_file(resources_file, schema_of("a"));
    probe.use_schema(schema_of("b"));
    CHECK(probe.answer("resolve=" + file) == file);
    CHECK(probe.answer("resolve=./explicit.txt") == "./explicit.txt");
}

TEST_CASE("An explicit path that is no regular file leaves the search to go on") {
    SchemaProbe probe;
    const std::string around = probe.make_file(resources_file, schema_of("a"));
    const std::string named = probe.make_file("named.yaml", schema_of("b"));
    for (const std::string& explicit_path :
         {std::string{"missing.yaml"}, probe.place().string(), std::string{}}) {
        CAPTURE(explicit_path);
        CHECK(probe.answer("resolve=" + explicit_path) == around);
    }
    probe.set_variable(named);
    CHECK(probe.answer("resolve=missing.yaml") == named);
}

TEST_CASE("A schema file that is found but empty leaves the built-in groups") {
    SchemaProbe probe;
    probe.use_schema("");
    CHECK(probe.ask({"mode=contrl", "mode=data", "section=a"}) ==
          Lines{"structured", "raw", "none"});
}
