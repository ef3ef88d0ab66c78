// Checking the arguments of a request.
#include "desktop/host/arguments.hpp"

#include <algorithm>
#include <cmath>

namespace desktop::host {
namespace {

[[noreturn]] void refuse(const char* name, const char* wanted) {
    throw RequestError(std::string("\"") + name + "\" must be " + wanted);
}

} // namespace

const Json* argument(const Json& request, const char* name) {
    const auto found = request.find(name);
    return found == request.end() ? nullptr : &*found;
}

const Json& anyArgument(const Json& request, const char* name) {
    const Json* value = argument(request, name);
    if (value == nullptr) {
        throw RequestError(std::string("\"") + name + "\" is missing");
    }
    return *value;
}

const std::string& stringArgument(const Json& request, const char* name) {
    const Json& value = anyArgument(request, name);
    if (!value.is_string()) {
        refuse(name, "a string");
    }
    return value.get_ref<const std::string&>();
}

const Json& objectArgument(const Json& request, const char* name) {
    const Json& value = anyArgument(request, name);
    if (!value.is_object()) {
        refuse(name, "an object");
    }
    return value;
}

double secondsArgument(const Json& request, const char* name) {
    constexpr double longest = 1e7;
    const Json& value = anyArgument(request, name);
    const double seconds = value.is_number() ? value.get<double>() : -1;
    if (!(seconds >= 0 && seconds <= longest)) {
        refuse(name, "a number of seconds from 0 to 10000000");
    }
    return seconds;
}

double secondsArgument(const Json& request, const char* name, double missing) {
    return argument(request, name) == nullptr ? missing : secondsArgument(request, name);
}

const Json& listArgument(const Json& request, const char* name) {
    const Json& value = anyArgument(request, name);
    if (!value.is_array() || value.empty()) {
        refuse(name, "a list that is not empty");
    }
    return value;
}

std::size_t countArgument(const Json& request, const char* name, std::size_t missing,
                          std::size_t most) {
    const Json* value = argument(request, name);
    if (value == nullptr) {
        return missing;
    }
    // A count that is not unsigned is negative or a fraction.
    const auto count = value->is_number_unsigned() ? value->get<std::uint64_t>() : 0;
    if (count < 1 || count > most) {
        throw RequestError(std::string("\"") + name + "\" must be a whole number from 1 to " +
                           std::to_string(most));
    }
    return count;
}

bool flagArgument(const Json& request, const char* name) {
    const Json* value = argument(request, name);
    if (value != nullptr && !value->is_boolean()) {
        refuse(name, "true or false");
    }
    return value != nullptr && value->get<bool>();
}

CGPoint toPoint(const Json& value) {
    constexpr double farthest = 1e6;
    const auto fits = [](const Json& part) {
        return part.is_number() && std::abs(part.get<double>()) <= farthest;
    };
    if (!value.is_array() || value.size() != 2 || !std::ranges::all_of(value, fits)) {
        throw RequestError("a point is [x,y], got " + written(value));
    }
    return {value[0].get<double>(), value[1].get<double>()};
}

CGPoint pointArgument(const Json& request, const char* name) {
    return toPoint(anyArgument(request, name));
}

} // namespace desktop::host
