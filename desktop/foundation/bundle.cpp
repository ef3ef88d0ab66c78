// Answering the main bundle's identifier.
#include "desktop/foundation/bundle.hpp"

#include "bindings/foundation/bundle.hpp"
#include "bindings/objc/hook.hpp"

namespace desktop::foundation {
namespace {

objc::Strong<ns::String>& mainIdentifier() {
    static auto* identifier = new objc::Strong<ns::String>; // used until the process ends
    return *identifier;
}

ns::String bundleIdentifier(objc::Next<ns::String()> next, ns::Bundle bundle) {
    return bundle == ns::Bundle::mainBundle() ? mainIdentifier() : next();
}

} // namespace

void installBundle(ns::String identifier) {
    mainIdentifier() = identifier;
    objc::install(objc::hook<"bundleIdentifier", &bundleIdentifier>());
}

} // namespace desktop::foundation
