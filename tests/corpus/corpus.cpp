#include "corpus/corpus.hpp"

#include <cstdlib>
#include <stdexcept>

#include "nurl/core/text.hpp"
#include "support/temporary_directory.hpp"

namespace nurl::test {

namespace {

std::string corpus_folder() {
    const char* const folder = std::getenv("NURL_TEST_CORPUS");
    return folder == nullptr ? "" : folder;
}

}  // namespace

bool has_corpus() { return !corpus_folder().empty(); }

std::vector<Deck> corpus() {
    const std::string folder = corpus_folder() + "/";
    std::vector<Deck> decks;
    std::vector<std::string> rows = core::text::split_lines(content(folder + "INDEX.tsv"));
    if (rows.size() < 2) throw std::runtime_error("the corpus lists no deck");
    rows.erase(rows.begin());  // the names of the columns
    for (const std::string& row : rows) {
        const std::string name = row.substr(0, row.find('\t'));
        decks.push_back({name, folder + name, content(folder + name)});
    }
    return decks;
}

}  // namespace nurl::test
