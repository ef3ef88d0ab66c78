// UIPageControl: a row of dots, of which the current page's is the darker one.
#pragma once

#include "bindings/uikit/page_control.hpp"

#include "desktop/class.hpp"

namespace desktop {

class PageControl : public PlatformClass<PageControl, ui::PageControl> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"initWithFrame:", &PageControl::initWithFrame>(),
            objc::property<"currentPage", &PageControl::current_, &PageControl::changed>(),
            objc::property<"numberOfPages", &PageControl::count_, &PageControl::changed>(),
            objc::method<"drawRect:", &PageControl::drawRect>(),
        };
    }

private:
    ui::PageControl initWithFrame(CGRect frame);
    void changed() { self().setNeedsDisplay(); }
    void drawRect(CGRect dirty);

    long current_ = 0;
    long count_ = 0;
};

} // namespace desktop
