// Locks and one-time initialisation of the C++ library, on the platform's threads.
#include <mutex>

namespace {

constexpr std::once_flag::_State_type unset = 0;
constexpr std::once_flag::_State_type running = 1;
constexpr std::once_flag::_State_type complete = ~std::once_flag::_State_type{0};

pthread_mutex_t onceMutex = PTHREAD_MUTEX_INITIALIZER;
pthread_cond_t onceChanged = PTHREAD_COND_INITIALIZER;

void setState(volatile std::once_flag::_State_type& state, std::once_flag::_State_type value) {
    pthread_mutex_lock(&onceMutex);
    // Callers who find it complete read it without the lock.
    __atomic_store_n(&state, value, __ATOMIC_RELEASE);
    pthread_mutex_unlock(&onceMutex);
    pthread_cond_broadcast(&onceChanged);
}

/// Waits while another thread runs the function; whether this thread has to.
bool claim(volatile std::once_flag::_State_type& state) {
    pthread_mutex_lock(&onceMutex);
    while (state == running) {
        pthread_cond_wait(&onceChanged, &onceMutex);
    }
    const bool claimed = state == unset;
    if (claimed) {
        __atomic_store_n(&state, running, __ATOMIC_RELAXED);
    }
    pthread_mutex_unlock(&onceMutex);
    return claimed;
}

} // namespace

_LIBCPP_BEGIN_NAMESPACE_STD

#ifndef _LIBCPP_HAS_TRIVIAL_MUTEX_DESTRUCTION // as on Linux, where this is tested
mutex::~mutex() noexcept { pthread_mutex_destroy(&__m_); }
#endif
void mutex::lock() { pthread_mutex_lock(&__m_); }
void mutex::unlock() noexcept { pthread_mutex_unlock(&__m_); }

void __call_once(volatile once_flag::_State_type& state, void* argument, void (*function)(void*)) {
    if (!claim(state)) {
        return;
    }
    try {
        function(argument);
    } catch (...) {
        setState(state, unset);
        throw;
    }
    setState(state, complete);
}

_LIBCPP_END_NAMESPACE_STD
