// Building an invocation from JSON.
#include "desktop/host/message.hpp"

#include "bindings/foundation/invocation.hpp"
#include "bindings/foundation/method_signature.hpp"
#include "desktop/foundation/text.hpp"
#include "desktop/host/structure.hpp"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstring>
#include <deque>
#include <limits>
#include <string_view>

namespace desktop::host {
namespace {

/// Methods that take a list as long as the caller likes do not say so in their encoding.
constexpr std::array<std::string_view, 14> variadic{
    "stringWithFormat:",        "initWithFormat:",
    "initWithFormat:locale:",   "appendFormat:",
    "stringByAppendingFormat:", "localizedStringWithFormat:",
    "predicateWithFormat:",     "raise:format:",
    "arrayWithObjects:",        "setWithObjects:",
    "orderedSetWithObjects:",   "initWithObjects:",
    "initWithObjectsAndKeys:",  "dictionaryWithObjectsAndKeys:"};

/// The encoding without the qualifiers in front of it.
std::string_view unqualified(std::string_view type) {
    type.remove_prefix(std::min(type.find_first_not_of("rnNoORVA"), type.size()));
    return type;
}

template <class T>
bool fits(const Json& value) {
    if (value.is_number_unsigned()) {
        return value.get<std::uint64_t>() <=
               static_cast<std::uint64_t>(std::numeric_limits<T>::max());
    }
    return value.is_number_integer() && std::is_signed_v<T> &&
           value.get<std::int64_t>() >= static_cast<std::int64_t>(std::numeric_limits<T>::min());
}

/// An invocation whose arguments are given one after the other.
class Call {
public:
    Call(Values& values, ns::MethodSignature signature, SEL name)
        : values_(&values), signature_(signature), invocation_(ns::Invocation::with(signature)) {
        invocation_.setSelector(name);
    }

    void add(const Json& value) {
        const std::string_view type =
            unqualified(signature_.argumentType(static_cast<unsigned long>(index_)));
        if (const Structure* structure = structureOf(type)) {
            store(structure->fromJson(value));
        } else {
            addScalar(type, value);
        }
        ++index_;
    }

    void invoke(objc::Object receiver) const { invocation_.invokeWithTarget(receiver); }

    [[nodiscard]] Json result() const;
    [[nodiscard]] bool givesObject() const {
        return unqualified(signature_.returnType()).starts_with('@');
    }
    /// Of a method that gives an object.
    [[nodiscard]] objc::Object objectResult() const {
        id result = nullptr;
        invocation_.getReturnValue(static_cast<void*>(&result));
        return objc::wrap(result);
    }

private:
    template <class T>
    void store(const T& value) {
        invocation_.setArgument(&value, index_);
    }

    template <class T>
    void storeNumber(const Json& value) {
        if constexpr (std::is_floating_point_v<T>) {
            require(value.is_number(), value);
        } else {
            require(fits<T>(value), value);
        }
        store(value.get<T>());
    }

    void storeText(const Json& value) {
        require(value.is_string() || value.is_null(), value);
        if (value.is_null()) {
            store(static_cast<const char*>(nullptr));
        } else {
            store(texts_.emplace_back(value.get_ref<const std::string&>()).c_str());
        }
    }

    /// Truth values and characters are both written as one byte.
    template <class T>
    void storeByte(const Json& value) {
        if (value.is_boolean()) {
            store(static_cast<T>(value.get<bool>() ? 1 : 0));
        } else {
            storeNumber<T>(value);
        }
    }

    void addScalar(std::string_view type, const Json& value);

    void require(bool fitting, const Json& value) const {
        if (!fitting) {
            throw RequestError("argument " + std::to_string(index_ - 1) + " cannot be " +
                               value.dump() + " (its type is " +
                               signature_.argumentType(static_cast<unsigned long>(index_)) + ")");
        }
    }

    Values* values_;
    ns::MethodSignature signature_;
    ns::Invocation invocation_;
    std::deque<std::string> texts_; // lent to the method
    long index_ = 2;
};

void Call::addScalar(std::string_view type, const Json& value) {
    switch (type.empty() ? '\0' : type.front()) {
    case '@':
        store(values_->toObject(value).raw());
        break;
    case '#':
        store(value.is_null() ? nullptr : values_->toClass(value));
        break;
    case ':':
        store(value.is_null() ? nullptr : values_->toSelector(value));
        break;
    case 'B':
    case 'C':
        storeByte<unsigned char>(value);
        break;
    case 'c':
        storeByte<signed char>(value);
        break;
    case 's':
        storeNumber<short>(value);
        break;
    case 'S':
        storeNumber<unsigned short>(value);
        break;
    case 'i':
        storeNumber<int>(value);
        break;
    case 'I':
        storeNumber<unsigned int>(value);
        break;
    case 'l':
    case 'q':
        storeNumber<long>(value);
        break;
    case 'L':
    case 'Q':
        storeNumber<unsigned long>(value);
        break;
    case 'f':
        storeNumber<float>(value);
        break;
    case 'd':
        storeNumber<double>(value);
        break;
    case '*':
        storeText(value);
        break;
    case '^':
        require(value.is_null(), value);
        store(static_cast<void*>(nullptr));
        break;
    default:
        require(false, value);
    }
}

/// Whether a result of this type has a JSON form.
bool isAnswerable(std::string_view type) {
    constexpr std::string_view scalars = "v@#:BCcsSiIlLqQfd*";
    return structureOf(type) != nullptr ||
           (!type.empty() && scalars.find(type.front()) != std::string_view::npos);
}

Json Call::result() const {
    const std::string_view type = unqualified(signature_.returnType());
    Structure::Bytes bytes{};
    if (type.front() == 'v') {
        return nullptr;
    }
    invocation_.getReturnValue(bytes.data());
    if (const Structure* structure = structureOf(type)) {
        return structure->toJson(bytes);
    }
    const auto as = [&bytes]<class T>(T value) {
        std::memcpy(&value, bytes.data(), sizeof value);
        return value;
    };
    switch (type.front()) {
    case '@':
    case '#':
        return values_->toJson(objc::wrap(as(id{})));
    case ':': {
        const SEL name = as(SEL{});
        return name == nullptr ? Json() : Json{{"selector", sel_getName(name)}};
    }
    case '*': {
        const char* text = as(static_cast<const char*>(nullptr));
        return text == nullptr ? Json() : Json(text);
    }
    case 's':
        return as(short{});
    case 'S':
        return as(static_cast<unsigned short>(0));
    case 'i':
        return as(int{});
    case 'I':
        return as(0U);
    case 'l':
    case 'q':
        return as(0L);
    case 'L':
    case 'Q':
        return as(0UL);
    case 'f':
        return as(float{});
    case 'd':
        return as(double{});
    default:
        return as(static_cast<unsigned char>(0)) != 0;
    }
}

/// The method's signature; a block in it is seen as a pointer, because GNU libobjc ends the process
/// over the encoding of a block.
ns::MethodSignature signatureOf(objc::Object receiver, SEL name) {
    const Method method = class_getInstanceMethod(object_getClass(receiver.raw()), name);
    std::string types = method != nullptr ? method_getTypeEncoding(method) : "";
    constexpr std::string_view block = "@?";
    if (types.find(block) == std::string::npos) {
        return ns::MethodSignature::of(receiver, name);
    }
    for (std::size_t at = 0; (at = types.find(block, at)) != std::string::npos;) {
        types.replace(at, block.size(), "^v");
    }
    return ns::MethodSignature::withTypes(types.c_str());
}

ns::MethodSignature signatureFor(objc::Object receiver, const std::string& selector, SEL name) {
    const auto signature = signatureOf(receiver, name);
    if (!signature) {
        throw RequestError(std::string(object_getClassName(receiver.raw())) + " does not answer " +
                           selector);
    }
    if (std::ranges::count(variadic, selector) != 0) {
        throw RequestError(selector + " takes a list of any length, which cannot be passed");
    }
    if (!isAnswerable(unqualified(signature.returnType()))) {
        throw RequestError("the result of " + selector +
                           " has no JSON form: " + signature.returnType());
    }
    return signature;
}

/// The message with its arguments, to be sent to the receiver.
Call preparedCall(Values& values, objc::Object receiver, const std::string& selector,
                  const Json& arguments) {
    const SEL name = sel_registerName(selector.c_str());
    const auto signature = signatureFor(receiver, selector, name);
    constexpr unsigned long hidden = 2; // receiver and selector
    if (arguments.size() + hidden != signature.numberOfArguments()) {
        throw RequestError(selector + " takes " +
                           std::to_string(signature.numberOfArguments() - hidden) +
                           " arguments, not " + std::to_string(arguments.size()));
    }
    Call call(values, signature, name);
    for (const Json& argument : arguments) {
        call.add(argument);
    }
    return call;
}

/// As the platform's compiler tells: "init", a further word of the name or none, and underscores in
/// front of it.
bool isOfInitFamily(std::string_view selector) {
    constexpr std::string_view init = "init";
    selector.remove_prefix(std::min(selector.find_first_not_of('_'), selector.size()));
    return selector.starts_with(init) &&
           (selector.size() == init.size() ||
            std::islower(static_cast<unsigned char>(selector[init.size()])) == 0);
}

} // namespace

Json sendMessage(Values& values, objc::Object receiver, const std::string& selector,
                 const Json& arguments) {
    const Call call = preparedCall(values, receiver, selector, arguments);
    call.invoke(receiver);
    return call.result();
}

objc::Strong<objc::Object> makeObject(Values& values, Class cls, const std::string& selector,
                                      const Json& arguments) {
    if (!isOfInitFamily(selector)) {
        throw RequestError(selector + " does not initialise an object");
    }
    using Owned = objc::Strong<objc::Object>;
    auto allocated = Owned::adopt(objc::wrap(objc::object(cls)).send<"alloc", objc::Object>());
    const Call call = preparedCall(values, allocated, selector, arguments);
    if (!call.givesObject()) {
        throw RequestError(selector + " gives no object");
    }
    call.invoke(allocated.release()); // an initialiser owns its receiver
    return Owned::adopt(call.objectResult());
}

} // namespace desktop::host
