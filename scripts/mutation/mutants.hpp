/// @file
/// The switch of the mutants. All of them are compiled in and at most one is alive, the one whose number
/// the environment variable MUTANT holds. With MUTANT=trace none is, and the numbers of those that were
/// passed are appended to the file MUTANT_TRACE names when the process ends.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace mutation {

inline constexpr int first_number = 1;
inline constexpr int tracing = -1;
inline constexpr int capacity = 1 << 20;

/// The number of the mutant that is alive; 0 for none.
inline int alive() {
    static const int number = [] {
        const char* text = std::getenv("MUTANT");
        if (text == nullptr) return 0;
        return std::strcmp(text, "trace") == 0 ? tracing : std::atoi(text);
    }();
    return number;
}

/// What was passed, written at the end of the process.
class Trace {
public:
    ~Trace() {
        const char* path = std::getenv("MUTANT_TRACE");
        std::FILE* out = path != nullptr ? std::fopen(path, "ab") : nullptr;
        if (out == nullptr) return;
        for (int number = first_number; number < capacity; ++number) {
            if (passed_[number]) std::fprintf(out, "%d\n", number);
        }
        std::fclose(out);
    }

    void pass(int number) { passed_[number] = true; }

private:
    // Not from operator new, which some tests replace by one that fails.
    struct Free {
        void operator()(bool* memory) const { std::free(memory); }
    };
    std::unique_ptr<bool[], Free> passed_{static_cast<bool*>(std::calloc(capacity, sizeof(bool)))};
};

inline void pass(int number) {
    static Trace trace;
    trace.pass(number);
}

/// True where this mutant is alive. What the compiler computes is never changed.
constexpr bool on(int number) {
    if (__builtin_is_constant_evaluated()) return false;
    if (alive() == tracing) pass(number);
    return alive() == number;
}

template <class A, class B>
constexpr auto less(int number, const A& a, const B& b) -> decltype(a < b) {
    if (on(number)) return a <= b;
    if (on(number + 1)) return a >= b;
    return a < b;
}

template <class A, class B>
constexpr auto less_equal(int number, const A& a, const B& b) -> decltype(a <= b) {
    if (on(number)) return a < b;
    if (on(number + 1)) return a > b;
    return a <= b;
}

template <class A, class B>
constexpr auto greater(int number, const A& a, const B& b) -> decltype(a > b) {
    if (on(number)) return a >= b;
    if (on(number + 1)) return a <= b;
    return a > b;
}

template <class A, class B>
constexpr auto greater_equal(int number, const A& a, const B& b) -> decltype(a >= b) {
    if (on(number)) return a > b;
    if (on(number + 1)) return a < b;
    return a >= b;
}

template <class A, class B>
constexpr auto equal(int number, const A& a, const B& b) -> decltype(a == b) {
    return on(number) ? !(a == b) : a == b;
}

template <class A, class B>
constexpr auto unequal(int number, const A& a, const B& b) -> decltype(a != b) {
    return on(number) ? !(a != b) : a != b;
}

template <class T>
constexpr T literal(int number, T value) {
    return on(number) ? static_cast<T>(value + 1) : value;
}

}  // namespace mutation
