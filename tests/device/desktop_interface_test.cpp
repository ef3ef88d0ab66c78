// Compares the classes that play the phone with the table of the phone's own.
#include "tests/device/platform_table.hpp"

#include "bindings/objc/encoding.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/foundation/foundation.hpp"
#include "desktop/platform/platform.hpp"
#include "desktop/uikit/uikit.hpp"

#include <gtest/gtest.h>

#include <optional>

namespace {

/// The types with which the desktop's class answers; none when it does not.
std::optional<std::string> desktopTypes(const PlatformRow& row) {
    const Class cls = objc_lookUpClass(row.className.c_str());
    const SEL name = sel_registerName(row.selector.c_str());
    const Method method =
        row.side == "+" ? class_getClassMethod(cls, name) : class_getInstanceMethod(cls, name);
    return method == nullptr ? std::nullopt : std::optional(method_getTypeEncoding(method));
}

/// How the desktop differs from the row; empty when it does not.
std::string difference(const PlatformRow& row) {
    if (objc_lookUpClass(row.className.c_str()) == nullptr) {
        return row.selector.empty() ? "no such class" : "";
    }
    if (row.selector.empty()) {
        return "";
    }
    const std::optional<std::string> types = desktopTypes(row);
    if (row.types == "absent") {
        return types ? "the desktop has a method that no phone has" : "";
    }
    if (!types) {
        return "no such method";
    }
    return objc::sameMeaning(*types, row.types) ? ""
                                                : "types " + *types + " instead of " + row.types;
}

class DesktopInterface : public testing::Test {
protected:
    static void SetUpTestSuite() {
        desktop::registerPlatform();
        desktop::foundation::install("test.interface");
    }

    const std::vector<PlatformRow> rows_ = readPlatformTable(INTERFACE_TABLE);
    const std::map<std::string, std::string> reasons_ = readDifferences(DESKTOP_DIFFERENCES);
    const objc::Pool pool_;
};

TEST_F(DesktopInterface, IsThatOfThePhoneWhereNoReasonIsGiven) {
    ASSERT_GT(rows_.size(), 200U);
    for (const PlatformRow& row : rows_) {
        if (row.since != "application" && !reasons_.contains(row.key())) {
            EXPECT_EQ(difference(row), "") << row.key();
        }
    }
}

TEST_F(DesktopInterface, DiffersWhereAReasonIsGiven) {
    std::map<std::string, std::string> differing;
    for (const PlatformRow& row : rows_) {
        differing[row.key()] = difference(row);
    }
    for (const auto& [key, reason] : reasons_) {
        EXPECT_NE(differing[key], "") << key << ": the reason is out of date: " << reason;
    }
}

TEST_F(DesktopInterface, MisspeltAndWronglyTypedMethodsAreNoticed) {
    EXPECT_EQ(difference({"UILabel", "-", "setText:", "v@:@", "2.0"}), "");
    EXPECT_EQ(difference({"UILabel", "-", "setTxet:", "v@:@", "2.0"}), "no such method");
    EXPECT_NE(difference({"UILabel", "-", "setText:", "v@:d", "2.0"}), "");
    EXPECT_EQ(difference({"UILable", "", "", "", "2.0"}), "no such class");
    EXPECT_NE(difference({"UILabel", "-", "setText:", "absent", "-"}), "");
}

} // namespace
