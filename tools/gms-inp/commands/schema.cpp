#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "command.hpp"
#include "diagnostics.hpp"
#include "keyword_path.hpp"
#include "output.hpp"
#include "schema_view.hpp"
#include "text_table.hpp"

namespace gms_inp {

namespace {

using Json = nlohmann::ordered_json;

constexpr const char* footer =
    R"(Without an argument, all groups are listed. A group and its aliases share one
description and name each other under "same as". What is not known gives exit
status 1.

Examples:
  gms-inp schema
  gms-inp schema CONTRL
  gms-inp schema contrl.scftyp --json
  gms-inp --schema my.yaml schema)";

struct Options {
    std::string path;
    bool json = false;
};

std::string yes_or_no(bool value) { return value ? "yes" : "no"; }

std::string joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) {
        if (!text.empty()) text += ' ';
        text += word;
    }
    return text;
}

std::string table_of(std::span<const GroupView> groups) {
    const std::vector<Column> columns{{"group"}, {"mode"}, {"keywords", Align::Right}, {"same as"}};
    std::vector<Row> rows;
    rows.reserve(groups.size());
    for (const GroupView& group : groups) {
        rows.push_back({group.name, std::string{text_of(group.section->parse_mode)},
                        std::to_string(group.keywords.size()), joined(group.same_as)});
    }
    return format_table(columns, rows);
}

std::string table_of(std::span<const KeywordView> keywords) {
    const std::vector<Column> columns{{"keyword"}, {"kind"}, {"type"}, {"indexed"}, {"repeated"}};
    std::vector<Row> rows;
    rows.reserve(keywords.size());
    for (const auto& [name, entry] : keywords) {
        rows.push_back({name, std::string{text_of(entry.kind)}, entry.value_type,
                        yes_or_no(entry.indexed), yes_or_no(entry.repeated)});
    }
    return format_table(columns, rows);
}

Json json_of(const KeywordView& keyword) {
    return {{"name", keyword.name},
            {"kind", text_of(keyword.entry.kind)},
            {"value_type", keyword.entry.value_type},
            {"indexed", keyword.entry.indexed},
            {"repeated", keyword.entry.repeated}};
}

Json json_of(const GroupView& group) {
    Json keywords = Json::array();
    for (const KeywordView& keyword : group.keywords) keywords.push_back(json_of(keyword));
    return {{"name", group.name},
            {"mode", text_of(group.section->parse_mode)},
            {"same_as", group.same_as},
            {"requires_end", group.section->requires_end},
            {"allow_unknown_entries", group.section->allow_unknown_entries},
            {"allow_raw_lines", group.section->allow_raw_lines},
            {"keywords", std::move(keywords)}};
}

ExitCode print_all_groups(const Options& options) {
    const std::vector<GroupView> groups = groups_of_schema();
    if (options.json) {
        Json list = Json::array();
        for (const GroupView& group : groups) list.push_back(json_of(group));
        print_json({{"groups", std::move(list)}});
    } else {
        print(table_of(groups));
    }
    return ExitCode::Fine;
}

ExitCode print_group(const GroupView& group, const Options& options) {
    if (options.json) {
        print_json(json_of(group));
    } else {
        print(table_of(std::span{&group, 1}));
        if (!group.keywords.empty()) print('\n' + table_of(group.keywords));
    }
    return ExitCode::Fine;
}

ExitCode print_keyword(const KeywordView& keyword, const Options& options) {
    if (options.json) {
        print_json(json_of(keyword));
    } else {
        print(table_of(std::span{&keyword, 1}));
    }
    return ExitCode::Fine;
}

ExitCode run(const Options& options) {
    warn_of_empty_schema();
    if (options.path.empty()) return print_all_groups(options);
    const KeywordPath path = parse_path(options.path);
    if (const auto group = group_of_schema(path.group)) {
        if (path.key.empty()) return print_group(*group, options);
        if (const auto* const entry =
                nurl::input::gamess::schema::find_entry(path.group, path.key)) {
            return print_keyword({.name = path.key, .entry = *entry}, options);
        }
    }
    const std::string message = text_of(path) + " is not in the schema";
    complain({.place = "gms-inp", .weight = Weight::Error, .message = message});
    return ExitCode::Findings;
}

}  // namespace

Runner attach_schema(CLI::App& app) {
    const auto options = std::make_shared<Options>();
    app.add_option("PATH", options->path, "GROUP or GROUP.KEY, in any case");
    app.add_flag("--json", options->json, "Print JSON");
    app.footer(footer);
    return [options] { return run(*options); };
}

}  // namespace gms_inp
