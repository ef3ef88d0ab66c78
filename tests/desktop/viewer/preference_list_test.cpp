// The page's list of preferences has exactly the keys that the library reads, of the same kinds.
#include "desktop/foundation/text.hpp"
#include "library/preferences/preference_keys.hpp"
#include "library/toolbox/search/target_rows.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <bit>
#include <fstream>
#include <map>

namespace {

using namespace wentra::preferences;
using Kinds = std::map<std::string, std::string>;

nlohmann::json groups() {
    return nlohmann::json::parse(std::ifstream(PAGE_PATH "/preferences.json"));
}

Kinds listed() {
    Kinds kinds;
    for (const auto& group : groups()) {
        for (const auto& preference : group.at("preferences")) {
            EXPECT_TRUE(kinds.emplace(preference.at("key"), preference.at("type")).second)
                << preference;
        }
    }
    return kinds;
}

/// The names in the library's table, which holds keys and nothing else, and the targets of
/// searches, whose titles are keys.
std::vector<std::string> known() {
    using Keys = std::array<Key, sizeof(PreferenceKeys) / sizeof(Key)>;
    std::vector<std::string> names;
    for (const Key& key : std::bit_cast<Keys>(keys)) {
        names.emplace_back(key.name());
    }
    for (const wentra::toolbox::TargetRow& target : wentra::toolbox::targetRows) {
        names.push_back(desktop::toUtf8(target.title));
    }
    return names;
}

TEST(PreferenceList, HasEveryKeyOfTheLibrary) {
    const Kinds kinds = listed();
    std::vector<std::string> missing;
    for (const std::string& name : known()) {
        if (!kinds.contains(name)) {
            missing.push_back(name);
        }
    }
    EXPECT_EQ(missing, std::vector<std::string>());
    EXPECT_EQ(kinds.size(), known().size());
}

TEST(PreferenceList, KindsAreThoseThatTheLibraryReads) {
    const Kinds kinds = listed();
    const auto kindOf = [&](const Key& key) { return kinds.at(std::string(key.name())); };
    EXPECT_EQ(kindOf(keys.showButton), "switch");
    EXPECT_EQ(kindOf(keys.globalFontSizeIncrease), "number");
    EXPECT_EQ(kindOf(keys.buttonSide), "number");
    EXPECT_EQ(kindOf(keys.panelColour), "text");
    EXPECT_EQ(kindOf(keys.translationSecret), "text");
    for (const Key& key : keys.blockedHosts) {
        EXPECT_EQ(kindOf(key), "text");
    }
}

TEST(PreferenceList, EveryTitleIsThereInBothLanguages) {
    for (const auto& group : groups()) {
        EXPECT_FALSE(group.at("zh").get<std::string>().empty());
        EXPECT_FALSE(group.at("en").get<std::string>().empty());
        for (const auto& preference : group.at("preferences")) {
            EXPECT_FALSE(preference.at("zh").get<std::string>().empty()) << preference;
            EXPECT_FALSE(preference.at("en").get<std::string>().empty()) << preference;
        }
    }
}

} // namespace
