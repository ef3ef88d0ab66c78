// CommonCrypto: digests.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

extern "C" {
/// Writes the 32 bytes of the SHA-256 digest to `digest` and returns it. Any thread.
unsigned char* CC_SHA256(const void* data, std::uint32_t length, unsigned char* digest);
}

namespace cc {

using Sha256 = std::array<unsigned char, 32>;

/// The digest of the bytes, of which there are less than 4 GB.
inline Sha256 sha256(std::string_view bytes) {
    Sha256 digest{};
    CC_SHA256(bytes.data(), static_cast<std::uint32_t>(bytes.size()), digest.data());
    return digest;
}

} // namespace cc
