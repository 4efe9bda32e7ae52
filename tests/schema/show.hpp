/// @file
/// How failed comparisons show lists and words of the schema.
#pragma once

#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "nurl/input/gamess/schema.hpp"

namespace doctest {

template <>
struct StringMaker<std::vector<std::string>> {
    static String convert(const std::vector<std::string>& list) {
        std::string text = "{";
        for (const std::string& element : list) text += '"' + element + "\" ";
        return (text + '}').c_str();
    }
};

template <>
struct StringMaker<nurl::input::gamess::schema::SectionParseMode> {
    static String convert(nurl::input::gamess::schema::SectionParseMode mode) {
        using nurl::input::gamess::schema::SectionParseMode;
        if (mode == SectionParseMode::Structured) return "Structured";
        return mode == SectionParseMode::Raw ? "Raw" : "Keywords";
    }
};

template <>
struct StringMaker<nurl::input::gamess::schema::EntryKind> {
    static String convert(nurl::input::gamess::schema::EntryKind kind) {
        using nurl::input::gamess::schema::EntryKind;
        if (kind == EntryKind::Value) return "Value";
        return kind == EntryKind::Flag ? "Flag" : "Unspecified";
    }
};

}  // namespace doctest
