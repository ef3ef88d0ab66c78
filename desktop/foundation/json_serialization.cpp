// Looks at the nesting before GNUstep reads, which overflows the stack where it is deep.
#include "desktop/foundation/json_serialization.hpp"

#include "bindings/foundation/data.hpp"
#include "bindings/foundation/error.hpp"
#include "bindings/objc/hook.hpp"
#include "desktop/foundation/error_encoding.hpp"

namespace desktop::foundation {
namespace {

using namespace ns::literals;

/// Brackets outside of texts. What is no bracket and no quotation mark does not matter.
class OpenBrackets {
public:
    [[nodiscard]] std::size_t count() const { return count_; }

    void read(char character) {
        if (isEscaped_) {
            isEscaped_ = false;
        } else if (isInText_) {
            isEscaped_ = character == '\\';
            isInText_ = character != '"';
        } else {
            isInText_ = character == '"';
            count_ += character == '[' || character == '{' ? 1U : 0U;
            count_ -= (character == ']' || character == '}') && count_ > 0 ? 1U : 0U;
        }
    }

private:
    std::size_t count_ = 0;
    bool isInText_ = false;
    bool isEscaped_ = false;
};

using JsonReader = objc::Next<objc::Object(ns::Data, unsigned long, id*)>;
objc::Object readJson(JsonReader next, objc::Object, ns::Data data, unsigned long options,
                      id* error) {
    constexpr long corrupt = 3840; // NSPropertyListReadCorruptError, for JSON, too
    if (!isNestedTooDeeplyInJson(data.bytes())) {
        return next(data, options, error);
    }
    if (error != nullptr) {
        *error = ns::Error::with(u"NSCocoaErrorDomain"_ns, corrupt).raw();
    }
    return nullptr;
}

} // namespace

bool isNestedTooDeeplyInJson(std::string_view json) {
    constexpr std::size_t deepest = 512;
    OpenBrackets open;
    for (const char character : json) {
        if (character != '\0') { // half a unit, in UTF-16
            open.read(character);
        }
        if (open.count() > deepest) {
            return true;
        }
    }
    return false;
}

void installJsonSerialization() {
    objc::install(
        objc::classHook<"NSJSONSerialization", "JSONObjectWithData:options:error:", &readJson>());
}

} // namespace desktop::foundation
