#include "edited_deck.hpp"

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <system_error>

#include "diagnostics.hpp"
#include "group_text.hpp"
#include "layout_losses.hpp"
#include "nurl/input/gamess/editor.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "output.hpp"

namespace gms_inp {

namespace gamess = nurl::input::gamess;

void refuse_to_overwrite_input(const EditTarget& target) {
    namespace fs = std::filesystem;
    if (target.output == "-") return;
    const fs::path input = target.file == "-" ? "/dev/stdin" : target.file;
    std::error_code error;
    if (!fs::is_regular_file(target.output, error)) return;
    if (!fs::equivalent(input, target.output, error)) return;
    throw std::runtime_error("output is the deck itself, which is never overwritten: " +
                             target.output);
}

void warn_of_copies(const Deck& deck, const std::string& group) {
    if (kind_of_group(group) == GroupKind::Structured) return;
    const auto copies =
        std::ranges::count(deck.result.input.sections, group, &gamess::NamedSection::name);
    if (copies < 2) return;
    const std::string message = "$" + group + " occurs " + std::to_string(copies) +
                                " times; only the first one is looked at";
    complain({.place = deck.name, .weight = Weight::Note, .message = message});
}

void check_that_values_read_back(const std::vector<Assignment>& assignments,
                                 const gamess::GamessInput& edited) {
    const gamess::InputEditor wanted{edited};
    const gamess::InputEditor again{gamess::parse_string(edited.to_string()).input};
    for (const auto& [path, value] : assignments) {
        const auto kept = wanted.get_keyword(path.group, path.key);
        if (kept && again.get_keyword(path.group, path.key) == kept) continue;
        throw std::runtime_error("cannot be written so that it reads back: " + text_of(path) + "=" +
                                 value);
    }
}

void write_deck(const gamess::GamessInput& input, const std::string& output) {
    if (output != "-") {
        input.write_file(output);
        return;
    }
    print_deck_text(input.to_string());
    finish_output();
}

void write_edited(const Deck& deck, const gamess::GamessInput& edited, const EditTarget& target) {
    write_deck(edited, target.output);
    for (const std::string& sentence : layout_losses(deck, edited, edited.to_string()))
        complain({.place = deck.name, .weight = Weight::Note, .message = sentence});
}

}  // namespace gms_inp
