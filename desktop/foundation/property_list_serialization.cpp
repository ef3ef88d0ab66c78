// One writer for each format, and a second try for the reader.
#include "desktop/foundation/property_list_serialization.hpp"

#include "desktop/foundation/binary_property_list.hpp"
#include "desktop/foundation/error_encoding.hpp"
#include "desktop/foundation/old_property_list.hpp"
#include "desktop/foundation/property_list.hpp"
#include "desktop/foundation/property_list_nesting.hpp"
#include "desktop/foundation/text_property_list.hpp"
#include "desktop/foundation/xml_property_list.hpp"

#include "bindings/foundation/error.hpp"
#include "bindings/foundation/property_list_serialization.hpp"
#include "bindings/objc/hook.hpp"

/// Where a format is to be stored.
template <>
struct objc::Encoding<ns::PropertyListFormat*> {
    static constexpr Literal value = "^Q";
};

namespace desktop::foundation {
namespace {

using namespace ns::literals;

using ListWriter = objc::Next<ns::Data(objc::Object, ns::PropertyListFormat, unsigned long, id*)>;
ns::Data write(ListWriter next, objc::Object, objc::Object list, ns::PropertyListFormat format,
               unsigned long options, id* error) {
    const objc::Object copy = propertyListCopy(list);
    if (copy && format == ns::PropertyListFormat::xml) {
        return ns::Data::from(xmlPropertyList(copy));
    }
    if (copy && format == ns::PropertyListFormat::binary) {
        return ns::Data::from(binaryPropertyList(copy));
    }
    return next(list, format, options, error);
}

using ListReader = objc::Next<objc::Object(ns::Data, unsigned long, ns::PropertyListFormat*, id*)>;

objc::Object refused(id* error) {
    constexpr long corrupt = 3840; // NSPropertyListReadCorruptError
    if (error != nullptr) {
        *error = ns::Error::with(u"NSCocoaErrorDomain"_ns, corrupt).raw();
    }
    return nullptr;
}

objc::Object readOld(std::string_view text, ns::PropertyListFormat* format, id* error) {
    const objc::Object list = oldPropertyList(text);
    if (list && format != nullptr) {
        *format = ns::PropertyListFormat::openStep;
    }
    return list ? list : refused(error);
}

/// GNUstep overflows the stack where lists are nested deeply.
objc::Object readList(ListReader next, objc::Object, ns::Data data, unsigned long options,
                      ns::PropertyListFormat* format, id* error) {
    const std::string_view bytes = data.bytes();
    const bool isText = !bytes.starts_with("bplist");
    const std::string text = isText ? inUtf8(bytes) : std::string();
    if (isNestedTooDeeply(isText ? text : bytes)) {
        return refused(error);
    }
    if (isText && !text.empty() && !isXml(text)) {
        return readOld(text, format, error);
    }
    const objc::Object list = next(data, options, format, error);
    return list || text.empty() ? list
                                : next(ns::Data::from(usualXml(text)), options, format, error);
}

} // namespace

void installPropertyListSerialization() {
    objc::install(objc::classHook<"NSPropertyListSerialization",
                                  "dataWithPropertyList:format:options:error:", &write>());
    objc::install(objc::classHook<"NSPropertyListSerialization",
                                  "propertyListWithData:options:format:error:", &readList>());
}

} // namespace desktop::foundation
