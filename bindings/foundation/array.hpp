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
    [[nodiscard]] String componentsJoined(String separator) const {
        return send<"componentsJoinedByString:", String>(separator);
    }
    /// A fresh array with the same elements, safe to walk while the original changes.
    [[nodiscard]] Array copied() const { return sendClass<"arrayWithArray:", Array>(*this); }

    template <class Element>
    struct IteratorOf {
        id array;
        unsigned long index;
        Element operator*() const { return objc::wrap<Array>(array).at(index).assume<Element>(); }
        IteratorOf& operator++() {
            ++index;
            return *this;
        }
        friend bool operator==(const IteratorOf&, const IteratorOf&) = default;
    };
    using Iterator = IteratorOf<objc::Object>;
    [[nodiscard]] Iterator begin() const { return {raw(), 0}; }
    [[nodiscard]] Iterator end() const { return {raw(), count()}; }
};

/// An array that is known to hold objects of one kind, which is not checked: what the platform
/// promises. An array from elsewhere stays an `Array`, and its elements are asked with `as`.
template <class Element>
struct ArrayOf : Array {
    using Array::Array;
    using Elements = Element;

    [[nodiscard]] Element at(unsigned long index) const {
        return Array::at(index).template assume<Element>();
    }
    /// Nil when there is none.
    [[nodiscard]] Element first() const { return Array::first().template assume<Element>(); }
    [[nodiscard]] ArrayOf copied() const { return Array::copied().template assume<ArrayOf>(); }

    [[nodiscard]] IteratorOf<Element> begin() const { return {raw(), 0}; }
    [[nodiscard]] IteratorOf<Element> end() const { return {raw(), count()}; }
};

struct MutableArray : objc::Kind<MutableArray, "NSMutableArray", Array> {
    using Kind::Kind;

    static MutableArray withArray(Array other) {
        return sendClass<"arrayWithArray:", MutableArray>(other);
    }
    void add(objc::Object element) const { send<"addObject:">(element); }
    void insert(objc::Object element, unsigned long index) const {
        send<"insertObject:atIndex:">(element, index);
    }
    void removeIdentical(objc::Object element) const { send<"removeObjectIdenticalTo:">(element); }
    /// Every element that is equal to this one.
    void remove(objc::Object element) const { send<"removeObject:">(element); }
    void removeAt(unsigned long index) const { send<"removeObjectAtIndex:">(index); }
    void removeAll() const { send<"removeAllObjects">(); }
};

} // namespace ns
