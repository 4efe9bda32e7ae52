#include "validation/random_document.hpp"

#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace nurl::test {

namespace {

using input::gamess::GamessInput;
using input::gamess::KeyValue;
using input::gamess::NamedSection;

rc::Gen<std::string> often(const rc::Gen<std::string>& text) {
    return rc::gen::weightedOneOf<std::string>({{6, text}, {1, rc::gen::arbitrary<std::string>()}});
}

rc::Gen<KeyValue> any_entry() {
    const auto key = often(rc::gen::element<std::string>("SCFTYP", "solvnt", " XE(1) ", "KNOWN",
                                                         "MINE", "FOO", "bar(2)", "$x", ""));
    return rc::gen::construct<KeyValue>(key, rc::gen::arbitrary<std::string>());
}

rc::Gen<std::string> any_raw_line() {
    return often(rc::gen::element<std::string>("junk", "! note", "# FOO=1", "", "  ", "FOO=1 BAR=2",
                                               "words SCFTYP=RHF", "XE(1)=2 $END X=1", "A(=1"));
}

/// A short list, since a document holds lists of groups that hold lists.
template <class Element>
rc::Gen<std::vector<Element>> list_of(const rc::Gen<Element>& element) {
    return rc::gen::resize(8, rc::gen::container<std::vector<Element>>(element));
}

rc::Gen<std::vector<KeyValue>> any_entries() { return list_of(any_entry()); }

template <class Record>
void fill_maybe(std::optional<Record>& record) {
    if (*rc::gen::arbitrary<bool>()) record.emplace().extra = *any_entries();
}

}  // namespace

rc::Gen<NamedSection> any_section() {
    const auto name = often(rc::gen::element<std::string>("CONTRL", " $cntrl ", "PCM", "$Strict",
                                                          "GRID", "POINTS", "$$ODD", "$ODD", "DATA",
                                                          "SCF", "NOSUCH", "", "$"));
    return rc::gen::construct<NamedSection>(name, any_entries(), list_of(any_raw_line()));
}

rc::Gen<GamessInput> any_document() {
    return rc::gen::exec([] {
        GamessInput input;
        input.has_control = *rc::gen::arbitrary<bool>();
        input.control.extra = *any_entries();
        fill_maybe(input.system);
        fill_maybe(input.basis);
        fill_maybe(input.scf);
        fill_maybe(input.guess);
        input.sections = *list_of(any_section());
        input.extra_sections = *list_of(any_section());
        return input;
    });
}

}  // namespace nurl::test

namespace nurl::input::gamess {

void showValue(const KeyValue& entry, std::ostream& stream) {
    rc::show(entry.key, stream);
    stream << '=';
    rc::show(entry.value, stream);
}

void showValue(const NamedSection& section, std::ostream& stream) {
    stream << '$';
    rc::show(section.name, stream);
    rc::show(section.entries, stream);
    rc::show(section.raw_lines, stream);
}

void showValue(const GamessInput& input, std::ostream& stream) {
    stream << (input.has_control ? "with" : "without") << " CONTRL ";
    rc::show(input.control.extra, stream);
    const auto show_extra = [&stream](const auto& record) {
        if (record) rc::show(record->extra, stream << ' ');
    };
    show_extra(input.system);
    show_extra(input.basis);
    show_extra(input.scf);
    show_extra(input.guess);
    rc::show(input.sections, stream << "\nread ");
    rc::show(input.extra_sections, stream << "\nadded ");
}

}  // namespace nurl::input::gamess
