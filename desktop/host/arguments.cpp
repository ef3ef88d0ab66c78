// Checking the arguments of a request.
#include "desktop/host/arguments.hpp"

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

bool flagArgument(const Json& request, const char* name) {
    const Json* value = argument(request, name);
    if (value != nullptr && !value->is_boolean()) {
        refuse(name, "true or false");
    }
    return value != nullptr && value->get<bool>();
}

} // namespace desktop::host
