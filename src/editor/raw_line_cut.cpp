#include "editor/raw_line_cut.hpp"

#include <cstddef>

#include "editor/editor_names.hpp"
#include "model/text_view.hpp"
#include "reader/pair_scanner.hpp"

namespace nurl::input::gamess::detail {

namespace {

std::string with_single_blanks(std::string_view text) {
    std::string result;
    bool in_run = false;
    for (const char c : text) {
        if (!is_blank(c))
            result += c;
        else if (!in_run)
            result += ' ';
        in_run = is_blank(c);
    }
    return result;
}

std::string cut_line(const std::string& line, std::string_view key, bool& found) {
    PairScanner scanner(line);
    std::string kept;
    std::size_t copied = 0;
    bool has_pairs = false;
    while (const auto pair = scanner.next()) {
        has_pairs = true;
        if (!same_editor_key(pair->key, key)) continue;
        kept.append(line, copied, pair->begin - copied);
        copied = pair->end;
        found = true;
    }
    kept.append(line, copied);
    return std::string{editor_trim(has_pairs ? with_single_blanks(kept) : kept)};
}

}  // namespace

CutRawLines cut_keyword(const std::vector<std::string>& lines, std::string_view key) {
    CutRawLines cut;
    cut.lines.reserve(lines.size());
    for (const std::string& line : lines) cut.lines.push_back(cut_line(line, key, cut.found));
    return cut;
}

}  // namespace nurl::input::gamess::detail
