// What the names of messages tell of their arguments.
#include "desktop/host/unsendable.hpp"

#include <algorithm>
#include <array>

namespace desktop::host {
namespace {

/// Methods that take a list as long as the caller likes do not say so in their encoding.
constexpr std::array<std::string_view, 16> variadic{
    "stringWithFormat:",        "initWithFormat:",
    "initWithFormat:locale:",   "appendFormat:",
    "stringByAppendingFormat:", "localizedStringWithFormat:",
    "predicateWithFormat:",     "raise:format:",
    "arrayWithObjects:",        "setWithObjects:",
    "orderedSetWithObjects:",   "initWithObjects:",
    "encodeValuesOfObjCTypes:", "decodeValuesOfObjCTypes:",
    "initWithObjectsAndKeys:",  "dictionaryWithObjectsAndKeys:"};

/// What follows such a word is called, be it nothing; a property only keeps it.
constexpr std::array<std::string_view, 7> calling{
    "Block:",    ":block:",   "omparator:",           "PassingTest:",
    "Function:", "function:", "requestAuthorization:"};

constexpr std::array<std::string_view, 3> givingUp{"release", "autorelease", "dealloc"};

constexpr auto withInitialisersOfTheirOwn = std::to_array<std::string_view>(
    {"NSArchiver", "NSBundle", "NSDirectoryEnumerator", "NSInvocation", "NSMethodSignature",
     "NSNetService", "NSNotificationQueue", "NSPortCoder", "NSProgress", "NSProtocolChecker",
     "NSRegularExpression", "NSScanner", "NSUnarchiver", "NSURL", "NSURLProtocol",
     "NSURLSessionTask", "NSXMLParser"});

} // namespace

std::optional<std::string> whyUnsendable(std::string_view selector) {
    const auto isIn = [selector](std::string_view word) {
        return selector.find(word) != std::string_view::npos;
    };
    if (std::ranges::count(givingUp, selector) != 0) {
        return "is for the owner of an object, which its handle is";
    }
    if (std::ranges::count(variadic, selector) != 0) {
        return "takes a list of any length, which cannot be passed";
    }
    if (!selector.starts_with("set") && std::ranges::any_of(calling, isIn)) {
        return "takes code, which cannot be passed";
    }
    return std::nullopt;
}

bool needsAnInitialiserOfItsOwn(Class cls) {
    for (; cls != nullptr; cls = class_getSuperclass(cls)) {
        if (std::ranges::count(withInitialisersOfTheirOwn, class_getName(cls)) != 0) {
            return true;
        }
    }
    return false;
}

} // namespace desktop::host
