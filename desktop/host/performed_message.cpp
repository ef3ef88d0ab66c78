// Reading them from the names of messages.
#include "desktop/host/performed_message.hpp"

#include <sstream>
#include <string_view>

namespace desktop::host {
namespace {

std::vector<std::string> parts(const std::string& text, char separator) {
    std::vector<std::string> found;
    std::istringstream rest(text);
    for (std::string part; std::getline(rest, part, separator);) {
        found.push_back(part);
    }
    return found;
}

std::string selectorIn(const Json& value) {
    const bool is =
        value.is_object() && value.contains("selector") && value["selector"].is_string();
    return is ? value["selector"].get<std::string>() : "";
}

} // namespace

bool isPerformedByElements(const std::string& selector) {
    return selector.starts_with("makeObjectsPerformSelector:");
}

std::optional<PerformedMessage> performedMessage(const std::string& selector,
                                                 const Json& arguments) {
    if (!selector.starts_with("performSelector") && !isPerformedByElements(selector)) {
        return std::nullopt;
    }
    const auto names = parts(selector, ':');
    if (arguments.empty() || arguments.size() != names.size()) {
        return std::nullopt;
    }
    PerformedMessage performed{selectorIn(arguments[0]), Json::array()};
    for (std::size_t place = 1; place < names.size(); ++place) {
        if (names[place] == "withObject") {
            performed.arguments.push_back(arguments[place]);
        }
    }
    return performed;
}

std::vector<std::string> keysRead(const std::string& selector, const Json& arguments) {
    if ((selector != "valueForKey:" && selector != "valueForKeyPath:") || arguments.size() != 1 ||
        !arguments[0].is_string()) {
        return {};
    }
    return parts(arguments[0].get<std::string>(), '.');
}

} // namespace desktop::host
