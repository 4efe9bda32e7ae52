#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "command.hpp"
#include "deck_source.hpp"
#include "deck_walk.hpp"
#include "group_text.hpp"
#include "output.hpp"
#include "text_table.hpp"

namespace gms_inp {

namespace {

using Json = nlohmann::ordered_json;

constexpr const char* footer =
    R"(Kinds are structured (has a record of its own), keywords, raw (lines of text) and
data (the molecule, where raw lines are those that are neither title, point group
nor atom; a repeated $DATA is counted with the first one).

Examples:
  gms-inp list water.inp
  gms-inp list --json water.inp)";

struct Options {
    std::string file;
    bool json = false;
};

/// A group of a deck.
struct GroupRow {
    std::string name;
    GroupKind kind;
    std::size_t line;
    std::size_t keywords;
    std::size_t raw_lines;
};

/// The groups in the order of the text. The document holds all of them but `$DATA` in that order.
std::vector<GroupRow> rows_of(const ModelDeck& deck) {
    const nurl::input::gamess::GamessInput& input = deck.result.input;
    std::vector<GroupRow> rows;
    std::size_t next = 0;
    std::size_t data_lines = input.data_lines.size();
    DeckWalk walk{deck.text};
    while (const auto line = walk.next()) {
        if (line->role != LineRole::Header) continue;
        GroupRow row{.name = std::string{line->group},
                     .kind = kind_of_group(line->group),
                     .line = line->number,
                     .keywords = 0,
                     .raw_lines = 0};
        if (row.kind == GroupKind::Data) {
            row.raw_lines = std::exchange(data_lines, 0);
        } else {
            const auto& section = input.sections.at(next++);
            row.keywords = section.entries.size();
            row.raw_lines = section.raw_lines.size();
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

void print_text(const std::vector<GroupRow>& rows) {
    const std::vector<Column> columns{{"line", Align::Right},
                                      {"group"},
                                      {"kind"},
                                      {"keywords", Align::Right},
                                      {"raw lines", Align::Right}};
    std::vector<Row> cells;
    cells.reserve(rows.size());
    for (const GroupRow& row : rows) {
        cells.push_back({std::to_string(row.line), row.name, std::string{text_of(row.kind)},
                         std::to_string(row.keywords), std::to_string(row.raw_lines)});
    }
    print(format_table(columns, cells));
}

Json json_of(const std::vector<GroupRow>& rows) {
    Json groups = Json::array();
    for (const GroupRow& row : rows) {
        groups.push_back({{"name", row.name},
                          {"kind", text_of(row.kind)},
                          {"line", row.line},
                          {"keywords", row.keywords},
                          {"raw_lines", row.raw_lines}});
    }
    return {{"groups", groups}};
}

ExitCode run(const Options& options) {
    const std::vector<GroupRow> rows = rows_of(read_model(options.file));
    if (options.json) {
        print_json(json_of(rows));
    } else {
        print_text(rows);
    }
    return ExitCode::Fine;
}

}  // namespace

Runner attach_list(CLI::App& app) {
    const auto options = std::make_shared<Options>();
    app.add_option("FILE", options->file, "The deck, or - for standard input")->required();
    app.add_flag("--json", options->json, "Print JSON");
    app.footer(footer);
    return [options] { return run(*options); };
}

}  // namespace gms_inp
