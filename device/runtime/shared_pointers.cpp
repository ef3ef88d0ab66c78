// The counting of shared pointers' owners that the C++ library's headers expect to find compiled.
#include <memory>

_LIBCPP_BEGIN_NAMESPACE_STD

__shared_count::~__shared_count() = default;
__shared_weak_count::~__shared_weak_count() = default;

// The counts are one less than the owners are, as the headers have it.
void __shared_weak_count::__release_weak() noexcept {
    if (__libcpp_atomic_refcount_decrement(__shared_weak_owners_) == -1) {
        __on_zero_shared_weak();
    }
}

// Deleters are looked up by type, and there are no types at run time here.
const void* __shared_weak_count::__get_deleter(const type_info&) const noexcept { return nullptr; }

_LIBCPP_END_NAMESPACE_STD
