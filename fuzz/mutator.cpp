// A deck is held as a list of tokens, and each kind of change is one function over two places in
// it.
#include "mutator.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <random>
#include <utility>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t max_size);

namespace nurl::fuzz {

namespace {

using Random = std::minstd_rand;
using Tokens = std::vector<std::string_view>;

// clang-format off
constexpr auto grammar = std::to_array<std::string_view>({
    // Headers and ends of groups, of each way of reading.
    "\n $CONTRL ", "\n $SYSTEM ", "\n $BASIS ", "\n $SCF ", "\n $GUESS ", "\n $DATA\n",
    "\n $VEC\n", "\n $HESS\n", "\n $EFRAG\n", "\n $ZMAT ", "\n $STATPT ", "\n $FORCE ",
    "\n $TDDFT ", "\n $PCM ", "\n $FMO ", "\n $SURF ", "\n $CCINP ", "\n $EOMINP ", "\n $MD ",
    "\n $DFTB ", "\n $OWN ", " $END\n", " $end", "$END of it\n", "$",
    // Keywords.
    " SCFTYP=", " RUNTYP=", " ICHARG=", " mult = ", " COORD=", " UNITS=", " NOSYM=", " MAXIT=",
    " ISPHER=", " DFTTYP=", " PP=", " MWORDS=", " MEMDDI=", " GBASIS=", " NGAUSS=", " DIFFSP=",
    " DIRSCF=", " GUESS=", " NORB=", " NSTEP=", " OPTTOL=", " IFREEZ(1)=", " IFCART(4)=", " HESS=",
    " TEMP(1)=", " NSTATE=", " IROOT=", " IZMAT(1)=", " INDAT(1)=", " KEY=", " X(1)=",
    // Values.
    "RHF", "OPTIMIZE", "bohr", "ANGS", "UNIQUE", "ZMT", "N31", ".T.", ".F.", ".TRUE.", "T", "YES",
    "0", "1", "-1", "+7", "3*0", "2147483648", "1,2,-5", "1.0D-05", "0.5E+10", "1e999", "1e-999",
    ".5", "1.", "two words", "'a b=c'",
    // Atoms and their basis.
    "\nO 8.0 0.0 0.0 0.1173", "\n1 H 1.0 0.0 0.757 -0.47", "\nH 1 0 0 0 extra", "\nC1\n",
    "\nCNV 2\n\n", "\nN31 6\n\n", "\nS 2 ; 1 1.3 0.4 ; 2 0.2 0.7\n",
    // Signs.
    "=", " = ", "(", ")", "(1)", "()", "((", "))", ",", ";", ">\n", "! note", "# note", "'", "\"",
    "!", "\n", "\r\n", "\r", "\n\n", " \n", " ", "\t", "\v", "\f", "\n ! a line of note\n",
});
// clang-format on

bool is_in(char c, std::string_view characters) {
    return characters.find(c) != std::string_view::npos;
}

bool is_blank(char c) { return is_in(c, " \t\v\f"); }

bool is_word(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || is_in(c, "0123456789._+-*");
}

std::size_t token_size(std::string_view text) {
    if (text.starts_with("\r\n")) return 2;
    const auto is_same_kind = is_blank(text[0]) ? is_blank : is_word;
    const bool is_long = is_blank(text[0]) || is_word(text[0]) || text[0] == '$';
    std::size_t size = 1;
    while (is_long && size < text.size() && is_same_kind(text[size])) ++size;
    return size;
}

bool is_line_end(std::string_view token) {
    return token == "\n" || token == "\r" || token == "\r\n";
}

std::size_t below(std::size_t end, Random& random) {
    return end == 0 ? 0 : std::uniform_int_distribution<std::size_t>(0, end - 1)(random);
}

std::string_view word_of_grammar(Random& random) {
    return grammar.at(below(grammar.size(), random));
}

auto at(Tokens& tokens, std::size_t place) {
    return tokens.begin() + static_cast<std::ptrdiff_t>(place);
}

/// The line that a token stands in, as the places of its first token and behind its end.
std::pair<std::size_t, std::size_t> line_around(const Tokens& tokens, std::size_t place) {
    std::size_t begin = place;
    while (begin > 0 && !is_line_end(tokens[begin - 1])) --begin;
    std::size_t end = place;
    while (end < tokens.size() && !is_line_end(tokens[end])) ++end;
    return {begin, std::min(end + 1, tokens.size())};
}

void insert_word(Tokens& tokens, Random& random) {
    tokens.insert(at(tokens, below(tokens.size() + 1, random)), word_of_grammar(random));
}

void replace_token(Tokens& tokens, Random& random) {
    if (!tokens.empty()) tokens[below(tokens.size(), random)] = word_of_grammar(random);
}

void delete_tokens(Tokens& tokens, Random& random) {
    constexpr std::size_t most = 4;
    const std::size_t begin = below(tokens.size(), random);
    const std::size_t count = std::min(1 + below(most, random), tokens.size() - begin);
    tokens.erase(at(tokens, begin), at(tokens, begin + count));
}

void double_token(Tokens& tokens, Random& random) {
    if (tokens.empty()) return;
    const std::string_view token = tokens[below(tokens.size(), random)];
    tokens.insert(at(tokens, below(tokens.size() + 1, random)), token);
}

void exchange_tokens(Tokens& tokens, Random& random) {
    if (!tokens.empty())
        std::swap(tokens[below(tokens.size(), random)], tokens[below(tokens.size(), random)]);
}

void double_line(Tokens& tokens, Random& random) {
    const auto [begin, end] = line_around(tokens, below(tokens.size(), random));
    const Tokens line{at(tokens, begin), at(tokens, end)};
    const std::size_t target = line_around(tokens, below(tokens.size(), random)).first;
    tokens.insert(at(tokens, target), line.begin(), line.end());
}

void delete_line(Tokens& tokens, Random& random) {
    const auto [begin, end] = line_around(tokens, below(tokens.size(), random));
    tokens.erase(at(tokens, begin), at(tokens, end));
}

void put_into_group(Tokens& tokens, Random& random) {
    const std::size_t begin = below(tokens.size() + 1, random);
    const std::size_t end = begin + below(tokens.size() + 1 - begin, random);
    tokens.insert(at(tokens, end), " $END\n");
    constexpr std::size_t headers = 21;  // they stand first
    tokens.insert(at(tokens, begin), grammar.at(below(headers, random)));
}

constexpr auto changes = std::to_array<void (*)(Tokens&, Random&)>(
    {insert_word, insert_word, insert_word, replace_token, replace_token, delete_tokens,
     double_token, exchange_tokens, double_line, delete_line, put_into_group});

}  // namespace

std::vector<std::string_view> tokens_of(std::string_view text) {
    std::vector<std::string_view> tokens;
    while (!text.empty()) {
        const std::size_t size = token_size(text);
        tokens.push_back(text.substr(0, size));
        text.remove_prefix(size);
    }
    return tokens;
}

std::string mutate_deck(std::string_view text, unsigned seed) {
    constexpr std::size_t most_changes = 4;
    Random random{seed};
    Tokens tokens = tokens_of(text);
    for (std::size_t left = 1 + below(most_changes, random); left > 0; --left)
        changes.at(below(changes.size(), random))(tokens, random);
    std::string changed;
    for (const std::string_view token : tokens) changed += token;
    return changed;
}

}  // namespace nurl::fuzz

/// Changes an input by the grammar of decks, and every third time as the fuzzer does by itself.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t max_size, unsigned seed) {
    constexpr unsigned plain_turn = 3;
    if (seed % plain_turn == 0) return LLVMFuzzerMutate(data, size, max_size);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes are characters here
    const std::string_view text{reinterpret_cast<const char*>(data), size};
    const std::string changed = nurl::fuzz::mutate_deck(text, seed);
    const std::size_t kept = std::min(changed.size(), max_size);
    std::copy_n(changed.begin(), kept, data);
    return kept;
}
