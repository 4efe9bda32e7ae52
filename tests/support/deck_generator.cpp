#include "support/deck_generator.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <tuple>
#include <utility>
#include <vector>

#include "nurl/input/gamess/reader.hpp"
#include "support/structured_values.hpp"

using nurl::input::gamess::GamessInput;
using nurl::input::gamess::NamedSection;

namespace nurl::input::gamess {

void showValue(const GamessInput& deck, std::ostream& stream) {
    stream << deck.to_string() << "(" << deck.sections.size() << " groups read, "
           << deck.extra_sections.size() << " added)";
}

}  // namespace nurl::input::gamess

namespace nurl::test {

namespace {

using Text = rc::Gen<std::string>;

/// The texts of several generators, one behind the other.
template <class... Parts>
Text joined(Parts... parts) {
    return rc::gen::map(rc::gen::tuple(std::move(parts)...), [](const auto& texts) {
        return std::apply([](const auto&... text) { return (std::string{} + ... + text); }, texts);
    });
}

/// At most `most` texts of a generator, one behind the other.
Text repeated(const Text& part, int most) {
    return rc::gen::map(rc::gen::resize(most, rc::gen::container<std::vector<std::string>>(part)),
                        [](const std::vector<std::string>& texts) {
                            std::string whole;
                            for (const std::string& text : texts) whole += text;
                            return whole;
                        });
}

Text one_of(std::vector<std::string> texts) { return rc::gen::elementOf(std::move(texts)); }

Text maybe(const Text& text) { return rc::gen::oneOf(rc::gen::just(std::string{}), text); }

Text in_any_case(const Text& text) {
    const auto change = [](std::string word, unsigned flips) {
        for (char& c : word) {
            if (flips % 2 == 1 && c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
            flips = flips / 2 + flips % 2 * 0x8000U;
        }
        return word;
    };
    return rc::gen::map(rc::gen::tuple(text, rc::gen::inRange(0U, 0x10000U)),
                        [change](const auto& parts) { return std::apply(change, parts); });
}

Text blanks() { return one_of({" ", "  ", "\t", " \t "}); }

Text word() {
    return rc::gen::weightedOneOf<std::string>(
        {{6,
          one_of({"RHF", "uhf", "B3LYP", "6-31G*", "a.b", "x", "Bohr", "water", "_1", "\xC3\xA9"})},
         {4, one_of({"0", "1", "-2", "+7", "1.5", "1E-5", "2147483648"})},
         {3, one_of({".T.", ".f.", "yes", "NO", ".TRUE."})},
         {1, one_of({"!", "#3", "a=b", "(1,2)", "'quoted'", "\"", ",", "=", ">>"})}});
}

Text words() { return joined(word(), repeated(joined(blanks(), word()), 2)); }

Text bare_keyword() {
    std::vector<std::string> known;
    for (const StructuredValue& row : structured_values()) known.emplace_back(row.keyword);
    const auto other = one_of({"TIMLIM", "INTTYP", "SOLVNT", "METHOD", "A_1", "NSTEP", "X"});
    return rc::gen::oneOf(one_of(std::move(known)), other);
}

Text indexed_keyword() {
    return in_any_case(joined(bare_keyword(), maybe(one_of({"(1)", "(2,3)", "( 4 )"}))));
}

Text pair() { return joined(indexed_keyword(), one_of({"=", " = ", "= ", " =", "=\t"}), words()); }

Text comment() { return joined(one_of({"!", "! ", "#"}), maybe(words())); }

/// A keyword of a structured group with a value that converts.
Text converting_pair(std::string_view group) {
    std::vector<std::string> pairs;
    for (const StructuredValue& row : structured_values())
        if (row.group == group)
            pairs.push_back(std::string{row.keyword} + '=' + std::string{row.given});
    return in_any_case(one_of(std::move(pairs)));
}

/// What stands on one line of a group with keywords, or behind its header.
Text keyword_line(const Text& pair) {
    return rc::gen::weightedOneOf<std::string>(
        {{8, joined(maybe(blanks()), pair, repeated(joined(blanks(), pair), 3), maybe(blanks()))},
         {2, joined(words(), blanks(), pair)},
         {2, joined(maybe(blanks()), words())},
         {1, joined(pair, blanks(), bare_keyword(), one_of({"=", " ="}))},
         {1, joined(maybe(blanks()), comment())},
         {1, maybe(blanks())}});
}

Text line_end() {
    return rc::gen::weightedElement<std::string>({{8, "\n"}, {1, "\r\n"}, {1, "\r"}});
}

Text group_end() {
    const auto closed = joined(one_of({"$END", "$end", "$End", "$ENDX"}),
                               maybe(one_of({" text behind", "=1"})), line_end());
    return rc::gen::weightedOneOf<std::string>({{3, joined(blanks(), closed)},
                                                {3, joined(line_end(), maybe(blanks()), closed)},
                                                {1, line_end()}});
}

Text header(std::vector<std::string> names) {
    return joined(maybe(blanks()), rc::gen::just(std::string{"$"}),
                  in_any_case(one_of(std::move(names))));
}

/// A group whose lines, the one behind the header included, come from one generator.
Text group(std::vector<std::string> names, const Text& line) {
    return joined(header(std::move(names)), maybe(joined(blanks(), line)),
                  repeated(joined(line_end(), line), 6), group_end());
}

Text structured_group() {
    const auto name = one_of({"CONTRL", "CONTRL", "SYSTEM", "BASIS", "SCF", "GUESS"});
    return rc::gen::mapcat(name, [](const std::string& group_name) {
        const auto known = converting_pair(group_name);
        return group({group_name}, keyword_line(rc::gen::oneOf(known, known, pair())));
    });
}

Text keyword_group() {
    return group({"PCM", "STATPT", "FORCE", "MINE", "A1"}, keyword_line(pair()));
}

Text raw_group() {
    const auto line = joined(maybe(blanks()), words(), maybe(joined(one_of({" "}), pair())));
    return group({"VEC", "HESS", "GRAD"}, line);
}

std::string shortest(double value) {
    std::array<char, 32> digits{};
    return {digits.data(), std::to_chars(digits.begin(), digits.end(), value).ptr};
}

Text coordinate() {
    const auto mantissa = rc::gen::arbitrary<double>();
    const auto random =
        rc::gen::map(rc::gen::tuple(mantissa, rc::gen::inRange(-320, 309)), [](const auto& parts) {
            const double scaled = std::get<0>(parts) * std::pow(10.0, std::get<1>(parts));
            return shortest(std::isfinite(scaled) ? scaled : -0.0);
        });
    const auto chosen = one_of({"0.0", "-0.0", "1.", ".5", "1D-3", "-7.25e+1", "123456.7890123456",
                                "+0.00000000005", "1e300"});
    return rc::gen::oneOf(chosen, random);
}

Text atom_line() {
    const auto label = one_of({"H", "o", "CL", "cl1", "X", "Ghost", "Uuo", "*", "C(a)"});
    const auto charge =
        one_of({"1.0", "8", "17.", "0.5", "1.25", "-1", "6.125", "0.000001", "1e20"});
    const auto at = [] { return joined(blanks(), coordinate()); };
    return joined(maybe(blanks()), maybe(joined(one_of({"1", "+12"}), blanks())), label, blanks(),
                  charge, at(), at(), at(), maybe(joined(blanks(), words())));
}

/// A line of `$DATA` behind the point group.
Text data_line() {
    return rc::gen::weightedOneOf<std::string>(
        {{5, atom_line()},
         {2, one_of({"   N31 6", "   S 3", "  1   3.42525091  0.15432897", "L 1", "\tD 1\t"})},
         {1, joined(one_of({"  P ", "S ", "note "}), words())},
         {1, maybe(blanks())}});
}

Text data_group() {
    const auto title =
        joined(one_of({"water", "(H2O)2", "! note"}), maybe(joined(blanks(), words())));
    return group({"DATA"}, rc::gen::oneOf(data_line(), title, one_of({"C1", "CNV 2", ""})));
}

Text between_groups() {
    return joined(rc::gen::oneOf(comment(), words(), maybe(blanks())), line_end());
}

Text with_blanks_around(const Text& text) {
    const auto around = one_of({"", "", " ", "\t", "\r\n"});
    return joined(around, text, around);
}

/// Turns the last groups read into groups added in code, as far as they are generic.
GamessInput with_added_groups(GamessInput deck, std::size_t count) {
    while (count-- > 0 && !deck.sections.empty()) {
        NamedSection& last = deck.sections.back();
        if (std::ranges::find(structured_groups, last.name) != structured_groups.end()) break;
        deck.extra_sections.insert(deck.extra_sections.begin(), std::move(last));
        deck.sections.pop_back();
    }
    return deck;
}

}  // namespace

Text deck_text() {
    const auto part = rc::gen::weightedOneOf<std::string>({{4, structured_group()},
                                                           {3, keyword_group()},
                                                           {2, raw_group()},
                                                           {2, data_group()},
                                                           {1, between_groups()}});
    return repeated(part, 8);
}

rc::Gen<GamessInput> document() {
    const auto count = rc::gen::inRange<std::size_t>(0, 3);
    return rc::gen::map(rc::gen::tuple(deck_text(), count), [](const auto& parts) {
        return with_added_groups(nurl::input::gamess::parse_string(std::get<0>(parts)).input,
                                 std::get<1>(parts));
    });
}

Text group_name() {
    const auto name = in_any_case(one_of({"CONTRL", "SYSTEM", "BASIS", "SCF", "GUESS", "PCM",
                                          "STATPT", "FORCE", "MINE", "VEC", "HESS", "NEW"}));
    return with_blanks_around(joined(maybe(one_of({"$"})), name));
}

Text keyword() { return with_blanks_around(indexed_keyword()); }

Text value() {
    return with_blanks_around(rc::gen::weightedOneOf<std::string>(
        {{1, rc::gen::just(std::string{})}, {4, word()}, {2, words()}}));
}

}  // namespace nurl::test
