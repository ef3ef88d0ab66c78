// The strings that lie in the image, as Core Foundation lays them out: Linux's Foundation has no
// class for them.
#include "device/emulation/imports.hpp"

#include "bindings/foundation/range.hpp"
#include "bindings/objc/runtime.hpp"

namespace emulation {
namespace {

struct ConstantString {
    Class cls;
    int flags;
    const void* characters;
    long length;

    [[nodiscard]] char16_t unit(std::size_t index) const {
        constexpr int hasWideUnits = 0x10;
        return (flags & hasWideUnits) != 0
                   ? static_cast<const char16_t*>(characters)[index]
                   : static_cast<char16_t>(static_cast<const unsigned char*>(characters)[index]);
    }
};

unsigned long length(const ConstantString* self, SEL) {
    return static_cast<unsigned long>(self->length);
}
char16_t characterAt(const ConstantString* self, SEL, unsigned long index) {
    return self->unit(index);
}
void characters(const ConstantString* self, SEL, char16_t* units, ns::Range range) {
    for (std::size_t i = 0; i < range.length; ++i) {
        units[i] = self->unit(range.location + i);
    }
}

// It is always there, and nothing counts who holds it.

id same(id self, SEL) { return self; }
id sameForZone(id self, SEL, void*) { return self; }
void nothing(id, SEL) {}
unsigned long endless(id, SEL) { return ~0UL; }

void* classOfConstantStrings() {
    const Class cls = objc_allocateClassPair(objc_getClass("NSString"), "ConstantString", 0);
    const auto add = [cls](const char* name, auto* function, const char* types) {
        class_addMethod(cls, sel_registerName(name), reinterpret_cast<IMP>(function), types);
    };
    add("length", &length, "Q@:");
    add("characterAtIndex:", &characterAt, "S@:Q");
    add("getCharacters:range:", &characters, "v@:^S{_NSRange=QQ}");
    add("retain", &same, "@@:");
    add("autorelease", &same, "@@:");
    add("release", &nothing, "v@:");
    add("retainCount", &endless, "Q@:");
    add("copyWithZone:", &sameForZone, "@@:^v");
    objc_registerClassPair(cls);
    return static_cast<void*>(cls);
}

} // namespace

std::vector<Translation> constantTranslations() {
    return {{"___CFConstantStringClassReference", classOfConstantStrings()}};
}

} // namespace emulation
