/// @file
/// Values for each kind of member.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "nurl/input/gamess/typed/field.hpp"

namespace nurl::input::gamess::test {

/// How the values of one kind are written.
struct Sample {
    std::string_view kind;     ///< name of the kind
    std::string_view given;    ///< a value as a chemist may write it
    std::string_view written;  ///< the same value as the library writes it
    std::string_view broken;   ///< a value that does not convert; empty when every value does
};

/// The sample of a row of a record's table.
template <class Record>
Sample sample_of(const typed::detail::TypedField<Record>& field) {
    using namespace typed::detail;
    struct Kind {
        Sample operator()(std::optional<std::int32_t> Record::*) const {
            return {"integer", "+12", "12", "1.5"};
        }
        Sample operator()(std::optional<double> Record::*) const {
            return {"real", "2.50D-07", "2.5E-07", "small"};
        }
        Sample operator()(std::optional<bool> Record::*) const {
            return {"logical", "yes", ".T.", ".TRUE."};
        }
        Sample operator()(std::optional<std::string> Record::*) const {
            return {"token", "rfo", "RFO", ""};
        }
        Sample operator()(CaseKept<Record>) const { return {"text", "(3F8.3,a)", "(3F8.3,a)", ""}; }
        Sample operator()(std::vector<std::int32_t> Record::*) const {
            return {"integers", "1, -2 ,+3", "1,-2,3", "1 2"};
        }
        Sample operator()(std::vector<double> Record::*) const {
            return {"reals", "1.0,0.25 , 1e-7", "1,0.25,1E-07", "1.0,x"};
        }
        Sample operator()(std::vector<std::string> Record::*) const {
            return {"tokens", "s, p ,,d", "S,P,D", ""};
        }
        Sample operator()(ReplacedOnReading<Record>) const {
            return {"replaced integers", "1,2", "1,2", "3*0"};
        }
        Sample operator()(WithoutIndex<Record>) const {
            return {"reals without index", "0.01", "0.01", "thin"};
        }
    };
    return std::visit(Kind{}, field.member);
}

}  // namespace nurl::input::gamess::test
