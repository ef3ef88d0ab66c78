// Mutexes and conditions: a fresh one holds the phone's signature, where Linux's are all zero. Ours
// fit into their places and are made there at the first use.
#include "device/emulation/imports.hpp"

#include <atomic>
#include <cstdint>
#include <cstring>
#include <mutex>
#include <pthread.h>

namespace emulation {
namespace {

struct Form {
    std::uint64_t fresh;
    std::size_t size;
};
constexpr Form mutexForm{0x32AAABA7, 64};
constexpr Form conditionForm{0x3CB0B1BB, 48};

std::mutex making;

template <class Object, Form form>
Object* made(std::uint64_t* place) {
    static_assert(sizeof(Object) <= form.size);
    std::atomic_ref<std::uint64_t> first(*place);
    if (first.load(std::memory_order_acquire) == form.fresh) {
        const std::scoped_lock lock(making);
        if (first.load(std::memory_order_relaxed) == form.fresh) {
            std::memset(place + 1, 0, sizeof(Object) - sizeof *place);
            first.store(0, std::memory_order_release);
        }
    }
    return reinterpret_cast<Object*>(place);
}

pthread_mutex_t* mutexAt(std::uint64_t* place) { return made<pthread_mutex_t, mutexForm>(place); }
pthread_cond_t* conditionAt(std::uint64_t* place) {
    return made<pthread_cond_t, conditionForm>(place);
}

int lock(std::uint64_t* mutex) { return pthread_mutex_lock(mutexAt(mutex)); }
int unlock(std::uint64_t* mutex) { return pthread_mutex_unlock(mutexAt(mutex)); }
int destroy(std::uint64_t* mutex) { return pthread_mutex_destroy(mutexAt(mutex)); }
int wait(std::uint64_t* condition, std::uint64_t* mutex) {
    return pthread_cond_wait(conditionAt(condition), mutexAt(mutex));
}
int broadcast(std::uint64_t* condition) { return pthread_cond_broadcast(conditionAt(condition)); }

} // namespace

std::vector<Translation> threadTranslations() {
    return {
        translation("_pthread_cond_broadcast", &broadcast),
        translation("_pthread_cond_wait", &wait),
        translation("_pthread_mutex_destroy", &destroy),
        translation("_pthread_mutex_lock", &lock),
        translation("_pthread_mutex_unlock", &unlock),
    };
}

} // namespace emulation
