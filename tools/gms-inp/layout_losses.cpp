#include "layout_losses.hpp"

#include <algorithm>
#include <functional>
#include <set>
#include <unordered_set>

#include "ascii.hpp"
#include "data_losses.hpp"
#include "deck_walk.hpp"
#include "group_losses.hpp"
#include "group_text.hpp"

namespace gms_inp {

namespace {

constexpr std::size_t column_limit = 80;

/// Calls `visit` with every line of `text` that is longer than GAMESS reads.
template <class Visit>
void for_each_long_line(std::string_view text, Visit visit) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        if (end > column_limit) visit(trim(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

void count_long_lines(std::string_view text, std::string_view written, LossCounts& counts) {
    std::unordered_set<std::string_view> known;
    for_each_long_line(text, [&](std::string_view line) { known.insert(line); });
    for_each_long_line(written, [&](std::string_view line) {
        if (!known.contains(line)) counts.add(Loss::LongLine);
    });
}

/// Counts what the sequence of the groups loses.
class SequenceLosses {
public:
    explicit SequenceLosses(LossCounts& counts) noexcept : counts_{counts} {}

    void open(std::string_view group, GroupKind kind) {
        if (kind != GroupKind::Data && seen_.contains("DATA")) counts_.add(Loss::GroupBehindData);
        if (kind != GroupKind::Data && kind != GroupKind::Structured) return;
        if (!seen_.emplace(group).second) counts_.add(Loss::MergedGroup);
    }

private:
    LossCounts& counts_;
    std::set<std::string, std::less<>> seen_;
};

}  // namespace

std::vector<std::string> layout_losses(std::string_view text,
                                       const nurl::input::gamess::GamessInput& input,
                                       std::string_view written) {
    LossCounts counts;
    SequenceLosses sequence{counts};
    GroupLosses groups{counts};
    DataLosses data{input, counts};
    GroupKind kind = GroupKind::Keywords;
    DeckWalk walk{text};
    while (const auto line = walk.next()) {
        if (!trim(line->behind_end).empty()) counts.add(Loss::BehindEnd);
        if (line->role == LineRole::Outside) {
            if (!trim(line->text).empty()) counts.add(Loss::OutsideText);
            continue;
        }
        if (line->role == LineRole::Header) {
            kind = kind_of_group(line->group);
            sequence.open(line->group, kind);
        }
        if (kind == GroupKind::Data) {
            data.add(*line);
        } else {
            groups.add(*line, kind);
        }
    }
    groups.finish(input);
    count_long_lines(text, written, counts);
    return counts.sentences();
}

}  // namespace gms_inp
