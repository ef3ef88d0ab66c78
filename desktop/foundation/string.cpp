// What GNUstep would refuse or change goes around its converter.
#include "desktop/foundation/string.hpp"

#include "desktop/foundation/error_encoding.hpp"

#include "bindings/foundation/string.hpp"
#include "bindings/objc/hook.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/foundation/string_contents.hpp"
#include "desktop/foundation/text.hpp"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace desktop::foundation {
namespace {

bool beginsWithMark(std::u16string_view text) {
    return text.starts_with(u'\uFEFF') || text.starts_with(u'\uFFFE');
}

/// A string of one unit of any kind, cut out of one that GNUstep makes.
ns::String single(char16_t unit) {
    constexpr ns::Range first{0, 1};
    constexpr ns::Range second{1, 1};
    const bool isFirst = isHighSurrogate(unit);
    const std::u16string pair = isFirst                ? std::u16string{unit, 0xDC00}
                                : isLowSurrogate(unit) ? std::u16string{0xD800, unit}
                                                       : std::u16string{u'x', unit};
    return ns::String::from(pair).send<"substringWithRange:", ns::String>(isFirst ? first : second);
}

/// Puts the text together of parts that GNUstep makes.
void append(std::u16string_view text, ns::MutableString whole) {
    while (!text.empty()) {
        const std::size_t length = beginsWithMark(text) ? 0 : wellFormedLength(text);
        const ns::String part =
            length > 0 ? ns::String::from(text.substr(0, length)) : single(text[0]);
        whole.append(part);
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
}

using StringMaker = objc::Next<ns::String(const char16_t*, unsigned long)>;
ns::String make(StringMaker next, ns::String self, const char16_t* units, unsigned long length) {
    const std::u16string_view text(units, length);
    if (isWellFormed(text) && !beginsWithMark(text)) {
        return next(units, length);
    }
    const objc::Pool pool;
    if (const auto empty = self.as<ns::MutableString>(); empty) {
        const auto whole = empty.send<"init", ns::MutableString>();
        append(text, whole);
        return whole;
    }
    const auto whole = ns::MutableString::make<"init">();
    append(text, whole);
    self.send<"release">();
    return whole.send<"copy", ns::String>();
}

constexpr unsigned utf8 = 4;
constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
constexpr unsigned utf16BigEndian = 0x90000100; // encodings are half as wide in GNUstep

std::u16string fromBigEndian(std::string_view pairs) {
    std::u16string text;
    text.reserve(pairs.size() / 2);
    for (std::size_t at = 0; at < pairs.size(); at += 2) {
        text += static_cast<char16_t>(static_cast<unsigned char>(pairs[at]) << 8 |
                                      static_cast<unsigned char>(pairs[at + 1]));
    }
    return text;
}

ns::String madeOf(std::u16string_view text, ns::String self) {
    return self.send<"initWithCharacters:length:", ns::String>(
        text.data(), static_cast<unsigned long>(text.size()));
}

/// UTF-8 of which GNUstep drops the first character; nil when it is malformed.
ns::String marked(std::string_view bytes, ns::String self) {
    const auto rest = ns::String::fromUtf8(bytes.substr(utf8Mark.size()));
    if (!rest) {
        self.send<"release">();
        return nullptr;
    }
    return madeOf(u"\uFEFF" + rest.utf16(), self);
}

/// The strings of binary property lists hold any units; GNUstep gives nil for some of them.
using Decoder = objc::Next<ns::String(const void*, unsigned long, unsigned)>;
ns::String decode(Decoder next, ns::String self, const void* start, unsigned long length,
                  unsigned encoding) {
    const std::string_view bytes(static_cast<const char*>(start), length);
    if (encoding == utf16BigEndian && length % 2 == 0) {
        return madeOf(fromBigEndian(bytes), self);
    }
    return encoding == utf8 && bytes.starts_with(utf8Mark) ? marked(bytes, self)
                                                           : next(start, length, encoding);
}

ns::String withoutMark(ns::String read) {
    if (!read || !beginsWithMark(read.utf16())) {
        return read;
    }
    if (read.as<ns::MutableString>()) {
        read.send<"deleteCharactersInRange:">(ns::Range{0, 1});
        return read;
    }
    const auto rest = read.send<"substringFromIndex:", ns::String>(1UL);
    read.send<"release">();
    return rest.send<"retain", ns::String>();
}

/// In a file the mark tells of the encoding and is no text.
using FileReader = objc::Next<ns::String(ns::String)>;
ns::String readFile(FileReader next, ns::String, ns::String path) {
    return withoutMark(next(path));
}

using EncodedFileReader = objc::Next<ns::String(ns::String, unsigned, id*)>;
ns::String readEncodedFile(EncodedFileReader next, ns::String, ns::String path, unsigned encoding,
                           id* error) {
    return withoutMark(next(path, encoding, error));
}

using Encoder = objc::Next<const char*()>;
const char* encode(Encoder next, ns::String self) {
    return isWellFormed(self.utf16()) ? next() : nullptr;
}

using Comparison = objc::Next<bool(objc::Object)>;
bool isEqualText(Comparison next, ns::String self, objc::Object other) {
    return next(other) && self.utf16() == other.as<ns::String>().utf16();
}

bool isEqual(Comparison next, UnicodeText self, objc::Object other) {
    const auto text = other.as<UnicodeText>();
    return text ? unitsOf(self) == unitsOf(text) : isEqualText(next, self, other);
}

} // namespace

void installStrings() {
    objc::install(objc::hook<"GSUnicodeString", "isEqual:", &isEqual>());
    objc::install(objc::hook<"GSUnicodeString", "isEqualToString:", &isEqual>());
    objc::install(objc::hook<"GSCString", "isEqualToString:", &isEqualText>());
    objc::install(objc::hook<"GSMutableString", "isEqualToString:", &isEqualText>());
    objc::install(objc::hook<"NSString", "initWithCharacters:length:", &make>());
    objc::install(objc::hook<"GSPlaceholderString", "initWithBytes:length:encoding:", &decode>());
    objc::install(objc::hook<"GSMutableString", "initWithBytes:length:encoding:", &decode>());
    objc::install(objc::hook<"NSString", "initWithContentsOfFile:", &readFile>());
    objc::install(
        objc::hook<"NSString", "initWithContentsOfFile:encoding:error:", &readEncodedFile>());
    objc::install(objc::hook<"GSUnicodeString", "UTF8String", &encode>());
    objc::install(objc::hook<"GSMutableString", "UTF8String", &encode>());
}

} // namespace desktop::foundation
