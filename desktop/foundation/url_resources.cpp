// Values that a file's URL is asked for, read from the file system at each call.
#include "desktop/foundation/url_resources.hpp"

#include "bindings/foundation/date.hpp"
#include "bindings/foundation/url.hpp"
#include "bindings/objc/hook.hpp"
#include "desktop/foundation/error_encoding.hpp"
#include "desktop/foundation/file_dates.hpp"
#include "desktop/foundation/file_error.hpp"
#include "desktop/foundation/url.hpp"

#include <cerrno>

namespace desktop::foundation {
namespace {

using Keys = ns::ArrayOf<ns::String>;

ns::Dictionary resourceValues(ns::Url url, Keys keys, id* error) {
    const auto created = creationDate(filePath(url));
    if (!created) {
        report(error, errno);
        return nullptr;
    }
    const auto values = ns::MutableDictionary::make();
    if (keys.contains(ns::url_resources::creationDate())) {
        values.set(ns::Date::withTimeIntervalSince1970(*created),
                   ns::url_resources::creationDate());
    }
    return values;
}

bool hasDirectoryPath(ns::Url url) {
    const std::u16string text = url.send<"relativeString", ns::String>().utf16();
    return text.substr(0, text.find_first_of(u"?#")).ends_with(u'/');
}

} // namespace

void installUrlResources() {
    objc::install(objc::addition<"resourceValuesForKeys:error:", &resourceValues>());
    objc::install(objc::addition<"hasDirectoryPath", &hasDirectoryPath>());
}

} // namespace desktop::foundation
