// Where an application's documents and temporary files lie on the device.
#include "desktop/foundation/application_folders.hpp"

#include "bindings/foundation/file_manager.hpp"
#include "bindings/objc/hook.hpp"

#include <array>
#include <filesystem>
#include <string>
#include <system_error>

namespace desktop::foundation {
namespace {

/// A phone has made-up names where this one has the bundle identifier, for people to read.
std::string container(const std::string& bundleIdentifier) {
    return "/var/mobile/Containers/Data/Application/" + bundleIdentifier;
}

std::string documentsFolder(const std::string& bundleIdentifier) {
    return bundleIdentifier.starts_with("com.apple.") ? "/var/mobile/Documents"
                                                      : container(bundleIdentifier) + "/Documents";
}

ns::Url madeFolder(const std::string& path) {
    std::error_code failure; // a device that cannot be written has no such folders
    std::filesystem::create_directories(path, failure);
    return ns::Url::fileUrlWithPath(ns::String::fromUtf8(path), true);
}

objc::Strong<ns::Url>& documents() {
    static auto* url = new objc::Strong<ns::Url>; // used until the process ends
    return *url;
}

objc::Strong<ns::Url>& temporaryFiles() {
    static auto* url = new objc::Strong<ns::Url>; // used until the process ends
    return *url;
}

ns::Url temporaryDirectory(ns::FileManager) { return temporaryFiles(); }

ns::ArrayOf<ns::Url> urlsFor(ns::FileManager, ns::SearchPathDirectory directory,
                             ns::SearchPathDomainMask domains) {
    const auto urls = ns::MutableArray::make();
    if (directory == ns::SearchPathDirectory::document &&
        (static_cast<unsigned long>(domains) &
         static_cast<unsigned long>(ns::SearchPathDomainMask::user)) != 0) {
        urls.add(documents());
    }
    return urls.assume<ns::ArrayOf<ns::Url>>();
}

} // namespace

void installApplicationFolders(ns::String bundleIdentifier) {
    documents() = madeFolder(documentsFolder(bundleIdentifier.utf8()));
    temporaryFiles() = madeFolder(container(bundleIdentifier.utf8()) + "/tmp");
    objc::install(objc::addition<"temporaryDirectory", &temporaryDirectory>());
    objc::install(objc::addition<"URLsForDirectory:inDomains:", &urlsFor>());
}

} // namespace desktop::foundation
