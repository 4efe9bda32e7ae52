/// @file
/// Running the program as a user does.
#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "support/temporary_directory.hpp"

namespace nurl::test {

/// What a run of the program gave.
struct Outcome {
    int status = 0;   ///< exit status; 128 and the number of the signal that ended it
    std::string out;  ///< standard output
    std::string err;  ///< standard error

    bool operator==(const Outcome&) const = default;
};

/// How a failed comparison shows an outcome.
std::ostream& operator<<(std::ostream& stream, const Outcome& outcome);

/// How the program is run, other than by its arguments.
struct Surroundings {
    std::string input = {};                       ///< text on standard input
    std::optional<std::string> input_path = {};   ///< what standard input is opened on instead
    std::optional<std::string> output_path = {};  ///< what standard output is opened on
    std::vector<std::string> environment = {};    ///< further `NAME=value`
    bool output_closed = false;                   ///< there is no standard output
};

/// A directory to run the program in, so that files have short names in its messages. The schema
/// is schema.yaml of this folder.
class Workplace {
public:
    /// Makes a file in the directory. @return its name
    std::string make(const std::string& name, std::string_view text) const;

    /// The content of a file in the directory; throws when it cannot be read.
    [[nodiscard]] std::string content_of(const std::string& name) const;

    /// The directory.
    [[nodiscard]] const std::filesystem::path& path() const { return files_.path(); }

    /// Names of everything in the directory, sorted.
    [[nodiscard]] std::vector<std::string> names() const { return files_.names(); }

    /// Runs the program to its end, its output going to files.
    [[nodiscard]] Outcome run(const std::vector<std::string>& arguments,
                              const Surroundings& surroundings = {}) const;

    /// Runs the program with a terminal as standard output and standard error.
    ///
    /// @return the status and, as `out`, what reached the terminal, lines ended by CR LF
    [[nodiscard]] Outcome run_on_terminal(const std::vector<std::string>& arguments,
                                          const Surroundings& surroundings = {}) const;

private:
    TemporaryDirectory files_;
    TemporaryDirectory streams_;
};

/// A small deck in canonical layout.
inline constexpr std::string_view water =
    " $CONTRL SCFTYP=RHF RUNTYP=ENERGY $END\n"
    " $BASIS GBASIS=N31 NGAUSS=6 $END\n"
    " $STATPT OPTTOL=1.0E-5 $END\n"
    " $DATA\n"
    "Water\n"
    "C1\n"
    " O    8.0      0.0000000000      0.0000000000      0.1173000000\n"
    " H    1.0      0.0000000000      0.7572000000     -0.4692000000\n"
    " H    1.0      0.0000000000     -0.7572000000     -0.4692000000\n"
    " $END\n";

}  // namespace nurl::test
