// A line of JSON.
#include "desktop/viewer/phone_settings.hpp"

#include "desktop/host/json.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/traits/screen_traits.hpp"

namespace desktop::viewer {

using uikit::Appearance;

std::string presentSettings() {
    return host::Json{{"device", ScreenGeometry::current().device.name},
                      {"dark", uikit::appearance() == Appearance::dark},
                      {"textSize", nameOf(screenTraits().contentSize)}}
        .dump();
}

void applySettings(const std::string& settings, host::Options& options) {
    if (settings.empty()) {
        return;
    }
    const host::Json values = host::Json::parse(settings);
    // A screen without a name is that of the command line.
    if (const Device* device = deviceNamed(values.at("device").get<std::string>())) {
        options.device = *device;
    }
    options.appearance = values.at("dark").get<bool>() ? Appearance::dark : Appearance::light;
    options.textSize = contentSizeNamed(values.at("textSize").get<std::string>()).value();
}

} // namespace desktop::viewer
