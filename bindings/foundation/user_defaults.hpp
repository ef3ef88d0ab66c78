// NSUserDefaults.
#pragma once

#include "bindings/foundation/dictionary.hpp"

namespace ns {

struct UserDefaults : objc::Kind<UserDefaults, "NSUserDefaults"> {
    using Kind::Kind;

    static UserDefaults standardUserDefaults() {
        return sendClass<"standardUserDefaults", UserDefaults>();
    }
    [[nodiscard]] objc::Object get(String key) const {
        return send<"objectForKey:", objc::Object>(key);
    }
    /// The dictionary under `key`; nil when there is none, or another kind of value.
    [[nodiscard]] Dictionary dictionary(String key) const { return get(key).as<Dictionary>(); }
    /// Nil removes.
    void set(objc::Object value, String key) const { send<"setObject:forKey:">(value, key); }
    bool synchronize() const { return send<"synchronize", bool>(); }
};

} // namespace ns
