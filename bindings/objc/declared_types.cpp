// A table of declared types by class and selector.
#include "bindings/objc/declared_types.hpp"

#include <map>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>

namespace objc {
namespace {

struct Declared {
    const char* types;
    std::string plain;
};

/// Held while the table is looked at: classes get their methods on whichever thread uses them
/// first.
std::mutex mutex;

std::map<std::pair<Class, std::string_view>, Declared>& table() {
    static std::map<std::pair<Class, std::string_view>, Declared> methods;
    return methods;
}

std::string withoutClasses(std::string_view types) {
    std::string plain;
    bool inName = false;
    for (const char c : types) {
        inName = inName != (c == '"');
        if (!inName && c != '"') {
            plain += c;
        }
    }
    return plain;
}

} // namespace

const char* keepDeclaredTypes(Class cls, const char* selector, const char* types) {
    if (std::string_view(types).find('"') == std::string_view::npos) {
        return types;
    }
    const std::scoped_lock lock(mutex);
    Declared& kept = table()[{cls, selector}];
    kept = {types, withoutClasses(types)};
    return kept.plain.c_str();
}

const char* declaredTypes(Class cls, SEL selector) {
    const std::scoped_lock lock(mutex);
    for (; cls != nullptr; cls = class_getSuperclass(cls)) {
        if (const auto found = table().find({cls, sel_getName(selector)}); found != table().end()) {
            return found->second.types;
        }
    }
    return nullptr;
}

} // namespace objc
