// Commands for what the device keeps: pasteboard, files, preferences, user defaults, documents.
#include "desktop/foundation/file_dates.hpp"
#include "desktop/host/arguments.hpp"
#include "desktop/host/commands.hpp"
#include "desktop/host/half_pairs.hpp"
#include "desktop/host/preference_file.hpp"

#include "bindings/foundation/file_manager.hpp"
#include "bindings/foundation/user_defaults.hpp"
#include "bindings/uikit/pasteboard.hpp"

#include <cmath>

namespace desktop::host {
namespace {

void setPasteboardImage(const std::string& file) {
    const auto image = ui::Image::withContentsOfFile(ns::String::fromUtf8(file));
    if (!image) {
        throw RequestError("not an image: " + file);
    }
    ui::Pasteboard::generalPasteboard().setImage(image);
}

void setPasteboardText(const Values& values, const Json& text) {
    ui::Pasteboard::generalPasteboard().setString(text.is_null() ? ns::String()
                                                                 : values.toKind<ns::String>(text));
}

/// Seconds since 1970.
double dateArgument(const Json& request, const char* name) {
    const Json& value = anyArgument(request, name);
    constexpr double farthest = 1e11;
    if (!value.is_number() || std::abs(value.get<double>()) > farthest) {
        throw RequestError(std::string("\"") + name + "\" must be seconds since 1970");
    }
    return value.get<double>();
}

ns::PropertyListFormat formatArgument(const Json& request) {
    if (argument(request, "format") == nullptr) {
        return ns::PropertyListFormat::xml;
    }
    const std::string& name = stringArgument(request, "format");
    if (name != "xml" && name != "binary") {
        throw RequestError("\"format\" must be xml or binary");
    }
    return name == "xml" ? ns::PropertyListFormat::xml : ns::PropertyListFormat::binary;
}

} // namespace

Json pasteboard(Session& session, const Json& request) {
    if (argument(request, "image") != nullptr) {
        setPasteboardImage(stringArgument(request, "image"));
    } else if (const Json* text = argument(request, "set"); text != nullptr) {
        setPasteboardText(session.values, *text);
    }
    return session.values.toJson(ui::Pasteboard::generalPasteboard().string());
}

Json file(Session&, const Json& request) {
    const std::string& path = stringArgument(request, "path");
    if (argument(request, "created") != nullptr) {
        foundation::setCreationDate(path, dateArgument(request, "created"));
    }
    const auto created = foundation::creationDate(path);
    if (!created) {
        throw RequestError("there is no file " + path);
    }
    return {{"created", *created}};
}

Json preferences(Session& session, const Json& request) {
    const auto format = formatArgument(request);
    const auto file = PreferenceFile::ofLibrary();
    const auto entries = ns::MutableDictionary::make();
    if (argument(request, "replace") != nullptr) {
        session.values.fill(entries, objectArgument(request, "replace"));
        file.write(entries, format);
    } else if (argument(request, "set") != nullptr) {
        if (const ns::Dictionary former = file.read(); former) {
            entries.addEntries(former);
        }
        session.values.fill(entries, objectArgument(request, "set"));
        file.write(entries, format);
    } else if (flagArgument(request, "remove")) {
        file.remove();
    }
    return session.values.toJson(file.read());
}

Json defaults(Session& session, const Json& request) {
    const auto key = toText(stringArgument(request, "key"));
    const auto store = ns::UserDefaults::standardUserDefaults();
    if (const Json* value = argument(request, "set"); value != nullptr) {
        store.set(session.values.toObject(*value), key);
    }
    return session.values.toJson(store.get(key));
}

Json documents(Session&, const Json&) {
    return ns::FileManager::defaultManager()
        .urlsFor(ns::SearchPathDirectory::document, ns::SearchPathDomainMask::user)
        .first()
        .path()
        .utf8();
}

} // namespace desktop::host
