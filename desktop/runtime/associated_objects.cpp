// Associated objects, which GNU libobjc lacks: a table beside the objects, emptied as they die.
#include "bindings/objc/associated.hpp"
#include "bindings/objc/strong.hpp"

#include <map>
#include <mutex>
#include <unordered_map>

namespace {

struct Value {
    objc::Object object;
    objc::Strong<objc::Object> owned;
};
using Values = std::map<const void*, Value>;

class Table {
public:
    static Table& shared() {
        static auto* table = new Table; // never destroyed: objects die until the very end
        return *table;
    }

    void set(id owner, const void* key, Value value) {
        Value former; // released after the lock: its death may come back here
        const std::scoped_lock lock(mutex_);
        watchDeaths();
        Value& place = values_[owner][key];
        former = std::exchange(place, std::move(value));
    }

    objc::Object get(id owner, const void* key) {
        const std::scoped_lock lock(mutex_);
        const auto found = values_.find(owner);
        if (found == values_.end()) {
            return nullptr;
        }
        const auto value = found->second.find(key);
        return value == found->second.end() ? nullptr : value->second.object;
    }

    Values remove(id owner) {
        const std::scoped_lock lock(mutex_);
        const auto found = values_.find(owner);
        if (found == values_.end()) {
            return {};
        }
        Values removed = std::move(found->second);
        values_.erase(found);
        return removed;
    }

private:
    /// From the first association on, every object that dies passes here.
    void watchDeaths() {
        if (formerDealloc_ != nullptr) {
            return;
        }
        const Class root = objc_getClass("NSObject");
        const SEL name = objc::selector<"dealloc">();
        formerDealloc_ = method_getImplementation(class_getInstanceMethod(root, name));
        class_replaceMethod(root, name, reinterpret_cast<IMP>(&dealloc), "v@:");
    }
    static void dealloc(id object, SEL name) {
        shared().remove(object);
        objc::invoke<void>(shared().formerDealloc_, object, name);
    }

    std::mutex mutex_;
    std::unordered_map<id, Values> values_;
    IMP formerDealloc_ = nullptr;
};

} // namespace

void objc_setAssociatedObject(id owner, const void* key, id object, unsigned long policy) {
    // The policies beyond these differ in atomicity only, and every access is locked here.
    constexpr unsigned long copies = 3;
    const objc::Object value = objc::wrap(object);
    switch (static_cast<objc::Association>(policy & copies)) {
    case objc::Association::assign:
        Table::shared().set(owner, key, {value, nullptr});
        break;
    case objc::Association::copyNonatomic: {
        objc::Strong<objc::Object> copy = objc::Copied<objc::Object>(value);
        Table::shared().set(owner, key, {copy, copy});
        break;
    }
    default:
        Table::shared().set(owner, key, {value, value});
    }
}

id objc_getAssociatedObject(id owner, const void* key) {
    return Table::shared().get(owner, key).raw();
}
