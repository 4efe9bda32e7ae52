/// @file
/// How a failed check shows values of the document model, and lists and optionals of any values.
#pragma once

#include <cstddef>
#include <optional>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

#include "nurl/input/gamess/model.hpp"
#include "nurl/input/gamess/reader.hpp"

namespace nurl::test {

/// `text` in quotes, with bytes that are not printable ASCII as `\xNN`.
inline std::string quoted(std::string_view text) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string shown = "\"";
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= 0x20 && byte < 0x7F) {
            shown += c;
        } else {
            shown += std::string{'\\', 'x', digits[byte >> 4U], digits[byte & 0xFU]};
        }
    }
    return shown + '"';
}

}  // namespace nurl::test

namespace nurl::input::gamess {

inline std::ostream& operator<<(std::ostream& out, const KeyValue& entry) {
    return out << test::quoted(entry.key) << " = " << test::quoted(entry.value);
}

inline std::ostream& operator<<(std::ostream& out, const AtomRecord& atom) {
    out << test::quoted(atom.symbol);
    if (atom.nuclear_charge) out << " charge " << *atom.nuclear_charge;
    return out << " at " << atom.x << ' ' << atom.y << ' ' << atom.z;
}

inline std::ostream& operator<<(std::ostream& out, const NamedSection& section) {
    out << '$' << test::quoted(section.name) << " with";
    for (const KeyValue& entry : section.entries) out << ' ' << entry;
    for (const std::string& line : section.raw_lines) out << " raw " << test::quoted(line);
    return out;
}

namespace detail {

inline std::ostream& operator<<(std::ostream& out, const ScannedKeyValue& pair) {
    return out << test::quoted(pair.key) << " = " << test::quoted(pair.value) << " in "
               << pair.begin << " to " << pair.end;
}

}  // namespace detail

}  // namespace nurl::input::gamess

namespace doctest {

template <>
struct StringMaker<std::string> {
    static String convert(const std::string& text) { return nurl::test::quoted(text).c_str(); }
};

template <>
struct StringMaker<std::string_view> {
    static String convert(std::string_view text) { return nurl::test::quoted(text).c_str(); }
};

template <class T>
struct StringMaker<std::optional<T>> {
    static String convert(const std::optional<T>& value) {
        return value ? toString(*value) : String("nothing");
    }
};

template <class T>
struct StringMaker<std::vector<T>> {
    static String convert(const std::vector<T>& values) {
        String shown = "{";
        for (std::size_t i = 0; i < values.size(); ++i) {
            if (i != 0) shown += ", ";
            shown += toString(values[i]);
        }
        return shown + "}";
    }
};

}  // namespace doctest
