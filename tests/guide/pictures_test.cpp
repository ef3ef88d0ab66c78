// The pictures of the user's guide show what the phone shows today.
#include "desktop/drawing/image.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

namespace {

using desktop::Colour;
using desktop::Image;

const std::filesystem::path kept = GUIDE_PICTURES;

/// Clearly another colour: fonts and libraries of other versions blur edges a little differently.
bool differ(const Colour& one, const Colour& other) {
    constexpr double much = 0.15;
    return std::abs(one.red - other.red) > much || std::abs(one.green - other.green) > much ||
           std::abs(one.blue - other.blue) > much;
}

/// The part of the pixels that differ; all of them where the sizes do.
double difference(const Image& one, const Image& other) {
    const int width = one.pixelWidth();
    const int height = one.pixelHeight();
    if (width != other.pixelWidth() || height != other.pixelHeight()) {
        return 1;
    }
    long different = 0;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            different += differ(one.pixel(x, y), other.pixel(x, y)) ? 1 : 0;
        }
    }
    return static_cast<double>(different) / (static_cast<double>(width) * height);
}

std::size_t countPictures(const std::filesystem::path& folder) {
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        count += entry.path().extension() == ".png" ? 1U : 0U;
    }
    return count;
}

TEST(GuidePictures, AreNotOlderThanWhatTheyShow) {
    const support::TemporaryFolder made;
    const std::string command = std::string("python3 " GUIDE_SCRIPT " " HOST_PATH " ") +
                                made.path().string() + " >/dev/null";
    ASSERT_EQ(std::system(command.c_str()), 0); // NOLINT(concurrency-mt-unsafe): one thread
    EXPECT_GT(countPictures(kept), 0U);
    EXPECT_EQ(countPictures(made.path()), countPictures(kept));
    for (const auto& entry : std::filesystem::directory_iterator(kept)) {
        const auto now = Image::load(made.path() / entry.path().filename());
        const auto then = Image::load(entry.path());
        ASSERT_TRUE(now && then) << entry.path();
        EXPECT_LT(difference(*then, *now), 0.0003) << entry.path() << ": run ./dev guide";
    }
}

} // namespace
