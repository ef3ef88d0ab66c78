// Encodes pictures: PNG by Cairo, JPEG by GdkPixbuf.
#include "desktop/drawing/handle.hpp"
#include "desktop/drawing/image.hpp"

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <string>

namespace desktop {
namespace {

using Pixbuf = Handle<GdkPixbuf, g_object_unref>;

cairo_status_t appendBytes(void* bytes, const unsigned char* data, unsigned int length) {
    const auto* first = reinterpret_cast<const std::byte*>(data);
    auto& target = *static_cast<std::vector<std::byte>*>(bytes);
    target.insert(target.end(), first, first + length);
    return CAIRO_STATUS_SUCCESS;
}

/// Without transparency: over white.
Pixbuf opaque(cairo_surface_t* surface) {
    constexpr int bitsPerSample = 8;
    const int width = cairo_image_surface_get_width(surface);
    const int height = cairo_image_surface_get_height(surface);
    Pixbuf pixbuf(gdk_pixbuf_new(GDK_COLORSPACE_RGB, FALSE, bitsPerSample, width, height));
    const unsigned char* from = cairo_image_surface_get_data(surface);
    for (int y = 0; pixbuf && from != nullptr && y < height; ++y) {
        const auto* row = reinterpret_cast<const std::uint32_t*>(
            from + std::ptrdiff_t{y} * cairo_image_surface_get_stride(surface));
        guchar* to = gdk_pixbuf_get_pixels(pixbuf.get()) +
                     std::ptrdiff_t{y} * gdk_pixbuf_get_rowstride(pixbuf.get());
        for (int x = 0; x < width; ++x) {
            const std::uint32_t white = 255 - (row[x] >> 24);
            for (const int shift : {16, 8, 0}) {
                *to++ = static_cast<guchar>(
                    std::min<std::uint32_t>(255, (row[x] >> shift & 0xFFU) + white));
            }
        }
    }
    return pixbuf;
}

} // namespace

std::vector<std::byte> Image::png() const {
    std::vector<std::byte> bytes;
    if (cairo_surface_write_to_png_stream(surface(), appendBytes, &bytes) != CAIRO_STATUS_SUCCESS) {
        bytes.clear();
    }
    return bytes;
}

std::vector<std::byte> Image::jpeg(double quality) const {
    const long percent = std::lround(100 * (quality > 0 ? std::min(quality, 1.0) : 0));
    const Pixbuf pixbuf = opaque(surface());
    gchar* bytes = nullptr;
    gsize size = 0;
    if (!pixbuf ||
        gdk_pixbuf_save_to_buffer(pixbuf.get(), &bytes, &size, "jpeg", nullptr, "quality",
                                  std::to_string(percent).c_str(), nullptr) == FALSE) {
        return {};
    }
    const Handle<gchar, g_free> owned(bytes);
    const auto* first = reinterpret_cast<const std::byte*>(bytes);
    return {first, first + size};
}

bool Image::savePng(const std::filesystem::path& file) const {
    const std::vector<std::byte> bytes = png();
    std::ofstream stream(file, std::ios::binary);
    stream.write(reinterpret_cast<const char*>(bytes.data()),
                 static_cast<std::streamsize>(bytes.size()));
    return !bytes.empty() && stream.flush().good();
}

} // namespace desktop
