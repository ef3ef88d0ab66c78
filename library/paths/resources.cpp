// Lists the places of the replaceable pictures and tables.
#include "library/paths/resources.hpp"

#include "library/paths/root_path.hpp"

#include <unistd.h>

namespace wentra::paths {
namespace {

constexpr std::string_view documentFolder = "/var/mobile/Documents/";

std::string documentFile(std::string_view name) { return std::string(documentFolder).append(name); }

std::string rootfulBundlePath(std::string_view name) {
    return rootfulPath(std::string(bundleFolder).append(name));
}

bool exists(const std::string& path) { return access(path.c_str(), F_OK) == 0; }

} // namespace

std::string colourListPath() { return bundlePath("colors.plist"); }

std::string iconFolder() { return rootfulBundlePath("tubiao/"); }

std::string iconPath(std::string_view name) {
    return rootfulBundlePath(std::string("tubiao/").append(name).append(".png"));
}

std::optional<std::string> ballImagePath() {
    for (const char* name : {"xfq.png", "xfq.jpg", "xfq.jpeg"}) {
        if (std::string path = bundlePath(name); exists(path)) {
            return path;
        }
    }
    const auto replacementPath = isRootless() ? documentFile : rootfulBundlePath;
    for (const char* name : {"AAxfq.png", "AAxfq.jpg", "AAxfq.jpeg"}) {
        if (std::string path = replacementPath(name); exists(path)) {
            return path;
        }
    }
    return std::nullopt;
}

std::vector<std::string> panelImageCandidates() {
    return {documentFile("AAzerk.jpg"), documentFile("AAzerk.png"), documentFile("AAzerk.jpeg"),
            bundlePath("AAzerk.png"),   bundlePath("AAzerk.jpeg"),  bundlePath("AAzerk.jpg")};
}

} // namespace wentra::paths
