// Decodes pictures with GdkPixbuf into Cairo's pixels.
#include "desktop/drawing/image.hpp"

#include "desktop/drawing/display/pixel_rectangle.hpp"
#include "desktop/drawing/handle.hpp"
#include "desktop/drawing/surfaces.hpp"

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <utility>

namespace desktop {
namespace {

using Pixbuf = Handle<GdkPixbuf, g_object_unref>;
using Loader = Handle<GdkPixbufLoader, g_object_unref>;

bool isRecording(cairo_surface_t* surface) {
    return cairo_surface_get_type(surface) == CAIRO_SURFACE_TYPE_RECORDING;
}

cairo_rectangle_t extentsOf(cairo_surface_t* recording) {
    cairo_rectangle_t extents{};
    cairo_recording_surface_get_extents(recording, &extents);
    return extents;
}

/// A part of an opaque recording.
std::shared_ptr<cairo_surface_t> painted(cairo_surface_t* recording, const PixelRectangle& part) {
    auto pixels = makeSurface(part.width, part.height, CAIRO_FORMAT_RGB24);
    paintFrom(pixels.get(), recording, part.x, part.y);
    return pixels;
}

/// A part of the pixels, which it keeps alive.
std::shared_ptr<cairo_surface_t> shared(cairo_surface_t* whole, const PixelRectangle& part) {
    static const cairo_user_data_key_t key{};
    constexpr std::ptrdiff_t bytesPerPixel = 4;
    const int stride = cairo_image_surface_get_stride(whole);
    unsigned char* first = cairo_image_surface_get_data(whole) + std::ptrdiff_t{part.y} * stride +
                           part.x * bytesPerPixel;
    std::shared_ptr<cairo_surface_t> pixels(
        cairo_image_surface_create_for_data(first, cairo_image_surface_get_format(whole),
                                            part.width, part.height, stride),
        cairo_surface_destroy);
    cairo_surface_set_user_data(pixels.get(), &key, cairo_surface_reference(whole), [](void* kept) {
        cairo_surface_destroy(static_cast<cairo_surface_t*>(kept));
    });
    return pixels;
}

// Keeps a small file that claims to be a huge picture from taking the memory.
void refuseLargePicture(GdkPixbufLoader* loader, int width, int height, gpointer refused) {
    if (std::max(width, height) > Image::largestSide) {
        *static_cast<bool*>(refused) = true;
        gdk_pixbuf_loader_set_size(loader, 1, 1);
    }
}

// The pixels of a picture that ends early would otherwise be left as the memory was.
void makeClear(GdkPixbufLoader* loader, gpointer) {
    gdk_pixbuf_fill(gdk_pixbuf_loader_get_pixbuf(loader), 0);
}

/// Whether all of it is a picture. What is none is not read to its end.
bool feed(GdkPixbufLoader* loader, const Image::Parts& parts) {
    for (auto part = parts(); !part.empty(); part = parts()) {
        if (gdk_pixbuf_loader_write(loader, reinterpret_cast<const guchar*>(part.data()),
                                    part.size(), nullptr) == FALSE) {
            return false;
        }
    }
    return true;
}

Pixbuf decodePixbuf(const Image::Parts& parts) {
    bool refused = false;
    const Loader loader(gdk_pixbuf_loader_new());
    g_signal_connect(loader.get(), "size-prepared", G_CALLBACK(refuseLargePicture), &refused);
    g_signal_connect(loader.get(), "area-prepared", G_CALLBACK(makeClear), nullptr);
    const bool written = feed(loader.get(), parts);
    const bool complete = gdk_pixbuf_loader_close(loader.get(), nullptr) != FALSE;
    GdkPixbuf* decoded = gdk_pixbuf_loader_get_pixbuf(loader.get());
    if (!written || !complete || refused || decoded == nullptr) {
        return nullptr;
    }
    return Pixbuf(gdk_pixbuf_apply_embedded_orientation(decoded));
}

std::uint32_t premultiplied(std::uint32_t component, std::uint32_t alpha) {
    return (component * alpha + 127) / 255;
}

std::shared_ptr<cairo_surface_t> surfaceOf(GdkPixbuf* pixbuf) {
    const int width = gdk_pixbuf_get_width(pixbuf);
    const int height = gdk_pixbuf_get_height(pixbuf);
    const bool hasAlpha = gdk_pixbuf_get_has_alpha(pixbuf) != FALSE;
    auto surface = makeSurface(width, height);
    unsigned char* target = cairo_image_surface_get_data(surface.get());
    for (int y = 0; target != nullptr && y < height; ++y) {
        const guchar* from =
            gdk_pixbuf_read_pixels(pixbuf) + std::ptrdiff_t{y} * gdk_pixbuf_get_rowstride(pixbuf);
        auto* row = reinterpret_cast<std::uint32_t*>(
            target + std::ptrdiff_t{y} * cairo_image_surface_get_stride(surface.get()));
        for (int x = 0; x < width; ++x, from += gdk_pixbuf_get_n_channels(pixbuf)) {
            const std::uint32_t alpha = hasAlpha ? from[3] : 255;
            row[x] = alpha << 24 | premultiplied(from[0], alpha) << 16 |
                     premultiplied(from[1], alpha) << 8 | premultiplied(from[2], alpha);
        }
    }
    cairo_surface_mark_dirty(surface.get());
    return surface;
}

} // namespace

Image::Image(std::shared_ptr<cairo_surface_t> surface, double scale)
    : surface_(std::move(surface)), scale_(scale > 0 ? scale : 1) {}

std::optional<Image> Image::load(const std::filesystem::path& file, double scale) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error)) {
        return std::nullopt;
    }
    constexpr std::size_t partSize = 1U << 16U;
    std::ifstream stream(file, std::ios::binary);
    std::vector<std::byte> part(partSize);
    return decodeParts(
        [&] {
            stream.read(reinterpret_cast<char*>(part.data()), partSize);
            return std::span<const std::byte>(part.data(),
                                              static_cast<std::size_t>(stream.gcount()));
        },
        scale);
}

std::optional<Image> Image::decode(std::span<const std::byte> bytes, double scale) {
    return decodeParts([&] { return std::exchange(bytes, {}); }, scale);
}

std::optional<Image> Image::decodeParts(const Parts& parts, double scale) {
    const Pixbuf pixbuf = decodePixbuf(parts);
    return pixbuf ? std::optional(Image(surfaceOf(pixbuf.get()), scale)) : std::nullopt;
}

Image Image::adopt(std::shared_ptr<cairo_surface_t> surface, double scale) {
    cairo_surface_flush(surface.get());
    return {std::move(surface), scale};
}

Size Image::size() const { return {pixelWidth() / scale_, pixelHeight() / scale_}; }

int Image::pixelWidth() const {
    return isRecording(surface()) ? static_cast<int>(extentsOf(surface()).width)
                                  : cairo_image_surface_get_width(surface());
}

int Image::pixelHeight() const {
    return isRecording(surface()) ? static_cast<int>(extentsOf(surface()).height)
                                  : cairo_image_surface_get_height(surface());
}

Image Image::copied() const {
    const bool isOpaque = cairo_surface_get_content(surface()) == CAIRO_CONTENT_COLOR;
    auto pixels = makeSurface(pixelWidth(), pixelHeight(),
                              isOpaque ? CAIRO_FORMAT_RGB24 : CAIRO_FORMAT_ARGB32);
    paintFrom(pixels.get(), surface(), 0, 0);
    return adopt(std::move(pixels), scale_);
}

std::optional<Image> Image::cropped(const Rectangle& area) const {
    const PixelRectangle part = pixelsAround(area, {0, 0, pixelWidth(), pixelHeight()});
    if (part.isEmpty()) {
        return std::nullopt;
    }
    return adopt(isRecording(surface()) ? painted(surface(), part) : shared(surface(), part),
                 scale_);
}

Colour Image::pixel(int x, int y) const {
    if (cairo_surface_get_content(surface()) == CAIRO_CONTENT_COLOR && x >= 0 && y >= 0 &&
        x < pixelWidth() && y < pixelHeight()) {
        const auto one = makeSurface(1, 1);
        paintFrom(one.get(), surface(), x, y);
        return adopt(one, scale_).pixel(0, 0);
    }
    const unsigned char* data = cairo_image_surface_get_data(surface());
    if (data == nullptr || x < 0 || y < 0 || x >= pixelWidth() || y >= pixelHeight()) {
        return {0, 0, 0, 0};
    }
    const std::ptrdiff_t stride = cairo_image_surface_get_stride(surface());
    const std::uint32_t value = reinterpret_cast<const std::uint32_t*>(data + y * stride)[x];
    const std::uint32_t alpha = value >> 24;
    if (alpha == 0) {
        return {0, 0, 0, 0};
    }
    const auto component = [&](int shift) {
        return std::min(1.0, static_cast<double>((value >> shift) & 0xFF) / alpha);
    };
    return {component(16), component(8), component(0), alpha / 255.0};
}

} // namespace desktop
