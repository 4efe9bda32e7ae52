#include "bounds/painted_stack.hpp"

#include <array>
#include <cstddef>
#include <cstring>
#include <exception>
#include <pthread.h>
#include <stdexcept>
#include <sys/mman.h>
#include <unistd.h>

namespace nurl::test {

namespace {

constexpr std::size_t stack_size = 256 * std::size_t{1024};
constexpr std::byte colour{0xA5};

/// Memory for a stack, painted, with a page below it that nobody can write to.
class Stack {
public:
    Stack()
        : guard_size_(static_cast<std::size_t>(::sysconf(_SC_PAGESIZE))),
          memory_(::mmap(nullptr, guard_size_ + stack_size, PROT_READ | PROT_WRITE,
                         MAP_PRIVATE | MAP_ANONYMOUS, -1, 0)) {
        if (memory_ == MAP_FAILED) throw std::runtime_error("there is no memory for a stack");
        ::mprotect(memory_, guard_size_, PROT_NONE);
        std::memset(begin(), std::to_integer<int>(colour), stack_size);
    }
    Stack(const Stack&) = delete;
    Stack& operator=(const Stack&) = delete;
    Stack(Stack&&) = delete;
    Stack& operator=(Stack&&) = delete;
    ~Stack() { ::munmap(memory_, guard_size_ + stack_size); }

    [[nodiscard]] std::byte* begin() const noexcept {
        return static_cast<std::byte*>(memory_) + guard_size_;
    }

    /// By blocks, which is fast enough in a build without optimisation.
    [[nodiscard]] std::size_t used() const noexcept {
        constexpr std::size_t block = 64;
        std::array<std::byte, block> untouched{};
        untouched.fill(colour);
        std::size_t left = 0;
        while (left < stack_size && std::memcmp(begin() + left, untouched.data(), block) == 0)
            left += block;
        return stack_size - left;
    }

private:
    std::size_t guard_size_;
    void* memory_;
};

struct Work {
    const std::function<void()>& action;
    std::exception_ptr error;
};

void* run(void* argument) {
    Work& work = *static_cast<Work*>(argument);
    try {
        work.action();
    } catch (...) {
        work.error = std::current_exception();
    }
    return nullptr;
}

}  // namespace

std::size_t stack_used_by(const std::function<void()>& action) {
    const Stack stack;
    Work work{action, nullptr};
    pthread_attr_t attributes;
    pthread_t thread{};
    pthread_attr_init(&attributes);
    pthread_attr_setstack(&attributes, stack.begin(), stack_size);
    const int error = pthread_create(&thread, &attributes, run, &work);
    pthread_attr_destroy(&attributes);
    if (error != 0) throw std::runtime_error("no thread could be made");
    pthread_join(thread, nullptr);
    if (work.error) std::rethrow_exception(work.error);
    return stack.used();
}

}  // namespace nurl::test
