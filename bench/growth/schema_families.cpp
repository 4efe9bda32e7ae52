// Reading a schema file from a stream, taking its lists apart, and asking the schema.
#include <array>
#include <sstream>

#include "growth/family.hpp"
#include "growth/measure.hpp"
#include "nurl/input/gamess/schema.hpp"
#include "schema/loader.hpp"
#include "schema/schema_line.hpp"

namespace nurl::bench::growth {

namespace {

namespace schema = nurl::input::gamess::schema;

void load(const Input& input) {
    std::istringstream stream{input.text};
    schema::Choices choices;
    const auto table = measured([&] { return schema::read_schema(stream, &choices); });
    require(table.contains("contrl"));
}

void take_list_apart(const Input& input) {
    const auto list = measured([&] { return schema::read_list(input.text); });
    require(list.size() <= input.n);
}

void ask_for_keyword(const Input& input) {
    require(measured([&] { return schema::find_entry("CONTRL", input.text); }) == nullptr);
}

void ask_for_group(const Input& input) {
    require(measured([&] { return schema::find_section(input.text); }) == nullptr);
}

constexpr auto families = std::to_array<Family>({
    {"load n groups", {"sections:\n", "  G%:\n"}, load, words},
    {"load one group n times", {"sections:\n", "  SCF:\n"}, load, words},
    {"load n keywords of a group", {"sections:\n  G:\n    entries:\n", "      K%:\n"}, load, words},
    {"load one keyword n times", {"sections:\n  G:\n    entries:\n", "      K:\n"}, load, words},
    {"load n keywords with choices",
     {"sections:\n  G:\n    entries:\n", "      K%:\n        choices: [A, B]\n"},
     load,
     things},
    {"load n properties of a keyword",
     {"sections:\n  G:\n    entries:\n      K:\n", "        choices: [A, B]\n"},
     load,
     things},
    {"load n aliases, each of the next",
     {"sections:\n", "  G%:\n    alias_of: G%1\n"},
     load,
     things},
    {"load n aliases of themselves", {"sections:\n", "  G%:\n    alias_of: G%\n"}, load, things},
    {"load n lines of garbage", {"sections:\n  G:\n", "\t[{: garbage\n"}, load, words},
    {"load n blank lines", {"sections:\n", "   \n"}, load, words},
    {"load n `sections:`", {"", "sections:\n"}, load, words},
    {"load a line of n `#` in quotes", {"sections:\n  '", "#", "'\n"}, load, swift_bytes},
    {"load a line of n `#` and quotes", {"sections:\n  ", "'#'\"#\"", "\n"}, load, swift_words},
    {"load a line of n quotes", {"sections:\n  ", "'\"", "\n"}, load, swift_words},
    {"load a line of n blanks", {"sections:\n", " ", "x\n"}, load, bytes},
    {"load a line of n colons", {"sections:\n  G", ":", "\n"}, load, swift_bytes},
    {"load a group name of n bytes", {"sections:\n  ", "G", ":\n"}, load, swift_bytes},
    {"load n bytes without a line end", {"", "x"}, load, swift_bytes},
    {"ask for a keyword of n letters", {"", "K"}, ask_for_keyword, swift_bytes},
    {"ask for a keyword of n parentheses", {"K", "("}, ask_for_keyword, swift_bytes},
    {"ask for a group behind n blanks", {"", " ", "NONE"}, ask_for_group, swift_bytes},
    {"take a list of n words apart", {"[", "A, ", "]"}, take_list_apart, words},
    {"take a list of n commas apart", {"[", ",", "]"}, take_list_apart, bytes},
    {"take a list of n quotes apart", {"[", "''", "]"}, take_list_apart, words},
});

}  // namespace

std::span<const Family> schema_families() noexcept { return families; }

}  // namespace nurl::bench::growth
