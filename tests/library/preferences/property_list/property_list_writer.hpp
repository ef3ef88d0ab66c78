// Writes property lists of both forms for tests and measurements.
#pragma once

#include "library/common/text_encoding.hpp"

#include <bit>
#include <charconv>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace wentra::preferences {

/// A value to be written; text is UTF-8.
using WrittenValue = std::variant<bool, std::int64_t, double, std::string>;
using WrittenEntries = std::vector<std::pair<std::string, WrittenValue>>;

template <typename... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <class... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

/// The document around the content of the top dictionary.
inline std::string xmlDocument(const std::string& content) {
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>
)" + content +
           "</dict>\n</plist>\n";
}

/// Texts and keys must not need escaping.
inline std::string xmlPropertyList(const WrittenEntries& entries) {
    const Overloaded element{
        [](bool on) { return std::string(on ? "<true/>" : "<false/>"); },
        [](std::int64_t number) { return "<integer>" + std::to_string(number) + "</integer>"; },
        [](double number) {
            std::string digits(32, '\0');
            char* begin = digits.data();
            digits.resize(static_cast<std::size_t>(
                std::to_chars(begin, begin + digits.size(), number).ptr - begin));
            return "<real>" + digits + "</real>";
        },
        [](const std::string& text) { return "<string>" + text + "</string>"; },
    };
    std::string content;
    for (const auto& [key, value] : entries) {
        content += "\t<key>" + key + "</key>\n\t" + std::visit(element, value) + "\n";
    }
    return xmlDocument(content);
}

/// The `size` lowest bytes of a number, most significant first.
inline std::string bigEndianBytes(std::uint64_t number, std::size_t size) {
    std::string bytes;
    for (std::size_t index = size; index-- > 0;) {
        bytes.push_back(static_cast<char>(number >> (8 * index)));
    }
    return bytes;
}

/// A marker with the count inside or, from 15 on, after it.
inline std::string binaryHead(unsigned type, std::size_t count) {
    const auto marker = [](unsigned high, std::size_t low) {
        return std::string(1, static_cast<char>(high << 4 | low));
    };
    if (count < 15) {
        return marker(type, count);
    }
    return marker(type, 15) + marker(0x1, 2) + bigEndianBytes(count, 4);
}

inline std::string binaryText(const std::string& utf8) {
    if (isAscii(utf8)) {
        return binaryHead(0x5, utf8.size()) + utf8;
    }
    const std::u16string text = utf16FromUtf8(utf8);
    return binaryHead(0x6, text.size()) + bigEndianUtf16(text);
}

inline std::string binaryObject(const WrittenValue& value) {
    return std::visit(
        Overloaded{
            [](bool on) { return std::string(1, on ? '\x09' : '\x08'); },
            [](std::int64_t number) {
                return binaryHead(0x1, 3) + bigEndianBytes(static_cast<std::uint64_t>(number), 8);
            },
            [](double number) {
                return binaryHead(0x2, 3) + bigEndianBytes(std::bit_cast<std::uint64_t>(number), 8);
            },
            [](const std::string& text) { return binaryText(text); },
        },
        value);
}

/// The file made of finished objects.
inline std::string binaryFile(const std::vector<std::string>& objects, std::uint64_t topObject,
                              std::size_t offsetSize = 2, std::size_t referenceSize = 2) {
    std::string file = "bplist00";
    std::string table;
    for (const std::string& object : objects) {
        table += bigEndianBytes(file.size(), offsetSize);
        file += object;
    }
    const std::size_t tableStart = file.size();
    return file + table + bigEndianBytes(offsetSize, 7) + bigEndianBytes(referenceSize, 1) +
           bigEndianBytes(objects.size(), 8) + bigEndianBytes(topObject, 8) +
           bigEndianBytes(tableStart, 8);
}

/// The top dictionary is object 0; equal values are one object, as usual in such files.
inline std::string binaryPropertyList(const WrittenEntries& entries, std::size_t offsetSize = 2,
                                      std::size_t referenceSize = 2) {
    std::string keyReferences;
    std::string valueReferences;
    std::vector<std::string> objects(1);
    std::map<std::string, std::size_t> places;
    const auto reference = [&](const std::string& object) {
        const auto [place, added] = places.try_emplace(object, objects.size());
        if (added) {
            objects.push_back(object);
        }
        return bigEndianBytes(place->second, referenceSize);
    };
    for (const auto& [key, value] : entries) {
        keyReferences += reference(binaryText(key));
        valueReferences += reference(binaryObject(value));
    }
    objects[0] = binaryHead(0xD, entries.size()) + keyReferences + valueReferences;
    return binaryFile(objects, 0, offsetSize, referenceSize);
}

} // namespace wentra::preferences
