/// @file
/// System calls that fail or falter on demand.
///
/// The linker leads the calls of the code under test through wrappers that are transparent unless
/// one of the objects below is alive. For one thread and one object at a time.
#pragma once

#include <array>
#include <string_view>

namespace nurl::test {

/// The calls that can be made to fail.
enum class SystemCall {
    OpenAt,
    StatAt,
    AccessAt,
    Write,
    ChangeOwner,
    ChangeMode,
    Sync,
    Close,
    Rename
};

/// Every wrapped call, with a name for messages.
struct NamedSystemCall {
    SystemCall call;        ///< which
    std::string_view name;  ///< its name in C
};
inline constexpr std::array<NamedSystemCall, 9> all_system_calls{{
    {SystemCall::OpenAt, "openat"},
    {SystemCall::StatAt, "fstatat"},
    {SystemCall::AccessAt, "faccessat"},
    {SystemCall::Write, "write"},
    {SystemCall::ChangeOwner, "fchown"},
    {SystemCall::ChangeMode, "fchmod"},
    {SystemCall::Sync, "fsync"},
    {SystemCall::Close, "close"},
    {SystemCall::Rename, "renameat"},
}};

/// What the wrappers are to do, and what they have done.
struct FaultPlan {
    SystemCall call = SystemCall::OpenAt;  ///< the call that fails; a failing close closes anyway
    int occurrence = 0;                    ///< which one of them, counted from 1; 0 for none
    int error = 0;  ///< what `errno` says then; a write with 0 takes nothing and does not fail
    bool lasting = false;    ///< whether all later ones fail too
    bool faltering = false;  ///< writes take three bytes, or are interrupted every other time
    bool met = false;        ///< whether the failing call was made
    int writes = 0;          ///< how many writes were made while faltering
};

/// Hands a plan to the wrappers while it lives.
class SystemFault {
public:
    explicit SystemFault(const FaultPlan& plan) noexcept;
    SystemFault(const SystemFault&) = delete;
    SystemFault& operator=(const SystemFault&) = delete;
    SystemFault(SystemFault&&) = delete;
    SystemFault& operator=(SystemFault&&) = delete;
    ~SystemFault();

    /// Whether the code under test came as far as the call that fails.
    [[nodiscard]] bool was_met() const noexcept { return plan_.met; }

    /// How many times something was written or interrupted while writes falter.
    [[nodiscard]] int writes() const noexcept { return plan_.writes; }

private:
    FaultPlan plan_;
};

}  // namespace nurl::test
