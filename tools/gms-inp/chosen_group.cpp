#include "chosen_group.hpp"

#include <stdexcept>
#include <string>
#include <vector>

#include "diagnostics.hpp"
#include "group_copies.hpp"

namespace gms_inp {

namespace source = nurl::input::gamess::source;

std::optional<source::Group> choose_group(const TextDeck& deck, const GroupPath& path) {
    const std::vector<source::Group> copies = find_copies(deck.content, path);
    if (copies.empty()) {
        const std::string message = absence_of(deck.content, path);
        complain({.place = deck.name, .weight = Weight::Error, .message = message});
        return std::nullopt;
    }
    const source::Group& group = copies.back();
    if (copies.size() > 1) {
        const std::string message = "$" + path.group + " occurs " + std::to_string(copies.size()) +
                                    " times; the last one is taken";
        complain(
            {.place = deck.name, .line = group.line, .weight = Weight::Note, .message = message});
    }
    if (group.terminator.empty())
        throw std::runtime_error(deck.name + ": $" + path.group + " in line " +
                                 std::to_string(group.line) + " is not closed by $END");
    return group;
}

}  // namespace gms_inp
