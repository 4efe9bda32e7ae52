// Any group as each of the ten typed records: no keyword and no free text of it is lost, and what
// was read and written once stays as it is.
#include "nurl/input/gamess/typed.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "bytes.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "nurl/input/gamess/typed/fields.hpp"
#include "require.hpp"

namespace {

using nurl::fuzz::require;
using nurl::input::gamess::GamessInput;
using nurl::input::gamess::KeyValue;
using nurl::input::gamess::NamedSection;
namespace typed = nurl::input::gamess::typed;

/// A list of no elements, such as `,`, is not written.
bool is_empty_list(const std::string& value) {
    return value.find_first_not_of(", \t\n\v\f\r") == std::string::npos;
}

bool has_keyword(const NamedSection& section, const std::string& key) {
    return std::ranges::any_of(section.entries, [&key](const KeyValue& entry) {
        return typed::detail::base_key(entry.key) == key;
    });
}

/// The entries whose keyword the record has no member for.
template <class Record>
std::vector<KeyValue> unknown_to(std::vector<KeyValue> entries) {
    std::erase_if(entries, [](const KeyValue& entry) {
        return std::ranges::any_of(typed::detail::typed_fields<Record>, [&entry](const auto& row) {
            return typed::detail::base_key(row.keyword) == typed::detail::base_key(entry.key);
        });
    });
    return entries;
}

template <class Record>
void check_record(Record (*read)(const NamedSection&), const NamedSection& section) {
    const typed::detail::SectionContent content = typed::detail::collect_section_content(section);
    const Record record = read(section);
    require(record.raw_lines == content.raw_lines, "free text is kept");
    require(unknown_to<Record>(record.extra_entries) == unknown_to<Record>(content.entries),
            "unknown keywords are kept in their order");
    const NamedSection written = typed::to_named_section(record);
    for (const KeyValue& entry : content.entries)
        require(
            is_empty_list(entry.value) || has_keyword(written, typed::detail::base_key(entry.key)),
            "every keyword is kept");
    require(typed::to_named_section(read(written)) == written,
            "what was read and written once stays as it is");
}

void check_as_each_record(const NamedSection& section) {
    check_record(typed::as_tddft_section, section);
    check_record(typed::as_statpt_section, section);
    check_record(typed::as_force_section, section);
    check_record(typed::as_pcm_section, section);
    check_record(typed::as_fmo_section, section);
    check_record(typed::as_surf_section, section);
    check_record(typed::as_ccinp_section, section);
    check_record(typed::as_eominp_section, section);
    check_record(typed::as_md_section, section);
    check_record(typed::as_dftb_section, section);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    GamessInput deck = nurl::input::gamess::parse_string(nurl::fuzz::text_of(data, size)).input;
    // One group of the deck, so that more decks are read in the same time.
    if (!deck.sections.empty()) check_as_each_record(deck.sections[size % deck.sections.size()]);
    if (const auto search = typed::get_statpt_section(deck)) {
        typed::set_statpt_section(deck, *search);
        require(typed::get_statpt_section(deck) ==
                    typed::as_statpt_section(typed::to_named_section(*search)),
                "a record that was set is there");
    }
    return 0;
}
