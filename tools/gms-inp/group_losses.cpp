#include "group_losses.hpp"

#include <algorithm>
#include <numeric>
#include <string_view>
#include <utility>
#include <vector>

#include "ascii.hpp"
#include "nurl/input/gamess/editor.hpp"
#include "nurl/input/gamess/schema.hpp"

namespace gms_inp {

namespace {

namespace gamess = nurl::input::gamess;

bool leaves_comment_open(std::string_view value) noexcept {
    return std::ranges::count(value, '!') % 2 != 0;
}

/// The pairs of a line that a comment hides and that the writer shows. `!` turns a comment on and
/// off. A comment mark inside a value goes with its value, so what it hides stays hidden, except in
/// a structured group, where keywords change their places.
std::size_t freed_pairs(std::string_view line, const GroupText& text, GroupKind kind) noexcept {
    std::size_t freed = 0;
    std::size_t cursor = 0;
    bool hidden = false;
    bool hidden_by_value = false;
    for (const auto& pair : text.pairs) {
        const std::string_view front = line.substr(cursor, pair.begin - cursor);
        if (leaves_comment_open(front)) {
            hidden = !hidden;
            hidden_by_value = false;
        }
        if (hidden && (!hidden_by_value || kind == GroupKind::Structured)) ++freed;
        if (leaves_comment_open(pair.value)) {
            hidden = !hidden;
            hidden_by_value = true;
        }
        cursor = pair.end;
    }
    return freed;
}

bool has_unusual_units(const gamess::detail::ScannedKeyValue& pair) {
    const std::string value = to_upper(pair.value);
    return pair.key == "UNITS" && value != "BOHR" && !value.starts_with("ANGS");
}

/// The number of keywords of each structured group that is there.
std::vector<std::size_t> record_sizes(const gamess::GamessInput& input) {
    gamess::GamessInput records;  // without the rest, which may be large
    records.has_control = input.has_control;
    records.control = input.control;
    records.system = input.system;
    records.basis = input.basis;
    records.scf = input.scf;
    records.guess = input.guess;
    const gamess::InputEditor editor{std::move(records)};
    std::vector<std::size_t> sizes;
    for (const std::string& name : editor.section_names()) {
        sizes.push_back(editor.list_keywords(name).size());
    }
    return sizes;
}

}  // namespace

GroupLosses::GroupLosses(LossCounts& counts) noexcept : counts_{counts} {}

void GroupLosses::add(const DeckLine& line, GroupKind kind) {
    if (line.role == LineRole::Header) {
        close_group();
        group_ = {.name = std::string{line.group},
                  .kind = kind,
                  .described = gamess::schema::find_section(line.group) != nullptr};
    }
    if (kind == GroupKind::Structured) add_structured(line);
    if (kind == GroupKind::Keywords) add_keywords(line);
    if (kind == GroupKind::Raw) add_raw(line);
}

void GroupLosses::finish(const gamess::GamessInput& input) {
    close_group();
    const std::vector<std::size_t> sizes = record_sizes(input);
    const std::size_t kept = std::accumulate(sizes.begin(), sizes.end(), std::size_t{0});
    counts_.add(Loss::EarlierValue, structured_pairs_ - std::min(structured_pairs_, kept));
    const auto empty = std::ranges::count(sizes, std::size_t{0});
    counts_.add(Loss::EmptyStructured, static_cast<std::size_t>(empty));
}

void GroupLosses::add_structured(const DeckLine& line) {
    const GroupText text = split_group_text(line.text);
    add_pairs(line, text);
    structured_pairs_ += text.pairs.size();
    if (!text.rest.empty()) counts_.add(Loss::StructuredText);
    if (group_.name != "CONTRL") return;
    const auto unusual = std::ranges::count_if(text.pairs, has_unusual_units);
    counts_.add(Loss::ChangedUnits, static_cast<std::size_t>(unusual));
}

void GroupLosses::add_keywords(const DeckLine& line) {
    const GroupText text = split_group_text(line.text);
    add_pairs(line, text);
    if (!text.pairs.empty()) counts_.add(Loss::MovedText, std::exchange(group_.pending_text, 0));
    if (text.rest_in_front && !text.rest.empty()) counts_.add(Loss::MovedText);
    if (!text.rest_in_front && !text.rest.empty()) ++group_.pending_text;
    add_raw(line);
}

void GroupLosses::add_raw(const DeckLine& line) {
    const bool blank = trim(line.text).empty();
    if (line.role == LineRole::Header) {
        if (!blank) ++group_.header_text;
    } else if (blank) {
        if (!line.closes) ++group_.blank;
    } else if (is_blank(line.text.front())) {
        ++group_.indented;
    }
}

void GroupLosses::add_pairs(const DeckLine& line, const GroupText& text) {
    if (text.pairs.empty()) return;
    group_.has_pairs = true;
    if (line.role == LineRole::Body) group_.breaks_lines = true;
    counts_.add(Loss::FreedKeyword, freed_pairs(line.text, text, group_.kind));
    const auto joined = std::ranges::count_if(
        text.pairs, [](const auto& pair) { return leaves_comment_open(pair.value); });
    counts_.add(Loss::JoinedComment, static_cast<std::size_t>(joined));
}

void GroupLosses::close_group() {
    const Group group = std::exchange(group_, {});
    if (group.breaks_lines) counts_.add(Loss::JoinedLines);
    // A group that the schema does not know and that has no keywords is as good as raw.
    const bool undescribed = group.kind == GroupKind::Keywords && !group.described;
    if (group.kind != GroupKind::Raw && (!undescribed || group.has_pairs)) return;
    counts_.add(Loss::RawHeaderText, group.header_text);
    counts_.add(Loss::RawIndent, group.indented);
    counts_.add(Loss::RawBlankLine, group.blank);
}

}  // namespace gms_inp
