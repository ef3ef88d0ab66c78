// Objects as JSON and JSON as objects.
#pragma once

#include "bindings/foundation/dictionary.hpp"
#include "desktop/host/handles.hpp"
#include "desktop/host/response_line.hpp"

#include <optional>

namespace desktop::host {

/// The text as a string, or {"units":[…]} when it has half a surrogate pair; null for nil.
[[nodiscard]] Json textToJson(ns::String text);

/// How an object is told: as a value where JSON has a form for it, or by its handle in any case.
enum class ObjectForm { value, handle };

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
                               written(value));
        }
        return found;
    }
    /// Puts the entries into the dictionary, whatever their keys are called; null removes a key.
    void fill(ns::MutableDictionary dictionary, const Json& entries) const;
    /// The class in {"class":"UILabel"}. Throws RequestError.
    [[nodiscard]] Class toClass(const Json& value) const;
    /// The selector in {"selector":"setText:"}. Throws RequestError.
    [[nodiscard]] SEL toSelector(const Json& value) const;

    [[nodiscard]] Json toJson(objc::Object object, ObjectForm form = ObjectForm::value);
    /// The handle of an object that is not initialised, of which nothing can be asked yet; takes
    /// its reference over.
    [[nodiscard]] Json allocated(objc::Object object);
    /// The number in the handle of such an object; nothing for any other value.
    [[nodiscard]] std::optional<std::uint64_t> numberOfAllocated(const Json& value) const;
    [[nodiscard]] Handles& handles() { return handles_; }
    /// {"object":N,"class":…}: what a node and a handle have in common.
    [[nodiscard]] Json reference(objc::Object object);

private:
    [[nodiscard]] Json valueOf(objc::Object object, int depth);
    [[nodiscard]] Json described(objc::Object object, bool fully);
    [[nodiscard]] Json collection(objc::Object object, int depth);
    [[nodiscard]] objc::Object url(const std::string& text) const;

    Handles handles_;
    IMP makeUrl_;
};

} // namespace desktop::host
