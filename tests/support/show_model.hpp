/// @file
/// How failed comparisons show the document model.
#pragma once

#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "nurl/input/gamess/model.hpp"

namespace nurl::test {

/// `text` in quotes, with line ends and tabs that can be seen.
[[nodiscard]] inline std::string shown(const std::string& text) {
    std::string result = "\"";
    for (const char c : text) {
        if (c == '\n')
            result += "\\n";
        else if (c == '\t')
            result += "\\t";
        else
            result += c;
    }
    return result + '"';
}

/// An entry as `"KEY"="value"`.
[[nodiscard]] inline std::string shown(const nurl::input::gamess::KeyValue& entry) {
    return shown(entry.key) + '=' + shown(entry.value);
}

/// Group, keyword and message of a finding.
[[nodiscard]] inline std::string shown(const nurl::input::gamess::validation::Issue& issue) {
    return shown(issue.section) + ' ' + shown(issue.key) + ' ' + shown(issue.message);
}

/// A group with its entries and its raw lines.
[[nodiscard]] inline std::string shown(const nurl::input::gamess::NamedSection& section);

/// The elements of a list in braces.
template <class Element>
[[nodiscard]] std::string shown(const std::vector<Element>& list) {
    std::string text = "{";
    for (const Element& element : list) text += shown(element) + ' ';
    return text + '}';
}

inline std::string shown(const nurl::input::gamess::NamedSection& section) {
    return '$' + section.name + shown(section.entries) + shown(section.raw_lines);
}

}  // namespace nurl::test

namespace doctest {

template <>
struct StringMaker<nurl::input::gamess::KeyValue> {
    static String convert(const nurl::input::gamess::KeyValue& entry) {
        return nurl::test::shown(entry).c_str();
    }
};

template <>
struct StringMaker<nurl::input::gamess::NamedSection> {
    static String convert(const nurl::input::gamess::NamedSection& section) {
        return nurl::test::shown(section).c_str();
    }
};

template <class Element>
struct StringMaker<std::vector<Element>> {
    static String convert(const std::vector<Element>& list) {
        return nurl::test::shown(list).c_str();
    }
};

/// The text of a deck and its groups; members that neither shows may still differ.
template <>
struct StringMaker<nurl::input::gamess::GamessInput> {
    static String convert(const nurl::input::gamess::GamessInput& deck) {
        return (deck.to_string() + "sections " + nurl::test::shown(deck.sections) +
                " extra_sections " + nurl::test::shown(deck.extra_sections))
            .c_str();
    }
};

}  // namespace doctest
