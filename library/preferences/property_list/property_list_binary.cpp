// Checks the objects of a binary property list and walks its top dictionary.
#include "library/preferences/property_list/property_list_binary.hpp"

#include "library/common/byte_word.hpp"
#include "library/common/text_encoding.hpp"

#include <array>
#include <bit>
#include <cstdint>

namespace wentra::preferences {
namespace {

constexpr std::size_t trailerSize = 32;

constexpr unsigned char markerFalse = 0x08;
constexpr unsigned char markerTrue = 0x09;

enum class Type : unsigned char {
    invalid,
    other, // bytes of no interest: null, date, data, identifier
    boolean,
    integer,
    real,
    asciiText,
    utf16Text,
    array,
    dictionary,
};
constexpr std::size_t typeCount = 9;

// What an object's first byte, its marker, tells.
struct Shape {
    Type type = Type::invalid;
    std::uint8_t count = 0;
    bool countFollows = false; // as an integer object, being 15 or more
};

using Shapes = std::array<Shape, 256>;

constexpr void describeCounted(Shapes& shapes, unsigned char firstMarker, Type type) {
    for (std::uint8_t count = 0; count < 15; ++count) {
        shapes[std::size_t{firstMarker} + count] = {type, count};
    }
    shapes[std::size_t{firstMarker} + 15] = {type, 0, true};
}

constexpr Shapes makeShapes() {
    Shapes shapes{};
    shapes[0x00] = {Type::other};
    shapes[markerFalse] = {Type::boolean};
    shapes[markerTrue] = {Type::boolean};
    for (std::uint8_t power = 0; power <= 4; ++power) {
        shapes[0x10U + power] = {Type::integer, static_cast<std::uint8_t>(1U << power)};
    }
    shapes[0x22] = {Type::real, 4};
    shapes[0x23] = {Type::real, 8};
    shapes[0x33] = {Type::other, 8};
    describeCounted(shapes, 0x40, Type::other);
    describeCounted(shapes, 0x50, Type::asciiText);
    describeCounted(shapes, 0x60, Type::utf16Text);
    for (std::uint8_t low = 0; low < 16; ++low) {
        shapes[0x80U + low] = {Type::other, static_cast<std::uint8_t>(low + 1)};
    }
    describeCounted(shapes, 0xA0, Type::array);
    describeCounted(shapes, 0xC0, Type::array); // a set, laid out alike
    describeCounted(shapes, 0xD0, Type::dictionary);
    return shapes;
}

constexpr Shapes shapes = makeShapes();

struct Object {
    unsigned char marker = 0;
    Type type = Type::invalid;
    std::uint64_t offset = 0;
    std::uint64_t count = 0;   // bytes, UTF-16 units, elements or entries
    std::uint64_t content = 0; // where these begin
    std::uint64_t size = 0;    // how many bytes they take
};

class BinaryReader {
public:
    BinaryReader(std::string_view file, EntrySink& sink) : bytes_(file.data()), sink_(sink) {
        fileSize_ = file.size();
    }

    bool read() { return trailer() && objects() && topDictionary(); }

private:
    bool trailer();
    bool objects();
    bool topDictionary();

    // The object of that index, of invalid type when it is malformed or leaves the objects' area.
    Object object(std::uint64_t index) const {
        Object object;
        object.offset = offset(index);
        if (object.offset < binarySignature.size() || object.offset >= offsetTable_) {
            return object;
        }
        object.marker = byte(object.offset);
        const Shape& shape = shapes[object.marker];
        object.content = object.offset + 1;
        object.count = shape.count;
        if (shape.countFollows) {
            const Shape& countShape = shapes[byte(object.content)];
            if (countShape.type != Type::integer || countShape.count > 8) {
                return object;
            }
            object.count = bigEndian(bytes_ + object.content + 1, countShape.count);
            object.content += 1 + countShape.count;
        }
        // The count first: a count beyond the file's size could make the product overflow.
        object.size = object.count * unitSizes_[static_cast<std::size_t>(shape.type)];
        if (object.count <= offsetTable_ && object.content + object.size <= offsetTable_) {
            object.type = shape.type;
        }
        return object;
    }

    bool isSound(const Object& object) const;
    bool referencesExist(const Object& object, std::uint64_t count) const;

    std::string_view content(const Object& object) const {
        return {bytes_ + object.content, static_cast<std::size_t>(object.size)};
    }

    Value value(const Object& object) const;
    double integer(const Object& object) const;
    double real(const Object& object) const;

    unsigned char byte(std::uint64_t offset) const {
        return static_cast<unsigned char>(bytes_[offset]);
    }

    std::uint64_t offset(std::uint64_t index) const {
        return bigEndian(bytes_ + offsetTable_ + index * offsetSize_, offsetSize_);
    }

    std::uint64_t reference(const Object& object, std::uint64_t index) const {
        return bigEndian(bytes_ + object.content + index * referenceSize_, referenceSize_);
    }

    const char* bytes_;
    EntrySink& sink_;
    std::uint64_t fileSize_;
    std::size_t offsetSize_ = 0;
    std::size_t referenceSize_ = 0;
    std::uint64_t objectCount_ = 0;
    std::uint64_t topObject_ = 0;
    std::uint64_t offsetTable_ = 0; // also where the objects end
    std::array<std::uint64_t, typeCount> unitSizes_{1, 1, 1, 1, 1, 1, 2};
};

bool isSizeOfInteger(std::size_t size) { return size >= 1 && size <= 8; }

bool BinaryReader::trailer() {
    if (fileSize_ < binarySignature.size() + trailerSize) {
        return false;
    }
    const std::uint64_t tableEnd = fileSize_ - trailerSize;
    const char* trailer = bytes_ + tableEnd;
    offsetSize_ = static_cast<unsigned char>(trailer[6]);
    referenceSize_ = static_cast<unsigned char>(trailer[7]);
    unitSizes_[static_cast<std::size_t>(Type::array)] = referenceSize_;
    unitSizes_[static_cast<std::size_t>(Type::dictionary)] = 2 * referenceSize_;
    objectCount_ = bigEndian(trailer + 8, 8);
    topObject_ = bigEndian(trailer + 16, 8);
    offsetTable_ = bigEndian(trailer + 24, 8);
    if (!isSizeOfInteger(offsetSize_) || !isSizeOfInteger(referenceSize_)) {
        return false;
    }
    if (offsetTable_ < binarySignature.size() || offsetTable_ > tableEnd) {
        return false;
    }
    // Nothing lies between the table and the trailer, so a file that was cut short shows here.
    const std::uint64_t tableSize = tableEnd - offsetTable_;
    return objectCount_ <= tableSize && objectCount_ * offsetSize_ == tableSize &&
           topObject_ < objectCount_;
}

// No writer makes objects overlap. That they would all have room side by side is checked because it
// bounds the work: a thousand entries of the table could otherwise share one large array.
bool BinaryReader::objects() {
    std::uint64_t spare = offsetTable_ - binarySignature.size();
    for (std::uint64_t index = 0; index < objectCount_; ++index) {
        const Object object = this->object(index);
        const std::uint64_t extent = object.content + object.size - object.offset;
        if (extent > spare || !isSound(object)) {
            return false;
        }
        spare -= extent;
    }
    return true;
}

bool BinaryReader::isSound(const Object& object) const {
    switch (object.type) {
    case Type::invalid:
        return false;
    case Type::asciiText:
        return isAscii(content(object));
    case Type::array:
        return referencesExist(object, object.count);
    case Type::dictionary:
        return referencesExist(object, 2 * object.count);
    default:
        return true;
    }
}

bool BinaryReader::referencesExist(const Object& object, std::uint64_t count) const {
    for (std::uint64_t index = 0; index < count; ++index) {
        if (reference(object, index) >= objectCount_) {
            return false;
        }
    }
    return true;
}

// The objects were checked before.
bool BinaryReader::topDictionary() {
    const Object dictionary = object(topObject_);
    if (dictionary.type != Type::dictionary) {
        return false;
    }
    for (std::uint64_t index = 0; index < dictionary.count; ++index) {
        const Object key = object(reference(dictionary, index));
        if (key.type != Type::asciiText && key.type != Type::utf16Text) {
            return false;
        }
        const Encoding encoding =
            key.type == Type::asciiText ? Encoding::utf8 : Encoding::utf16BigEndian;
        if (sink_.select(content(key), encoding)) {
            sink_.assign(value(object(reference(dictionary, dictionary.count + index))));
        }
    }
    return true;
}

Value BinaryReader::value(const Object& object) const {
    switch (object.type) {
    case Type::boolean:
        return Value(object.marker == markerTrue ? 1.0 : 0.0);
    case Type::integer:
        return Value(integer(object));
    case Type::real:
        return Value(real(object));
    case Type::asciiText:
        return {Value::Kind::utf8Text, content(object)};
    case Type::utf16Text:
        return {Value::Kind::utf16Text, content(object)};
    default:
        return {};
    }
}

// Up to four bytes hold an unsigned number, eight a signed one, sixteen a signed upper half.
double BinaryReader::integer(const Object& object) const {
    const char* bytes = bytes_ + object.content;
    if (object.size < 8) {
        return static_cast<double>(bigEndian(bytes, object.size));
    }
    const auto upper = static_cast<double>(static_cast<std::int64_t>(bigEndian(bytes, 8)));
    if (object.size == 8) {
        return upper;
    }
    return upper * 0x1p64 + static_cast<double>(bigEndian(bytes + 8, 8));
}

double BinaryReader::real(const Object& object) const {
    const std::uint64_t bits = bigEndian(bytes_ + object.content, object.size);
    if (object.size == 4) {
        return static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(bits)));
    }
    return std::bit_cast<double>(bits);
}

} // namespace

bool readBinaryPropertyList(const PaddedBytes& file, EntrySink& sink) {
    return BinaryReader(file.view(), sink).read();
}

} // namespace wentra::preferences
