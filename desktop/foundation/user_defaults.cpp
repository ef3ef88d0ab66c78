// Keeping user defaults in memory and in the application's file.
#include "desktop/foundation/user_defaults.hpp"

#include "desktop/foundation/property_list.hpp"
#include "desktop/runtime/main_queue.hpp"

#include "bindings/foundation/exception.hpp"
#include "bindings/foundation/notification_center.hpp"
#include "bindings/foundation/property_list_serialization.hpp"
#include "bindings/objc/hook.hpp"
#include "bindings/objc/pool.hpp"

#include <filesystem>
#include <mutex>
#include <system_error>

namespace desktop::foundation {
namespace {

using namespace ns::literals;
namespace fs = std::filesystem;

const char* const folder = "/var/mobile/Library/Preferences";

/// The process's own; it lives as long as the process.
DeviceUserDefaultsKind standard() {
    static const auto* defaults = new objc::Strong(DeviceUserDefaultsKind::make());
    return *defaults;
}

ns::UserDefaults standardUserDefaults(objc::Next<ns::UserDefaults()>, objc::Object) {
    return standard();
}

/// Keeps an object that another thread may remove meanwhile for its reader.
objc::Object lent(objc::Object value) {
    return value.send<"retain", objc::Object>().send<"autorelease", objc::Object>();
}

/// Raises the platform's exception for what is no property list.
objc::Object snapshotOf(objc::Object value) {
    const objc::Object snapshot = propertyListCopy(value);
    if (!snapshot) {
        ns::Exception::with(u"NSInvalidArgumentException"_ns,
                            u"Attempt to insert non-property list object into user defaults"_ns)
            .raise();
    }
    return snapshot;
}

} // namespace

ns::UserDefaults DeviceUserDefaults::init() {
    return self(); // the superclass would look for the defaults of a desktop user
}

void DeviceUserDefaults::load(ns::String bundleIdentifier) {
    const fs::path file = fs::path(folder) / (bundleIdentifier.utf8() + ".plist");
    bundleIdentifier_ = bundleIdentifier;
    file_ = ns::String::fromUtf8(file.string());
    const auto data = ns::Data::withContentsOfFile(file_);
    if (const auto saved =
            data ? ns::PropertyListSerialization::propertyList(data).value.as<ns::Dictionary>()
                 : nullptr;
        saved) {
        values_.addEntries(saved);
    }
}

objc::Object DeviceUserDefaults::get(ns::String key) const {
    const std::shared_lock lock(mutex_);
    const objc::Object value = values_.get(key);
    return lent(value ? value : fallbacks_.get(key));
}

void DeviceUserDefaults::set(objc::Object value, ns::String key) {
    if (!value) {
        remove(key);
        return;
    }
    const objc::Object snapshot = snapshotOf(value);
    {
        const std::scoped_lock lock(mutex_);
        values_.set(snapshot, key);
    }
    changed();
}

void DeviceUserDefaults::remove(ns::String key) {
    {
        const std::scoped_lock lock(mutex_);
        values_.remove(key);
    }
    changed();
}

void DeviceUserDefaults::registerDefaults(ns::Dictionary fallbacks) {
    const auto snapshot = propertyListCopy(fallbacks).as<ns::Dictionary>();
    const std::scoped_lock lock(mutex_);
    fallbacks_.addEntries(snapshot);
}

ns::Dictionary DeviceUserDefaults::representation() const {
    const auto all = ns::MutableDictionary::make();
    const std::shared_lock lock(mutex_);
    all.addEntries(fallbacks_);
    all.addEntries(values_);
    return all;
}

ns::Dictionary DeviceUserDefaults::domain(ns::String name) const {
    if (!bundleIdentifier_.isEqual(name)) {
        return nullptr;
    }
    const std::shared_lock lock(mutex_);
    const objc::Strong<ns::Dictionary> snapshot = objc::Copied<ns::Dictionary>(values_);
    return lent(snapshot).assume<ns::Dictionary>();
}

void DeviceUserDefaults::setDomain(ns::Dictionary values, ns::String name) {
    if (bundleIdentifier_.isEqual(name)) {
        replaceAll(snapshotOf(values).as<ns::Dictionary>());
    }
}

void DeviceUserDefaults::removeDomain(ns::String name) {
    if (bundleIdentifier_.isEqual(name)) {
        replaceAll(nullptr);
    }
}

void DeviceUserDefaults::replaceAll(ns::Dictionary values) {
    const auto replacement = ns::MutableDictionary::make();
    if (values) {
        replacement.addEntries(values);
    }
    {
        const std::scoped_lock lock(mutex_);
        values_ = replacement;
    }
    changed();
}

void DeviceUserDefaults::changed() {
    {
        const std::scoped_lock lock(mutex_);
        if (file_ && !unwritten_) { // one write for all changes of this turn
            unwritten_ = true;
            MainQueue::shared().add([kept = objc::Strong(self())] {
                const objc::Pool pool;
                of(kept).write();
            });
        }
    }
    ns::NotificationCenter::defaultCenter().post(u"NSUserDefaultsDidChangeNotification"_ns, self());
}

bool DeviceUserDefaults::synchronize() { return write(); }

bool DeviceUserDefaults::write() {
    const std::scoped_lock writing(writing_);
    objc::Strong<ns::Dictionary> snapshot;
    {
        const std::scoped_lock lock(mutex_);
        if (!unwritten_) {
            return true;
        }
        unwritten_ = false;
        snapshot = objc::Copied<ns::Dictionary>(values_);
    }
    // Not under the lock: Foundation itself asks for user defaults while it writes.
    std::error_code failure; // the write itself tells
    fs::create_directories(folder, failure);
    const auto list = ns::PropertyListSerialization::data(snapshot, ns::PropertyListFormat::binary);
    return list && !list.value.writeToFile(file_, ns::DataWritingOptions::atomic);
}

void installUserDefaults(ns::String bundleIdentifier) {
    DeviceUserDefaults::registerClass();
    DeviceUserDefaults::of(standard()).load(bundleIdentifier);
    objc::install(
        objc::classHook<"NSUserDefaults", "standardUserDefaults", &standardUserDefaults>());
}

} // namespace desktop::foundation
