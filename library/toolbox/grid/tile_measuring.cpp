// One layout's measurements.
#include "library/toolbox/grid/tile_measuring.hpp"

#include "bindings/dispatch/dispatch.hpp"
#include "bindings/uikit/string_drawing.hpp"
#include "library/toolbox/grid/tile_size.hpp"
#include "library/toolbox/stored_size.hpp"

#include <limits>
#include <map>
#include <memory>

namespace wentra::toolbox {
namespace {

class Measurements {
public:
    explicit Measurements(double gridWidth) : gridWidth_(gridWidth) {
        constexpr double standardSize = 18;
        font_ = ui::Font::system(storedSize(preferences::Preferences::read(),
                                            preferences::keys.gridRowHeight, standardSize));
    }

    [[nodiscard]] double gridWidth() const { return gridWidth_; }

    CGSize of(ns::String token) {
        const std::u16string text = token.utf16();
        if (const auto known = sizes_.find(text); known != sizes_.end()) {
            return known->second;
        }
        const CGSize room{widestText(gridWidth_), std::numeric_limits<double>::max()};
        const CGSize size =
            tileSize(token ? ui::textSize(token, room, font_) : CGSize{}, gridWidth_);
        constexpr std::size_t mostTexts = 1U << 16U;
        if (sizes_.size() < mostTexts) {
            sizes_.emplace(text, size);
        }
        return size;
    }

private:
    double gridWidth_;
    objc::Strong<ui::Font> font_;
    std::map<std::u16string, CGSize> sizes_;
};

/// Those of the main queue's present turn, if there are any.
std::unique_ptr<Measurements>& present() {
    static auto* only = new std::unique_ptr<Measurements>; // lives as long as the process
    return *only;
}

} // namespace

CGSize measuredTile(ns::String token, double gridWidth) {
    std::unique_ptr<Measurements>& measurements = present();
    if (!measurements) {
        dispatch::async(dispatch::mainQueue(), [] { present().reset(); });
    }
    if (!measurements || measurements->gridWidth() != gridWidth) {
        measurements = std::make_unique<Measurements>(gridWidth);
    }
    return measurements->of(token);
}

} // namespace wentra::toolbox
