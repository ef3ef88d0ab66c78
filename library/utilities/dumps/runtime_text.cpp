// Walks through the runtime and the loader.
#include "library/utilities/dumps/runtime_text.hpp"

#include "bindings/dyld/images.hpp"
#include "bindings/objc/class_list.hpp"
#include "library/common/fixed_point.hpp"

namespace wentra::utilities {
namespace {

void appendClass(Class cls, std::string& text) {
    text.append(class_getName(cls)).append("\n");
    objc::forEachProperty(
        cls, [&text](const char* name) { text.append("\t@property ").append(name).append("\n"); });
    objc::forEachMethod(cls, [&text](SEL selector) {
        text.append("\t").append(sel_getName(selector)).append("\n");
    });
    if (const Class superclass = class_getSuperclass(cls); superclass != nullptr) {
        text.append("\t@superclass ").append(class_getName(superclass)).append("\n");
    }
}

} // namespace

std::string classText() {
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
