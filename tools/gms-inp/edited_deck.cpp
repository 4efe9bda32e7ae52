#include "edited_deck.hpp"

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <system_error>

#include "diagnostics.hpp"
#include "group_text.hpp"
#include "layout_losses.hpp"
#include "output.hpp"

namespace gms_inp {

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
    const auto copies = std::ranges::count(deck.result.input.sections, group,
                                           &nurl::input::gamess::NamedSection::name);
    if (copies < 2) return;
    const std::string message = "$" + group + " occurs " + std::to_string(copies) +
                                " times; only the first one is looked at";
    complain({.place = deck.name, .weight = Weight::Note, .message = message});
}

void write_edited(const Deck& deck, const nurl::input::gamess::GamessInput& edited,
                  const EditTarget& target) {
    const std::string text = edited.to_string();
    if (target.output == "-") {
        print_deck_text(text);
        finish_output();
    } else {
        edited.write_file(target.output);
    }
    for (const std::string& sentence : layout_losses(deck, edited, text)) {
        complain({.place = deck.name, .weight = Weight::Note, .message = sentence});
    }
}

}  // namespace gms_inp
