#include "platform/resource_probe.hpp"

#include "nurl/core/resource.hpp"

void nurl_test_search_file(const std::vector<std::string>* candidates, int parent_levels,
                           std::string* found) {
    *found = nurl::core::resource::search_file(nullptr, *candidates, "", {}, parent_levels);
}
