// The global allocation functions: the platform's memory, under names that stay in this library.
#include <cstdlib>
#include <new>

namespace {

void* allocate(std::size_t size) noexcept { return std::malloc(size == 0 ? 1 : size); }

void* allocateOrFail(std::size_t size) {
    void* memory = allocate(size);
    if (memory == nullptr) {
        std::__throw_bad_alloc();
    }
    return memory;
}

} // namespace

void* operator new(std::size_t size) { return allocateOrFail(size); }
void* operator new[](std::size_t size) { return allocateOrFail(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return allocate(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
