// A deck of any bytes and a row of edits: generic groups hold what plain lists of pairs hold, what
// an edit of any group promises is so, and an edit that is refused leaves no trace.
#include "nurl/input/gamess/editor.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "nurl/input/gamess/reader.hpp"
#include "plain_deck.hpp"
#include "require.hpp"
#include "second_reading/plain_text.hpp"

namespace {

using nurl::fuzz::PlainDeck;
using nurl::fuzz::require;
using nurl::input::gamess::GamessInput;
using nurl::input::gamess::InputEditor;
using nurl::test::plain::trimmed;
using nurl::test::plain::upper;

constexpr std::size_t longest_key = 8;
constexpr std::size_t longest_value = 24;
constexpr int most_edits = 12;
constexpr const char* blanks = " \t\n\r";

/// One edit with the words it is made with, as given and as the editor understands them.
struct Step {
    std::string section;
    std::string key;
    std::string value;
    bool replace = false;

    [[nodiscard]] std::string bare_section() const {
        const std::string name = upper(trimmed(section, blanks));
        return name.starts_with('$') ? name.substr(1) : name;
    }
    [[nodiscard]] std::string bare_key() const { return upper(trimmed(key, blanks)); }
    [[nodiscard]] std::string bare_value() const { return trimmed(value, blanks); }

    [[nodiscard]] bool is_structured() const {
        constexpr auto names =
            std::to_array<const char*>({"CONTRL", "SYSTEM", "BASIS", "SCF", "GUESS"});
        return std::ranges::find(names, bare_section()) != names.end();
    }
    [[nodiscard]] bool is_refused() const {
        return bare_section().empty() || bare_section() == "DATA" || bare_key().empty();
    }
    /// What a record keeps is listed as it is written: a vertical tab or form feed at the end of a
    /// keyword or value, which belongs to it for the editor, does not for the writer.
    [[nodiscard]] bool is_written() const {
        return trimmed(bare_key()) == bare_key() && !trimmed(bare_value()).empty();
    }
    [[nodiscard]] bool is_generic() const {
        return !is_structured() && !bare_section().empty() && bare_section() != "DATA";
    }
};

/// The deck and what is known of it without the editor.
struct Edited {
    InputEditor editor;
    PlainDeck plain;
};

void set(Edited& deck, const Step& step) {
    deck.editor.set_keyword(step.section, step.key, step.value);
    require(!step.is_refused(), "a keyword needs a group and a name");
    if (step.is_generic()) deck.plain.set(step.bare_section(), step.bare_key(), step.bare_value());
    require(!step.is_written() || deck.editor.has_keyword(step.section, step.key),
            "a keyword that was set is there");
}

void add(Edited& deck, const Step& step) {
    const GamessInput before = deck.editor.input();
    const bool was_there = deck.editor.has_keyword(step.section, step.key);
    const bool added = deck.editor.add_keyword(step.section, step.key, step.value, step.replace);
    require(added == (step.replace || !was_there), "a keyword that is there is not added");
    require(added || deck.editor.input() == before, "nothing changes where nothing is added");
    if (added && step.is_generic())
        deck.plain.set(step.bare_section(), step.bare_key(), step.bare_value());
}

void remove(Edited& deck, const Step& step) {
    const bool was_there = deck.editor.has_keyword(step.section, step.key);
    const bool is_removed = deck.editor.remove_keyword(step.section, step.key);
    require(is_removed || !was_there, "a keyword that is there can be removed");
    require(is_removed <= !step.is_refused(), "nothing is removed without a name");
    if (step.is_generic()) {
        deck.plain.remove_keyword(step.bare_section(), step.bare_key());
        require(step.bare_key().empty() || !deck.editor.has_keyword(step.section, step.key),
                "a keyword that was removed is gone");
    }
}

void ensure(Edited& deck, const Step& step) {
    deck.editor.ensure_section(step.section);
    if (step.is_generic()) deck.plain.ensure(step.bare_section());
    require(step.bare_section().empty() || step.bare_section() == "DATA" ||
                deck.editor.has_section(step.section),
            "a group that was made sure of is there");
    const GamessInput once = deck.editor.input();
    deck.editor.ensure_section(step.section);
    require(deck.editor.input() == once, "a group that is there is not made again");
}

void remove_section(Edited& deck, const Step& step) {
    const bool was_there = !step.bare_section().empty() && deck.editor.has_section(step.section);
    require(deck.editor.remove_section(step.section) == was_there, "removal is told");
    if (step.is_generic()) deck.plain.remove(step.bare_section());
    require(step.bare_section().empty() || !deck.editor.has_section(step.section),
            "a group that was removed is gone");
}

void check_step(const Edited& deck, const Step& step) {
    for (const std::string& name : deck.editor.section_names()) {
        require(deck.editor.has_section(name), "a group that is listed is there");
        require(!deck.editor.render_section(name).empty(), "a group that is there has a text");
    }
    require(deck.editor.get_keyword(step.section, step.key).has_value() ==
                deck.editor.has_keyword(step.section, step.key),
            "a keyword that is there has a value");
    if (!step.is_generic()) return;
    const std::string name = step.bare_section();
    require(deck.editor.has_section(name) == deck.plain.has(name), "the same groups are there");
    if (const auto keywords = deck.plain.keywords(name))
        require(deck.editor.list_keywords(name) == *keywords, "the same keywords are listed");
}

struct Planned {
    void (*apply)(Edited&, const Step&);
    Step step;
};

Planned plan_one(FuzzedDataProvider& input) {
    constexpr auto kinds = std::to_array<void (*)(Edited&, const Step&)>(
        {set, set, set, add, remove, remove, ensure, remove_section});
    constexpr auto sections =
        std::to_array<const char*>({"STATPT", " $zmat\t", "$Own", "PCM\n", "VEC", "contrl",
                                    "$SYSTEM", " Basis", "scf", "GUESS", "$data", " "});
    constexpr auto keys = std::to_array<const char*>(
        {"NSTEP", " key ", "KEY", "X(1)", "SCFTYP", "icharg", "UNITS", "NOSYM", "COORD", "MWORDS",
         "GBASIS", "diffs", "DIRSCF", "GUESS", "NORB", " "});
    const char* const key = input.PickValueInArray(keys);
    return {input.PickValueInArray(kinds),
            {input.PickValueInArray(sections),
             input.ConsumeBool() ? key : input.ConsumeRandomLengthString(longest_key),
             input.ConsumeRandomLengthString(longest_value), input.ConsumeBool()}};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input{data, size};
    std::vector<Planned> plan;
    for (int edits = input.ConsumeIntegralInRange(0, most_edits); edits > 0; --edits)
        plan.push_back(plan_one(input));
    const GamessInput read =
        nurl::input::gamess::parse_string(input.ConsumeRemainingBytesAsString()).input;
    Edited deck{InputEditor{read}, PlainDeck{read}};
    for (const auto& [apply, step] : plan) {
        const GamessInput before = deck.editor.input();
        try {
            apply(deck, step);
        } catch (const std::runtime_error&) {
            require(step.is_refused(), "only edits without a name are refused");
            require(deck.editor.input() == before, "an edit that is refused leaves no trace");
        }
        check_step(deck, step);
    }
    static_cast<void>(deck.editor.input().to_string());
    return 0;
}
