#include "deck_walk.hpp"

#include <string>
#include <vector>

#include <doctest/doctest.h>
#include <rapidcheck.h>

#include "nurl/input/gamess/reader.hpp"

namespace {

using gms_inp::DeckLine;
using gms_inp::DeckWalk;
using gms_inp::LineRole;

/// A compact form of a line, in which the parts stand between bars.
std::string shown(const DeckLine& line) {
    std::string text = std::to_string(line.number);
    text += line.role == LineRole::Outside ? " outside" : "";
    text += line.role == LineRole::Header ? " header" : "";
    text += line.role == LineRole::Body ? " body" : "";
    text += ' ';
    text += line.group;
    text += '|';
    text += line.text;
    text += '|';
    text += line.closes ? "$END" : "";
    text += line.behind_end;
    return text;
}

std::vector<std::string> walk(std::string_view text) {
    std::vector<std::string> lines;
    DeckWalk walk{text};
    while (const auto line = walk.next()) lines.push_back(shown(*line));
    return lines;
}

using Lines = std::vector<std::string>;

/// Texts made of what decks are made of.
rc::Gen<std::string> deck_text() {
    return rc::gen::map(
        rc::gen::container<std::vector<std::string>>(rc::gen::element<std::string>(
            "$", "$END", "$end", "$CONTRL", "$scf", "$VEC", "$DATA", "$Pcm", " ", " ", "\n", "\n",
            "\r\n", "\r", "\t", "A=1", "b", "!", "\xEF\xBB\xBF", "\v")),
        [](const std::vector<std::string>& pieces) {
            std::string text;
            for (const std::string& piece : pieces) text += piece;
            return text;
        });
}

}  // namespace

TEST_CASE("Lines are told apart by where they stand") {
    CHECK(walk("text\n $contrl a=1\n b=2 $END c\nmore\n") ==
          Lines{"1 outside |text|", "2 header CONTRL| a=1|", "3 body CONTRL| b=2 |$END c",
                "4 outside |more|"});
}

TEST_CASE("A header ends the group in front of it") {
    CHECK(walk("$A\n$B x$END\ny") == Lines{"1 header A||", "2 header B| x|$END", "3 outside |y|"});
}

TEST_CASE("A name ends at a blank or a dollar sign") {
    CHECK(walk("$scf$end") == Lines{"1 header SCF||$END"});
    CHECK(walk("$a$b c") == Lines{"1 header A|$b c|"});
}

TEST_CASE("A dollar sign without a name opens nothing") {
    CHECK(walk("$\n$ $\n$$A\n$endx") ==
          Lines{"1 outside |$|", "2 outside |$ $|", "3 outside |$$A|", "4 outside |$endx|"});
    CHECK(walk("$A\n$ B") == Lines{"1 header A||", "2 body A|$ B|"});
}

TEST_CASE("Lines end at LF, CR LF and CR, and a byte-order mark is skipped") {
    CHECK(walk("\xEF\xBB\xBF$A\r\n\rx\n\ny") ==
          Lines{"1 header A||", "2 body A||", "3 body A|x|", "4 body A||", "5 body A|y|"});
    CHECK(walk("").empty());
    CHECK(walk("\n") == Lines{"1 outside ||"});
}

TEST_CASE("The walk meets the groups that the reader reads") {
    CHECK(rc::check([] {
        const std::string text = *deck_text();
        const auto result = nurl::input::gamess::parse_string(text);
        Lines met;
        bool has_data = false;
        DeckWalk walk{text};
        while (const auto line = walk.next()) {
            if (line->role != LineRole::Header) continue;
            has_data = has_data || line->group == "DATA";
            if (line->group != "DATA") met.emplace_back(line->group);
        }
        Lines read;
        for (const auto& section : result.input.sections) read.push_back(section.name);
        RC_ASSERT(met == read);
        RC_ASSERT(has_data == result.input.has_data);
    }));
}

TEST_CASE("The walk gives the lines of raw groups as the reader keeps them") {
    CHECK(rc::check([] {
        const std::string text = "$VEC\n" + *deck_text();
        const auto result = nurl::input::gamess::parse_string(text);
        Lines met;
        DeckWalk walk{text};
        while (const auto line = walk.next()) {
            if (line->role == LineRole::Header && line->number > 1) break;
            std::string_view kept = line->text;
            while (!kept.empty() && std::string_view{" \t\v\r"}.find(kept.front()) != kept.npos)
                kept.remove_prefix(1);
            while (!kept.empty() && std::string_view{" \t\v\r"}.find(kept.back()) != kept.npos)
                kept.remove_suffix(1);
            if (line->role != LineRole::Outside && !kept.empty()) met.emplace_back(kept);
        }
        RC_ASSERT(met == result.input.sections.at(0).raw_lines);
    }));
}
