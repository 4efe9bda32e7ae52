#include "validation/findings.hpp"

#include <cstdlib>
#include <stdexcept>

#include "nurl/input/gamess/reader.hpp"
#include "support/temporary_directory.hpp"

namespace nurl::test {

using input::gamess::validation::Issue;
using input::gamess::validation::Severity;

namespace {

std::string upper(std::string text) {
    for (char& c : text)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return text;
}

/// Has the process load the schema of these tests, unless it has done so.
void load_test_schema() {
    static const bool is_loaded = [] {
        const TemporaryDirectory directory;
        const std::string path = directory.file("schema.yaml");
        make_file(path, test_schema);
        // NOLINTNEXTLINE(concurrency-mt-unsafe): these tests start no threads
        if (::setenv("NURL_GMS_INP_SCHEMA_YAML", path.c_str(), 1) != 0) return false;
        const input::gamess::NamedSection known{"STRICT", {}, {}};
        return input::gamess::validation::validate_section(known, {}).empty();
    }();
    if (!is_loaded) throw std::logic_error("another schema was loaded before");
}

}  // namespace

Issues findings(const input::gamess::NamedSection& section,
                const input::gamess::validation::Options& options) {
    load_test_schema();
    return input::gamess::validation::validate_section(section, options);
}

Issues findings(const input::gamess::GamessInput& input,
                const input::gamess::validation::Options& options) {
    load_test_schema();
    return input::gamess::validation::validate(input, options);
}

input::gamess::GamessInput read_deck(std::string_view text) {
    load_test_schema();
    return input::gamess::parse_string(text).input;
}

Issue unknown_keyword(const std::string& name, const std::string& key) {
    return {Severity::Warning, name, key,
            "Keyword '" + key + "' is not currently described by the schema for section $" +
                upper(name)};
}

Issue unknown_group(const std::string& name) {
    return {Severity::Info, name, "",
            "Section $" + upper(name) + " is not currently described by the GAMESS schema"};
}

Issue raw_text(const std::string& name) {
    return {Severity::Error, name, "",
            "Structured section $" + upper(name) + " still contains non-keyword raw text"};
}

}  // namespace nurl::test

namespace doctest {

String StringMaker<nurl::test::Issues>::convert(const nurl::test::Issues& issues) {
    constexpr const char* letters = "IWE";
    std::string text;
    for (const auto& issue : issues)
        text += std::string{"\n  "} + letters[static_cast<int>(issue.severity)] + " [" +
                issue.section + "] [" + issue.key + "] " + issue.message;
    return (text + '\n').c_str();
}

}  // namespace doctest
