// A picture in memory: decoded from PNG or JPEG, drawn by a canvas, saved as PNG.
#pragma once

#include "desktop/drawing/colour.hpp"
#include "desktop/drawing/geometry.hpp"

#include <cairo.h>

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace desktop {

/// An immutable bitmap. Copies share the pixels; safe to read from any thread.
class Image {
public:
    /// Reads a picture of any supported format; `scale` is pixels per point (not positive or NaN:
    /// 1). Nothing when the file is missing, no picture, damaged, or larger than
    /// `largestSide` pixels on a side; what a picture that ends early lacks may be clear or black.
    static std::optional<Image> load(const std::filesystem::path& file, double scale = 1);
    /// As `load`, from the bytes of a file.
    static std::optional<Image> decode(std::span<const std::byte> bytes, double scale = 1);
    /// Gives the bytes of a picture, a part at a time; an empty one at the end.
    using Parts = std::function<std::span<const std::byte>()>;
    /// As `decode`. What is no picture is not read to its end.
    static std::optional<Image> decodeParts(const Parts& parts, double scale = 1);
    /// Shares an image surface in ARGB32 or RGB24, or a bounded recording of an opaque picture of
    /// any size, none of which must be drawn to any more.
    static Image adopt(std::shared_ptr<cairo_surface_t> surface, double scale);

    static constexpr int largestSide = 8192;

    /// Points: pixels divided by the scale.
    Size size() const;
    double scale() const { return scale_; }
    /// The same pixels at so many a point.
    Image atScale(double scale) const { return {surface_, scale}; }
    int pixelWidth() const;
    int pixelHeight() const;
    /// With pixels of its own.
    Image copied() const;
    /// The pixels that the area, in pixels, touches, at the same scale; nothing when it touches
    /// none.
    std::optional<Image> cropped(const Rectangle& area) const;
    /// The colour of a pixel, (0, 0) at the top left; clear outside of the image.
    Colour pixel(int x, int y) const;

    /// The bytes of a PNG file; empty when the image cannot be encoded.
    std::vector<std::byte> png() const;
    /// The bytes of a JPEG file over white; empty when the image cannot be encoded. The quality is
    /// a number from 0 to 1.
    std::vector<std::byte> jpeg(double quality) const;
    /// Writes a PNG file; false when that fails.
    bool savePng(const std::filesystem::path& file) const;

    /// The pixels, still owned by the image; not to be drawn to.
    cairo_surface_t* surface() const { return surface_.get(); }

private:
    Image(std::shared_ptr<cairo_surface_t> surface, double scale);
    std::vector<std::byte> opaquePng() const;

    std::shared_ptr<cairo_surface_t> surface_;
    double scale_;
};

} // namespace desktop
