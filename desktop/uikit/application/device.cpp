// The table of models.
#include "desktop/uikit/application/device.hpp"

#include <algorithm>
#include <array>

namespace desktop {
namespace {

using enum PhoneFront;

constexpr std::array table{
    Device{"iPhone SE", {375, 667}, 2, homeButton, 20, 20, 0},
    Device{"iPhone 8 Plus", {414, 736}, 3, homeButton, 20, 20, 0},
    Device{"iPhone 13 mini", {375, 812}, 3, notch, 50, 50, 44},
    Device{"iPhone X", {375, 812}, 3, notch, 44, 44, 39},
    Device{"iPhone 12", {390, 844}, 3, notch, 47, 47, 47},
    Device{"iPhone 15", {393, 852}, 3, island, 54, 59, 55},
    Device{"iPhone 11", {414, 896}, 2, notch, 48, 48, 41},
    Device{"iPhone 12 Pro Max", {428, 926}, 3, notch, 47, 47, 53},
    Device{"iPhone 15 Pro Max", {430, 932}, 3, island, 54, 59, 55},
};

} // namespace

std::span<const Device> devices() { return table; }

const Device* deviceNamed(std::string_view name) {
    const auto* const found = std::ranges::find(table, name, &Device::name);
    return found == table.end() ? nullptr : found;
}

std::string_view nameOf(PhoneFront front) {
    switch (front) {
    case homeButton:
        return "homeButton";
    case notch:
        return "notch";
    default:
        return "island";
    }
}

const Device& usualDevice() { return *deviceNamed("iPhone 12"); }

Device deviceOfSize(CGSize size, double scale) {
    constexpr double shortestWithNotch = 780;
    return size.height >= shortestWithNotch ? Device{{}, size, scale}
                                            : Device{{}, size, scale, homeButton, 20, 20, 0};
}

} // namespace desktop
