// UIImagePNGRepresentation and UIImageJPEGRepresentation.
#include "bindings/uikit/image_representation.hpp"

#include "desktop/uikit/values/image.hpp"

namespace {

id dataOf(const std::vector<std::byte>& bytes) {
    const std::string_view view(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    return bytes.empty() ? nullptr : ns::Data::from(view).raw();
}

} // namespace

id UIImagePNGRepresentation(id image) {
    const desktop::Image* const picture = desktop::UIImage::valueOf(objc::wrap<ui::Image>(image));
    return picture == nullptr ? nullptr : dataOf(picture->png());
}

id UIImageJPEGRepresentation(id image, double quality) {
    const desktop::Image* const picture = desktop::UIImage::valueOf(objc::wrap<ui::Image>(image));
    return picture == nullptr ? nullptr : dataOf(picture->jpeg(quality));
}
