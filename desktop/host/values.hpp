// Objects as JSON and JSON as objects.
#pragma once

#include "bindings/foundation/dictionary.hpp"
#include "desktop/host/handles.hpp"
#include "desktop/host/json.hpp"

namespace desktop::host {

/// The text as a string, or {"units":[…]} when it has half a surrogate pair; null for nil.
[[nodiscard]] Json textToJson(ns::String text);

/// Converts between JSON and objects; what JSON has no form for is known by its handle. Main
/// thread.
class Values {
public:
    /// Remembers how URLs are made, so that no hook of a library loaded later takes part in it.
    Values();

    /// The object that `value` means, borrowed from the pool; nil for null. Throws RequestError for
    /// an unknown handle or class, and for what is no object, such as a structure.
    [[nodiscard]] objc::Object toObject(const Json& value) const;
    /// Like `toObject`, but an object of that kind. Throws RequestError.
    template <class Kind>
    [[nodiscard]] Kind toKind(const Json& value) const {
        const auto found = toObject(value).as<Kind>();
        if (!found) {
            throw RequestError(std::string("expected a ") + Kind::className.data() + ", got " +
                               value.dump());
        }
        return found;
    }
    /// Puts the entries into the dictionary, whatever their keys are called; null removes a key.
    void fill(ns::MutableDictionary dictionary, const Json& entries) const;
    /// The class in {"class":"UILabel"}. Throws RequestError.
    [[nodiscard]] Class toClass(const Json& value) const;
    /// The selector in {"selector":"setText:"}. Throws RequestError.
    [[nodiscard]] SEL toSelector(const Json& value) const;

    [[nodiscard]] Json toJson(objc::Object object);
    /// {"object":N,"class":…}: what a node and a handle have in common.
    [[nodiscard]] Json reference(objc::Object object);

private:
    [[nodiscard]] Json toJson(objc::Object object, int depth);
    [[nodiscard]] Json collection(objc::Object object, int depth);
    [[nodiscard]] objc::Object url(const std::string& text) const;

    Handles handles_;
    IMP makeUrl_;
};

} // namespace desktop::host
