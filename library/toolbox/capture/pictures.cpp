// Taking pictures, collecting them, and joining what is collected.
#include "library/toolbox/capture/pictures.hpp"

#include "bindings/objc/pool.hpp"
#include "bindings/uikit/image_context.hpp"
#include "bindings/uikit/saved_photos.hpp"
#include "bindings/uikit/screen.hpp"
#include "bindings/uikit/window.hpp"
#include "library/common/alert.hpp"
#include "library/common/haptic.hpp"
#include "library/common/screens.hpp"
#include "library/toolbox/capture/stitching.hpp"
#include "library/toolbox/capture/usage_description.hpp"

#include <vector>

namespace wentra::toolbox {
namespace {

using namespace ns::literals;

/// A script may have put anything into the list.
std::vector<objc::Strong<ui::Image>> imagesIn(ns::Array collected) {
    std::vector<objc::Strong<ui::Image>> images;
    for (const objc::Object each : collected) {
        if (const auto image = each.as<ui::Image>(); image) {
            images.emplace_back(image);
        }
    }
    return images;
}

void drawBelowBars(ui::Image image, CGRect place, double scale) {
    const cg::OwnedImage part(
        CGImageCreateWithImageInRect(image.cgImage(), pixelsBelowBars(image.size(), scale)));
    ui::Image::withCgImage(part.get(), scale).drawInRect(place);
}

/// Nil when the platform has no room for so tall a picture.
ui::Image stitched(const std::vector<objc::Strong<ui::Image>>& images) {
    const ui::Screen screen = ui::Screen::mainScreen();
    const Stitching stitching(screen.bounds().size);
    const auto context = ui::ImageContext::opaque(stitching.size(images.size()), screen.scale());
    images[0].drawInRect(stitching.place(0));
    for (std::size_t i = 1; i < images.size(); ++i) {
        const objc::Pool pool; // each part is as large as a screen
        drawBelowBars(images[i], stitching.place(i), screen.scale());
    }
    return context.image();
}

} // namespace

ui::Image Pictures::screenshot() const {
    constexpr bool afterScreenUpdates = true;
    const ui::Window window = activeWindow();
    if (!window) {
        return nullptr;
    }
    const CGRect bounds = window.bounds();
    const auto context = ui::ImageContext::opaque(bounds.size, ui::Screen::mainScreen().scale());
    window.drawHierarchy({{}, bounds.size}, afterScreenUpdates);
    return context.image();
}

ui::Image Pictures::screenshotWithoutControl() const {
    const objc::Strong<ui::View> control = recording_.container();
    control.setHidden(true);
    const auto image = self().send<"screenshot", ui::Image>();
    control.setHidden(false);
    return image;
}

void Pictures::takeScreenshot() { save(screenshotWithoutControl()); }

void Pictures::takeSnapshot() {
    const ui::Image image = screenshotWithoutControl();
    if (!image || !collected_) {
        return;
    }
    collected_.add(image);
    hapticTap();
    recording_.showCollected(collected_.count());
}

void Pictures::stitch() {
    const auto images = imagesIn(collected_);
    if (images.empty()) {
        return;
    }
    const ui::Image image = stitched(images);
    if (!image) {
        return; // what is collected stays
    }
    save(image);
    collected_.removeAll();
    recording_.showCollected(0);
}

void Pictures::save(ui::Image image) const {
    if (!hasUsageDescription(u"NSPhotoLibraryAddUsageDescription"_ns)) {
        Alert(u"错误"_ns, u"这个应用没有声明相册用途，系统不允许它存储图片"_ns)
            .action(u"好的"_ns)
            .present();
    } else if (image) {
        UIImageWriteToSavedPhotosAlbum(
            image.raw(), self().raw(),
            objc::selector<"image:didFinishSavingWithError:contextInfo:">(), nullptr);
    }
}

// No notice tells of success: it would be in the next picture.
void Pictures::saved(ui::Image, ns::Error error, void*) {
    if (error) {
        Alert(u"错误"_ns, error.localizedDescription()).action(u"好的"_ns).present();
    } else {
        hapticTap();
        recording_.showSaved();
    }
}

} // namespace wentra::toolbox
