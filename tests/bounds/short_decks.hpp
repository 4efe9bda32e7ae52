/// @file
/// Decks whose pieces are as short as they can be, so that what stands for a piece in memory is as
/// large as it can be beside it.
#pragma once

#include <span>

#include "growth/shape.hpp"

namespace nurl::test {

/// Decks for all operations on documents.
[[nodiscard]] std::span<const bench::growth::Shape> short_documents() noexcept;

/// Decks for all operations on texts.
[[nodiscard]] std::span<const bench::growth::Shape> short_texts() noexcept;

}  // namespace nurl::test
