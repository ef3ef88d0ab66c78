// What counts as Base64.
#include "desktop/foundation/base64.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

struct Base64Case {
    std::u16string_view text;
    bool isBase64;
};

const Base64Case base64Cases[]{
    {u"", true},          {u"SGVsbG8=", true},    {u"SGVsbA==", true},   {u"+/az", true},
    {u"SGVsbG8", false},  {u"SGVsbG8=\n", false}, {u"SG\nVsbG8", false}, {u"S===", false},
    {u"SG=sbG8=", false}, {u"SGV-", false},       {u"SGV_", false},      {u"SGV\u4e2d", false},
};

TEST(Base64Text, IsBase64ToTheLetter) {
    for (const Base64Case& each : base64Cases) {
        EXPECT_EQ(desktop::foundation::isBase64(each.text), each.isBase64)
            << std::string(each.text.begin(), each.text.end());
    }
}

} // namespace
