// Runs the phone's parts of the C++ library on Linux: allocation, strings, one-time calls,
// failures.
#include "bindings/foundation/exception.hpp"
#include "bindings/objc/pool.hpp"

#include <array>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <new>
#include <optional>
#include <pthread.h>
#include <string>
#include <vector>

extern "C" id objc_last_exception_thrown();

namespace {

int failures = 0;

void expect(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "FAILED: %s\n", what);
        ++failures;
    }
}

/// Runs `body` on several threads at once.
template <class Body>
void onThreads(Body& body) {
    std::array<pthread_t, 8> threads{};
    for (pthread_t& thread : threads) {
        pthread_create(
            &thread, nullptr,
            [](void* argument) -> void* {
                (*static_cast<Body*>(argument))();
                return nullptr;
            },
            &body);
    }
    for (const pthread_t thread : threads) {
        pthread_join(thread, nullptr);
    }
}

/// What a failure inside `body` is reported as; empty when nothing failed.
template <class Body>
std::string failureOf(Body body) {
    try {
        body();
    } catch (...) {
        const auto thrown = objc::wrap<ns::Exception>(objc_last_exception_thrown());
        return thrown.name().utf8() + ": " + thrown.reason().utf8();
    }
    return {};
}

void locksExclude() {
    std::mutex mutex;
    long count = 0;
    constexpr long perThread = 20000;
    auto body = [&] {
        for (long time = 0; time < perThread; ++time) {
            const std::scoped_lock lock(mutex);
            ++count;
        }
    };
    onThreads(body);
    expect(count == 8 * perThread, "a lock lets two threads pass");
}

void oneTimeCallsRunOnce() {
    std::once_flag once;
    std::atomic<int> calls = 0;
    std::atomic<int> early = 0;
    auto body = [&] {
        std::call_once(once, [&] {
            sched_yield();
            ++calls;
        });
        early += calls == 1 ? 0 : 1;
    };
    onThreads(body);
    expect(calls == 1, "a one-time call runs more than once");
    expect(early == 0, "a thread returns before the one-time call is over");
}

void aFailedOneTimeCallIsRepeated() {
    std::once_flag once;
    int calls = 0;
    const auto attempt = [&] {
        std::call_once(once, [&] {
            ++calls;
            if (calls == 1) {
                (void)std::string().at(1);
            }
        });
    };
    expect(!failureOf(attempt).empty(), "a failure does not leave the one-time call");
    expect(failureOf(attempt).empty() && calls == 2, "a failed one-time call is not repeated");
    attempt();
    expect(calls == 2, "a one-time call that succeeded is repeated");
}

void failuresAreReported() {
    const std::string position = failureOf([] { (void)std::string("text").at(9); });
    expect(position.starts_with("std::exception: ") && position.find("string") != position.npos,
           "a wrong position is not told");
    const std::string length = failureOf([] { std::vector<int>().reserve(~std::size_t{0}); });
    expect(length.find("vector") != length.npos, "a wrong length is not told");
    volatile std::size_t huge = ~std::size_t{0} / 2;
    expect(failureOf([&] { ::operator delete(::operator new(huge)); }) ==
               "std::exception: out of memory",
           "an exhausted memory is not told");
    expect(::operator new(huge, std::nothrow) == nullptr, "an allocation that may not fail does");
}

void failuresUnwind() {
    struct Noting {
        bool* gone;
        ~Noting() { *gone = true; }
    };
    bool gone = false;
    failureOf([&] {
        const Noting noting{&gone};
        (void)std::string().at(1);
    });
    expect(gone, "a failure leaves objects behind");
}

void stringsGrow() {
    std::string text;
    for (int time = 0; time < 1000; ++time) {
        text += "ab";
        text.push_back('c');
    }
    text.insert(0, "begin ");
    text = "very " + text;
    expect(text.size() == 3011 && text.starts_with("very begin ab"), "strings lose text");
    expect(std::to_string(4294967295U) == "4294967295" && std::to_string(-20L) == "-20" &&
               std::to_string(18446744073709551615ULL) == "18446744073709551615",
           "numbers are written wrongly");
}

void sharedPointersEndOnce() {
    struct Counted {
        explicit Counted(int& ends) : ends_(&ends) {}
        ~Counted() { ++*ends_; }
        int* ends_;
    };
    int ends = 0;
    {
        const auto first = std::make_shared<Counted>(ends);
        const std::weak_ptr<Counted> watcher = first;
        const auto second = first;
        expect(ends == 0 && watcher.use_count() == 2, "shared pointers count wrongly");
    }
    expect(ends == 1, "what is shared does not end once");
}

} // namespace

int main() {
    const objc::Pool pool;
    locksExclude();
    oneTimeCallsRunOnce();
    aFailedOneTimeCallIsRepeated();
    failuresAreReported();
    failuresUnwind();
    stringsGrow();
    sharedPointersEndOnce();
    return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
