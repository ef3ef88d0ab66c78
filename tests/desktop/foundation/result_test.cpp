// Messages that can fail: the error comes back to the caller, and only when there is one.
#include "bindings/foundation/array.hpp"
#include "bindings/foundation/property_list_serialization.hpp"
#include "bindings/objc/pool.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace {

using namespace ns::literals;

TEST(Results, AnErrorComesWithAFailureOnly) {
    const objc::Pool pool;
    const auto stray = ns::Error::with(u"stray"_ns, 7);
    const ns::ErrorPointer error;
    *error.out() = stray.raw();
    EXPECT_EQ(error.unless(true), nullptr) << "what is written beside a success is no error";
    EXPECT_EQ(error.unless(false), static_cast<objc::Object>(stray));
    EXPECT_TRUE(error.result(u"answer"_ns));
    EXPECT_EQ(error.result(ns::String()).error.code(), 7);
}

TEST(Results, AFailureWithoutAWordIsAnErrorAllTheSame) {
    const objc::Pool pool;
    EXPECT_TRUE(ns::ErrorPointer().unless(false));
    EXPECT_FALSE(ns::ErrorPointer().result(ns::Data()));
}

TEST(Results, FilesThatCannotBeWrittenTellWhy) {
    const objc::Pool pool;
    const support::TemporaryFolder folder;
    const auto bytes = ns::Data::from("here");
    const auto file = ns::String::fromUtf8((folder.path() / "file").string());
    EXPECT_EQ(bytes.writeToFile(file, ns::DataWritingOptions::atomic), nullptr);
    EXPECT_EQ(ns::Data::withContentsOfFile(file).length(), 4U);
    const auto nowhere = ns::String::fromUtf8((folder.path() / "none" / "file").string());
    const ns::Error error = bytes.writeToFile(nowhere);
    ASSERT_TRUE(error);
    EXPECT_GT(error.localizedDescription().length(), 0U);
}

TEST(Results, WhatIsNoPropertyListIsAnError) {
    const objc::Pool pool;
    const auto [list, error] =
        ns::PropertyListSerialization::propertyList(ns::Data::from("<plist"));
    EXPECT_EQ(list, nullptr);
    EXPECT_TRUE(error);
}

} // namespace
