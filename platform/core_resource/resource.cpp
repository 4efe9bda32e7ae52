#include "nurl/core/resource.hpp"

#include <cstdlib>
#include <dlfcn.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "trust.hpp"

namespace nurl::core::resource {

namespace {

using std::filesystem::path;

/// Lies in the library, or program, that this file is linked into: the loader knows whose it is.
constexpr char anchor = '\0';

path program_directory() {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
}

/// Symbolic links are resolved first, as `..` behind one is not the parent of the written name.
path library_directory() {
    Dl_info info{};
    if (::dladdr(&anchor, &info) == 0) return {};
    std::error_code error;
    return std::filesystem::canonical(info.dli_fname, error).parent_path();
}

void add_with_parents(path directory, int parent_levels, std::vector<path>& roots) {
    if (directory.empty()) return;
    roots.push_back(directory);
    for (int level = 0; level < parent_levels; ++level) {
        path parent = directory.parent_path();
        if (parent == directory) return;
        roots.push_back(parent);
        directory = std::move(parent);
    }
}

std::vector<path> search_roots(const std::vector<std::string>& extra_roots, int parent_levels) {
    std::vector<path> roots;
    for (const std::string& root : extra_roots) add_with_parents(root, 0, roots);
    std::error_code error;
    add_with_parents(std::filesystem::current_path(error), parent_levels, roots);
    add_with_parents(program_directory(), parent_levels, roots);
    add_with_parents(library_directory(), parent_levels, roots);
    return roots;
}

}  // namespace

std::string getenv_string(const char* name) {
    if (name == nullptr) return {};
    // NOLINTNEXTLINE(concurrency-mt-unsafe): the header asks that no thread changes the environment
    const char* const value = std::getenv(name);
    if (value == nullptr) return {};
    return value;
}

bool is_regular_file_path(const std::string& path) {
    if (path.find('\0') != std::string::npos) return false;
    std::error_code error;
    return std::filesystem::is_regular_file(path, error);
}

std::string search_file(const char* env_var_name,
                        const std::vector<std::string>& relative_candidates,
                        const std::string& explicit_path,
                        const std::vector<std::string>& extra_roots, int parent_levels) {
    if (is_regular_file_path(explicit_path)) return explicit_path;
    std::string named = getenv_string(env_var_name);
    if (is_regular_file_path(named)) return named;
    const bool is_root = ::geteuid() == 0;
    for (const path& root : search_roots(extra_roots, parent_levels)) {
        for (const std::string& candidate : relative_candidates) {
            const path file = root / candidate;
            if (!is_regular_file_path(file.string())) continue;
            if (is_root && !only_root_could_write(file)) continue;
            return file.string();
        }
    }
    return {};
}

}  // namespace nurl::core::resource
