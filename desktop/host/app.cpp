// The list of applications.
#include "desktop/host/app.hpp"

#include <algorithm>
#include <array>

namespace desktop::host {

std::span<const App* const> apps() {
    static constexpr std::array all{&notesApp, &settingsApp,   &chatApp, &browserApp,
                                    &filesApp, &playgroundApp, &plainApp};
    return all;
}

const App* appNamed(std::string_view name) {
    const auto all = apps();
    const auto found =
        std::ranges::find(all, name, [](const App* app) { return std::string_view(app->name); });
    return found == all.end() ? nullptr : *found;
}

} // namespace desktop::host
