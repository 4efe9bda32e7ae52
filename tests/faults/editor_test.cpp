#include "nurl/input/gamess/editor.hpp"

#include <functional>
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "faults/decks.hpp"
#include "faults/fail_each.hpp"
#include "nurl/input/gamess/reader.hpp"

using namespace nurl::input::gamess;
using nurl::test::fail_each_allocation_of;
using nurl::test::fail_each_allocation_of_change;
using nurl::test::refusable;

namespace {

using Edit = std::function<void(InputEditor&)>;

/// A document to be edited.
struct Document {
    std::string name;
    GamessInput content;
};

/// A document read, one made in code, and an empty one.
std::vector<Document> documents() {
    GamessInput made;
    made.has_control = true;
    made.scf.emplace();
    made.extra_sections.push_back({"PCM", {{"SOLVNT", "WATER"}}, {"icomp = 2 and some words"}});
    made.extra_sections.push_back({"$PCM", {}, {}});
    made.extra_sections.push_back({" a-group-with-a-long-name", {}, {}});
    return {{"read", parse_string(nurl::test::whole_deck).input}, {"made", made}, {"empty", {}}};
}

/// Fails each allocation of edits that must leave the document as it was when they fail.
void fail_each_allocation_of_edits(const std::vector<Edit>& edits) {
    for (const Document& document : documents()) {
        CAPTURE(document.name);
        for (std::size_t edit = 0; edit < edits.size(); ++edit) {
            CAPTURE(edit);
            fail_each_allocation_of_change(InputEditor{document.content}, edits[edit],
                                           &InputEditor::input);
        }
    }
}

/// Fails each allocation of questions.
template <class Ask>
void fail_each_allocation_of_question(const Ask& ask) {
    for (const Document& document : documents()) {
        CAPTURE(document.name);
        const InputEditor editor{document.content};
        for (const char* group :
             {"CONTRL", "system", " $Basis ", "SCF", "GUESS", "PCM", "VEC", "DATA",
              "a-group-with-a-long-name", "a-group-that-is-not-there", ""}) {
            CAPTURE(group);
            fail_each_allocation_of([&] { return ask(editor, group); });
        }
    }
}

Edit set(const std::string& group, const std::string& key, const std::string& value) {
    return [=](InputEditor& editor) { editor.set_keyword(group, key, value); };
}

}  // namespace

TEST_CASE("A generic keyword that cannot be set leaves the document as it was") {
    const std::string value = "a value that is longer than fifteen bytes";
    fail_each_allocation_of_edits({
        set("PCM", "SOLVNT", value),
        set("PCM", "A-NEW-KEYWORD-OF-SOME-LENGTH", value),
        set("STATPT", "NSTEP", "1"),
        set("a-group-with-a-long-name", "A", value),
    });
}

TEST_CASE("A keyword that cannot be cut out of free text leaves the document as it was") {
    fail_each_allocation_of_edits({
        set("PCM", "SMD", ".FALSE."),
        set("PCM", "ICOMP", "another value of more than fifteen bytes"),
        set("PCM", "IEF", "-3"),
    });
}

TEST_CASE("A structured keyword that cannot be set leaves the document as it was") {
    const std::string value = "a-value-that-is-longer-than-fifteen-bytes";
    fail_each_allocation_of_edits({
        set("CONTRL", "SCFTYP", value),
        set("CONTRL", "COORD", value),
        set("CONTRL", "DFTTYP", value),
        set("CONTRL", "UNITS", "BOHR"),
        set("CONTRL", "MAXIT", "100"),
        set("CONTRL", "MAXIT", value),
        set("CONTRL", "A-KEYWORD-WITHOUT-A-MEMBER", value),
        set("SYSTEM", "MWORDS", "500"),
        set("SYSTEM", "TIMLIM", value),
        set("BASIS", "GBASIS", value),
        set("BASIS", "DIFFSP", value),
        set("SCF", "DAMP", value),
        set("GUESS", "GUESS", value),
        set("GUESS", "PRTMO", value),
    });
}

TEST_CASE("A keyword that cannot be set leaves no new group behind") {
    const std::string value = "a-value-that-is-longer-than-fifteen-bytes";
    std::vector<Edit> edits{set("a-group-that-was-not-there", "A-KEYWORD-WITH-A-LONG-NAME", value),
                            set("NEW", "A", value)};
    for (const char* group : {"CONTRL", "SYSTEM", "BASIS", "SCF", "GUESS"})
        edits.push_back(set(group, "A-KEYWORD-WITHOUT-A-MEMBER", value));
    edits.push_back(set("BASIS", "GBASIS", value));
    fail_each_allocation_of_edits(edits);
}

TEST_CASE("A keyword that cannot be added leaves the document as it was") {
    const auto add = [](const char* group, bool replace) {
        return [=](InputEditor& editor) {
            editor.add_keyword(group, "SOLVNT", "a value that is longer than a short one", replace);
        };
    };
    fail_each_allocation_of_edits({add("PCM", true), add("PCM", false), add("CONTRL", true),
                                   add("CONTRL", false), add("a-group-that-is-new", false)});
}

TEST_CASE("A keyword that cannot be removed stays") {
    const auto remove = [](const char* group, const char* key) {
        return [=](InputEditor& editor) { editor.remove_keyword(group, key); };
    };
    fail_each_allocation_of_edits({
        remove("PCM", "SOLVNT"),
        remove("PCM", "SMD"),
        remove("PCM", "ICOMP"),
        remove("PCM", "a-keyword-that-is-not-there"),
        remove("CONTRL", "COORD"),
        remove("CONTRL", "MAXIT"),
        remove("SYSTEM", "TIMLIM"),
        remove("a-group-that-is-not-there", "A"),
        remove("DATA", "A"),
    });
}

TEST_CASE("A group that cannot be made leaves the document as it was") {
    std::vector<Edit> edits;
    for (const char* group : {"CONTRL", "SYSTEM", "BASIS", "SCF", "GUESS", "PCM", "DATA", "NEW",
                              " $a-group-that-was-not-there "})
        edits.emplace_back([group](InputEditor& editor) { editor.ensure_section(group); });
    fail_each_allocation_of_edits(edits);
}

TEST_CASE("A group that cannot be removed stays with all its copies") {
    std::vector<Edit> edits;
    for (const char* group : {"CONTRL", "SYSTEM", "BASIS", "SCF", "GUESS", "PCM", "VEC", "DATA",
                              "a-group-with-a-long-name", "a-group-that-is-not-there", ""})
        edits.emplace_back([group](InputEditor& editor) { editor.remove_section(group); });
    fail_each_allocation_of_edits(edits);
}

TEST_CASE("Copies of a group whose names are long are all removed or all stay") {
    GamessInput deck;
    for (const char* name : {"a-group-with-a-long-name", "ANOTHER-GROUP-OF-SOME-LENGTH",
                             "$A-GROUP-WITH-A-LONG-NAME", "ANOTHER-GROUP-OF-SOME-LENGTH"})
        deck.sections.push_back({name, {{"A", "1"}}, {"a line"}});
    deck.extra_sections = deck.sections;
    fail_each_allocation_of_change(
        InputEditor{deck},
        [](InputEditor& editor) { editor.remove_section("a-group-with-a-long-name"); },
        &InputEditor::input);
}

TEST_CASE("An edit that is refused is refused or runs out of memory") {
    const std::string value = "a value that is longer than fifteen bytes";
    fail_each_allocation_of_edits({refusable(set("DATA", "a-keyword-of-some-length", value)),
                                   refusable(set("a-group-of-some-length", " ", value))});
}

TEST_CASE("Questions to the editor run out of memory cleanly") {
    fail_each_allocation_of_question(
        [](const InputEditor& editor, const char* group) { return editor.has_section(group); });
    fail_each_allocation_of_question(
        [](const InputEditor& editor, const char* group) { return editor.list_keywords(group); });
    fail_each_allocation_of_question(
        [](const InputEditor& editor, const char* group) { return editor.render_section(group); });
    fail_each_allocation_of_question([](const InputEditor& editor, const char* group) {
        return editor.get_keyword(group, "SOLVNT");
    });
    fail_each_allocation_of_question([](const InputEditor& editor, const char* group) {
        return editor.has_keyword(group, "a-keyword-that-is-not-there");
    });
}

TEST_CASE("Listing and validating a document run out of memory cleanly") {
    for (const Document& document : documents()) {
        CAPTURE(document.name);
        const InputEditor editor{document.content};
        fail_each_allocation_of([&editor] { return editor.section_names(); });
        fail_each_allocation_of([&editor] { return editor.validate({}); });
    }
}

TEST_CASE("An editor is made and its document taken out, or memory runs out") {
    const GamessInput deck = parse_string(nurl::test::whole_deck).input;
    fail_each_allocation_of([&deck] { return InputEditor{deck}.take(); });
}
