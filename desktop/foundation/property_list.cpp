// Copying property lists in depth.
#include "desktop/foundation/property_list.hpp"

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/data.hpp"
#include "bindings/foundation/date.hpp"
#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/number.hpp"
#include "bindings/foundation/run_loop.hpp"

namespace desktop::foundation {
namespace {

objc::Object copied(objc::Object value, std::size_t levels);

objc::Object immutable(objc::Object value) {
    return value.send<"copy", objc::Object>().send<"autorelease", objc::Object>();
}

objc::Object copiedArray(ns::Array array, std::size_t levels) {
    const auto elements = ns::MutableArray::make();
    for (const objc::Object element : array) {
        const objc::Object copy = copied(element, levels);
        if (!copy) {
            return nullptr;
        }
        elements.add(copy);
    }
    return immutable(elements);
}

objc::Object copiedDictionary(ns::Dictionary dictionary, std::size_t levels) {
    const auto entries = ns::MutableDictionary::make();
    for (const objc::Object key : dictionary.allKeys()) {
        const objc::Object copy = copied(dictionary.get(key), levels);
        if (!copy || !key.as<ns::String>()) {
            return nullptr;
        }
        entries.set(copy, key);
    }
    return immutable(entries);
}

objc::Object copied(objc::Object value, std::size_t levels) {
    if (const auto array = value.as<ns::Array>(); array) {
        return levels > 0 ? copiedArray(array, levels - 1) : nullptr;
    }
    if (const auto dictionary = value.as<ns::Dictionary>(); dictionary) {
        return levels > 0 ? copiedDictionary(dictionary, levels - 1) : nullptr;
    }
    const bool isLeaf = value.as<ns::String>() || value.as<ns::Number>() || value.as<ns::Data>() ||
                        value.as<ns::Date>();
    return isLeaf ? immutable(value) : nullptr;
}

} // namespace

objc::Object propertyListCopy(objc::Object list) { return copied(list, deepestNesting); }

} // namespace desktop::foundation
