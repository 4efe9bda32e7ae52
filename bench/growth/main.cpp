// Runs each family at n and at 4n. Callgrind leaves a file of counts for each run, with the n and
// the name in it; the same two are printed, so that a run without counts is noticed.
#include <algorithm>
#include <exception>
#include <iostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "growth/family.hpp"
#include "growth/measure.hpp"
#include "nurl/input/gamess/schema.hpp"

namespace growth = nurl::bench::growth;

namespace {

using growth::Family;

std::string label_of(const Family& family, std::size_t n) {
    return std::to_string(n) + '\t' + std::string{family.name};
}

void run(const Family& family, std::size_t n) {
    family.operation({growth::text_of(family.shape, n), n});
    growth::write_counts(label_of(family, n));
}

/// @return whether the operation did what it should, both times
bool run_both(const Family& family, bool is_quick) {
    const std::size_t n = is_quick ? family.sizes.quick : family.sizes.full;
    std::cout << label_of(family, n) << '\n' << label_of(family, 4 * n) << '\n';
    try {
        run(family, n);
        run(family, 4 * n);
        return true;
    } catch (const std::exception& error) {
        std::cerr << "growth: " << family.name << ": " << error.what() << '\n';
        return false;
    }
}

/// Whether the name of a family holds all words given.
bool is_asked_for(const Family& family, std::span<const std::string_view> words) {
    return std::ranges::all_of(words, [&family](std::string_view word) {
        return family.name.find(word) != std::string_view::npos;
    });
}

bool run_all(std::span<const std::string_view> words, bool is_quick) {
    bool is_well = true;
    for (const growth::Table table : growth::tables())
        for (const Family& family : table())
            if (is_asked_for(family, words)) is_well = run_both(family, is_quick) && is_well;
    return is_well;
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    if (arguments.empty() || (arguments[0] != "quick" && arguments[0] != "full")) {
        std::cerr << "usage: growth quick|full [WORD...]\n";
        return 2;
    }
    // The schema is loaded once a process, which is no family's cost.
    if (nurl::input::gamess::schema::find_entry("CONTRL", "MAXIT") == nullptr) {
        std::cerr << "growth: the schema file was not found\n";
        return 1;
    }
    return run_all(std::span{arguments}.subspan(1), arguments[0] == "quick") ? 0 : 1;
}
