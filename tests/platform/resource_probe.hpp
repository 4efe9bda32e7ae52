/// @file
/// A search for files made from inside a library that is loaded at run time.
#pragma once

#include <string>
#include <vector>

extern "C" {

/// Sets `found` to what `search_file` finds for candidates alone.
__attribute__((visibility("default"))) void nurl_test_search_file(
    const std::vector<std::string>* candidates, int parent_levels, std::string* found);
}
