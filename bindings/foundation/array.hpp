// NSArray and NSMutableArray.
#pragma once

#include "bindings/foundation/string.hpp"

#include <iterator>

namespace ns {

struct Array : objc::Kind<Array, "NSArray"> {
    using Kind::Kind;

    /// Nil when the file holds no property list of an array.
    static Array withContentsOfFile(objc::Object path) {
        return sendClass<"arrayWithContentsOfFile:", Array>(path);
    }
    [[nodiscard]] unsigned long count() const { return send<"count", unsigned long>(); }
    [[nodiscard]] objc::Object at(unsigned long index) const {
        return send<"objectAtIndex:", objc::Object>(index);
    }
    [[nodiscard]] objc::Object first() const { return count() == 0 ? nullptr : at(0); }
    [[nodiscard]] bool contains(objc::Object element) const {
        return send<"containsObject:", bool>(element);
    }
    /// The descriptions of the elements with the separator between them.
    [[nodiscard]] String joined(String separator) const {
        return send<"componentsJoinedByString:", String>(separator);
    }
    /// A fresh array with the same elements, safe to walk while the original changes.
    [[nodiscard]] Array copied() const { return sendClass<"arrayWithArray:", Array>(*this); }

    struct Iterator {
        id array;
        unsigned long index;
        objc::Object operator*() const { return objc::wrap<Array>(array).at(index); }
        Iterator& operator++() {
            ++index;
            return *this;
        }
        friend bool operator==(const Iterator&, const Iterator&) = default;
    };
    [[nodiscard]] Iterator begin() const { return {raw(), 0}; }
    [[nodiscard]] Iterator end() const { return {raw(), count()}; }
};

struct MutableArray : objc::Kind<MutableArray, "NSMutableArray", Array> {
    using Kind::Kind;

    void add(objc::Object element) const { send<"addObject:">(element); }
    void insert(objc::Object element, unsigned long index) const {
        send<"insertObject:atIndex:">(element, index);
    }
    void remove(objc::Object element) const { send<"removeObjectIdenticalTo:">(element); }
    /// Every element that is equal to this one.
    void removeEqual(objc::Object element) const { send<"removeObject:">(element); }
    void removeAll() const { send<"removeAllObjects">(); }
};

} // namespace ns
