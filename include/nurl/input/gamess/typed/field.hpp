/// @file
/// Rows of the tables of typed records. One table drives reading and writing of a record.
///
/// A row names a keyword as it is written and the member that holds its value. The type of the
/// member is its kind: integer, real, logical, token (upper case), or a list of integers, reals or
/// tokens, which is written under the keyword's first index. The kinds that differ from these are
/// spelled out.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

namespace nurl::input::gamess::typed::detail {

/// A list of integers of which the last entry counts, not all of them together. A single value is
/// written under the keyword without its index.
template <class Record>
struct ReplacedOnReading {
    std::vector<std::int32_t> Record::*member;  ///< the list
};
/// Finds the record from the member.
template <class Record>
ReplacedOnReading(std::vector<std::int32_t> Record::*) -> ReplacedOnReading<Record>;

/// A list of reals whose keyword has no index.
template <class Record>
struct WithoutIndex {
    std::vector<double> Record::*member;  ///< the list
};
/// Finds the record from the member.
template <class Record>
WithoutIndex(std::vector<double> Record::*) -> WithoutIndex<Record>;

/// A text whose letter case counts.
template <class Record>
struct CaseKept {
    std::optional<std::string> Record::*member;  ///< the text
};
/// Finds the record from the member.
template <class Record>
CaseKept(std::optional<std::string> Record::*) -> CaseKept<Record>;

/// One keyword of a record.
template <class Record>
struct TypedField {
    /// A member, or a kind of its own around one.
    using Member =
        std::variant<std::optional<std::int32_t> Record::*, std::optional<double> Record::*,
                     std::optional<bool> Record::*, std::optional<std::string> Record::*,
                     CaseKept<Record>, std::vector<std::int32_t> Record::*,
                     std::vector<double> Record::*, std::vector<std::string> Record::*,
                     ReplacedOnReading<Record>, WithoutIndex<Record>>;

    std::string_view keyword;  ///< as written, with the index of a list: `NSTATE(1)`
    Member member;             ///< where its value lives

    /// The keyword without its index.
    [[nodiscard]] constexpr std::string_view base() const noexcept {
        return keyword.substr(0, keyword.find('('));
    }
};

/// The table of a record, in the order of writing.
template <class Record>
inline constexpr std::array<TypedField<Record>, 0> typed_fields{};

/// The name of a record's group.
template <class Record>
inline constexpr std::string_view group_of{};

/// Whether a kind is written with an index.
template <class Record, class Member>
inline constexpr bool has_index = std::is_same_v<Member, std::vector<std::int32_t> Record::*> ||
                                  std::is_same_v<Member, std::vector<double> Record::*> ||
                                  std::is_same_v<Member, std::vector<std::string> Record::*> ||
                                  std::is_same_v<Member, ReplacedOnReading<Record>>;

/// Whether every keyword of a table is spelled as its kind is written: `KEY(1)` or `KEY`.
template <class Record, std::size_t Size>
constexpr bool are_written_as_their_kind(const std::array<TypedField<Record>, Size>& fields) {
    return std::ranges::all_of(fields, [](const TypedField<Record>& field) {
        const bool is_indexed = std::visit(
            []<class Member>(const Member& /*member*/) { return has_index<Record, Member>; },
            field.member);
        return field.keyword.ends_with("(1)") == is_indexed;
    });
}

}  // namespace nurl::input::gamess::typed::detail
