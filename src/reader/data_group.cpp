#include "reader/data_group.hpp"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "model/text_view.hpp"
#include "nurl/core/text.hpp"

namespace nurl::input::gamess::detail {

namespace {

/// An atom line has a label, a charge and three coordinates, and may begin with an index.
constexpr std::size_t atom_words = 5;

/// The first words of a line, as many as an atom line can use.
struct Words {
    std::array<std::string_view, atom_words + 1> word;
    std::size_t count = 0;
};

Words split_words(std::string_view text) noexcept {
    Words words;
    std::size_t at = 0;
    while (words.count < words.word.size()) {
        const std::size_t begin = skip_class(text, Blank, at);
        at = find_class(text, Blank, begin);
        if (begin == at) break;
        words.word[words.count++] = text.substr(begin, at - begin);
    }
    return words;
}

std::optional<AtomRecord> read_atom(std::string_view line) {
    const Words words = split_words(line);
    if (words.count < atom_words) return std::nullopt;
    std::int32_t index = 0;
    const bool is_indexed = core::text::try_parse_int(words.word[0], index);
    // Behind an index with too few words, the last field is empty and does not convert.
    const auto field = std::span(words.word).subspan(is_indexed ? 1 : 0, atom_words);
    double charge = 0.0;
    AtomRecord atom;
    if (!core::text::try_parse_double(field[1], charge) ||
        !core::text::try_parse_double(field[2], atom.x) ||
        !core::text::try_parse_double(field[3], atom.y) ||
        !core::text::try_parse_double(field[4], atom.z))
        return std::nullopt;
    atom.symbol = field[0];
    atom.nuclear_charge = charge;
    return atom;
}

/// Takes one line, cut at an end marker. The title and the point group come first; while they are
/// looked for, blank lines do not count. Behind them a line of blanks is kept, an empty one not.
void add_line(std::string_view line, GamessInput& input) {
    const std::string_view text = trim_view(line);
    if (input.title.empty() || input.point_group.empty()) {
        (input.title.empty() ? input.title : input.point_group) = text;
    } else if (auto atom = read_atom(text)) {
        input.atoms.push_back(std::move(*atom));
    } else if (!line.empty()) {
        input.data_lines.emplace_back(line);
    }
}

}  // namespace

void read_data_group(const HeaderLine& header, LineCursor& lines, ParseResult& result) {
    result.input.has_data = true;
    const CutText cut = cut_at_end(header.remainder);
    const std::string_view header_text = trim_view(cut.text);
    if (!header_text.empty()) add_line(header_text, result.input);
    lines.advance();
    if (cut.has_end) return;

    for (; !lines.at_end(); lines.advance()) {
        if (!lines.has_dollar()) {
            add_line(lines.line(), result.input);
            continue;
        }
        if (read_header(lines.line())) return;
        const CutText line = cut_at_end(lines.line());
        add_line(line.text, result.input);
        if (line.has_end) {
            lines.advance();
            return;
        }
    }
    result.warnings.emplace_back("$DATA reached end-of-file without $END");
}

}  // namespace nurl::input::gamess::detail
