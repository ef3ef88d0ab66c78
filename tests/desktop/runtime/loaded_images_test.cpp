// The list of loaded images: the executable first, libraries after it.
#include "bindings/dyld/images.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(LoadedImages, NamesTheExecutableAndTheLibraries) {
    const std::uint32_t count = _dyld_image_count();
    ASSERT_GT(count, 3U);
    EXPECT_NE(std::string(_dyld_get_image_name(0)).find("desktop_tests"), std::string::npos);
    bool foundation = false;
    for (std::uint32_t index = 0; index < count; ++index) {
        foundation |=
            std::string(_dyld_get_image_name(index)).find("gnustep-base") != std::string::npos;
    }
    EXPECT_TRUE(foundation);
    EXPECT_EQ(_dyld_get_image_name(count), nullptr);
}

} // namespace
