// Reading declared types.
#include "desktop/host/declared_classes.hpp"

#include <algorithm>

namespace desktop::host {
namespace {

constexpr std::string_view qualifiers = "rnNoORVA";

/// How long the first type is, without the class of an object.
std::size_t lengthOfType(std::string_view types) {
    const std::size_t start = std::min(types.find_first_not_of(qualifiers), types.size());
    if (start == types.size()) {
        return start;
    }
    if (types[start] == '^') {
        return start + 1 + lengthOfType(types.substr(start + 1));
    }
    if (types[start] != '{') {
        return start + (types.substr(start).starts_with("@?") ? 2 : 1);
    }
    int depth = 0;
    const auto* const end = std::find_if(types.begin() + start, types.end(), [&depth](char c) {
        depth += c == '{' ? 1 : c == '}' ? -1 : 0;
        return depth == 0;
    });
    return std::min(static_cast<std::size_t>(end - types.begin()) + 1, types.size());
}

/// Takes the first type away; the class that it names.
DeclaredClass takeType(std::string_view& types) {
    types.remove_prefix(lengthOfType(types));
    if (!types.starts_with('"')) {
        return {};
    }
    const std::size_t end = std::min(types.find('"', 1), types.size());
    std::string_view name = types.substr(1, end - 1);
    types.remove_prefix(std::min(end + 1, types.size()));
    const std::size_t bracket = std::min(name.find('<'), name.size());
    const std::string_view elements = name.substr(bracket);
    return {name.substr(0, bracket),
            elements.empty() ? "" : elements.substr(1, elements.size() - 2)};
}

} // namespace

std::vector<DeclaredClass> declaredClasses(std::string_view types) {
    constexpr std::size_t before = 3; // result, receiver, selector
    std::vector<DeclaredClass> classes;
    while (!types.empty()) {
        classes.push_back(takeType(types));
    }
    classes.erase(classes.begin(),
                  classes.begin() + static_cast<std::ptrdiff_t>(std::min(before, classes.size())));
    return classes;
}

} // namespace desktop::host
