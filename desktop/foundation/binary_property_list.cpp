// Numbers the objects first, and writes them once the size of a number is known.
#include "desktop/foundation/binary_property_list.hpp"

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/data.hpp"
#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/number.hpp"
#include "bindings/foundation/run_loop.hpp"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <limits>
#include <unordered_map>
#include <vector>

namespace desktop::foundation {
namespace {

/// The kinds of object, as they stand in the upper half of a marker.
enum class Marker : unsigned {
    simple = 0x0,
    integer = 0x1,
    real = 0x2,
    date = 0x3,
    data = 0x4,
    ascii = 0x5,
    utf16 = 0x6,
    array = 0xA,
    dictionary = 0xD,
};

/// The lowest bytes of a number, most significant first.
std::string bigEndian(std::uint64_t number, std::size_t size) {
    std::string bytes(size, '\0');
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte, number >>= 8U) {
        *byte = static_cast<char>(number & 0xFFU);
    }
    return bytes;
}

/// How many bytes a number takes: 1, 2, 4 or 8.
std::size_t sizeOf(std::uint64_t number) {
    return number < 0x100 ? 1 : number < 0x10000 ? 2 : number < 0x100000000 ? 4 : 8;
}

std::string marker(Marker kind, std::uint64_t low) {
    return {static_cast<char>(static_cast<unsigned>(kind) << 4U | low)};
}

/// A size that is a power of two is told by its exponent.
std::string number(Marker kind, std::uint64_t bits, std::size_t size) {
    return marker(kind, static_cast<unsigned>(std::countr_zero(size))) + bigEndian(bits, size);
}

/// A marker with the count in it, or after it from 15 on.
std::string head(Marker kind, std::size_t count) {
    constexpr std::size_t follows = 15;
    return count < follows ? marker(kind, count)
                           : marker(kind, follows) + number(Marker::integer, count, sizeOf(count));
}

std::string signedInteger(long long value) {
    const auto bits = static_cast<std::uint64_t>(value);
    return number(Marker::integer, bits, value < 0 ? sizeof bits : sizeOf(bits));
}

/// Eight bytes are signed, so that the upper half of the unsigned numbers takes sixteen.
std::string unsignedInteger(unsigned long long value) {
    if (value > static_cast<unsigned long long>(std::numeric_limits<long long>::max())) {
        return marker(Marker::integer, 4) + bigEndian(0, sizeof value) +
               bigEndian(value, sizeof value);
    }
    return number(Marker::integer, value, sizeOf(value));
}

std::string numberObject(ns::Number value) {
    constexpr std::uint64_t no = 8;
    constexpr std::uint64_t yes = 9;
    switch (*value.type()) {
    case 'c': // the platform's BOOL
    case 'C':
    case 'B':
        return marker(Marker::simple, value.boolValue() ? yes : no);
    case 'f':
        return number(Marker::real, std::bit_cast<std::uint32_t>(value.floatValue()),
                      sizeof(float));
    case 'd':
        return number(Marker::real, std::bit_cast<std::uint64_t>(value.doubleValue()),
                      sizeof(double));
    case 'Q':
    case 'L':
        return unsignedInteger(value.unsignedValue());
    default:
        return signedInteger(value.integerValue());
    }
}

std::string dateObject(ns::Date date) {
    constexpr double from1970To2001 = 978307200;
    return number(Marker::date,
                  std::bit_cast<std::uint64_t>(date.timeIntervalSince1970() - from1970To2001),
                  sizeof(double));
}

std::string dataObject(ns::Data data) {
    return head(Marker::data, data.length()).append(data.bytes());
}

std::string textObject(std::u16string_view text) {
    if (std::ranges::all_of(text, [](char16_t unit) { return unit < 0x80; })) {
        return head(Marker::ascii, text.size()) + std::string(text.begin(), text.end());
    }
    std::string object = head(Marker::utf16, text.size());
    for (const char16_t unit : text) {
        object += bigEndian(unit, sizeof unit);
    }
    return object;
}

class BinaryWriter {
public:
    std::string write(objc::Object list) {
        add(list);
        std::string bytes = "bplist00";
        std::vector<std::size_t> offsets;
        for (const Object& object : objects_) {
            offsets.push_back(bytes.size());
            bytes += object.bytes + numbers(object.contents, sizeOf(objects_.size()));
        }
        const std::size_t table = bytes.size();
        return bytes + numbers(offsets, sizeOf(table)) + trailer(table);
    }

private:
    /// What stands in the file, the numbers of what a container holds being still open.
    struct Object {
        std::string bytes;
        std::vector<std::size_t> contents;
    };

    static std::string numbers(const std::vector<std::size_t>& values, std::size_t size) {
        std::string bytes;
        for (const std::size_t value : values) {
            bytes += bigEndian(value, size);
        }
        return bytes;
    }

    [[nodiscard]] std::string trailer(std::size_t table) const {
        constexpr std::size_t unused = 6;
        return bigEndian(0, unused) + bigEndian(sizeOf(table), 1) +
               bigEndian(sizeOf(objects_.size()), 1) + bigEndian(objects_.size(), 8) +
               bigEndian(0, 8) + bigEndian(table, 8);
    }

    std::size_t add(std::string bytes) {
        objects_.push_back({std::move(bytes), {}});
        return objects_.size() - 1;
    }

    /// Adds the object with all that is in it, and gives its number.
    std::size_t add(objc::Object value) {
        if (const auto dictionary = value.as<ns::Dictionary>(); dictionary) {
            return addDictionary(dictionary);
        }
        if (const auto array = value.as<ns::Array>(); array) {
            return addArray(array);
        }
        if (const auto text = value.as<ns::String>(); text) {
            return addText(text.utf16());
        }
        if (const auto data = value.as<ns::Data>(); data) {
            return add(dataObject(data));
        }
        if (const auto date = value.as<ns::Date>(); date) {
            return add(dateObject(date));
        }
        return add(numberObject(value.assume<ns::Number>()));
    }

    std::size_t addText(std::u16string text) {
        const auto [known, isNew] = texts_.try_emplace(std::move(text), objects_.size());
        return isNew ? add(textObject(known->first)) : known->second;
    }

    std::size_t addArray(ns::Array array) {
        const std::size_t number = add(head(Marker::array, array.count()));
        std::vector<std::size_t> contents;
        for (const objc::Object value : array) {
            contents.push_back(add(value));
        }
        objects_[number].contents = std::move(contents);
        return number;
    }

    std::size_t addDictionary(ns::Dictionary dictionary) {
        const std::size_t number = add(head(Marker::dictionary, dictionary.count()));
        std::vector<std::size_t> contents; // the keys, then the values
        for (const objc::Object key : dictionary.allKeys()) {
            contents.push_back(add(key));
        }
        for (const objc::Object key : dictionary.allKeys()) {
            contents.push_back(add(dictionary.get(key)));
        }
        objects_[number].contents = std::move(contents);
        return number;
    }

    std::vector<Object> objects_;
    std::unordered_map<std::u16string, std::size_t> texts_;
};

} // namespace

std::string binaryPropertyList(objc::Object list) { return BinaryWriter().write(list); }

} // namespace desktop::foundation
