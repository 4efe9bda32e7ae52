/// @file
/// Questions to the schema of another process.
///
/// A process loads its schema once, so a test that needs another schema asks a program of its own:
/// a copy of probe.cpp in a temporary folder, above which no schema file lies.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "support/temporary_directory.hpp"

namespace nurl::test {

/// Where the resource search expects a schema file below a root, first choice first.
inline constexpr std::string_view resources_file = "resources/schemas/input/gamess.yaml";
inline constexpr std::string_view share_file = "share/nurllib/schemas/input/gamess.yaml";

/// The probe program and the surroundings it is run in.
class SchemaProbe {
public:
    /// @param program_folder  where in `home` the program lies
    explicit SchemaProbe(const std::filesystem::path& program_folder = ".");

    /// The directory that holds the program.
    [[nodiscard]] const std::filesystem::path& home() const { return home_.path(); }

    /// The directory that the program runs in, or that lies above it. It holds no program.
    [[nodiscard]] const std::filesystem::path& place() const { return place_.path(); }

    /// Makes a file below `place`. @return its absolute path
    std::string make_file(const std::filesystem::path& name, std::string_view text) const;

    /// Runs the program in a directory below `place`, which is made.
    void run_in(const std::filesystem::path& directory);

    /// Sets the variable that names the schema file; it is not set at first.
    void set_variable(const std::string& value) { variable_ = value; }

    /// Sets the variable to a file of its own with the text.
    void use_schema(std::string_view text);

    /// Runs the program. @return the lines it answered; throws when it failed
    [[nodiscard]] std::vector<std::string> ask(const std::vector<std::string>& questions) const;

    /// Runs the program for one question with an answer of one line.
    [[nodiscard]] std::string answer(const std::string& question) const;

private:
    [[nodiscard]] std::vector<std::string> environment() const;

    TemporaryDirectory home_;
    TemporaryDirectory place_;
    std::filesystem::path program_;
    std::filesystem::path directory_;
    std::optional<std::string> variable_;
};

}  // namespace nurl::test
