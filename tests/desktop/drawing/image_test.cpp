// Pictures are decoded, and damaged ones refused.
#include "desktop/drawing/canvas.hpp"
#include "desktop/drawing/image.hpp"

#include <gdk-pixbuf/gdk-pixbuf.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <string>

using namespace desktop;

namespace {

Image sample() {
    Canvas canvas({8, 4}, 1);
    canvas.fill({0, 0, 4, 4}, {1, 0, 0});
    canvas.fill({4, 0, 4, 4}, {0, 0, 1, 0.5});
    return canvas.snapshot();
}

std::vector<std::byte> jpeg() {
    guchar pixels[8 * 8 * 3] = {};
    for (std::size_t index = 0; index < sizeof pixels; index += 3) {
        pixels[index + 1] = 255;
    }
    GdkPixbuf* pixbuf =
        gdk_pixbuf_new_from_data(pixels, GDK_COLORSPACE_RGB, FALSE, 8, 8, 8, 24, nullptr, nullptr);
    gchar* bytes = nullptr;
    gsize length = 0;
    gdk_pixbuf_save_to_buffer(pixbuf, &bytes, &length, "jpeg", nullptr,
                              static_cast<const char*>(nullptr));
    const auto* first = reinterpret_cast<const std::byte*>(bytes);
    std::vector<std::byte> result(first, first + length);
    g_free(bytes);
    g_object_unref(pixbuf);
    return result;
}

TEST(Image, SurvivesSavingAndLoading) {
    std::string pattern = (std::filesystem::temp_directory_path() / "image.XXXXXX").string();
    const std::filesystem::path folder = mkdtemp(pattern.data());
    ASSERT_TRUE(sample().savePng(folder / "图.png"));
    const auto loaded = Image::load(folder / "图.png", 2);
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->size(), (Size{4, 2}));
    EXPECT_EQ(loaded->pixel(0, 0), (Colour{1, 0, 0, 1}));
    EXPECT_EQ(loaded->pixel(7, 3), sample().pixel(7, 3));
    EXPECT_NEAR(loaded->pixel(7, 3).blue, 1, 0.01);
    EXPECT_EQ(loaded->pixel(8, 0), (Colour{0, 0, 0, 0}));
    EXPECT_EQ(loaded->pixel(-1, 0), (Colour{0, 0, 0, 0}));

    EXPECT_FALSE(Image::load(folder));
    EXPECT_FALSE(Image::load(folder / "missing.png"));
    EXPECT_FALSE(sample().savePng(folder / "missing" / "x.png"));
    std::filesystem::remove_all(folder);
}

/// Red above blue, as it was drawn: taller than what a surface of pixels can be.
Image tall() {
    const cairo_rectangle_t extents{0, 0, 4, 50'000};
    const std::shared_ptr<cairo_surface_t> recording(
        cairo_recording_surface_create(CAIRO_CONTENT_COLOR, &extents), cairo_surface_destroy);
    cairo_t* painter = cairo_create(recording.get());
    Canvas canvas(painter);
    cairo_destroy(painter);
    canvas.fill({0, 0, 4, 40'000}, {1, 0, 0});
    canvas.fill({0, 40'000, 4, 10'000}, {0, 0, 1});
    return Image::adopt(recording, 2);
}

TEST(Image, MayBeTallerThanASurface) {
    const Image image = tall();
    EXPECT_EQ(image.size(), (Size{2, 25'000}));
    EXPECT_EQ(image.pixel(1, 39'999), (Colour{1, 0, 0, 1}));
    EXPECT_EQ(image.pixel(1, 40'000), (Colour{0, 0, 1, 1}));
    const std::vector<std::byte> png = image.png();
    ASSERT_GT(png.size(), 24U);
    EXPECT_EQ(std::to_integer<int>(png[22]), 50'000 / 256);
    EXPECT_EQ(std::to_integer<int>(png[23]), 50'000 % 256);
    const auto part = image.cropped({0, 39'998, 4, 4});
    ASSERT_TRUE(part);
    const auto read = Image::decode(part->png());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->pixel(3, 1), (Colour{1, 0, 0, 1}));
    EXPECT_EQ(read->pixel(3, 2), (Colour{0, 0, 1, 1}));
}

TEST(Image, IsCroppedByWholePixels) {
    const auto part = sample().cropped({3.5, -5, 100, 6});
    ASSERT_TRUE(part);
    EXPECT_EQ(part->pixelWidth(), 5);
    EXPECT_EQ(part->pixelHeight(), 1);
    EXPECT_EQ(part->pixel(0, 0), (Colour{1, 0, 0, 1}));
    EXPECT_EQ(part->pixel(1, 0), sample().pixel(4, 0));
    EXPECT_FALSE(sample().cropped({8, 0, 4, 4}));
    EXPECT_FALSE(sample().cropped({0, 0, -1, 4}));
    EXPECT_FALSE(sample().cropped({std::nan(""), 0, 1, 1}));
}

TEST(Image, DecodesJpeg) {
    const auto image = Image::decode(jpeg());
    ASSERT_TRUE(image);
    EXPECT_EQ(image->pixelWidth(), 8);
    EXPECT_GT(image->pixel(4, 4).green, 0.95);
    EXPECT_LT(image->pixel(4, 4).red, 0.05);
}

TEST(Image, RefusesWhatIsNoPicture) {
    EXPECT_FALSE(Image::decode({}));
    EXPECT_FALSE(Image::decode(std::as_bytes(std::span("no picture"))));
    for (const std::vector<std::byte>& file : {sample().png(), jpeg()}) {
        constexpr std::size_t signature = 16;
        EXPECT_FALSE(Image::decode(std::span(file).first(signature)));
        std::vector<std::byte> damaged = file;
        for (std::size_t index = signature; index < damaged.size(); ++index) {
            damaged[index] = std::byte{0x55};
        }
        EXPECT_FALSE(Image::decode(damaged));
    }
}

TEST(Image, IsClearWhereItEndsEarly) {
    const std::vector<std::byte> png = sample().png();
    for (std::size_t length = 0; length < png.size(); ++length) {
        const auto image = Image::decode(std::span(png).first(length));
        if (!image) {
            continue;
        }
        EXPECT_EQ(image->size(), sample().size());
        const Colour last = image->pixel(7, 3);
        EXPECT_TRUE(last == sample().pixel(7, 3) || last.alpha == 0) << length;
    }
}

TEST(Image, RefusesHugePictures) {
    std::vector<std::byte> png = sample().png();
    // The width in the header; the checksum is wrong then, which the size is refused before.
    png[16] = png[17] = std::byte{0};
    png[18] = std::byte{0xFF};
    EXPECT_FALSE(Image::decode(png));
}

TEST(Image, TakesOnlyScalesThatMakeSense) {
    const std::vector<std::byte> png = sample().png();
    for (const double scale : {0.0, -2.0, std::nan("")}) {
        EXPECT_EQ(Image::decode(png, scale)->scale(), 1);
    }
}

} // namespace
