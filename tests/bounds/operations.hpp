/// @file
/// What can be done with the text of any deck.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace nurl::test {

/// An operation of the library on a deck. What it is measured for is marked with
/// `nurl::bench::growth::measured`; that it refuses a deck is no fault.
struct Operation {
    std::string_view name;
    void (*run)(const std::string& text) = nullptr;
};

/// What is done with documents.
[[nodiscard]] std::span<const Operation> document_operations() noexcept;

/// What is done with texts.
[[nodiscard]] std::span<const Operation> text_operations() noexcept;

/// What is done with texts and gives a large object for each of their pieces.
[[nodiscard]] std::span<const Operation> listing_operations() noexcept;

}  // namespace nurl::test
