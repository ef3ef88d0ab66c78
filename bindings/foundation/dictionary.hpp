// NSDictionary and NSMutableDictionary.
#pragma once

#include "bindings/foundation/string.hpp"

namespace ns {

struct Array;

struct Dictionary : objc::Kind<Dictionary, "NSDictionary"> {
    using Kind::Kind;

    static Dictionary withContentsOfFile(String path) {
        return sendClass<"dictionaryWithContentsOfFile:", Dictionary>(path);
    }
    static Dictionary withObject(objc::Object value, objc::Object key) {
        return sendClass<"dictionaryWithObject:forKey:", Dictionary>(value, key);
    }
    [[nodiscard]] unsigned long count() const { return send<"count", unsigned long>(); }
    /// The value under `key`, or nil.
    [[nodiscard]] objc::Object get(objc::Object key) const {
        return send<"objectForKey:", objc::Object>(key);
    }
    [[nodiscard]] Array allKeys() const;
};

struct MutableDictionary : objc::Kind<MutableDictionary, "NSMutableDictionary", Dictionary> {
    using Kind::Kind;

    static MutableDictionary withDictionary(Dictionary other) {
        return sendClass<"dictionaryWithDictionary:", MutableDictionary>(other);
    }
    void set(objc::Object value, objc::Object key) const { send<"setObject:forKey:">(value, key); }
    void remove(objc::Object key) const { send<"removeObjectForKey:">(key); }
    void addEntries(Dictionary other) const { send<"addEntriesFromDictionary:">(other); }
};

} // namespace ns

#include "bindings/foundation/array.hpp"

inline ns::Array ns::Dictionary::allKeys() const { return send<"allKeys", Array>(); }
