// Encodes pictures: PNG by Cairo, JPEG by GdkPixbuf.
#include "desktop/drawing/handle.hpp"
#include "desktop/drawing/image.hpp"
#include "desktop/drawing/png_writer.hpp"
#include "desktop/drawing/surfaces.hpp"

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
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

/// The pixels over white, without an alpha channel.
std::shared_ptr<cairo_surface_t> overWhite(cairo_surface_t* picture, int width, int height) {
    auto pixels = makeSurface(width, height, CAIRO_FORMAT_RGB24);
    const Handle<cairo_t, cairo_destroy> painter(cairo_create(pixels.get()));
    cairo_set_source_rgb(painter.get(), 1, 1, 1);
    cairo_paint(painter.get());
    paintFrom(pixels.get(), picture, 0, 0, CAIRO_OPERATOR_OVER);
    cairo_surface_flush(pixels.get());
    return pixels;
}

/// The samples in the encoder's order.
Pixbuf samplesOf(cairo_surface_t* pixels) {
    constexpr int bitsPerSample = 8;
    const int width = cairo_image_surface_get_width(pixels);
    const int height = cairo_image_surface_get_height(pixels);
    Pixbuf pixbuf(gdk_pixbuf_new(GDK_COLORSPACE_RGB, FALSE, bitsPerSample, width, height));
    const unsigned char* from = cairo_image_surface_get_data(pixels);
    for (int y = 0; pixbuf && from != nullptr && y < height; ++y) {
        const auto* row = reinterpret_cast<const std::uint32_t*>(
            from + std::ptrdiff_t{y} * cairo_image_surface_get_stride(pixels));
        guchar* to = gdk_pixbuf_get_pixels(pixbuf.get()) +
                     std::ptrdiff_t{y} * gdk_pixbuf_get_rowstride(pixbuf.get());
        for (int x = 0; x < width; ++x) {
            for (const int shift : {16, 8, 0}) {
                *to++ = static_cast<guchar>(row[x] >> shift & 0xFFU);
            }
        }
    }
    return pixbuf;
}

} // namespace

/// A strip at a time, so that a tall recording needs no memory for all of its pixels.
std::vector<std::byte> Image::opaquePng() const {
    constexpr int rowsInStrip = 512;
    const int width = pixelWidth();
    const int height = pixelHeight();
    PngWriter writer(static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height));
    const auto strip = makeSurface(width, std::min(height, rowsInStrip), CAIRO_FORMAT_RGB24);
    for (int top = 0; top < height; top += rowsInStrip) {
        paintFrom(strip.get(), surface(), 0, top);
        cairo_surface_flush(strip.get());
        const unsigned char* pixels = cairo_image_surface_get_data(strip.get());
        if (pixels == nullptr) {
            return {};
        }
        for (int row = 0; row < std::min(rowsInStrip, height - top); ++row) {
            writer.add(pixels + std::ptrdiff_t{row} * cairo_image_surface_get_stride(strip.get()));
        }
    }
    const std::vector<unsigned char> png = writer.finish();
    const auto* first = reinterpret_cast<const std::byte*>(png.data());
    return {first, first + png.size()};
}

std::vector<std::byte> Image::png() const {
    if (cairo_surface_get_content(surface()) == CAIRO_CONTENT_COLOR && pixelWidth() > 0 &&
        pixelHeight() > 0) {
        return opaquePng();
    }
    std::vector<std::byte> bytes;
    if (cairo_surface_write_to_png_stream(surface(), appendBytes, &bytes) != CAIRO_STATUS_SUCCESS) {
        bytes.clear();
    }
    return bytes;
}

std::vector<std::byte> Image::jpeg(double quality) const {
    const long percent = std::lround(100 * (quality > 0 ? std::min(quality, 1.0) : 0));
    const Pixbuf pixbuf = samplesOf(overWhite(surface(), pixelWidth(), pixelHeight()).get());
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
