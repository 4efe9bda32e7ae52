#include <array>
#include <string>
#include <string_view>

#include <doctest/doctest.h>
#include <rapidcheck.h>

#include "nurl/input/gamess/schema.hpp"

using namespace std::string_literals;

using nurl::input::gamess::schema::normalize_entry_name;
using nurl::input::gamess::schema::normalize_section_name;

namespace {

struct Row {
    std::string_view name;
    std::string_view normalised;
};

}  // namespace

TEST_CASE("Group names normalise to lower case without one dollar sign and blanks around") {
    const std::array<Row, 17> rows{{
        {"$CONTRL ", "contrl"},
        {"Data", "data"},
        {"$ data", " data"},
        {"$$X", "$x"},
        {" $$X ", "$x"},
        {"contrl", "contrl"},
        {" Contrl ", "contrl"},
        {"\t\n\v\f\r$Pcm \t\n\v\f\r", "pcm"},
        {"", ""},
        {" \t", ""},
        {"$", ""},
        {" $ ", ""},
        {"$$", "$"},
        {"A$B$", "a$b$"},
        {"C(1)", "c(1)"},
        {"A  B", "a  b"},
        {"VIB2_X-9", "vib2_x-9"},
    }};
    for (const Row& row : rows) {
        CAPTURE(row.name);
        CHECK(normalize_section_name(row.name) == row.normalised);
    }
}

TEST_CASE("Keywords normalise as group names and lose their index") {
    const std::array<Row, 29> rows{{
        {"C(1)", "c"},
        {" ZMAT(2) ", "zmat"},
        {"x(1)y", "x(1)y"},
        {"X(1)Y", "x(1)y"},
        {"(1)", ""},
        {"A B(3)", "a b"},
        {"a)b(c)", "a)b"},
        {"SCFTYP", "scftyp"},
        {" scftyp ", "scftyp"},
        {"$SCFTYP", "scftyp"},
        {"$$SCFTYP", "$scftyp"},
        {"$ SCFTYP", "scftyp"},
        {"X()", "x"},
        {"X (1)", "x"},
        {"X( 1 , 2 )", "x"},
        {"X(1)(2)", "x"},
        {"X((1))", "x"},
        {"X((1)", "x"},
        {"X(1", "x(1"},
        {"X)", "x)"},
        {")", ")"},
        {"(", "("},
        {")(", ")("},
        {"()", ""},
        {"X(1) Y", "x(1) y"},
        {"X(1)=", "x(1)="},
        {"$(1)", ""},
        {"", ""},
        {" $ ", ""},
    }};
    for (const Row& row : rows) {
        CAPTURE(row.name);
        CHECK(normalize_entry_name(row.name) == row.normalised);
    }
}

TEST_CASE("Only ASCII letters change their case and only ASCII blanks are trimmed") {
    CHECK(normalize_section_name("\xA0\xC9T\xC9") == "\xA0\xC9t\xC9");
    CHECK(normalize_entry_name("\xC9(1)") == "\xC9");
    CHECK(normalize_section_name(" A\0B\0 "s) == "a\0b\0"s);
    CHECK(normalize_entry_name("A\0B(\0)"s) == "a\0b"s);
    CHECK(normalize_entry_name("A(1)\0"s) == "a(1)\0"s);
}

TEST_CASE("Letter case never changes what a name normalises to") {
    CHECK(rc::check([](const std::string& name) {
        std::string upper = name;
        for (char& c : upper)
            if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
        RC_ASSERT(normalize_section_name(upper) == normalize_section_name(name));
        RC_ASSERT(normalize_entry_name(upper) == normalize_entry_name(name));
    }));
}
