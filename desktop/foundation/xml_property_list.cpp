// One element for each value.
#include "desktop/foundation/xml_property_list.hpp"

#include "desktop/foundation/text.hpp"

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/data.hpp"
#include "bindings/foundation/date.hpp"
#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/number.hpp"
#include "bindings/foundation/property_list_serialization.hpp"
#include "bindings/foundation/run_loop.hpp"

#include <array>
#include <charconv>
#include <cmath>
#include <ctime>
#include <map>

namespace desktop::foundation {
namespace {

std::string escaped(ns::String text) {
    std::string result;
    for (const char character : toUtf8(text)) {
        switch (character) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '\r': // a reader would make a line feed of it
            result += "&#13;";
            break;
        default:
            if (static_cast<unsigned char>(character) >= ' ' || character == '\t' ||
                character == '\n') {
                result += character;
            }
        }
    }
    return result;
}

std::string element(const std::string& name, const std::string& content) {
    return "<" + name + ">" + content + "</" + name + ">\n";
}

std::string numberElement(ns::Number number) {
    constexpr std::size_t longest = 64;
    std::array<char, longest> digits{};
    const auto text = [&digits](auto value) {
        return std::string(digits.data(),
                           std::to_chars(digits.data(), digits.data() + longest, value).ptr);
    };
    switch (*number.type()) {
    case 'c': // the platform's BOOL
    case 'C':
    case 'B':
        return number.boolValue() ? "<true/>\n" : "<false/>\n";
    case 'f':
    case 'd':
        return element("real", text(number.doubleValue()));
    case 'Q':
    case 'L':
        return element("integer", text(number.unsignedValue()));
    default:
        return element("integer", text(number.integerValue()));
    }
}

std::string dateElement(ns::Date date) {
    constexpr double latest = 2.5e11; // the end of the year 9999
    const double seconds = date.timeIntervalSince1970();
    const auto whole =
        static_cast<std::time_t>(std::abs(seconds) < latest ? std::floor(seconds) : 0);
    std::tm parts{};
    gmtime_r(&whole, &parts);
    constexpr std::size_t longest = 32;
    std::array<char, longest> text{};
    const std::size_t length =
        std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%SZ", &parts);
    return element("date", {text.data(), length});
}

std::string valueElement(objc::Object value, const std::string& indent);

std::string dictionaryElement(ns::Dictionary dictionary, const std::string& indent) {
    std::map<std::string, objc::Object> entries;
    for (const objc::Object key : dictionary.allKeys()) {
        entries.emplace(escaped(key.assume<ns::String>()), dictionary.get(key));
    }
    std::string content = "<dict>\n";
    for (const auto& [key, value] : entries) {
        content += indent + "\t" + element("key", key);
        content += valueElement(value, indent + "\t");
    }
    return content + indent + "</dict>\n";
}

std::string arrayElement(ns::Array array, const std::string& indent) {
    std::string content = "<array>\n";
    for (const objc::Object value : array) {
        content += valueElement(value, indent + "\t");
    }
    return content + indent + "</array>\n";
}

std::string valueElement(objc::Object value, const std::string& indent) {
    if (const auto dictionary = value.as<ns::Dictionary>(); dictionary) {
        return indent + dictionaryElement(dictionary, indent);
    }
    if (const auto array = value.as<ns::Array>(); array) {
        return indent + arrayElement(array, indent);
    }
    if (const auto text = value.as<ns::String>(); text) {
        return indent + element("string", escaped(text));
    }
    if (const auto data = value.as<ns::Data>(); data) {
        return indent + element("data", data.base64().utf8());
    }
    if (const auto date = value.as<ns::Date>(); date) {
        return indent + dateElement(date);
    }
    return indent + numberElement(value.assume<ns::Number>());
}

} // namespace

std::string xmlPropertyList(objc::Object list) {
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
)" + valueElement(list, "") +
           "</plist>\n";
}

} // namespace desktop::foundation
