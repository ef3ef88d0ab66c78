// The table of preferences has exactly the keys that the library reads, of the same kinds.
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

nlohmann::json table() {
    return nlohmann::json::parse(std::ifstream(SETTINGS_PATH "/preferences.json"));
}

std::vector<nlohmann::json> preferences() {
    std::vector<nlohmann::json> found;
    for (const auto& pane : table()) {
        for (const auto& group : pane.at("groups")) {
            const auto& rows = group.at("preferences");
            found.insert(found.end(), rows.begin(), rows.end());
        }
    }
    return found;
}

Kinds listed() {
    Kinds kinds;
    for (const auto& preference : preferences()) {
        EXPECT_TRUE(kinds.emplace(preference.at("key"), preference.at("type")).second)
            << preference;
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

TEST(PreferenceTable, HasEveryKeyOfTheLibrary) {
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

TEST(PreferenceTable, KindsAreThoseThatTheLibraryReads) {
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

/// The title of what holds others, or of one preference.
void expectTitles(const nlohmann::json& titled) {
    for (const char* language : {"zh", "en"}) {
        EXPECT_FALSE(titled.at(language).get<std::string>().empty()) << titled;
    }
}

TEST(PreferenceTable, TellsPeopleWhatEachIs) {
    for (const auto& pane : table()) {
        expectTitles(pane);
        for (const auto& group : pane.at("groups")) {
            expectTitles(group);
        }
    }
    for (const auto& preference : preferences()) {
        expectTitles(preference);
        EXPECT_FALSE(preference.at("help").get<std::string>().empty()) << preference;
    }
}

TEST(PreferenceTable, DefaultsAreValuesWithinTheLimits) {
    for (const auto& preference : preferences()) {
        const bool isNumber = preference.at("type") == "number";
        EXPECT_EQ(isNumber, preference.contains("default") && preference["default"].is_number())
            << preference;
        EXPECT_EQ(preference.contains("minimum"), preference.contains("maximum")) << preference;
        if (preference.contains("minimum")) {
            EXPECT_LE(preference["minimum"], preference["default"]) << preference;
            EXPECT_GE(preference["maximum"], preference["default"]) << preference;
        }
    }
}

} // namespace
