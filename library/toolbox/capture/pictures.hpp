// Pictures of the host's screen: single ones, and long ones made of several.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/error.hpp"
#include "bindings/objc/part.hpp"
#include "bindings/uikit/image.hpp"
#include "library/toolbox/capture/recording.hpp"
#include "library/toolbox/floating_view_controller.hpp"

namespace wentra::toolbox {

/// What is collected stays until it is stitched; everything goes into the photo library.
class Pictures : public objc::Part<FloatingViewController> {
public:
    Pictures(FloatingViewController whole, const Recording& recording)
        : Part(whole), recording_(recording) {}
    static Pictures& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"screenshotsArray", &Pictures::collected_>(),
            objc::method<"takeScreenshot", &Pictures::takeScreenshot>(),
            objc::method<"screenshot", &Pictures::screenshot>(),
            objc::method<"takeSnapshot", &Pictures::takeSnapshot>(),
            objc::method<"stitchImages", &Pictures::stitch>(),
            objc::method<"image:didFinishSavingWithError:contextInfo:", &Pictures::saved>(),
        };
    }

    /// Nothing is collected yet.
    void begin() { collected_ = ns::MutableArray::make(); }

private:
    void takeScreenshot();
    /// The host's window as it is, or nil when there is none.
    [[nodiscard]] ui::Image screenshot() const;
    /// The window without the recording's control and our own notices.
    [[nodiscard]] ui::Image screenshotWithoutControl() const;
    void takeSnapshot();
    void stitch();
    void saved(ui::Image image, ns::Error error, void* context);
    void save(ui::Image image) const;

    const Recording& recording_;
    objc::Strong<ns::MutableArray> collected_;
};

} // namespace wentra::toolbox
