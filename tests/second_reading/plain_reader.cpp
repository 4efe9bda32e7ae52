// The text is cut into lines, and each group is read from copies of its lines.
#include "second_reading/plain_reader.hpp"

#include <cstddef>
#include <optional>

#include "nurl/input/gamess/schema.hpp"
#include "second_reading/plain_records.hpp"
#include "second_reading/plain_scanner.hpp"
#include "second_reading/plain_text.hpp"

namespace nurl::test {

namespace {

using input::gamess::AtomRecord;
using input::gamess::GamessInput;
using input::gamess::NamedSection;
using input::gamess::ParseResult;
using input::gamess::schema::SectionParseMode;
using plain::Lines;
using plain::trimmed;
using plain::upper;

/// The name of the group that a line opens, in upper case; empty when it opens none.
std::string header_name(const std::string& line) {
    const std::string text = upper(trimmed(line));
    if (!text.starts_with("$") || text.starts_with("$END")) return "";
    std::string name;
    for (std::size_t at = 1; at < text.size() && !plain::is_blank(text[at]); ++at) {
        if (text[at] == '$') break;
        name += text[at];
    }
    return name;
}

/// What stands behind the name in the header of a group.
std::string header_rest(const std::string& line) {
    return trimmed(line).substr(1 + header_name(line).size());
}

bool has_end(const std::string& line) { return upper(line).find("$END") != std::string::npos; }

std::string before_end(const std::string& line) { return line.substr(0, upper(line).find("$END")); }

/// Takes a piece of text into a group. @return the free text in it, trimmed
std::string add_text(const std::string& text, SectionParseMode mode, NamedSection& section) {
    std::string left;
    std::size_t passed = 0;
    if (mode != SectionParseMode::Raw) {
        for (const auto& pair : scan_plainly(text)) {
            section.entries.push_back({pair.key, trimmed(pair.value)});
            left += text.substr(passed, pair.begin - passed);
            passed = pair.end;
        }
    }
    left = trimmed(left + text.substr(passed));
    if (!left.empty()) section.raw_lines.push_back(left);
    return left;
}

bool is_worth_a_warning(const std::string& left, SectionParseMode mode) {
    return mode == SectionParseMode::Structured && !left.empty() && left[0] != '!' &&
           left[0] != '#';
}

/// Reads the group whose header is line `at`. @return the line to go on at
std::size_t read_group(const Lines& lines, std::size_t at, ParseResult& result) {
    NamedSection section;
    section.name = header_name(lines[at]);
    const SectionParseMode mode = input::gamess::schema::section_parse_mode(section.name);
    const std::string start = "Section $" + section.name;
    const std::string header = header_rest(lines[at]);
    if (is_worth_a_warning(add_text(before_end(header), mode, section), mode))
        result.warnings.push_back(start +
                                  " preserved non-keyword text from its header as raw text");
    bool is_closed = has_end(header);
    bool is_cut = false;
    for (++at; at < lines.size() && !is_closed; ++at) {
        is_cut = !header_name(lines[at]).empty();
        if (is_cut) break;
        if (is_worth_a_warning(add_text(before_end(lines[at]), mode, section), mode))
            result.warnings.push_back(start + " preserved non-keyword body text as raw text");
        is_closed = has_end(lines[at]);
    }
    if (is_cut)
        result.warnings.push_back(
            start + " reached the next section before $END; treating it as implicitly terminated");
    else if (!is_closed)
        result.warnings.push_back(start + " reached end-of-file without $END");
    lift_plainly(section, result.input);
    result.input.sections.push_back(section);
    return at;
}

std::optional<AtomRecord> atom_of(const std::string& line) {
    Lines words = plain::words_of(line);
    if (!words.empty() && plain::integer_of(words[0])) words.erase(words.begin());
    if (words.size() < 5) return std::nullopt;
    const auto charge = plain::real_of(words[1]);
    const auto x = plain::real_of(words[2]);
    const auto y = plain::real_of(words[3]);
    const auto z = plain::real_of(words[4]);
    if (!charge || !x || !y || !z) return std::nullopt;
    return AtomRecord{words[0], charge, *x, *y, *z};
}

void add_data_line(const std::string& line, GamessInput& input) {
    const std::string text = trimmed(line);
    const std::optional<AtomRecord> atom = atom_of(line);
    if (input.title.empty())
        input.title = text;
    else if (input.point_group.empty())
        input.point_group = text;
    else if (atom)
        input.atoms.push_back(*atom);
    else if (!line.empty())
        input.data_lines.push_back(line);
}

/// Reads the `$DATA` whose header is line `at`. @return the line to go on at
std::size_t read_molecule(const Lines& lines, std::size_t at, ParseResult& result) {
    result.input.has_data = true;
    const std::string header = header_rest(lines[at]);
    add_data_line(trimmed(before_end(header)), result.input);
    if (has_end(header)) return at + 1;
    for (++at; at < lines.size(); ++at) {
        if (!header_name(lines[at]).empty()) return at;
        add_data_line(before_end(lines[at]), result.input);
        if (has_end(lines[at])) return at + 1;
    }
    result.warnings.emplace_back("$DATA reached end-of-file without $END");
    return at;
}

}  // namespace

ParseResult read_plainly(const std::string& text) {
    ParseResult result;
    const Lines lines = plain::lines_of(text.starts_with("\xEF\xBB\xBF") ? text.substr(3) : text);
    std::size_t at = 0;
    while (at < lines.size()) {
        const std::string name = header_name(lines[at]);
        if (name.empty())
            ++at;
        else if (name == "DATA")
            at = read_molecule(lines, at, result);
        else
            at = read_group(lines, at, result);
        if (!name.empty()) result.ok = true;
    }
    if (!result.ok) result.error = "The input does not contain any GAMESS sections";
    return result;
}

}  // namespace nurl::test
