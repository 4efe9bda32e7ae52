#include "file_arguments.hpp"

#include <filesystem>
#include <iterator>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <system_error>
#include <utility>

#include <CLI/CLI.hpp>

namespace gms_inp {

namespace {

/// Shows the words of a command line by what they mean.
class WordsFormatter : public CLI::Formatter {
public:
    explicit WordsFormatter(std::vector<ArgumentHelp> help) : help_{std::move(help)} {}

    std::string make_usage(const CLI::App* /*app*/, std::string name) const override {
        std::string usage = "Usage: " + name + " [OPTIONS]";
        for (const ArgumentHelp& row : help_) usage += ' ' + row.name;
        return usage + '\n';
    }

    std::string make_positionals(const CLI::App* /*app*/) const override {
        std::ostringstream out;
        out << "\nPositionals:\n";
        for (const ArgumentHelp& row : help_)
            CLI::detail::format_help(out, row.name, row.description, get_column_width());
        return out.str();
    }

private:
    std::vector<ArgumentHelp> help_;
};

bool is_deck(const std::string& word) {
    std::error_code error;
    return word == "-" ||
           (std::filesystem::exists(word, error) && !std::filesystem::is_directory(word, error));
}

void require_two(const std::vector<std::string>& words) {
    if (words.size() < 2)
        throw std::runtime_error("expected a deck and what is asked of it, not '" + words.front() +
                                 "' alone");
}

SplitArguments split_at(std::vector<std::string> words, std::size_t count) {
    const auto middle = words.begin() + static_cast<std::ptrdiff_t>(count);
    SplitArguments split;
    split.rest.assign(std::make_move_iterator(middle), std::make_move_iterator(words.end()));
    words.erase(middle, words.end());
    split.files = std::move(words);
    return split;
}

}  // namespace

void add_words(CLI::App& app, std::vector<std::string>& words,
               const std::vector<ArgumentHelp>& help) {
    const std::string& first = help.front().name;
    app.add_option(first.substr(0, first.find('.')), words)
        ->required()
        ->expected(1, CLI::detail::expected_max_vector_size);
    app.formatter(std::make_shared<WordsFormatter>(help));
}

SplitArguments split_off_last(std::vector<std::string> words) {
    require_two(words);
    const std::size_t count = words.size() - 1;
    return split_at(std::move(words), count);
}

SplitArguments split_paths(std::vector<std::string> words) {
    require_two(words);
    std::size_t count = 1;
    while (count + 1 < words.size() && !words[count].starts_with('$') && is_deck(words[count]))
        ++count;
    return split_at(std::move(words), count);
}

SplitArguments split_assignments(const std::vector<std::string>& words) {
    SplitArguments split;
    for (const std::string& word : words) {
        const bool assigns = word.find('=') != std::string::npos;
        const bool first = &word == &words.front();
        if (is_deck(word) || (first && !assigns)) {
            split.files.push_back(word);
        } else if (assigns) {
            split.rest.push_back(word);
        } else {
            throw std::runtime_error("expected GROUP.KEY=VALUE or an existing file, not '" + word +
                                     "'");
        }
    }
    if (split.files.empty()) throw std::runtime_error("no deck is named");
    if (split.rest.empty()) throw std::runtime_error("no GROUP.KEY=VALUE is given");
    return split;
}

}  // namespace gms_inp
