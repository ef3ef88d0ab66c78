// From the account list to the numbers.
#include "library/utilities/phone_numbers/phone_numbers.hpp"

#include "bindings/foundation/log.hpp"
#include "bindings/foundation/property_list_serialization.hpp"
#include "library/common/text_encoding.hpp"
#include "library/utilities/documents.hpp"
#include "library/utilities/phone_numbers/long_numbers.hpp"

namespace wentra::utilities {
namespace {

constexpr DocumentFile accounts{"/var/mobile/Library/Preferences/com.apple.itunescloud.plist"};
constexpr DocumentFile accountsInXml{"/var/mobile/Documents/All_phonenumber_parsing.plist"};
constexpr DocumentFile numberFile{"/var/mobile/Documents/A手机号码.txt"};

void log(ns::Error error) { ns::log(ns::description(error).utf8()); }

/// The list as XML, written to a file of its own when it is not XML yet; nil when it is none.
ns::Data inXml(ns::Data data) {
    auto format = ns::PropertyListFormat::xml;
    const auto [list, unreadable] = ns::PropertyListSerialization::propertyList(data, &format);
    if (unreadable) {
        log(unreadable);
        return nullptr;
    }
    if (format == ns::PropertyListFormat::xml) {
        return data;
    }
    const auto [xml, unwritable] =
        ns::PropertyListSerialization::data(list, ns::PropertyListFormat::xml);
    if (unwritable) {
        log(unwritable);
        return nullptr;
    }
    static_cast<void>(accountsInXml.write(xml.bytes()));
    return xml;
}

std::u16string linesOf(std::u16string_view text) {
    std::u16string lines;
    for (const std::u16string_view number : longNumbers(text)) {
        lines.append(number).append(u"\n");
    }
    return lines;
}

} // namespace

void PhoneNumbers::extract() {
    const auto data = ns::Data::withContentsOfFile(accounts.name());
    const ns::Data xml = data ? inXml(data) : ns::Data();
    if (data && !xml) {
        return;
    }
    const std::string_view bytes = xml.bytes();
    const std::u16string lines = linesOf(isUtf8(bytes) ? utf16FromUtf8(bytes) : u"");
    if (const ns::Error error = numberFile.write(utf8FromUtf16(lines)); error) {
        ns::log("写入文件错误: " + ns::description(error).utf8());
    }
    screens_.share(ns::String::from(lines));
}

} // namespace wentra::utilities
