// Digests by OpenSSL.
#include "bindings/commoncrypto/digest.hpp"

#include <openssl/sha.h>

unsigned char* CC_SHA256(const void* data, std::uint32_t length, unsigned char* digest) {
    return SHA256(static_cast<const unsigned char*>(data), length, digest);
}
