// Keeping the stubs between both sides: one for each function and form.
#include "device/emulation/conventions.hpp"

#include "device/emulation/calls.hpp"
#include "device/emulation/image.hpp"
#include "device/emulation/refusal.hpp"
#include "device/emulation/stub_code.hpp"
#include "device/emulation/stub_memory.hpp"

#include <bit>
#include <map>
#include <mutex>
#include <string>
#include <utility>

namespace emulation {
namespace {

std::uint64_t addressOf(IMP function) { return std::bit_cast<std::uint64_t>(function); }

class Stubs {
public:
    static Stubs& shared() {
        static auto* stubs = new Stubs;
        return *stubs;
    }

    /// The function that a stub was made for; any other as it is.
    IMP original(IMP function) {
        const std::scoped_lock lock(mutex_);
        const auto found = originals_.find(function);
        return found == originals_.end() ? function : found->second;
    }

    template <class Write>
    IMP stubFor(IMP function, const char* types, Write write) {
        const std::scoped_lock lock(mutex_);
        IMP& stub = stubs_[{function, types}];
        if (stub == nullptr) {
            stub = std::bit_cast<IMP>(keepCode(write()));
            originals_[stub] = function;
        }
        return stub;
    }

private:
    std::mutex mutex_;
    std::map<std::pair<IMP, std::string>, IMP> stubs_; // by function and types
    std::map<IMP, IMP> originals_;
};

/// What cannot be put right: the sides disagree on where arguments lie.
void checkStack(const CallForm& form, const char* types) {
    if (form.isPackedOnStack) {
        refuse(std::string("small arguments on the stack, of the types ") + types);
    }
}

CallForm formOf(const char* types) {
    try {
        return callForm(types);
    } catch (const Refusal& refusal) {
        refuse(refusal.what());
    }
}

} // namespace

IMP forLinux(IMP function, const char* types) {
    function = Stubs::shared().original(function);
    if (types == nullptr || !isInsideImage(addressOf(function))) {
        return function;
    }
    const CallForm form = formOf(types);
    checkStack(form, types);
    if (form.narrowArguments.empty()) {
        return function;
    }
    return Stubs::shared().stubFor(
        function, types, [&] { return wideningCode(form.narrowArguments, addressOf(function)); });
}

IMP forLibrary(IMP function, const char* types) {
    function = Stubs::shared().original(function);
    if (types == nullptr || function == nullptr || isInsideImage(addressOf(function))) {
        return function;
    }
    const CallForm form = formOf(types);
    checkStack(form, types);
    if (form.result == Widening::none) {
        return function;
    }
    if (form.stackSize > handedOnStackSize) {
        refuse(std::string("too many arguments on the stack, of the types ") + types);
    }
    return Stubs::shared().stubFor(function, types, [&] {
        return callingCode(addressOf(callerThatWidens(form.result)), addressOf(function));
    });
}

} // namespace emulation
