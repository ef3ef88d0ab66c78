// Calls the next definition of an interposed function, with device paths translated.
#pragma once

#include "desktop/deviceroot/device_path.hpp"

#include <dlfcn.h>

#include <atomic>
#include <cerrno>
#include <type_traits>

namespace desktop {

/// The definition of a C function that this library hides; it is looked up once.
template <typename Function>
class Next {
public:
    explicit constexpr Next(const char* name) : name_(name) {}

    /// Null when the C library has no such function.
    Function* get() {
        void* found = found_.load(std::memory_order_relaxed);
        if (found == nullptr) {
            found = dlsym(RTLD_NEXT, name_);
            found_.store(found, std::memory_order_relaxed);
        }
        return reinterpret_cast<Function*>(found);
    }

private:
    const char* name_;
    std::atomic<void*> found_ = nullptr;
};

/// How C functions report failure.
template <typename Result>
Result failure(int error) {
    errno = error;
    if constexpr (std::is_pointer_v<Result>) {
        return nullptr;
    } else {
        return -1;
    }
}

inline bool isTooLong(const DevicePath& path) { return path.isTooLong(); }
template <typename Argument>
bool isTooLong(const Argument&) {
    return false;
}

inline const char* passed(const DevicePath& path) { return path.get(); }
template <typename Argument>
Argument passed(const Argument& argument) {
    return argument;
}

/// Passes the call on; paths that are too long fail as the system would let them.
template <typename Function, typename... Arguments>
auto redirect(Next<Function>& next, const Arguments&... arguments) {
    Function* const function = next.get();
    using Result = decltype(function(passed(arguments)...));
    if ((isTooLong(arguments) || ...)) {
        return failure<Result>(ENAMETOOLONG);
    }
    return function == nullptr ? failure<Result>(ENOSYS) : function(passed(arguments)...);
}

} // namespace desktop

/// The next definition of a function that the C library surely has.
#define DEVICEROOT_NEXT(function)                                                                  \
    ([]() {                                                                                        \
        static constinit desktop::Next<decltype(::function)> next(#function);                      \
        return next.get();                                                                         \
    }())

/// The body of an interposed function: all arguments are passed on, as `DevicePath` where they are
/// paths.
#define DEVICEROOT_REDIRECT(function, ...)                                                         \
    static constinit desktop::Next<decltype(::function)> next(#function);                          \
    return desktop::redirect(next, __VA_ARGS__)
