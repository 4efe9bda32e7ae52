#include "source/check/findings.hpp"

#include <algorithm>
#include <tuple>
#include <utility>
#include <vector>

#include "source/line_ends.hpp"

namespace nurl::input::gamess::source::checks {

namespace {

bool stands_before(const Finding& a, const Finding& b) {
    return std::tie(a.span.begin, a.rule) < std::tie(b.span.begin, b.rule);
}

/// Sorts what consists of few sorted runs, as each rule finds from the front to the back: linear in
/// the number of findings, times the logarithm of the number of runs.
void merge_runs(std::vector<Finding>& findings) {
    std::vector<std::vector<Finding>::iterator> ends;
    for (auto at = findings.begin(); at != findings.end(); at = ends.back())
        ends.push_back(std::is_sorted_until(at, findings.end(), stands_before));
    while (ends.size() > 1) {
        std::vector<std::vector<Finding>::iterator> merged;
        auto begin = findings.begin();
        for (std::size_t i = 0; i + 1 < ends.size(); i += 2) {
            std::inplace_merge(begin, ends[i], ends[i + 1], stands_before);
            merged.push_back(ends[i + 1]);
            begin = ends[i + 1];
        }
        if (ends.size() % 2 == 1) merged.push_back(ends.back());
        ends = std::move(merged);
    }
}

}  // namespace

void Findings::add(Span span, std::string message, std::string hint, std::vector<Edit> fix) {
    findings_.push_back({std::string{rule_->name},
                         rule_->severity,
                         span,
                         {},
                         std::move(message),
                         std::move(hint),
                         std::move(fix)});
}

std::vector<Finding> Findings::take() && {
    merge_runs(findings_);
    place_all();
    return std::move(findings_);
}

// Lines are counted from one finding to the next, many bytes at once, and the begin of a line is
// looked for no farther back than the finding before.
void Findings::place_all() noexcept {
    const std::string_view text = deck_.text();
    std::size_t seen = 0;
    std::size_t line = 1;
    std::size_t begin_of_line = 0;
    for (Finding& finding : findings_) {
        const std::size_t place = finding.span.begin;
        if (const std::size_t lines = count_line_ends(text, {seen, place}); lines > 0) {
            line += lines;
            begin_of_line = line_begin(text, place);
        }
        seen = place;
        finding.position = {line, place - begin_of_line + 1};
    }
}

}  // namespace nurl::input::gamess::source::checks
