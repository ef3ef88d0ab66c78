// Blocks of executable memory, filled from front to back.
#include "device/emulation/stub_memory.hpp"

#include "device/emulation/refusal.hpp"

#include <cstddef>
#include <cstring>
#include <span>
#include <sys/mman.h>

namespace emulation {
namespace {

constexpr std::size_t blockSize = std::size_t{1} << 16U;
constexpr std::size_t alignment = 16;

std::span<std::byte> newBlock() {
    void* memory = mmap(nullptr, blockSize, PROT_READ | PROT_WRITE | PROT_EXEC,
                        MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) {
        refuse("no memory for stubs");
    }
    return {static_cast<std::byte*>(memory), blockSize};
}

} // namespace

std::uint64_t keepCode(const std::vector<std::uint32_t>& code) {
    static std::span<std::byte> rest;
    const std::span bytes = std::as_bytes(std::span(code));
    const std::size_t size = (bytes.size() + alignment - 1) / alignment * alignment;
    if (rest.size() < size) {
        rest = newBlock();
    }
    std::byte* const place = rest.data();
    std::memcpy(place, bytes.data(), bytes.size());
    __builtin___clear_cache(reinterpret_cast<char*>(place), reinterpret_cast<char*>(place + size));
    rest = rest.subspan(size);
    return reinterpret_cast<std::uint64_t>(place);
}

} // namespace emulation
