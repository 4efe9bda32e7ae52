#include "source/check/point_group.hpp"

#include <vector>

#include <doctest/doctest.h>

using nurl::input::gamess::source::checks::PointGroupName;
using nurl::input::gamess::source::checks::read_point_group;

TEST_CASE("The names of point groups are known in any case") {
    for (const std::string name : {"C1", "cs", "Ci", "T", "th", "Td", "O", "OH"}) {
        CAPTURE(name);
        CHECK(read_point_group(name).is_known);
        CHECK_FALSE(read_point_group(name).needs_order);
    }
    for (const std::string name : {"CN", "S2n", "cnh", "CNV", "DN", "Dnh", "DND"}) {
        CAPTURE(name);
        CHECK(read_point_group(name).is_known);
        CHECK(read_point_group(name).needs_order);
    }
}

TEST_CASE("Names of another notation are told as GAMESS writes them") {
    struct Row {
        std::string name;
        std::string written_as;
    };
    const std::vector<Row> rows{
        {"C2v", "CNV 2"},   {"c3", "CN 3"},    {"C8h", "CNH 8"},  {"D2", "DN 2"},
        {"d6h", "DNH 6"},   {"D2d", "DND 2"},  {"S4", "S2N 2"},   {"S8", "S2N 4"},
        {"CNV2", "CNV 2"},  {"DNH4", "DNH 4"}, {"S2N3", "S2N 3"}, {"S2N4", "S2N 4"},
        {"CNV9", ""},       {"CNVX", ""},      {"T2D", ""},       {"S3", ""},
        {"C9", ""},         {"C1h", "CNH 1"},  {"C0v", ""},       {"C2x", ""},
        {"E2", ""},         {"X", ""},         {"", ""},          {"C10v", ""},
        {"CNVCNVCNV2", ""}, {"SX", ""},        {"T2", ""},        {"CS2", ""},
        {"C12", ""},
    };
    for (const Row& row : rows) {
        CAPTURE(row.name);
        const PointGroupName read = read_point_group(row.name);
        CHECK_FALSE(read.is_known);
        CHECK_FALSE(read.needs_order);
        CHECK(read.written_as == row.written_as);
    }
}
