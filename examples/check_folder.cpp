// Checks every deck of a folder and prints what the schema does not know.
#include <algorithm>
#include <filesystem>
#include <iostream>
#include <nurl/input/gamess.hpp>
#include <vector>

int main(int argc, char** argv) {
    using namespace nurl::input::gamess;
    if (argc != 2 || !std::filesystem::is_directory(argv[1])) {
        std::cerr << "usage: check_folder FOLDER\n";
        return 2;
    }
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(argv[1]))
        if (entry.path().extension() == ".inp") paths.push_back(entry.path());
    std::ranges::sort(paths);

    bool is_clean = true;
    for (const auto& path : paths) {
        const ParseResult deck = parse_file(path.string());
        std::vector<std::string> sentences = deck.warnings;
        if (!deck.ok) sentences.push_back(deck.error);
        for (const validation::Issue& issue : validation::validate(deck.input, {}))
            if (issue.severity != validation::Severity::Info) sentences.push_back(issue.message);
        for (const std::string& sentence : sentences)
            std::cout << path.filename().string() << ": " << sentence << '\n';
        is_clean = is_clean && sentences.empty();
    }
    std::cout << paths.size() << " decks, " << (is_clean ? "nothing to report" : "see above")
              << '\n';
    return is_clean ? 0 : 1;
}
