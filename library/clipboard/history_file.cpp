// Records as a property list.
#include "library/clipboard/history_file.hpp"

#include "bindings/foundation/property_list_serialization.hpp"
#include "library/common/surrogates.hpp"
#include "library/paths/documents_folder.hpp"
#include "library/preferences/property_list/file_reading.hpp"

#include <limits>

namespace wentra::clipboard {
namespace {

using namespace ns::literals;

ns::String path() { return paths::documentPath(u"AddCopy.plist"); }

/// Nil for what is no regular file: Foundation would wait for a pipe.
ns::Data bytesOf(ns::String path) {
    const auto bytes = preferences::OpenFile(path.utf8().c_str())
                           .contents(std::numeric_limits<std::ptrdiff_t>::max());
    return bytes ? ns::Data::from(bytes->view()) : nullptr;
}

/// XML has no form for control characters and for halves of surrogate pairs.
bool isXmlText(std::u16string_view text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char16_t unit = text[at];
        if (at + 1 < text.size() && isSurrogatePair(unit, text[at + 1])) {
            ++at;
        } else if (isSurrogate(unit) || unit >= 0xFFFE ||
                   (unit < u' ' && unit != u'\t' && unit != u'\n' && unit != u'\r')) {
            return false;
        }
    }
    return true;
}

ns::PropertyListFormat formatFor(ns::Array records) {
    for (const objc::Object record : records) {
        if (!isXmlText(Record::content(record.as<ns::Dictionary>()).utf16())) {
            return ns::PropertyListFormat::binary;
        }
    }
    return ns::PropertyListFormat::xml;
}

} // namespace

ns::Dictionary Record::with(ns::String content, ns::String time) {
    const auto record = ns::MutableDictionary::make();
    record.set(content, u"content"_ns);
    record.set(time, u"time"_ns);
    return record;
}

ns::String Record::content(ns::Dictionary record) {
    return record.get(u"content"_ns).as<ns::String>();
}

ns::String Record::time(ns::Dictionary record) { return record.get(u"time"_ns).as<ns::String>(); }

ns::MutableArray storedHistory() {
    const auto records = ns::MutableArray::make();
    const ns::Data data = bytesOf(path());
    const auto stored =
        data ? ns::PropertyListSerialization::propertyList(data).value.as<ns::Array>() : nullptr;
    if (!stored) {
        return records;
    }
    for (const objc::Object record : stored) {
        if (Record::content(record.as<ns::Dictionary>())) {
            records.add(record);
        }
    }
    return records;
}

void storeHistory(ns::Array records) {
    const ns::String file = path();
    const auto list = ns::PropertyListSerialization::data(records, formatFor(records));
    if (file && list) {
        static_cast<void>(list.value.writeToFile(file, ns::DataWritingOptions::atomic));
    }
}

} // namespace wentra::clipboard
