// One document, looked at from many threads. The thread sanitizer tells whether that is safe.
#include <array>
#include <latch>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include <doctest/doctest.h>

#include "nurl/input/gamess/editor.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "nurl/input/gamess/source/check.hpp"
#include "nurl/input/gamess/source/deck.hpp"
#include "nurl/input/gamess/validation.hpp"

using namespace nurl::input::gamess;

namespace {

constexpr std::size_t thread_count = 8;
const std::string text =
    " $CONTRL SCFTYP=RHF NOSUCH=1 $END\n $STATPT NSTEP=7 $END\n $NOSUCH A=1 $END\n"
    " $DATA\ntitle\nC1\nH 1.0 0.0 0.0 0.0\n $END\n";

/// Everything that a document and a text can be asked.
struct Answers {
    std::vector<validation::Issue> issues;
    std::vector<std::string> names;
    std::string written;
    std::string rendered;
    std::optional<std::string> value;
    std::size_t findings = 0;

    bool operator==(const Answers&) const = default;
};

Answers ask(const InputEditor& editor, const source::Deck& deck) {
    return {.issues = editor.validate({}),
            .names = editor.section_names(),
            .written = editor.input().to_string(),
            .rendered = editor.render_section("DATA"),
            .value = editor.get_keyword("STATPT", "NSTEP"),
            .findings = source::check(deck).size()};
}

}  // namespace

TEST_CASE("Eight threads may ask one document and one text at once") {
    const InputEditor editor(parse_string(text).input);
    const source::Deck deck(text);
    std::array<Answers, thread_count> answers;
    std::latch start(thread_count);
    std::vector<std::thread> threads;
    for (Answers& answer : answers)
        threads.emplace_back([&] {
            start.arrive_and_wait();
            answer = ask(editor, deck);
        });
    for (std::thread& thread : threads) thread.join();
    CHECK(answers.front().value == "7");
    CHECK_FALSE(answers.front().issues.empty());
    CHECK(answers.front().findings > 0);
    for (const Answers& answer : answers) CHECK(answer == answers.front());
}
