#include <istream>
#include <sstream>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <doctest/doctest.h>

#include "schema/read_text.hpp"

using namespace std::string_literals;

using nurl::input::gamess::schema::EntryKind;
using nurl::input::gamess::schema::SectionParseMode;
using nurl::input::gamess::schema::Table;
using nurl::test::added_names;
using nurl::test::read_text;

namespace {

using Names = std::vector<std::string>;

constexpr std::string_view example =
    "sections:\n"
    "  $CONTRL:\n"
    "    allow_unknown_entries: no\n"
    "    parse_mode: structured\n"
    "    entries:\n"
    "      SCFTYP:\n"
    "        kind: value\n"
    "        value_type: \"token\"\n"
    "      ICHARG:\n"
    "        value_type: int\n"
    "  cntrl:\n"
    "    alias_of: $contrl\n";

std::string with_line_ends(std::string_view text, std::string_view line_end) {
    std::string result;
    for (const char c : text) {
        if (c == '\n')
            result += line_end;
        else
            result += c;
    }
    return result;
}

/// Gives its text and then fails as a broken disk does.
class FailingBuffer : public std::streambuf {
public:
    explicit FailingBuffer(std::string text) : text_(std::move(text)) {
        setg(text_.data(), text_.data(), text_.data() + text_.size());
    }

protected:
    int_type underflow() override { throw std::runtime_error("cannot read"); }

private:
    std::string text_;
};

}  // namespace

TEST_CASE("The example fragment gives a structured group and an alias for it") {
    const Table table = read_text(example);
    CHECK(table.size() == 24);
    const auto& contrl = table.at("contrl");
    CHECK(contrl.known);
    CHECK(contrl.parse_mode == SectionParseMode::Structured);
    CHECK_FALSE(contrl.allow_unknown_entries);
    CHECK(contrl.requires_end);
    CHECK(contrl.allow_raw_lines);
    CHECK(contrl.alias_of.empty());
    CHECK(contrl.entries.size() == 2);
    CHECK(contrl.entries.at("scftyp").kind == EntryKind::Value);
    CHECK(contrl.entries.at("scftyp").value_type == "token");
    CHECK(contrl.entries.at("icharg").kind == EntryKind::Unspecified);
    CHECK(contrl.entries.at("icharg").value_type == "int");
    const auto& cntrl = table.at("cntrl");
    CHECK(cntrl.known);
    CHECK(cntrl.parse_mode == SectionParseMode::Keywords);
    CHECK(cntrl.allow_unknown_entries);
    CHECK(cntrl.alias_of == "contrl");
    CHECK(cntrl.entries.empty());
}

TEST_CASE("Lines may end with carriage return and line feed") {
    CHECK(read_text(with_line_ends(example, "\r\n")) == read_text(example));
}

TEST_CASE("A carriage return alone ends no line") {
    CHECK(read_text(with_line_ends(example, "\r")) == read_text(""));
    CHECK(added_names("sections:\n  a\r  b:\n") == Names{"a\r  b"});
}

TEST_CASE("The last line counts without a line end as well") {
    CHECK(added_names("sections:\n  a:") == Names{"a"});
    CHECK(added_names("sections:\n  a:\r") == Names{"a"});
}

TEST_CASE("Blank lines and comments at any depth change nothing") {
    for (const char* line : {"", " ", "  ", "\t", "\r", "        ", "# note", "  # a:", "    #",
                             "\t# note", "      # entries:"}) {
        CAPTURE(line);
        CHECK(read_text(with_line_ends(example, "\n" + std::string{line} + "\n")) ==
              read_text(example));
    }
}

TEST_CASE("Comments behind the text of a line are left out") {
    CHECK(read_text(with_line_ends(example, " # it's a \"note\": yes\n")) == read_text(example));
    CHECK(read_text(with_line_ends(example, "#:\r\n")) == read_text(example));
}

TEST_CASE("A hash sign in quotes belongs to the text") {
    const Table table = read_text(
        "sections:\n"
        "  'a#b':\n"
        "    entries:\n"
        "      x:\n"
        "        value_type: 'a#b' # text\n"
        "      it's#y:\n");
    const auto& group = table.at("'a#b'");
    CHECK(group.entries.at("x").value_type == "a#b");
    CHECK(group.entries.contains("it's#y"));
}

TEST_CASE("A quote that is not closed ends with its line") {
    CHECK(added_names("sections:\n  it's # not a comment\n  a: # a comment\n") == Names{"a"});
    CHECK(added_names("sections:\n  5\" # x:\n  a:\n") == Names{"5\" # x", "a"});
}

TEST_CASE("A byte order mark at the very start is skipped") {
    const std::string mark = "\xEF\xBB\xBF";
    CHECK(read_text(mark + std::string{example}) == read_text(example));
    CHECK(read_text(mark) == read_text(""));
    CHECK(added_names(mark + "# note\nsections:\n  a:\n") == Names{"a"});
    CHECK(added_names(mark + "\r\nsections:\r\n  a:\r\n") == Names{"a"});
}

TEST_CASE("A byte order mark anywhere else is text") {
    const std::string mark = "\xEF\xBB\xBF";
    CHECK(added_names("\n" + mark + "sections:\n  a:\n").empty());
    CHECK(added_names(mark + mark + "sections:\n  a:\n").empty());
    CHECK(added_names(" " + mark + "sections:\n  a:\n").empty());
    CHECK(added_names("sections:\n  " + mark + "a:\n") == Names{mark + "a"});
    CHECK(added_names("\xEF\xBBsections:\n  a:\n").empty());
}

TEST_CASE("Bytes beyond ASCII are neither letters nor white space") {
    CHECK(added_names("sections:\n  CAF\xC3\x89:\n") == Names{"caf\xC3\x89"});
    CHECK(added_names("sections:\n  \xA0:\n  \xFF:\n") == Names{"\xA0", "\xFF"});
    CHECK(added_names("sections:\n\xA0\n  a:\n").empty());
    const Table table =
        read_text("sections:\n  a:\n    alias_of: \xC9\n    entries:\n      \xC9:\n");
    CHECK(table.at("a").alias_of == "\xC9");
    CHECK(table.at("a").entries.contains("\xC9"));
}

TEST_CASE("NUL bytes pass through as any other byte") {
    CHECK(added_names("sections:\n  A\0B:\n  \0:\n"s) == Names{"\0"s, "a\0b"s});
    CHECK(added_names("sections:\0\n  a:\n"s).empty());
    CHECK(added_names("sections:\n\0  a:\n  b:\n"s).empty());
    const Table table = read_text("sections:\n  a:\n    parse_mode: raw\0\n"s);
    CHECK(table.at("a").parse_mode == SectionParseMode::Keywords);
}

TEST_CASE("A line of a million characters is read") {
    const std::string name(1'000'000, 'x');
    CHECK(added_names("sections:\n  " + name + ":\n") == Names{name});
}

TEST_CASE("What was read before the stream fails stands") {
    FailingBuffer buffer("sections:\n  a:\n    parse_mode: raw\n");
    std::istream stream(&buffer);
    const Table table = nurl::input::gamess::schema::read_schema(stream);
    CHECK(table.size() == 24);
    CHECK(table.at("a").parse_mode == SectionParseMode::Raw);
}

TEST_CASE("A stream that has failed already gives the built-in groups") {
    std::istringstream stream("sections:\n  a:\n");
    stream.setstate(std::ios::badbit);
    CHECK(nurl::input::gamess::schema::read_schema(stream).size() == 23);
}
