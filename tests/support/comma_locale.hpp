/// @file
/// A locale that breaks code which depends on the locale.
#pragma once

#include <locale>
#include <string>

namespace nurl::test {

/// Makes a UTF-8 locale with a decimal comma and grouped digits the program's own for as long as
/// it lives.
class CommaLocale {
public:
    CommaLocale() : before_(std::locale::global(std::locale("C.UTF-8"))) {
        std::locale::global(std::locale(std::locale(), new Comma));
    }
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;
    CommaLocale(CommaLocale&&) = delete;
    CommaLocale& operator=(CommaLocale&&) = delete;
    ~CommaLocale() { std::locale::global(before_); }

private:
    struct Comma : std::numpunct<char> {
        [[nodiscard]] char do_decimal_point() const override { return ','; }
        [[nodiscard]] char do_thousands_sep() const override { return '.'; }
        [[nodiscard]] std::string do_grouping() const override { return "\3"; }
    };
    std::locale before_;
};

}  // namespace nurl::test
