// UIImage's makers and measures.
#include "desktop/uikit/image.hpp"

namespace desktop {
namespace {

/// Pixels a point, as the platform reads them off a file's name: "star@3x.png" has 3.
double scaleOf(const std::string& path) {
    for (const auto& [mark, scale] : {std::pair("@2x.", 2.0), std::pair("@3x.", 3.0)}) {
        if (path.find(mark) != std::string::npos) {
            return scale;
        }
    }
    return 1;
}

} // namespace

ui::Image UIImage::withContentsOfFile(Class, ns::String path) {
    const std::string file = path.utf8();
    auto picture = Image::load(file, scaleOf(file));
    if (!picture) {
        return nullptr;
    }
    const auto image = ui::Image::make();
    of(image).value_ = std::move(picture);
    return image;
}

const Image* UIImage::valueOf(ui::Image image) {
    return image && of(image).value_ ? &*of(image).value_ : nullptr;
}

CGSize UIImage::size() const {
    return value_ ? CGSize{value_->size().width, value_->size().height} : CGSize();
}

} // namespace desktop
