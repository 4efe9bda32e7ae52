// A schema file of any bytes: it loads as the plain loader loads it, with lists of words or
// without.
#include "nurl/input/gamess/schema.hpp"

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

#include "bytes.hpp"
#include "require.hpp"
#include "schema/loader.hpp"
#include "schema/schema_line.hpp"
#include "second_reading/plain_schema.hpp"

namespace {

namespace schema = nurl::input::gamess::schema;
using nurl::fuzz::require;

std::size_t count_keywords(const schema::Table& table) {
    std::size_t count = 0;
    for (const auto& [name, group] : table) count += group.entries.size();
    return count;
}

void check_words(const schema::Choices& choices) {
    for (const auto& [entry, list] : choices) {
        for (const std::string_view word : schema::read_list(list))
            require(!word.empty() && list.find(word) != std::string::npos,
                    "the words of a list stand in the list");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text = nurl::fuzz::text_of(data, size);
    std::istringstream stream{text};
    schema::Choices choices;
    const schema::Table table = schema::read_schema(stream, &choices);
    require(table == nurl::test::read_schema_plainly(text),
            "a schema file loads as the plain loader loads it");
    require(choices.size() <= count_keywords(table), "lists of words belong to keywords");
    check_words(choices);
    for (const auto& [name, group] : table)
        require(group.known, "every group of the table is known");
    return 0;
}
