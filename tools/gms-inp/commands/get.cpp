#include <memory>
#include <optional>
#include <string>
#include <utility>

#include <CLI/CLI.hpp>

#include "command.hpp"
#include "deck_source.hpp"
#include "diagnostics.hpp"
#include "edited_deck.hpp"
#include "keyword_path.hpp"
#include "nurl/input/gamess/editor.hpp"
#include "output.hpp"

namespace gms_inp {

namespace {

constexpr const char* footer =
    R"(A keyword prints its value, a group its text in canonical layout. What is not there
gives exit status 1.

Examples:
  gms-inp get water.inp CONTRL.SCFTYP
  gms-inp get water.inp '$basis'
  gms-inp get - DATA < water.inp)";

struct Options {
    std::string file;
    std::string path;
};

/// The text asked for, ended by a newline; nothing when the deck does not have it.
std::optional<std::string> text_at(const nurl::input::gamess::InputEditor& editor,
                                   const KeywordPath& path) {
    if (!path.key.empty()) {
        std::optional<std::string> value = editor.get_keyword(path.group, path.key);
        if (value) value->push_back('\n');
        return value;
    }
    if (!editor.has_section(path.group)) return std::nullopt;
    std::string text = editor.render_section(path.group);
    if (!text.ends_with('\n')) text += '\n';
    return text;
}

ExitCode run(const Options& options) {
    const KeywordPath path = parse_path(options.path);
    Deck deck = read_deck(options.file);
    warn_of_copies(deck, path.group);
    const nurl::input::gamess::InputEditor editor{std::move(deck.result.input)};
    if (const std::optional<std::string> text = text_at(editor, path)) {
        print_deck_text(*text);
        return ExitCode::Fine;
    }
    const std::string message = text_of(path) + " is not in the deck";
    complain({.place = deck.name, .weight = Weight::Error, .message = message});
    return ExitCode::Findings;
}

}  // namespace

Runner attach_get(CLI::App& app) {
    const auto options = std::make_shared<Options>();
    app.add_option("FILE", options->file, "The deck, or - for standard input")->required();
    app.add_option("PATH", options->path, "GROUP or GROUP.KEY, in any case")->required();
    app.footer(footer);
    return [options] { return run(*options); };
}

}  // namespace gms_inp
