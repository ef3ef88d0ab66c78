// The phone's well-known font families, and the installed families that stand in for them.
#pragma once

#include <span>
#include <string_view>

namespace desktop {

struct PhoneFace {
    std::string_view postScriptName;
    /// The full name is the family's name, a space and this; only the family's when empty.
    std::string_view style;
    int weight;
    bool italic;
};

struct PhoneFamily {
    std::string_view name;
    /// Separated by commas, the best first.
    std::string_view standIns;
    std::span<const PhoneFace> faces;
};

std::span<const PhoneFamily> phoneFamilies();

/// Nothing (a null pointer) when the phone has no such family; the name is compared exactly.
const PhoneFamily* phoneFamily(std::string_view name);

} // namespace desktop
