// UIImageSymbolConfiguration: the size and weight that a symbol is drawn in.
#pragma once

#include "bindings/uikit/font.hpp"
#include "bindings/uikit/image.hpp"

#include "desktop/class.hpp"
#include "desktop/drawing/symbol.hpp"
#include "desktop/uikit/values/font.hpp"
#include "desktop/uikit/values/immutable.hpp"

namespace desktop {

class SymbolConfiguration
    : public PlatformClass<SymbolConfiguration, ui::ImageSymbolConfiguration> {
public:
    static std::vector<objc::MethodRow> methods() {
        return {
            objc::classMethod<"configurationWithPointSize:", &SymbolConfiguration::ofSize>(),
            objc::classMethod<"configurationWithPointSize:weight:",
                              &SymbolConfiguration::ofSizeAndWeight>(),
            objc::classMethod<"configurationWithPointSize:weight:scale:",
                              &SymbolConfiguration::ofAll>(),
            objc::classMethod<"configurationWithWeight:", &SymbolConfiguration::ofWeight>(),
            objc::classMethod<"configurationWithScale:", &SymbolConfiguration::ofScale>(),
            objc::classMethod<"configurationWithFont:", &SymbolConfiguration::ofFont>(),
            copyIsSelf(),
        };
    }

    /// The usual style for nil.
    static SymbolStyle styleOf(ui::ImageSymbolConfiguration configuration) {
        return configuration ? of(configuration).style_ : SymbolStyle();
    }

private:
    /// The platform's numbers of the scales, and what they make of a size.
    enum class Scale : long { usual = -1, unspecified = 0, small = 1, medium = 2, large = 3 };
    static double factor(Scale scale) {
        constexpr double smallFactor = 0.79;
        constexpr double largeFactor = 1.29;
        return scale == Scale::small ? smallFactor : scale == Scale::large ? largeFactor : 1;
    }
    /// The platform counts the weights from 1 (100) to 9 (900); 0 is the usual one.
    static int weightOf(ui::SymbolWeight weight) {
        const auto number = static_cast<long>(weight);
        constexpr int step = 100;
        constexpr long heaviest = 9;
        return number >= 1 && number <= heaviest ? static_cast<int>(number) * step
                                                 : SymbolStyle().weight;
    }
    static ui::ImageSymbolConfiguration with(const SymbolStyle& style) {
        const auto made = ui::ImageSymbolConfiguration::make();
        of(made).style_ = style;
        return made;
    }
    static ui::ImageSymbolConfiguration ofSize(Class, double size) { return with({size}); }
    static ui::ImageSymbolConfiguration ofSizeAndWeight(Class, double size,
                                                        ui::SymbolWeight weight) {
        return with({size, weightOf(weight)});
    }
    static ui::ImageSymbolConfiguration ofAll(Class, double size, ui::SymbolWeight weight,
                                              Scale scale) {
        return with({size * factor(scale), weightOf(weight)});
    }
    static ui::ImageSymbolConfiguration ofWeight(Class, ui::SymbolWeight weight) {
        return with({SymbolStyle::usualSize, weightOf(weight)});
    }
    static ui::ImageSymbolConfiguration ofScale(Class, Scale scale) {
        return with({SymbolStyle::usualSize * factor(scale)});
    }
    static ui::ImageSymbolConfiguration ofFont(Class, ui::Font font) {
        const Font value = UIFont::valueOf(font);
        return with({value.size, value.weight});
    }

    SymbolStyle style_;
};

} // namespace desktop
