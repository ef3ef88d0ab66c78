// The library of the borders: what it brings to whoever loads it.
#pragma once

namespace tests {

/// Code of the library that is entered in every way and fails in every way.
void registerVisitor();
/// What the library asks of the system's C library.
void registerClerk();
/// Values on their way through the library to the host and back.
void registerCarrier();

} // namespace tests
