// The pane that the settings' package brings, in Settings: every row stores what the library reads.
#include "tests/host/host.hpp"
#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>

namespace {

using support::TemporaryFolder;
using tests::Json;
using tests::Phone;

/// Settings with a pane open, on a screen so high that none needs to be scrolled.
class PaneOnScreen {
public:
    explicit PaneOnScreen(const TemporaryFolder& root, const std::string& title = "Wentra",
                          const std::string& size = "390x3000@1")
        : phone({"--app", "settings", "--settings-bundle", "--size", size, "--root",
                 root.path().string()}) {
        open(title);
    }

    void open(const std::string& title) {
        phone.tap(rowOf(title));
        phone.advance(1);
    }
    void goBack() {
        phone.tap(Json::array({30, 70}));
        phone.advance(1);
    }
    [[nodiscard]] Json rowOf(const std::string& title) {
        const Json labels = phone.find({{"text", title}, {"visible", true}});
        EXPECT_FALSE(labels.empty()) << title;
        return labels.empty() ? Json() : labels.back();
    }
    /// The control of that class whose middle is `below` points under that of the title.
    [[nodiscard]] Json controlOf(const std::string& title, const std::string& cls,
                                 double below = 0) {
        const double middle = middleOf(rowOf(title)) + below;
        for (const Json& control : phone.find({{"class", cls}, {"visible", true}})) {
            if (std::abs(middleOf(control) - middle) < 2) {
                return control;
            }
        }
        ADD_FAILURE() << title << " has no " << cls;
        return nullptr;
    }
    Json stored(const Json& preference) {
        const Json values = phone.result({{"do", "preferences"}});
        return values.value(preference.at("key").get<std::string>(), Json());
    }

    Phone phone;

private:
    static double middleOf(const Json& node) {
        return node.at("rect").at(1).get<double>() + node.at("rect").at(3).get<double>() / 2;
    }
};

void useSwitch(PaneOnScreen& pane, const Json& preference) {
    const Json control = pane.controlOf(preference["zh"], "UISwitch");
    for (const bool on : {true, false}) {
        pane.phone.tap(control);
        EXPECT_EQ(pane.stored(preference), Json(on)) << preference;
    }
}

/// An empty field shows the default.
Json placeholderOf(const Json& preference) {
    const Json value = preference.value("default", Json());
    return value.is_number() ? Json(value.dump()) : value;
}

void useField(PaneOnScreen& pane, const Json& preference) {
    constexpr int numbersAndPunctuation = 2;
    const Json field = pane.controlOf(preference["zh"], "UITextField");
    EXPECT_EQ(field["placeholder"], placeholderOf(preference)) << preference;
    EXPECT_EQ(pane.phone.message(field, "keyboardType"),
              preference["type"] == "number" ? numbersAndPunctuation : 0)
        << preference;
    pane.phone.tap(field);
    pane.phone.result({{"do", "type"}, {"text", "12.5"}});
    pane.phone.result({{"do", "key"}, {"name", "return"}});
    EXPECT_EQ(pane.stored(preference), "12.5") << preference;
}

void useSlider(PaneOnScreen& pane, const Json& preference) {
    constexpr double rowHeight = 44;
    const Json rect = pane.controlOf(preference["zh"], "UISlider", rowHeight).at("rect");
    const double left = rect[0];
    const double width = rect[2];
    const double y = rect[1].get<double>() + rect[3].get<double>() / 2;
    const double minimum = preference["minimum"];
    const double part = (preference["default"].get<double>() - minimum) /
                        (preference["maximum"].get<double>() - minimum);
    constexpr double thumb = 27;
    const double grip = left + thumb / 2 + part * (width - thumb);
    pane.phone.slide({{grip, y}, {left + width + 50, y}});
    EXPECT_EQ(pane.stored(preference), preference["maximum"]) << preference;
    pane.phone.slide({{left + width - thumb / 2, y}, {left + width / 2, y}});
    ASSERT_TRUE(pane.stored(preference).is_number()) << preference;
    EXPECT_NEAR(pane.stored(preference), (1 + minimum) / 2, 0.01) << preference;
}

void useRow(PaneOnScreen& pane, const Json& preference) {
    if (preference["type"] == "switch") {
        useSwitch(pane, preference);
    } else if (preference.contains("minimum")) {
        useSlider(pane, preference);
    } else {
        useField(pane, preference);
    }
}

class PreferencePane : public testing::TestWithParam<const char*> {
protected:
    TemporaryFolder root;
};

TEST_P(PreferencePane, StoresEachRowWhereTheLibraryReads) {
    const std::filesystem::path layout = root.path() / GetParam();
    std::filesystem::create_directories(layout);
    PaneOnScreen pane(root);
    const Json table = Json::parse(std::ifstream(SETTINGS_PATH "/preferences.json"));
    std::size_t used = 0;
    for (const Json& list : table) {
        const bool isFirst = list == table.front();
        if (!isFirst) {
            pane.open(list["zh"]);
        }
        for (const Json& group : list["groups"]) {
            for (const Json& preference : group["preferences"]) {
                useRow(pane, preference);
                ++used;
            }
        }
        if (!isFirst) {
            pane.goBack();
        }
    }
    EXPECT_EQ(pane.phone.result({{"do", "preferences"}}).size(), used);
    EXPECT_TRUE(exists(layout / "var/mobile/Library/Preferences/cn.zerk.hovtanprefs.plist"));
    EXPECT_TRUE(pane.phone.swallowed().empty());
}

INSTANTIATE_TEST_SUITE_P(Layouts, PreferencePane, testing::Values("", "var/jb"));

/// How high on the screen the entry of the pane stands.
double topOf(Phone& phone, const std::string& title) {
    return phone.find({{"text", title}}).at(0).at("rect").at(1);
}

TEST(PreferencePanes, StandInTheOrderOfTheirFiles) {
    const TemporaryFolder root;
    for (const char* name : {"B", "D", "A", "C"}) {
        root.write(std::string("Library/PreferenceLoader/Preferences/") + name + ".plist",
                   std::string("{entry = {label = Pane") + name + ";};}");
    }
    Phone phone({"--app", "settings", "--root", root.path().string()});
    EXPECT_LT(topOf(phone, "PaneA"), topOf(phone, "PaneB"));
    EXPECT_LT(topOf(phone, "PaneB"), topOf(phone, "PaneC"));
    EXPECT_LT(topOf(phone, "PaneC"), topOf(phone, "PaneD"));
}

TEST(SettingsBundle, TakesTheirPlaceFromNoFiles) {
    const TemporaryFolder root;
    const std::string list =
        root.write("Library/PreferenceLoader/Preferences/Wentra/Wentra.plist", "{}");
    Phone phone({"--app", "settings", "--settings-bundle", "--root", root.path().string()});
    phone.window(); // it has started
    EXPECT_EQ(std::filesystem::file_size(list), 2U);
    EXPECT_TRUE(exists(root.path() / "Library/PreferenceBundles/hovtanprefs.bundle/xfq.png"));
}

TEST(SettingsBundle, IsNotPutBesideAnother) {
    const TemporaryFolder root;
    root.write("Library/PreferenceBundles/hovtanprefs.bundle/colors.plist", "()");
    Phone phone({"--app", "settings", "--settings-bundle", "--root", root.path().string()});
    phone.window(); // it has started
    EXPECT_FALSE(exists(root.path() / "Library/PreferenceBundles/hovtanprefs.bundle/xfq.png"));
}

class PreferencePaneFaults : public testing::Test {
protected:
    TemporaryFolder root;
};

TEST_F(PreferencePaneFaults, ReadsValuesOfOtherTypesAndKeepsUnknownKeys) {
    PaneOnScreen pane(root);
    pane.phone.set({{"kqwzfc", "1"},
                    {"开启复制弹出", Json::array({1})},
                    {"悬浮窗口起点", 70},
                    {"分词窗口底色", Json::object()},
                    {"表格底部透明", "0.5"},
                    {"unknown", "kept"}});
    pane.goBack();
    pane.open("Wentra");
    pane.phone.tap(pane.controlOf("显示悬浮球", "UISwitch"));
    EXPECT_EQ(pane.stored({{"key", "kqwzfc"}}), false);
    pane.phone.tap(pane.controlOf("复制后弹出工具箱", "UISwitch"));
    EXPECT_EQ(pane.stored({{"key", "开启复制弹出"}}), true);
    EXPECT_EQ(pane.stored({{"key", "unknown"}}), "kept");
    pane.open("悬浮球与工具箱");
    const auto shown = [&](const char* title, const char* cls, const char* message, double below) {
        return pane.phone.message(pane.controlOf(title, cls, below), message);
    };
    EXPECT_EQ(shown("窗口起点", "UITextField", "text", 0), "70");
    EXPECT_EQ(shown("窗口底色", "UITextField", "text", 0), "");
    EXPECT_EQ(shown("词格底色浓度", "UISlider", "value", 44), 0.5);
}

TEST_F(PreferencePaneFaults, ShowsWhatIsStoredWhenNothingCanBe) {
    PaneOnScreen pane(root);
    const auto folder = root.path() / "var/mobile/Library/Preferences";
    std::filesystem::create_directories(folder / "cn.zerk.hovtanprefs.plist/in the way");
    const Json control = pane.controlOf("显示悬浮球", "UISwitch");
    pane.phone.tap(control);
    EXPECT_EQ(pane.phone.message(pane.controlOf("显示悬浮球", "UISwitch"), "isOn"), false);
    EXPECT_EQ(pane.phone.result({{"do", "preferences"}}), nullptr);
}

TEST_F(PreferencePaneFaults, StoresNothingForRowsWithoutKeyOrFile) {
    root.write("Library/PreferenceLoader/Preferences/Odd.plist",
               "{entry = {label = Odd;}; items = ({cell = PSSwitchCell; label = A; defaults = a;},"
               "{cell = PSSwitchCell; label = B; key = b;}, {cell = PSSliderCell;});}");
    PaneOnScreen pane(root, "Odd");
    for (const char* title : {"A", "B"}) {
        pane.phone.tap(pane.controlOf(title, "UISwitch"));
        EXPECT_EQ(pane.phone.message(pane.controlOf(title, "UISwitch"), "isOn"), false);
    }
    const auto folder = root.path() / "var/mobile/Library/Preferences";
    EXPECT_FALSE(exists(folder / "a.plist") || exists(folder / ".plist"));
}

TEST_F(PreferencePaneFaults, StoresAFieldThatIsScrolledAway) {
    PaneOnScreen pane(root, "Wentra", "390x844@1");
    pane.open("悬浮球与工具箱");
    pane.phone.tap(pane.controlOf("悬浮球边长", "UITextField"));
    pane.phone.result({{"do", "type"}, {"text", "50"}});
    for (int slides = 0; slides < 3; ++slides) {
        pane.phone.slide({{20, 400}, {20, 120}});
        pane.phone.advance(2);
    }
    EXPECT_EQ(pane.phone.find({{"text", "悬浮球边长"}, {"visible", true}}).size(), 0U);
    EXPECT_EQ(pane.stored({{"key", "悬浮球长宽比"}}), "50");
}

TEST_F(PreferencePaneFaults, StoresAFieldThatIsLeftByTheBackButton) {
    PaneOnScreen pane(root);
    pane.open("悬浮球与工具箱");
    pane.phone.tap(pane.controlOf("悬浮球边长", "UITextField"));
    pane.phone.result({{"do", "type"}, {"text", "50"}});
    pane.goBack();
    EXPECT_EQ(pane.stored({{"key", "悬浮球长宽比"}}), "50");
}

TEST_F(PreferencePaneFaults, OpensFromTheWholeRowOfATurnedPhone) {
    Phone phone({"--app", "settings", "--settings-bundle", "--size", "390x1200@1", "--root",
                 root.path().string()});
    phone.result({{"do", "rotate"}, {"to", "landscapeLeft"}});
    for (int slides = 0; slides < 4; ++slides) {
        phone.slide({{400, 300}, {400, 180}});
        phone.advance(2);
    }
    const double top = phone.find({{"text", "Wentra"}})[0].at("rect").at(1);
    phone.tap(Json::array({1100, top + 20}));
    phone.advance(1);
    EXPECT_EQ(phone.result({{"do", "screens"}}).back(), "PreferencePaneController");
}

TEST_F(PreferencePaneFaults, PassesOverBrokenLists) {
    const std::string folder = "Library/PreferenceLoader/Preferences/";
    root.write(folder + "Broken.plist", "{entry = ");
    root.write(folder + "Other.plist", "{entry = ( 1 ); items = ();}");
    root.write(folder + "Bare.plist", "{entry = {label = Bare;}; items = (1, {}, {cell = X;});}");
    root.write(folder + "Gone.plist", "{entry = {label = Gone; icon = \"no.png\";};}");
    Phone phone({"--app", "settings", "--root", root.path().string()});
    EXPECT_EQ(phone.find({{"text", "Other"}}).size(), 0U);
    phone.tap(phone.find({{"text", "Gone"}})[0]);
    EXPECT_EQ(phone.result({{"do", "screens"}}).size(), 1U);
    phone.tap(phone.find({{"text", "Bare"}})[0]);
    phone.advance(1);
    EXPECT_EQ(phone.result({{"do", "screens"}}).back(), "PreferencePaneController");
}

} // namespace
