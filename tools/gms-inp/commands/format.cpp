#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include <CLI/CLI.hpp>

#include "ascii.hpp"
#include "command.hpp"
#include "deck_edits.hpp"
#include "deck_source.hpp"
#include "deck_walk.hpp"
#include "diagnostics.hpp"
#include "difference_text.hpp"
#include "layout_losses.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "nurl/input/gamess/source/compare.hpp"
#include "nurl/input/gamess/source/wrap.hpp"

namespace gms_inp {

namespace {

namespace source = nurl::input::gamess::source;

constexpr const char* footer =
    R"(Folds the lines of keyword groups that are longer than GAMESS reads; everything else
stays as it is. A deck that GAMESS would read differently afterwards is refused.

--canonical writes the deck anew in one fixed layout instead: a line for each keyword
group and $DATA last. That loses comments and more, so it lists what would be lost
and writes nothing, unless nothing is lost or --force is given.

One deck goes to standard output or to the file that -o names; with -i each deck is
replaced by its new text, as a whole or not at all. --check writes nothing: it lists
the decks that would change, and the exit status is 1 when there are any.

Examples:
  gms-inp format water.inp -o tidy.inp
  gms-inp format -i *.inp
  gms-inp format --wrap 72 --check *.inp
  gms-inp format --canonical - < water.inp | diff water.inp -)";

struct Options {
    EditTarget target;
    std::string columns;
    bool canonical = false;
    bool force = false;
};

std::size_t columns_of(const std::string& text) {
    std::uint64_t columns = source::line_width;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, columns);
    if (!text.empty() && (error != std::errc{} || stop != end || columns == 0))
        throw std::runtime_error("expected a number of columns, not '" + text + "'");
    return static_cast<std::size_t>(
        std::min<std::uint64_t>(columns, std::numeric_limits<std::size_t>::max()));
}

ExitCode fold(TextDeck& deck, std::size_t columns) {
    const std::vector<source::Edit> edits = source::wrap(deck.content, columns);
    if (edits.empty()) return ExitCode::Fine;
    source::Deck folded = deck.content;
    folded.apply(edits);
    const std::vector<source::Difference> differences = source::compare(deck.content, folded);
    if (!differences.empty())
        throw std::runtime_error("GAMESS would read the folded deck differently, first at " +
                                 place_of(differences.front()));
    deck.content = std::move(folded);
    return ExitCode::Fine;
}

/// Says what else GAMESS would read; empty when nothing.
std::vector<std::string> changes_of_meaning(const source::Deck& before, const source::Deck& after) {
    const std::vector<source::Difference> differences = source::compare(before, after);
    if (differences.empty()) return {};
    return {"GAMESS reads the written deck differently in " + std::to_string(differences.size()) +
            (differences.size() == 1 ? " place" : " places") + ", first at " +
            place_of(differences.front())};
}

/// The document without the line that the blank in front of the `$END` of $DATA is read as. The
/// layout has that blank of its own; with the line it would grow by one each time.
nurl::input::gamess::GamessInput without_blank_at_end(std::string_view text,
                                                      nurl::input::gamess::GamessInput input) {
    bool has_blank = false;
    DeckWalk walk{text};
    while (const auto line = walk.next())
        if (line->group == "DATA" && line->closes)
            has_blank =
                line->role == LineRole::Body && !line->text.empty() && trim(line->text).empty();
    if (has_blank && !input.data_lines.empty()) input.data_lines.pop_back();
    return input;
}

ExitCode lay_out_anew(TextDeck& deck, const Options& options) {
    const std::string& text = deck.content.text();
    const auto read = nurl::input::gamess::parse_string(text);
    if (!read.ok) throw std::runtime_error(read.error);
    source::Deck written{without_blank_at_end(text, read.input).to_string()};
    if (!options.target.only_look) {
        std::vector<std::string> losses = layout_losses(text, read.input, written.text());
        std::ranges::move(changes_of_meaning(deck.content, written), std::back_inserter(losses));
        for (const std::string& sentence : losses)
            complain({.place = deck.name, .weight = Weight::Note, .message = sentence});
        if (!losses.empty() && !options.force)
            throw std::runtime_error("not written because of these losses; --force writes it");
    }
    deck.content = std::move(written);
    return ExitCode::Fine;
}

ExitCode run(const Options& options) {
    const std::size_t columns = columns_of(options.columns);
    return edit_decks(options.target, [&](TextDeck& deck) {
        return options.canonical ? lay_out_anew(deck, options) : fold(deck, columns);
    });
}

}  // namespace

Runner attach_format(CLI::App& app) {
    const auto options = std::make_shared<Options>();
    app.add_option("FILE", options->target.files, "Decks, or - for standard input")->required();
    CLI::Option* const wrap =
        app.add_option("--wrap", options->columns, "Columns to fold at, 80 unless given")
            ->type_name("COLUMNS");
    CLI::Option* const canonical =
        app.add_flag("--canonical", options->canonical, "Write the canonical layout instead")
            ->excludes(wrap);
    app.add_flag("--force", options->force, "Write the canonical layout with its losses")
        ->needs(canonical);
    app.add_flag("--check", options->target.only_look, "List the decks that would change");
    add_target_options(app, options->target);
    app.footer(footer);
    return [options] { return run(*options); };
}

}  // namespace gms_inp
