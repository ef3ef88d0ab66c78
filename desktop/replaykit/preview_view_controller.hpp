// RPPreviewViewController: the film that was just recorded, and a button that keeps it.
#pragma once

#include "bindings/objc/weak.hpp"
#include "bindings/replaykit/preview_view_controller.hpp"
#include "desktop/class.hpp"
#include "desktop/drawing/image.hpp"

#include <optional>
#include <string>

namespace desktop {

/// Whoever presents it dismisses it, when the delegate is told that a person is done.
class PreviewViewController
    : public PlatformClass<PreviewViewController, rp::PreviewViewController> {
public:
    static constexpr auto methods() {
        using Self = PreviewViewController;
        return std::array{
            objc::property<"previewControllerDelegate", &Self::delegate_>(),
            objc::method<"viewDidLoad", &Self::viewDidLoad>(),
            objc::method<"cancelPressed", &Self::finish>(),
            objc::method<"savePressed", &Self::savePressed>(),
        };
    }

    /// Of the film in that file on the device. The poster is what stands for it on the phone.
    static rp::PreviewViewController withFilm(const std::string& file, const Image& poster);

private:
    void viewDidLoad();
    void addBar(double top, double height);
    void addFilm(CGRect frame);
    void savePressed();
    void finish();

    std::string file_;
    std::optional<Image> poster_;
    objc::Weak<objc::Object> delegate_;
};

} // namespace desktop
