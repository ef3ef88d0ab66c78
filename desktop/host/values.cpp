// Converting values.
#include "desktop/host/values.hpp"

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/data.hpp"
#include "bindings/foundation/date.hpp"
#include "bindings/foundation/null.hpp"
#include "bindings/foundation/number.hpp"
#include "bindings/foundation/run_loop.hpp"
#include "bindings/foundation/url.hpp"
#include "desktop/foundation/text.hpp"
#include "desktop/host/half_pairs.hpp"
#include "desktop/host/structure.hpp"

#include <algorithm>

namespace desktop::host {
namespace {

/// Deeper collections become handles: they may contain themselves.
constexpr int deepestDescription = 100;

objc::Object orNull(objc::Object object) { return object ? object : ns::Null::null(); }

bool isClass(objc::Object object) { return class_isMetaClass(object_getClass(object.raw())) != 0; }

/// The only entry's value, when the object has that one key.
const Json* lone(const Json& value, const char* key) {
    const auto found = value.size() == 1 ? value.find(key) : value.end();
    return found == value.end() ? nullptr : &*found;
}

const std::string& text(const Json& value) {
    if (!value.is_string()) {
        throw RequestError("expected a string, got " + written(value));
    }
    return value.get_ref<const std::string&>();
}

/// A handle's number; 0, which none has, for other values.
std::uint64_t numberIn(const Json& handle) {
    return handle.is_number_unsigned() ? handle.get<std::uint64_t>() : 0;
}

objc::Object number(const Json& value) {
    if (value.is_number_unsigned()) {
        const auto magnitude = value.get<unsigned long long>();
        const auto asSigned = static_cast<long long>(magnitude);
        return asSigned < 0 ? ns::Number::from(magnitude) : ns::Number::from(asSigned);
    }
    return value.is_number_integer() ? ns::Number::from(value.get<long long>())
                                     : ns::Number::from(value.get<double>());
}

Json numberToJson(ns::Number number) {
    switch (*number.type()) {
    case 'B':
    case 'c':
    case 'C':
        return number.boolValue();
    case 'f':
    case 'd':
        return number.doubleValue();
    case 'Q':
    case 'L':
        return number.unsignedValue();
    default:
        return number.integerValue();
    }
}

objc::Object fromUnits(const Json& units) {
    constexpr std::uint64_t largest = 0xFFFF;
    const auto isUnit = [](const Json& unit) {
        return unit.is_number_unsigned() && unit.get<std::uint64_t>() <= largest;
    };
    if (!units.is_array() || !std::ranges::all_of(units, isUnit)) {
        throw RequestError("expected a list of UTF-16 units, got " + written(units));
    }
    return ns::String::from(units.get<std::u16string>());
}

objc::Object data(const Json& base64) {
    const auto bytes = ns::Data::fromBase64(ns::String::fromUtf8(text(base64)));
    if (!bytes) {
        throw RequestError("not Base64: " + written(base64));
    }
    return bytes;
}

/// Foundation here counts the years before the first one by one, and back, to describe a date.
objc::Object date(const Json& seconds) {
    constexpr double firstYear = -62'135'596'800;
    if (!seconds.is_number() || seconds.get<double>() < firstYear) {
        throw RequestError("expected seconds since 1970, from the year 1 on, got " +
                           written(seconds));
    }
    return ns::Date::withTimeIntervalSince1970(seconds.get<double>());
}

} // namespace

Json textToJson(ns::String text) {
    if (!text) {
        return nullptr;
    }
    const std::u16string units = text.utf16();
    return isWellFormed(units) ? Json(toUtf8(units)) : Json{{"units", units}};
}

Values::Values()
    : makeUrl_(class_getMethodImplementation(ns::Url::classObject(),
                                             objc::selector<"initWithString:relativeToURL:">())) {}

objc::Object Values::url(const std::string& address) const {
    const auto made = objc::invoke<objc::Object>(
        makeUrl_, ns::Url::sendClass<"alloc", objc::Object>().raw(),
        objc::selector<"initWithString:relativeToURL:">(), toText(address), objc::Object());
    if (!made) {
        throw RequestError("not a URL: " + address);
    }
    return made.send<"autorelease", objc::Object>();
}

Class Values::toClass(const Json& value) const {
    const Json* name = value.is_object() ? lone(value, "class") : nullptr;
    if (name == nullptr) {
        throw RequestError("expected {\"class\":…}, got " + written(value));
    }
    const Class found = objc_lookUpClass(text(*name).c_str());
    if (found == nullptr) {
        throw RequestError("no such class: " + text(*name));
    }
    return found;
}

SEL Values::toSelector(const Json& value) const {
    const Json* name = value.is_object() ? lone(value, "selector") : nullptr;
    if (name == nullptr) {
        throw RequestError("expected {\"selector\":…}, got " + written(value));
    }
    return sel_registerName(text(*name).c_str());
}

void Values::fill(ns::MutableDictionary dictionary, const Json& entries) const {
    for (const auto& [key, value] : entries.items()) {
        const auto name = toText(key);
        if (value.is_null()) {
            dictionary.remove(name);
        } else {
            dictionary.set(toObject(value), name);
        }
    }
}

objc::Object Values::toObject(const Json& value) const {
    switch (value.type()) {
    case Json::value_t::null:
        return nullptr;
    case Json::value_t::boolean:
        return ns::Number::from(value.get<bool>());
    case Json::value_t::string:
        return toText(value.get_ref<const std::string&>());
    case Json::value_t::array: {
        const auto array = ns::MutableArray::make();
        for (const Json& element : value) {
            array.add(orNull(toObject(element)));
        }
        return array;
    }
    case Json::value_t::object:
        break;
    default:
        return number(value);
    }
    if (const auto handle = value.find("object"); handle != value.end()) {
        const auto found = handles_.object(numberIn(*handle));
        if (numberOfAllocated(value)) {
            throw RequestError("object " + written(*handle) + " has not been initialised");
        }
        if (!found) {
            throw RequestError("no such object: " + written(*handle));
        }
        return found;
    }
    if (lone(value, "class") != nullptr) {
        return objc::wrap(objc::object(toClass(value)));
    }
    if (const Json* units = lone(value, "units")) {
        return fromUnits(*units);
    }
    if (const Json* address = lone(value, "url")) {
        return url(text(*address));
    }
    if (const Json* seconds = lone(value, "date")) {
        return date(*seconds);
    }
    if (const Json* base64 = lone(value, "data")) {
        return data(*base64);
    }
    if (value.size() == 1 &&
        (lone(value, "selector") != nullptr || structureForKey(value.begin().key()) != nullptr)) {
        throw RequestError("not an object: " + written(value));
    }
    const auto dictionary = ns::MutableDictionary::make();
    fill(dictionary, value);
    return dictionary;
}

Json Values::reference(objc::Object object) {
    return {{"object", handles_.numberOf(object)}, {"class", object_getClassName(object.raw())}};
}

Json Values::allocated(objc::Object object) {
    return {{"object", handles_.addAllocated(object)},
            {"class", object_getClassName(object.raw())},
            {"description", "not initialised"}};
}

std::optional<std::uint64_t> Values::numberOfAllocated(const Json& value) const {
    const auto handle = value.is_object() ? value.find("object") : value.end();
    const std::uint64_t number = handle == value.end() ? 0 : numberIn(*handle);
    return handles_.allocated(number) ? std::optional(number) : std::nullopt;
}

Json Values::toJson(objc::Object object, ObjectForm form) {
    return form == ObjectForm::handle && object ? described(object, true) : valueOf(object, 0);
}

Json Values::valueOf(objc::Object object, int depth) {
    if (!object || object.as<ns::Null>()) {
        return nullptr;
    }
    if (isClass(object)) {
        return {{"class", class_getName(reinterpret_cast<Class>(object.raw()))}};
    }
    if (const auto string = object.as<ns::String>(); string) {
        return textToJson(string);
    }
    if (const auto value = object.as<ns::Number>(); value) {
        return numberToJson(value);
    }
    if (const auto address = object.as<ns::Url>(); address) {
        return {{"url", withHalfPairs(address.absoluteString())}};
    }
    if (const auto moment = object.as<ns::Date>(); moment) {
        return {{"date", moment.timeIntervalSince1970()}};
    }
    if (const auto bytes = object.as<ns::Data>(); bytes) {
        return {{"data", toUtf8(bytes.base64())}};
    }
    return collection(object, depth);
}

Json Values::collection(objc::Object object, int depth) {
    if (const auto array = object.as<ns::Array>(); array && depth < deepestDescription) {
        Json elements = Json::array();
        for (const objc::Object element : array) {
            elements.push_back(valueOf(element, depth + 1));
        }
        return elements;
    }
    if (const auto dictionary = object.as<ns::Dictionary>();
        dictionary && depth < deepestDescription) {
        Json entries = Json::object();
        for (const objc::Object key : dictionary.allKeys()) {
            entries[withHalfPairs(ns::description(key))] = valueOf(dictionary.get(key), depth + 1);
        }
        return entries;
    }
    return described(object, depth < deepestDescription);
}

Json Values::described(objc::Object object, bool fully) {
    Json result = reference(object);
    result["description"] = fully ? withHalfPairs(ns::description(object)) : "";
    return result;
}

} // namespace desktop::host
