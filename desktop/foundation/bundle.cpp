// Answering in the main bundle's place.
#include "desktop/foundation/bundle.hpp"

#include "bindings/foundation/bundle.hpp"
#include "bindings/foundation/dictionary.hpp"
#include "bindings/objc/hook.hpp"

#include <array>
#include <cstdio>
#include <cstdlib>

namespace desktop::foundation {
namespace {

using namespace ns::literals;

objc::Strong<ns::MutableDictionary>& mainInfo() {
    static auto* info = new objc::Strong<ns::MutableDictionary>; // used until the process ends
    return *info;
}

std::array<ns::String, 3> usageKeys() {
    return {u"NSMicrophoneUsageDescription"_ns, u"NSPhotoLibraryAddUsageDescription"_ns,
            u"NSSpeechRecognitionUsageDescription"_ns};
}

ns::String bundleIdentifier(objc::Next<ns::String()> next, ns::Bundle bundle) {
    return bundle == ns::Bundle::mainBundle()
               ? mainInfo().get(u"CFBundleIdentifier"_ns).as<ns::String>()
               : next();
}

ns::Dictionary infoDictionary(objc::Next<ns::Dictionary()> next, ns::Bundle bundle) {
    return bundle == ns::Bundle::mainBundle() ? ns::Dictionary(mainInfo()) : next();
}

} // namespace

void installBundle(ns::String identifier) {
    mainInfo() = ns::MutableDictionary::make();
    mainInfo().set(identifier, u"CFBundleIdentifier"_ns);
    for (const ns::String key : usageKeys()) {
        mainInfo().set(u"用于演示"_ns, key);
    }
    objc::install(objc::hook<"bundleIdentifier", &bundleIdentifier>());
    objc::install(objc::hook<"infoDictionary", &infoDictionary>());
}

void forgetUsageDescriptions() {
    for (const ns::String key : usageKeys()) {
        mainInfo().remove(key);
    }
}

void requireUsageDescription(ns::String key) {
    if (!ns::Bundle::mainBundle().objectForInfoDictionaryKey(key)) {
        std::fprintf(stderr,
                     "This app has crashed because it attempted to access privacy-sensitive data "
                     "without a usage description. The app's Info.plist must contain an %s key.\n",
                     key.utf8().c_str());
        std::abort();
    }
}

} // namespace desktop::foundation
