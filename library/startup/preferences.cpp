// Reads the preference file and finds values in it.
#include "library/startup/preferences.hpp"

#include "library/common/text_encoding.hpp"
#include "library/startup/property_list/file_reading.hpp"
#include "library/startup/property_list/property_list_binary.hpp"
#include "library/startup/property_list/property_list_xml.hpp"
#include "library/startup/root_path.hpp"

#include <utility>

namespace wentra::startup {
namespace {

constexpr std::size_t largestFile = std::size_t{16} << 20; // bytes

class KnownEntries final : public EntrySink {
public:
    explicit KnownEntries(std::array<Value, knownKeyCount>& values) : values_(values) {}

    bool select(std::string_view key, Encoding encoding) override {
        selected_ = knownKeyIndex(key, encoding);
        return selected_ < knownKeyCount;
    }

    void assign(Value value) override { values_[selected_] = value; }

private:
    std::array<Value, knownKeyCount>& values_;
    std::size_t selected_ = 0;
};

class NamedEntry final : public EntrySink {
public:
    explicit NamedEntry(std::string_view name)
        : utf8_(name), utf16_(bigEndianUtf16(utf16FromUtf8(name))) {}

    bool select(std::string_view key, Encoding encoding) override {
        return key == (encoding == Encoding::utf8 ? utf8_ : std::string_view(utf16_));
    }

    void assign(Value value) override { value_ = value; }

    Value value() const { return value_; }

private:
    std::string_view utf8_;
    std::string utf16_;
    Value value_;
};

bool readPropertyList(const PaddedBytes& bytes, EntrySink& sink) {
    if (bytes.view().starts_with(binarySignature))
        return readBinaryPropertyList(bytes, sink);
    return readXmlPropertyList(bytes, sink);
}

PaddedBytes transcoded(std::string_view utf16, Encoding encoding) {
    if (utf16.size() % 2 != 0)
        return {};
    return PaddedBytes(utf8FromUtf16(utf16FromBytes(utf16, encoding)));
}

// A byte order mark tells UTF-16 from UTF-8 and is not part of the document.
PaddedBytes withoutByteOrderMark(PaddedBytes bytes) {
    const std::string_view view = bytes.view();
    if (view.starts_with("\xFE\xFF"))
        return transcoded(view.substr(2), Encoding::utf16BigEndian);
    if (view.starts_with("\xFF\xFE"))
        return transcoded(view.substr(2), Encoding::utf16LittleEndian);
    if (view.starts_with("\xEF\xBB\xBF"))
        return PaddedBytes(view.substr(3));
    return bytes;
}

} // namespace

Preferences::Preferences(PaddedBytes bytes) : bytes_(withoutByteOrderMark(std::move(bytes))) {
    KnownEntries entries(known_);
    if (!readPropertyList(bytes_, entries))
        *this = Preferences();
}

Preferences Preferences::read() { return readFile(preferencePath()); }

Preferences Preferences::readFile(const std::string& path) {
    if (std::optional<PaddedBytes> bytes = readRegularFile(path, largestFile))
        return Preferences(std::move(*bytes));
    return {};
}

Preferences Preferences::parse(std::string_view bytes) {
    if (bytes.size() > largestFile)
        return {};
    return Preferences(PaddedBytes(bytes));
}

Value Preferences::find(std::string_view name) const {
    if (const std::size_t index = knownKeyIndex(name); index < knownKeyCount)
        return known_[index];
    NamedEntry entry(name);
    readPropertyList(bytes_, entry);
    return entry.value();
}

} // namespace wentra::startup
