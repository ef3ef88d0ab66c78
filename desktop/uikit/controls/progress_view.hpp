// UIProgressView: a bar that fills.
#pragma once

#include "bindings/uikit/progress_view.hpp"

#include "desktop/class.hpp"

namespace desktop {

/// A track with a bar on it, both as high as the view.
class ProgressView : public PlatformClass<ProgressView, ui::ProgressView> {
public:
    static constexpr auto methods() {
        using Self = ProgressView;
        return std::array{
            objc::method<"initWithProgressViewStyle:", &Self::initWithStyle>(),
            objc::method<"progressViewStyle", &Self::style_>(),
            objc::method<"progress", &Self::progress_>(),
            objc::method<"setProgress:", &Self::setProgress>(),
            objc::method<"setProgress:animated:", &Self::setProgressAnimated>(),
            objc::property<"progressTintColor", &Self::barColor_, &Self::redraw>(),
            objc::property<"trackTintColor", &Self::trackColor_, &Self::redraw>(),
            objc::method<"drawRect:", &Self::drawRect>(),
            objc::method<"sizeThatFits:", &Self::sizeThatFits>(),
            objc::method<"intrinsicContentSize", &Self::intrinsicContentSize>(),
        };
    }

private:
    ui::ProgressView initWithStyle(ui::ProgressViewStyle style);
    void setProgress(float progress);
    /// The bar is there at once.
    void setProgressAnimated(float progress, bool) { setProgress(progress); }
    void redraw() { self().setNeedsDisplay(); }
    void drawRect(CGRect dirty);
    [[nodiscard]] CGSize sizeThatFits(CGSize size) const;
    [[nodiscard]] CGSize intrinsicContentSize() const;

    ui::ProgressViewStyle style_ = ui::ProgressViewStyle::default_;
    float progress_ = 0;
    objc::Strong<ui::Color> barColor_;
    objc::Strong<ui::Color> trackColor_;
};

} // namespace desktop
