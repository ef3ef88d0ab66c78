// Telling pages what this phone is.
#include "desktop/viewer/welcome.hpp"

#include "desktop/host/app.hpp"
#include "desktop/uikit/application/device.hpp"

namespace desktop::viewer {

host::Json welcomeMessage(const char* type, const Start& start,
                          const std::filesystem::path& deviceFolder) {
    host::Json applications = host::Json::array();
    for (const host::App* app : host::apps()) {
        applications.push_back({{"name", app->name}, {"bundle", app->bundleIdentifier}});
    }
    host::Json models = host::Json::array();
    for (const Device& device : devices()) {
        models.push_back(device.name);
    }
    return {{"type", type},
            {"version", WENTRA_VERSION},
            {"application", start.application},
            {"applications", applications},
            {"devices", models},
            {"afterCrash", start.afterCrash},
            {"folder", deviceFolder.string()}};
}

} // namespace desktop::viewer
