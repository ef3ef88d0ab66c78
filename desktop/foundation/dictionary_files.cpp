// Reading property lists into dictionaries.
#include "desktop/foundation/dictionary_files.hpp"

#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/property_list_serialization.hpp"
#include "bindings/objc/hook.hpp"

namespace desktop::foundation {
namespace {

using DictionaryReader = objc::Next<ns::Dictionary(ns::String)>;
ns::Dictionary readDictionary(DictionaryReader, objc::Object, ns::String path) {
    const auto data = ns::Data::withContentsOfFile(path);
    const auto entries =
        data ? ns::PropertyListSerialization::propertyList(data).value.as<ns::Dictionary>()
             : nullptr;
    if (!entries) {
        return nullptr;
    }
    const auto changeable = ns::MutableDictionary::make(); // the mutable class may be asked as well
    changeable.addEntries(entries);
    return changeable;
}

} // namespace

void installDictionaryFiles() {
    objc::install(
        objc::classHook<"NSDictionary", "dictionaryWithContentsOfFile:", &readDictionary>());
}

} // namespace desktop::foundation
