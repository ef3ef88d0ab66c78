// Walks through the runtime and the loader.
#include "library/utilities/dumps/runtime_text.hpp"

#include "bindings/dyld/images.hpp"
#include "bindings/objc/class_list.hpp"
#include "bindings/objc/peer.hpp"
#include "library/common/fixed_point.hpp"

#include <cstring>

namespace wentra::utilities {
namespace {

/// The name and a line feed, at once: a dump has thousands of lines.
void appendLine(std::string& text, const char* name) {
    const std::size_t place = text.size();
    const std::size_t length = std::strlen(name);
    text.resize(place + length + 1, '\n');
    std::memcpy(text.data() + place, name, length);
}

void appendClass(Class cls, std::string& text) {
    appendLine(text, class_getName(cls));
    objc::forEachProperty(
        cls, [&text](const char* name) { appendLine(text.append("\t@property "), name); });
    objc::forEachMethod(cls, [&text](SEL selector) {
        text.push_back('\t');
        appendLine(text, sel_getName(selector));
    });
    if (const Class superclass = class_getSuperclass(cls); superclass != nullptr) {
        appendLine(text.append("\t@superclass "), class_getName(superclass));
    }
}

} // namespace

std::string classText() {
    objc::makeMethodsKnown();
    std::string text;
    text.reserve(4U << 20U); // memory that is not touched costs nothing, growing does
    for (const Class cls : objc::allClasses()) {
        appendClass(cls, text);
    }
    return text;
}

std::string imageText() {
    std::string text;
    dyld::forEachImage(
        [&text](const char* path) { text.append(text.empty() ? "" : "\n\n").append(path); });
    return text;
}

std::string uptimeText(double seconds) {
    std::string text;
    constexpr int places = 3;
    const std::string duration = "\n启动存活时长: " + fixedPoint(seconds, places) + " 秒\n\n";
    dyld::forEachImage([&](const char* path) { text.append(path).append(duration); });
    return text;
}

} // namespace wentra::utilities
