// Building an invocation from JSON.
#include "desktop/host/message.hpp"

#include "bindings/foundation/invocation.hpp"
#include "bindings/foundation/method_signature.hpp"
#include "bindings/foundation/set.hpp"
#include "desktop/host/argument_classes.hpp"
#include "desktop/host/performed_message.hpp"
#include "desktop/host/structure.hpp"
#include "desktop/host/unsendable.hpp"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <deque>
#include <limits>
#include <string_view>

namespace desktop::host {
namespace {

/// The encoding without the qualifiers in front of it.
std::string_view unqualified(std::string_view type) {
    type.remove_prefix(std::min(type.find_first_not_of("rnNoORVA"), type.size()));
    return type;
}

bool isObjectType(std::string_view type) {
    type = unqualified(type);
    return type.starts_with('@') || type.starts_with('#');
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

constexpr std::size_t hidden = 2; // receiver and selector

/// An invocation whose arguments are given one after the other.
class Call {
public:
    Call(Values& values, ns::MethodSignature signature, SEL name,
         std::vector<DeclaredClass> classes)
        : values_(&values), signature_(signature), invocation_(ns::Invocation::with(signature)),
          name_(name), classes_(std::move(classes)) {
        invocation_.setSelector(name);
    }

    void add(const Json& value) {
        const std::string_view type = unqualified(declaredType());
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
    /// Whether what `performSelector:` gives for it is an object.
    [[nodiscard]] bool givesObjectToPerformer() const {
        return isObjectType(signature_.returnType());
    }
    /// Whether it can be performed with a selector: arguments are objects then, and the caller has
    /// no room for a structure.
    [[nodiscard]] bool isPerformable() const {
        for (unsigned long index = hidden; index < signature_.numberOfArguments(); ++index) {
            if (!isObjectType(signature_.argumentType(index))) {
                return false;
            }
        }
        return !unqualified(signature_.returnType()).starts_with('{');
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

    /// With qualifiers.
    [[nodiscard]] std::string_view declaredType() const {
        return signature_.argumentType(static_cast<unsigned long>(index_));
    }

    template <class T>
    void storeNumber(const Json& value) {
        if constexpr (std::is_floating_point_v<T>) {
            require(value.is_number(), value);
        } else {
            require(fits<T>(value), value);
        }
        if constexpr (std::is_unsigned_v<T>) {
            require(!hasNull_ || value == 0, value); // it counts what is behind the null pointer
        }
        store(value.get<T>());
    }

    void storeObject(const Json& value) {
        const objc::Object object = values_->toObject(value);
        const auto place = static_cast<std::size_t>(index_) - hidden;
        if (place < classes_.size() && !isOf(object, classes_[place])) {
            const auto& [name, elements] = classes_[place];
            refuse(value, "it must be of the class " + std::string(name) +
                              (elements.empty() ? "" : ", with " + std::string(elements)));
        }
        store(object.raw());
    }

    void storeText(const Json& value) {
        if (!declaredType().starts_with('r')) {
            refuse(value, "the method writes to it");
        }
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
            refuse(value, "its type is " + std::string(declaredType()));
        }
    }
    [[noreturn]] void refuse(const Json& value, const std::string& why) const {
        throw RequestError("argument " + std::to_string(index_ - 1) + " cannot be " +
                           written(value) + " (" + why + ")");
    }

    Values* values_;
    ns::MethodSignature signature_;
    ns::Invocation invocation_;
    SEL name_;
    std::vector<DeclaredClass> classes_;
    std::deque<std::string> texts_; // lent to the method
    bool hasNull_ = false;          // among the pointers so far
    long index_ = hidden;
};

void Call::addScalar(std::string_view type, const Json& value) {
    switch (type.empty() ? '\0' : type.front()) {
    case '@':
        storeObject(value);
        break;
    case '#':
        store(value.is_null() ? nullptr : values_->toClass(value));
        break;
    case ':':
        // An action may be missing, a selector that is to be sent or looked up may not.
        require(!value.is_null() ||
                    std::string_view(sel_getName(name_)).find("elector") == std::string_view::npos,
                value);
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
        if (std::string_view(sel_getName(name_)).starts_with("get")) {
            refuse(value, "the method writes to it");
        }
        require(value.is_null(), value);
        hasNull_ = true;
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

void requireSendable(const std::string& selector) {
    if (const auto why = whyUnsendable(selector)) {
        throw RequestError(selector + " " + *why);
    }
}

ns::MethodSignature signatureFor(objc::Object receiver, const std::string& selector, SEL name) {
    const auto signature = signatureOf(receiver, name);
    if (!signature) {
        throw RequestError(std::string(object_getClassName(receiver.raw())) + " does not answer " +
                           selector);
    }
    requireSendable(selector);
    // A class answers "new", an object "init".
    const Class cls = selector == "new" ? reinterpret_cast<Class>(receiver.raw())
                                        : object_getClass(receiver.raw());
    if ((selector == "new" || selector == "init") && needsAnInitialiserOfItsOwn(cls)) {
        throw RequestError(std::string(class_getName(cls)) + " has initialisers of its own");
    }
    if (!isAnswerable(unqualified(signature.returnType()))) {
        throw RequestError("the result of " + selector +
                           " has no JSON form: " + signature.returnType());
    }
    return signature;
}

/// An invocation looks at a result that is declared to be an object, even if nobody asks for it.
enum class Result { asDeclared, ignored };

ns::MethodSignature withoutResult(ns::MethodSignature signature) {
    std::string types = "v";
    for (unsigned long index = 0; index < signature.numberOfArguments(); ++index) {
        types += signature.argumentType(index);
    }
    return ns::MethodSignature::withTypes(types.c_str());
}

/// The message with its arguments, to be sent to the receiver.
Call preparedCall(Values& values, objc::Object receiver, const std::string& selector,
                  const Json& arguments, Result result = Result::asDeclared) {
    const SEL name = sel_registerName(selector.c_str());
    auto signature = signatureFor(receiver, selector, name);
    if (result == Result::ignored) {
        signature = withoutResult(signature);
    }
    if (arguments.size() + hidden != signature.numberOfArguments()) {
        throw RequestError(selector + " takes " +
                           std::to_string(signature.numberOfArguments() - hidden) +
                           " arguments, not " + std::to_string(arguments.size()));
    }
    Call call(values, signature, name, argumentClasses(receiver, selector, arguments));
    for (const Json& argument : arguments) {
        call.add(argument);
    }
    return call;
}

/// As the platform's compiler tells: that word, a further one or none, and underscores in front.
bool isOfFamily(std::string_view selector, std::string_view family) {
    selector.remove_prefix(std::min(selector.find_first_not_of('_'), selector.size()));
    return selector.starts_with(family) &&
           (selector.size() == family.size() ||
            std::islower(static_cast<unsigned char>(selector[family.size()])) == 0);
}

void requireInitialiser(const std::string& selector) {
    if (!isOfFamily(selector, "init")) {
        throw RequestError(selector + " does not initialise an object");
    }
}

/// `giveUp` gives the allocated object up to the initialiser, which owns it.
template <class GiveUp>
objc::Strong<objc::Object> initialised(Values& values, objc::Object allocated,
                                       const std::string& selector, const Json& arguments,
                                       GiveUp giveUp) {
    requireInitialiser(selector);
    const Call call = preparedCall(values, allocated, selector, arguments);
    if (!call.givesObject()) {
        throw RequestError(selector + " gives no object");
    }
    call.invoke(giveUp());
    return objc::Strong<objc::Object>::adopt(call.objectResult());
}

/// Initialisers are for what is allocated, and an object gets only one.
void requireNoInitialiser(const std::string& selector) {
    if (isOfFamily(selector, "init")) {
        throw RequestError(selector + " is for an object that is not initialised");
    }
}

void requireReadable(const std::string& key) {
    requireNoInitialiser(key);
    requireSendable(key);
}

/// Throws RequestError unless the receiver can perform it; whether that gives an object.
bool checkPerformed(Values& values, objc::Object receiver, const PerformedMessage& message) {
    if (message.selector.empty()) {
        throw RequestError("no selector is given to perform");
    }
    requireNoInitialiser(message.selector);
    const auto taken =
        static_cast<std::size_t>(std::ranges::count(message.selector, ':')); // others are ignored
    Json arguments = message.arguments;
    while (arguments.size() > taken) {
        arguments.erase(arguments.size() - 1);
    }
    const Call call = preparedCall(values, receiver, message.selector, arguments);
    if (!call.isPerformable()) {
        throw RequestError(message.selector + " cannot be performed with objects alone");
    }
    return call.givesObjectToPerformer();
}

/// The same for the receiver's elements, if they are to perform it.
bool checkPerformed(Values& values, objc::Object receiver, const std::string& selector,
                    const PerformedMessage& message) {
    if (!isPerformedByElements(selector)) {
        return checkPerformed(values, receiver, message);
    }
    const auto set = receiver.as<ns::Set>();
    for (const objc::Object element : set ? set.allObjects() : receiver.as<ns::Array>()) {
        checkPerformed(values, element, message);
    }
    return false;
}

} // namespace

Json sendMessage(Values& values, objc::Object receiver, const std::string& selector,
                 const Json& arguments, ObjectForm form) {
    requireNoInitialiser(selector);
    std::ranges::for_each(keysRead(selector, arguments), &requireReadable);
    const auto performed = performedMessage(selector, arguments);
    const bool isAnObject = !performed || checkPerformed(values, receiver, selector, *performed);
    const Call call = preparedCall(values, receiver, selector, arguments,
                                   isAnObject ? Result::asDeclared : Result::ignored);
    call.invoke(receiver);
    if (!call.givesObject()) {
        return call.result();
    }
    return isOfFamily(performed ? performed->selector : selector, "alloc")
               ? values.allocated(call.objectResult())
               : values.toJson(call.objectResult(), form);
}

objc::Strong<objc::Object> makeObject(Values& values, Class cls, const std::string& selector,
                                      const Json& arguments) {
    requireInitialiser(selector);
    // Not released when it is refused: what is not initialised cannot be deallocated either.
    const auto allocated = objc::wrap(objc::object(cls)).send<"alloc", objc::Object>();
    return initialised(values, allocated, selector, arguments, [allocated] { return allocated; });
}

Json initialise(Values& values, std::uint64_t number, const std::string& selector,
                const Json& arguments, ObjectForm form) {
    Handles& handles = values.handles();
    const auto made = initialised(values, handles.allocated(number), selector, arguments,
                                  [&] { return handles.releaseAllocated(number); });
    handles.setInitialised(number, made);
    return values.toJson(made, form);
}

} // namespace desktop::host
