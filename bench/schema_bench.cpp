// First use of the schema: the shipped file read into a table, beside the least such a table costs:
// every line taken from the stream and every keyword put into a map by its name.
#include <fstream>
#include <malloc.h>
#include <string>
#include <unordered_map>

#include <benchmark/benchmark.h>

#include "schema/loader.hpp"

namespace schema = nurl::input::gamess::schema;

namespace {

constexpr const char* file_name = NURL_BENCH_SCHEMA;

/// Bytes in use on the heap.
double heap_in_use() { return static_cast<double>(mallinfo2().uordblks); }

void load_schema(benchmark::State& state) {
    for (auto run : state) {
        benchmark::DoNotOptimize(schema::load_schema(file_name));
    }
    const double before = heap_in_use();
    const schema::Table table = schema::load_schema(file_name);
    state.counters["table_bytes"] = heap_in_use() - before;
    std::size_t keywords = 0;
    for (const auto& [name, section] : table) keywords += section.entries.size();
    state.counters["groups"] = static_cast<double>(table.size());
    state.counters["keywords"] = static_cast<double>(keywords);
}

/// A line six spaces in that ends with a colon names a keyword, one two spaces in a group.
void load_schema_floor(benchmark::State& state) {
    for (auto run : state) {
        std::unordered_map<std::string, std::unordered_map<std::string, schema::EntrySpec>> table;
        std::ifstream file(file_name);
        std::string line;
        auto* entries = &table[""];
        while (std::getline(file, line)) {
            if (!line.ends_with(':') || line.size() < 8) continue;
            if (line[2] != ' ') entries = &table[line.substr(2)];
            if (line[2] == ' ' && line[6] != ' ') entries->try_emplace(line.substr(6));
        }
        benchmark::DoNotOptimize(table);
    }
}

BENCHMARK(load_schema)->Unit(benchmark::kMillisecond);
BENCHMARK(load_schema_floor)->Unit(benchmark::kMillisecond);

}  // namespace
