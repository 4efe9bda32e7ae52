/// @file
/// The real decks that the tests are given.
#pragma once

#include <string>
#include <vector>

namespace nurl::test {

/// One deck of the corpus.
struct Deck {
    std::string name;  ///< path relative to the corpus
    std::string path;  ///< path of the file
    std::string text;  ///< its content
};

/// Whether the environment variable `NURL_TEST_CORPUS` names a corpus.
bool has_corpus();

/// The decks that `INDEX.tsv` of the corpus lists. Throws when one of them cannot be read.
std::vector<Deck> corpus();

}  // namespace nurl::test
