#include "environment.hpp"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <system_error>

namespace gms_inp {

bool is_set_in_environment(const char* name) noexcept {
    // NOLINTNEXTLINE(concurrency-mt-unsafe): the program has one thread
    const char* const value = std::getenv(name);
    return value != nullptr && *value != '\0';
}

void use_schema_file(const std::string& path) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        throw std::runtime_error("schema file is not a regular file: " + path);
    }
    if (!std::ifstream{path}) throw std::runtime_error("cannot read schema file: " + path);
    // NOLINTNEXTLINE(concurrency-mt-unsafe): the program has one thread
    if (::setenv("NURL_GMS_INP_SCHEMA_YAML", path.c_str(), 1) != 0) {
        throw std::runtime_error("cannot set the schema file: " + path);
    }
}

}  // namespace gms_inp
