// Tells the forms of property list apart, and collects the values of the known keys.
#include "library/preferences/parsed_file.hpp"

#include "library/common/text_encoding.hpp"
#include "library/preferences/property_list/document_text.hpp"
#include "library/preferences/property_list/property_list_binary.hpp"
#include "library/preferences/property_list/property_list_old.hpp"
#include "library/preferences/property_list/property_list_xml.hpp"

#include <utility>

namespace wentra::preferences {
namespace {

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

bool isXml(std::string_view document) {
    const std::size_t start = document.find_first_not_of(" \t\r\n");
    return start != document.npos && document[start] == '<';
}

bool readEntries(const PaddedBytes& document, EntrySink& sink) {
    if (document.view().starts_with(binarySignature)) {
        return readBinaryPropertyList(document, sink);
    }
    return isXml(document.view()) ? readXmlPropertyList(document, sink)
                                  : readOldPropertyList(document, sink);
}

} // namespace

ParsedFile::ParsedFile(PaddedBytes bytes)
    : bytes_(std::move(bytes)), recoded_(inUtf8(bytes_.view())) {
    KnownEntries entries(known_);
    isSound_ = readEntries(document(), entries);
    if (!isSound_) {
        known_ = {};
    }
}

Value ParsedFile::find(std::string_view name) const {
    if (const std::size_t index = knownKeyIndex(name); index < knownKeyCount) {
        return known_[index];
    }
    NamedEntry entry(name);
    if (isSound_) {
        readEntries(document(), entry);
    }
    return entry.value();
}

} // namespace wentra::preferences
