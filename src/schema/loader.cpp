// Indentation alone tells what a line is, so each depth of the ladder has a function of its own.
// Map elements stay where they are, so the section and the entry being read are held by pointer;
// null stands for none and for a name that normalises to nothing, whose properties do not count.
#include "schema/loader.hpp"

#include <array>
#include <exception>
#include <fstream>
#include <ios>
#include <new>
#include <string_view>

#include "model/text_view.hpp"
#include "schema/schema_line.hpp"

namespace nurl::input::gamess::schema {

namespace {

/// A row of a table of words and what they stand for.
template <class Value>
struct Word {
    std::string_view word;
    Value value;
};

constexpr std::array<Word<SectionParseMode>, 2> parse_modes{{
    {"structured", SectionParseMode::Structured},
    {"raw", SectionParseMode::Raw},
}};

constexpr std::array<Word<EntryKind>, 2> entry_kinds{{
    {"value", EntryKind::Value},
    {"flag", EntryKind::Flag},
}};

constexpr std::array<Word<bool SectionSpec::*>, 3> section_flags{{
    {"requires_end", &SectionSpec::requires_end},
    {"allow_unknown_entries", &SectionSpec::allow_unknown_entries},
    {"allow_raw_lines", &SectionSpec::allow_raw_lines},
}};

constexpr std::array<Word<bool EntrySpec::*>, 2> entry_flags{{
    {"indexed", &EntrySpec::indexed},
    {"repeated", &EntrySpec::repeated},
}};

using detail::equal_ignoring_case;

/// What a plain word stands for. @return `otherwise` when it is not in the table
template <class Value, std::size_t Size>
Value look_up(const std::array<Word<Value>, Size>& table, std::string_view word, Value otherwise) {
    for (const Word<Value>& row : table)
        if (equal_ignoring_case(word, row.word)) return row.value;
    return otherwise;
}

Table built_in_sections() {
    constexpr std::array<std::string_view, 5> structured{"contrl", "system", "basis", "scf",
                                                         "guess"};
    constexpr std::array<std::string_view, 18> raw{
        "data", "datas", "datal",  "vec",    "cisvec", "hess",  "grad",   "dipdr",  "alpdr",
        "vib",  "vib2",  "vibscf", "eqgeom", "hlowt",  "glowt", "dftbsk", "dftbao", "dm"};
    Table table;
    SectionSpec spec;
    spec.known = true;
    spec.parse_mode = SectionParseMode::Structured;
    for (const std::string_view name : structured) table.try_emplace(std::string{name}, spec);
    spec.parse_mode = SectionParseMode::Raw;
    for (const std::string_view name : raw) table.try_emplace(std::string{name}, spec);
    return table;
}

/// Lays the lines of a schema file over a table, one call a line.
class SchemaReader {
public:
    SchemaReader(Table& table, Choices* choices) : table_(&table), choices_(choices) {}

    void add(std::string_view line) {
        const SchemaLine content = read_line(line);
        if (content.text.empty()) return;
        if (content.indentation == 0) {
            in_sections_ = content.text == "sections:";
            section_ = nullptr;
            leave_entries();
        } else if (in_sections_) {
            add_indented(content);
        }
    }

private:
    void add_indented(const SchemaLine& line) {
        if (line.indentation == 2)
            begin_section(line.text);
        else if (section_ == nullptr)
            return;
        else if (line.indentation == 4)
            set_section_property(line.text);
        else if (line.indentation == 6)
            begin_entry(line.text);
        else if (line.indentation == 8)
            set_entry_property(line.text);
    }

    void leave_entries() {
        in_entries_ = false;
        entry_ = nullptr;
    }

    void begin_section(std::string_view text) {
        if (!text.ends_with(':')) return;
        const std::string name = normalize_section_name(text.substr(0, text.size() - 1));
        SectionSpec& spec = (*table_)[name];
        spec.known = true;
        for (const auto& flag : section_flags) spec.*flag.value = true;
        section_ = name.empty() ? nullptr : &spec;
        leave_entries();
    }

    void set_section_property(std::string_view text) {
        leave_entries();
        if (text == "entries:") {
            in_entries_ = true;
            return;
        }
        const auto property = read_property(text);
        if (!property) return;
        if (const auto flag = look_up(section_flags, property->key, {}))
            section_->*flag = read_flag(property->value, true);
        else if (equal_ignoring_case(property->key, "parse_mode"))
            section_->parse_mode =
                look_up(parse_modes, plain_word(property->value), SectionParseMode::Keywords);
        else if (equal_ignoring_case(property->key, "alias_of"))
            section_->alias_of = normalize_section_name(property->value);
    }

    void begin_entry(std::string_view text) {
        if (!in_entries_ || !text.ends_with(':')) return;
        const auto [place, is_new] =
            section_->entries.try_emplace(normalize_entry_name(text.substr(0, text.size() - 1)));
        EntrySpec& spec = place->second;
        if (!is_new) spec = {};
        if (!is_new && choices_ != nullptr) choices_->erase(&spec);
        entry_ = place->first.empty() ? nullptr : &spec;
    }

    void set_entry_property(std::string_view text) {
        if (entry_ == nullptr) return;
        const auto property = read_property(text);
        if (!property) return;
        if (equal_ignoring_case(property->key, "kind"))
            entry_->kind =
                look_up(entry_kinds, plain_word(property->value), EntryKind::Unspecified);
        else if (equal_ignoring_case(property->key, "value_type"))
            entry_->value_type = normalize_section_name(property->value);
        else if (const auto flag = look_up(entry_flags, property->key, {}))
            entry_->*flag = read_flag(property->value, false);
        else if (choices_ != nullptr && equal_ignoring_case(property->key, "choices"))
            (*choices_)[entry_] = property->value;
    }

    Table* table_;
    Choices* choices_;
    bool in_sections_ = false;
    bool in_entries_ = false;
    SectionSpec* section_ = nullptr;
    EntrySpec* entry_ = nullptr;
};

}  // namespace

Table read_schema(std::istream& stream, Choices* choices) {
    Table table = built_in_sections();
    SchemaReader reader(table, choices);
    std::string line;
    try {
        // Otherwise a line that there is no memory for would look like the end of the file.
        stream.exceptions(std::ios::badbit);
        if (std::getline(stream, line)) reader.add(detail::without_byte_order_mark(line));
        while (std::getline(stream, line)) reader.add(line);
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception&) {
        return table;
    }
    return table;
}

Table load_schema(const std::string& path, Choices* choices) {
    std::ifstream file(path);
    return read_schema(file, choices);
}

}  // namespace nurl::input::gamess::schema
