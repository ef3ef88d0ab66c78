// A property list seen as the entries of its top dictionary, handed over one after the other.
#pragma once

#include "library/common/text_encoding.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace wentra::preferences {

/// A value of the top dictionary. A text refers to the bytes it was read from and is worked out
/// later, as most texts are never asked for. Small enough to travel in two registers.
class Value {
public:
    enum class Kind : unsigned char {
        none,        ///< absent, or of a kind no preference has: array, dictionary, data, date
        number,      ///< a boolean (0 or 1), an integer or a real
        utf8Text,    ///< text as it stands
        escapedText, ///< UTF-8 with XML's references and CDATA sections
        slashedText, ///< UTF-8 with the backslashes of old property lists
        utf16Text,   ///< UTF-16, most significant byte first
    };

    Value() : number_(0), size_(0), kind_(Kind::none) {}
    explicit Value(double number) : number_(number), size_(0), kind_(Kind::number) {}

    /// A text of less than 4 GB.
    Value(Kind kind, std::string_view bytes)
        : bytes_(bytes.data()), size_(static_cast<std::uint32_t>(bytes.size())), kind_(kind) {}

    Kind kind() const { return kind_; }

    /// Of a value of kind number only.
    double number() const { return number_; }

    /// Of a text only.
    std::string_view bytes() const { return {bytes_, size_}; }

private:
    union {
        double number_;
        const char* bytes_;
    };
    std::uint32_t size_;
    Kind kind_;
};

/// A boolean as it is, a number when it is not 0; of a text, as NSString's boolValue.
bool switchValue(Value value);

/// A number, of a text the decimal number it begins with, rounded to float precision as floatValue
/// does; 0 for any other kind. May be infinite or not a number when the file says so.
double numberValue(Value value);

/// A text as UTF-16, empty for any other kind.
std::u16string textValue(Value value);

/// Receives the entries of the top dictionary in the file's order, equal keys as often as they
/// occur. Entries come before the rest of the file was checked: they count only when the reader
/// then reports success.
class EntrySink {
public:
    /// Whether the value of this key is wanted; assign() then follows. The bytes are those of the
    /// file, which spells keys in UTF-8 or in big-endian UTF-16.
    virtual bool select(std::string_view key, Encoding encoding) = 0;

    /// The value of the key selected last.
    virtual void assign(Value value) = 0;

protected:
    ~EntrySink() = default;
};

} // namespace wentra::preferences
