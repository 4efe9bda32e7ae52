/// @file
/// Tables of texts and the pairs that scanning finds in them.
#pragma once

#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "model/printing.hpp"
#include "nurl/input/gamess/reader.hpp"

namespace nurl::test {

using Pairs = std::vector<input::gamess::detail::ScannedKeyValue>;

/// A text and its pairs: key, value, offset of the key, offset at which the value stops.
struct ScanRow {
    std::string name;
    std::string text;
    Pairs pairs;
};

inline void check_scans(const std::vector<ScanRow>& rows) {
    for (const auto& row : rows) {
        CAPTURE(row.name);
        CAPTURE(row.text);
        CHECK(input::gamess::detail::scan_key_values(row.text) == row.pairs);
    }
}

}  // namespace nurl::test
