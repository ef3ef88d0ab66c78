// The host with the library of the borders in it.
#pragma once

#include "tests/support/phone.hpp"

namespace tests {

class HostWithBorders : public Phone {
public:
    HostWithBorders() : Phone({"--app", "plain", "--library", bordersLibrary()}) {}
};

} // namespace tests
