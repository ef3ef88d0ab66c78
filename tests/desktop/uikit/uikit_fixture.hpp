// UIKit in the test's own process.
#pragma once

#include "bindings/objc/pool.hpp"
#include "desktop/platform/platform.hpp"
#include "desktop/uikit/uikit.hpp"

#include <gtest/gtest.h>

namespace tests {

/// Registers the classes once; a pool around each test.
class UIKitTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        static const bool once = [] {
            desktop::registerPlatform();
            desktop::uikit::startApplication(desktop::usualDevice());
            return true;
        }();
        static_cast<void>(once);
    }

private:
    objc::Pool pool_;
};

} // namespace tests
