// The preference reader against Foundation: what one writes, the other reads to the same values.
#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/number.hpp"
#include "bindings/foundation/property_list_serialization.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/foundation/property_list_serialization.hpp"
#include "library/preferences/preferences.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <random>

namespace wentra::preferences {
namespace {

/// Markup, Chinese, accents, line breaks, emoji.
std::u16string anyText(std::mt19937& random) {
    constexpr std::u16string_view alphabet = u"ab<>&\"' \n\t广告屏蔽é€]]>;#,=";
    std::u16string text;
    for (std::size_t length = random() % 12; length > 0; --length) {
        text += alphabet[random() % alphabet.size()];
    }
    return random() % 4 == 0 ? text + u"😀" : text;
}

objc::Object anyValue(std::mt19937& random) {
    switch (random() % 4) {
    case 0:
        return ns::Number::from(random() % 2 == 0);
    case 1:
        return ns::Number::from(static_cast<long long>(random()) - (1LL << 31U));
    case 2:
        return ns::Number::from(static_cast<double>(random() % 4096) / 32 - 64);
    default:
        return ns::String::from(anyText(random));
    }
}

TEST(Preferences, AgreeWithFoundationOnWhatItWrites) {
    desktop::foundation::installPropertyListSerialization();
    const support::TemporaryFolder folder;
    const std::string path = folder.path() / "preferences.plist";
    std::mt19937 random(20261121);
    for (int round = 0; round < 200; ++round) {
        const objc::Pool pool;
        const auto entries = ns::MutableDictionary::make();
        for (std::size_t count = random() % 20; count > 0; --count) {
            entries.set(anyValue(random), ns::String::from(anyText(random)));
        }
        entries.set(anyValue(random), ns::String::fromUtf8(keys.recolour.name()));
        for (const auto format : {ns::PropertyListFormat::xml, ns::PropertyListFormat::binary}) {
            ASSERT_FALSE(ns::PropertyListSerialization::data(entries, format)
                             .value.writeToFile(ns::String::fromUtf8(path)));
            const Preferences read = Preferences::readFile(path);
            for (const objc::Object key : entries.allKeys()) {
                const auto name = key.assume<ns::String>().utf8();
                const objc::Object value = entries.get(key);
                if (const auto text = value.as<ns::String>(); text) {
                    EXPECT_EQ(read.text(name), text.utf16()) << name;
                    EXPECT_EQ(read.number(name), static_cast<double>(text.floatValue())) << name;
                } else {
                    const auto number = value.assume<ns::Number>();
                    EXPECT_EQ(read.number(name), static_cast<double>(number.floatValue())) << name;
                    EXPECT_EQ(read.on(name), number.boolValue()) << name;
                }
            }
        }
    }
}

} // namespace
} // namespace wentra::preferences
