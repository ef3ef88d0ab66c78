// One writer for each format, and a second try for the reader.
#include "desktop/foundation/property_list_serialization.hpp"

#include "desktop/foundation/binary_property_list.hpp"
#include "desktop/foundation/property_list.hpp"
#include "desktop/foundation/text_property_list.hpp"
#include "desktop/foundation/xml_property_list.hpp"

#include "bindings/foundation/property_list_serialization.hpp"
#include "bindings/objc/hook.hpp"

/// Where an error is to be stored.
template <>
struct objc::Encoding<id*> {
    static constexpr Literal value = "^@";
};

/// Where a format is to be stored.
template <>
struct objc::Encoding<ns::PropertyListFormat*> {
    static constexpr Literal value = "^Q";
};

namespace desktop::foundation {
namespace {

using Writer = objc::Next<ns::Data(objc::Object, ns::PropertyListFormat, unsigned long, id*)>;
ns::Data write(Writer next, objc::Object, objc::Object list, ns::PropertyListFormat format,
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

using Reader = objc::Next<objc::Object(ns::Data, unsigned long, ns::PropertyListFormat*, id*)>;
objc::Object read(Reader next, objc::Object, ns::Data data, unsigned long options,
                  ns::PropertyListFormat* format, id* error) {
    const objc::Object list = next(data, options, format, error);
    if (list || data.length() == 0) {
        return list;
    }
    const std::string_view bytes(static_cast<const char*>(data.send<"bytes", const void*>()),
                                 data.length());
    return bytes.starts_with("bplist")
               ? nullptr
               : next(ns::Data::from(usualForm(bytes)), options, format, error);
}

} // namespace

void installPropertyListSerialization() {
    objc::install(objc::classHook<"NSPropertyListSerialization",
                                  "dataWithPropertyList:format:options:error:", &write>());
    objc::install(objc::classHook<"NSPropertyListSerialization",
                                  "propertyListWithData:options:format:error:", &read>());
}

} // namespace desktop::foundation
