// NSUserDefaults of a phone application: one file a bundle identifier, below the device's root.
#pragma once

#include "bindings/foundation/user_defaults.hpp"
#include "desktop/class.hpp"

#include <mutex>
#include <shared_mutex>

namespace desktop::foundation {

struct DeviceUserDefaultsKind
    : objc::Kind<DeviceUserDefaultsKind, "DeviceUserDefaults", ns::UserDefaults> {
    using Kind::Kind;
};

/// The standard user defaults. Values are immutable snapshots; changes are written in the main
/// thread's next turn, and by `synchronize`; without `load` they stay in memory. Any thread.
class DeviceUserDefaults : public PlatformClass<DeviceUserDefaults, DeviceUserDefaultsKind> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"init", &DeviceUserDefaults::init>(),
            objc::method<"objectForKey:", &DeviceUserDefaults::get>(),
            objc::method<"setObject:forKey:", &DeviceUserDefaults::set>(),
            objc::method<"removeObjectForKey:", &DeviceUserDefaults::remove>(),
            objc::method<"registerDefaults:", &DeviceUserDefaults::registerDefaults>(),
            objc::method<"dictionaryRepresentation", &DeviceUserDefaults::representation>(),
            objc::method<"synchronize", &DeviceUserDefaults::synchronize>(),
            objc::method<"persistentDomainForName:", &DeviceUserDefaults::domain>(),
            objc::method<"setPersistentDomain:forName:", &DeviceUserDefaults::setDomain>(),
            objc::method<"removePersistentDomainForName:", &DeviceUserDefaults::removeDomain>(),
        };
    }

    /// Takes in what the application's file holds.
    void load(ns::String bundleIdentifier);

private:
    ns::UserDefaults init();
    [[nodiscard]] objc::Object get(ns::String key) const;
    void set(objc::Object value, ns::String key);
    void remove(ns::String key);
    void registerDefaults(ns::Dictionary fallbacks);
    [[nodiscard]] ns::Dictionary representation() const;
    bool synchronize();
    // A domain is what a bundle identifier's file holds; others than the application's are empty.
    [[nodiscard]] ns::Dictionary domain(ns::String name) const;
    void setDomain(ns::Dictionary values, ns::String name);
    void removeDomain(ns::String name);
    void replaceAll(ns::Dictionary values);
    void changed();
    bool write();

    mutable std::shared_mutex mutex_;
    std::recursive_mutex writing_;
    objc::Strong<ns::MutableDictionary> values_ = ns::MutableDictionary::make();
    objc::Strong<ns::MutableDictionary> fallbacks_ = ns::MutableDictionary::make();
    objc::Strong<ns::String> bundleIdentifier_;
    objc::Strong<ns::String> file_;
    bool unwritten_ = false;
};

/// Makes them the standard user defaults of the process.
void installUserDefaults(ns::String bundleIdentifier);

} // namespace desktop::foundation
