// Every rule is one statement in the order of the rules, everything is copied, and the group and
// the keyword being read are held by name. It shares no code with the loader that it checks.
#include "schema/plain_loader.hpp"

#include <sstream>

namespace nurl::test {

namespace {

using input::gamess::schema::EntryKind;
using input::gamess::schema::EntrySpec;
using input::gamess::schema::SectionParseMode;
using input::gamess::schema::SectionSpec;
using input::gamess::schema::Table;

std::string trimmed(const std::string& text) {
    const char* const blanks = " \t\n\v\f\r";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string::npos) return "";
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string key_of(const std::string& text) {
    std::string key = trimmed(text);
    for (char& c : key)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 32);
    return key.starts_with('$') ? key.substr(1) : key;
}

std::string entry_key_of(const std::string& text) {
    const std::string key = key_of(text);
    const std::size_t open = key.find('(');
    const std::size_t close = key.rfind(')');
    const bool is_indexed = open != std::string::npos && close != std::string::npos &&
                            close + 1 == key.size() && open < close;
    return trimmed(is_indexed ? key.substr(0, open) : key);
}

std::string unquoted(const std::string& text) {
    std::string value = trimmed(text);
    if (value.size() < 2 || value.front() != value.back()) return value;
    const bool is_quoted = value.front() == '"' || value.front() == '\'';
    return is_quoted ? value.substr(1, value.size() - 2) : value;
}

bool flag_of(const std::string& value, bool otherwise) {
    const std::string word = key_of(value);
    if (word == "true" || word == "yes" || word == "on" || word == "1") return true;
    if (word == "false" || word == "no" || word == "off" || word == "0") return false;
    return otherwise;
}

std::string without_comment(const std::string& line) {
    bool in_single = false;
    bool in_double = false;
    std::string copy;
    for (const char c : line) {
        if (c == '\'' && !in_double) in_single = !in_single;
        if (c == '"' && !in_single) in_double = !in_double;
        if (c == '#' && !in_single && !in_double) break;
        copy += c;
    }
    return copy;
}

void set_property(SectionSpec& spec, const std::string& key, const std::string& value) {
    if (key == "requires_end") spec.requires_end = flag_of(value, true);
    if (key == "allow_unknown_entries") spec.allow_unknown_entries = flag_of(value, true);
    if (key == "allow_raw_lines") spec.allow_raw_lines = flag_of(value, true);
    if (key == "alias_of") spec.alias_of = key_of(value);
    if (key != "parse_mode") return;
    spec.parse_mode = SectionParseMode::Keywords;
    if (key_of(value) == "structured") spec.parse_mode = SectionParseMode::Structured;
    if (key_of(value) == "raw") spec.parse_mode = SectionParseMode::Raw;
}

void set_property(EntrySpec& spec, const std::string& key, const std::string& value) {
    if (key == "value_type") spec.value_type = key_of(value);
    if (key == "indexed") spec.indexed = flag_of(value, false);
    if (key == "repeated") spec.repeated = flag_of(value, false);
    if (key != "kind") return;
    spec.kind = EntryKind::Unspecified;
    if (key_of(value) == "value") spec.kind = EntryKind::Value;
    if (key_of(value) == "flag") spec.kind = EntryKind::Flag;
}

class PlainLoader {
public:
    explicit PlainLoader(Table table) : table_(std::move(table)) {}

    void read(const std::string& line) {
        const std::string work = without_comment(line);
        const std::string text = trimmed(work);
        if (text.empty()) return;
        std::size_t depth = 0;
        while (work[depth] == ' ') ++depth;
        if (depth == 0) {
            in_sections_ = text == "sections:";
            section_ = entry_ = "";
            in_entries_ = false;
        }
        if (depth == 0 || !in_sections_) return;
        if (depth == 2) begin_section(text);
        if (depth == 2 || section_.empty()) return;
        if (depth == 4) read_section_property(text);
        if (depth == 6 && in_entries_) begin_entry(text);
        if (depth == 8 && in_entries_ && !entry_.empty()) read_entry_property(text);
    }

    Table take() { return std::move(table_); }

private:
    void begin_section(const std::string& text) {
        if (text.back() != ':') return;
        section_ = key_of(text.substr(0, text.size() - 1));
        entry_ = "";
        in_entries_ = false;
        SectionSpec& spec = table_[section_];
        spec.known = spec.requires_end = spec.allow_unknown_entries = spec.allow_raw_lines = true;
    }

    void read_section_property(const std::string& text) {
        entry_ = "";
        in_entries_ = text == "entries:";
        const std::size_t colon = text.find(':');
        if (in_entries_ || colon == std::string::npos) return;
        set_property(table_[section_], key_of(text.substr(0, colon)),
                     unquoted(text.substr(colon + 1)));
    }

    void begin_entry(const std::string& text) {
        if (text.back() != ':') return;
        entry_ = entry_key_of(text.substr(0, text.size() - 1));
        table_[section_].entries[entry_] = {};
    }

    void read_entry_property(const std::string& text) {
        const std::size_t colon = text.find(':');
        if (colon == std::string::npos) return;
        set_property(table_[section_].entries[entry_], key_of(text.substr(0, colon)),
                     unquoted(text.substr(colon + 1)));
    }

    Table table_;
    bool in_sections_ = false;
    std::string section_;
    bool in_entries_ = false;
    std::string entry_;
};

}  // namespace

Table load_plainly(const std::string& text, Table table) {
    PlainLoader loader(std::move(table));
    std::istringstream stream(text.starts_with("\xEF\xBB\xBF") ? text.substr(3) : text);
    for (std::string line; std::getline(stream, line, '\n');) loader.read(line);
    return loader.take();
}

}  // namespace nurl::test
