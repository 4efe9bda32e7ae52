// A deck of any bytes, and edits of any words: what an edit promises holds, and one that fails
// leaves no trace.
#include <array>
#include <cstddef>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>
#include <stdexcept>
#include <string>
#include <vector>

#include "nurl/input/gamess/source/deck.hpp"
#include "require.hpp"

namespace {

using nurl::fuzz::require;
using nurl::input::gamess::source::Deck;

constexpr std::size_t longest_name = 12;
constexpr std::size_t longest_value = 200;
constexpr int most_edits = 6;

/// One edit with the words it is made with.
struct Step {
    std::string section;
    std::string key;
    std::string value;
};

void check_index(const Deck& deck) {
    std::size_t end = 0;
    for (const auto& group : deck.sections()) {
        require(group.header.begin >= end, "groups do not overlap");
        require(group.terminator.end <= deck.text().size(), "groups lie in the text");
        end = group.terminator.end;
        for (const auto& item : deck.items(group))
            require(item.span.begin >= group.body.begin && item.span.end <= group.body.end,
                    "items lie in their group");
    }
}

void set(Deck& deck, const Step& step) {
    deck.set_keyword(step.section, step.key, step.value);
    require(deck.get_keyword(step.section, step.key).has_value(), "a set keyword is there");
    const std::string once = deck.text();
    deck.set_keyword(step.section, step.key, step.value);
    require(deck.text() == once, "setting the same value changes nothing");
}

void remove(Deck& deck, const Step& step) {
    const std::string before = deck.text();
    const bool removed = deck.remove_keyword(step.section, step.key);
    require(!deck.get_keyword(step.section, step.key), "a removed keyword is gone");
    require(removed || deck.text() == before, "nothing changes where nothing is removed");
}

void ensure(Deck& deck, const Step& step) {
    deck.ensure_section(step.section);
    const std::string once = deck.text();
    deck.ensure_section(step.section);
    require(deck.text() == once, "a group that is there is not made again");
}

void remove_group(Deck& deck, const Step& step) {
    deck.remove_section(step.section);
    const std::string once = deck.text();
    require(!deck.remove_section(step.section) || deck.text() != once, "removal is told");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input{data, size};
    struct Planned {
        void (*apply)(Deck&, const Step&);
        Step step;
    };
    std::vector<Planned> plan;
    for (int edits = input.ConsumeIntegralInRange(0, most_edits); edits > 0; --edits) {
        constexpr auto kinds =
            std::to_array<void (*)(Deck&, const Step&)>({set, set, remove, ensure, remove_group});
        plan.push_back({input.PickValueInArray(kinds),
                        {input.ConsumeRandomLengthString(longest_name),
                         input.ConsumeRandomLengthString(longest_name),
                         input.ConsumeRandomLengthString(longest_value)}});
    }
    Deck deck{input.ConsumeRemainingBytesAsString()};
    check_index(deck);
    for (const Planned& planned : plan) {
        const std::string before = deck.text();
        try {
            planned.apply(deck, planned.step);
        } catch (const std::runtime_error&) {
            require(deck.text() == before, "an edit that fails leaves no trace");
        }
        check_index(deck);
    }
    return 0;
}
