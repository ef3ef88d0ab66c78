// What a message of the library reaches: Linux's methods with their results widened.
#include "device/emulation/conventions.hpp"

#include <functional>
#include <unordered_map>
#include <utility>

namespace {

/// Classes may share a function under selectors of different types.
using Call = std::pair<IMP, SEL>;
struct CallHash {
    std::size_t operator()(const Call& call) const {
        return std::hash<IMP>()(call.first) ^ std::hash<SEL>()(call.second) << 1U;
    }
};
using Callable = std::unordered_map<Call, IMP, CallHash>;

/// What was looked up on this thread before. Never destroyed: a thread's other objects still send
/// messages when it ends.
Callable& known() {
    thread_local auto* table = new Callable;
    return *table;
}

} // namespace

/// For `emulation_msgSend`; the receiver is not nil.
extern "C" [[gnu::visibility("hidden")]] IMP emulation_lookUp(id receiver, SEL name) {
    const IMP function = objc_msg_lookup(receiver, name);
    if (const auto found = known().find({function, name}); found != known().end()) {
        return found->second;
    }
    const Method method = class_getInstanceMethod(object_getClass(receiver), name);
    if (method == nullptr || method_getImplementation(method) != function) {
        return function; // it is being forwarded, and the next message will be another one
    }
    return known()[{function, name}] =
               emulation::forLibrary(function, method_getTypeEncoding(method));
}
