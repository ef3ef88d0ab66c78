// Where sheets, popovers, alerts and the parts of buttons lie: pure geometry.
#include "bindings/uikit/popover_presentation_controller.hpp"
#include "desktop/coregraphics/affine.hpp"
#include "desktop/uikit/alerts/alert_layout.hpp"
#include "desktop/uikit/controls/button_layout.hpp"
#include "desktop/uikit/navigation/toolbar.hpp"
#include "desktop/uikit/presentation/presentation_geometry.hpp"

#include <gtest/gtest.h>

namespace {

using namespace desktop;
using Side = ui::PopoverArrowDirection;

constexpr CGRect room{{10, 57}, {370, 743}};

TEST(PopoverPlaces, TheFirstPermittedSideWithRoomIsTaken) {
    struct Case {
        CGRect anchor;
        Side permitted;
        Side side;
    };
    const CGRect top{{150, 80}, {80, 30}};
    const CGRect bottom{{150, 750}, {80, 30}};
    for (const auto& [anchor, permitted, side] :
         {Case{top, Side::any, Side::up}, Case{bottom, Side::any, Side::down},
          Case{top, Side::down, Side::down}, Case{top, {}, Side::up},
          Case{{{10, 400}, {20, 20}}, Side::left | Side::right, Side::left}}) {
        const PopoverPlace place = popoverPlace(anchor, {140, 480}, room, permitted);
        EXPECT_EQ(place.side, side);
        EXPECT_GE(place.box.origin.y, room.origin.y);
        EXPECT_LE(place.box.origin.y + place.box.size.height, room.origin.y + room.size.height);
    }
}

TEST(PopoverPlaces, TheArrowPointsAtTheMiddleOfTheAnchor) {
    const PopoverPlace place = popoverPlace({{150, 80}, {80, 30}}, {200, 300}, room, Side::up);
    EXPECT_EQ(place.tip, (CGPoint{190, 110}));
    EXPECT_EQ(place.box, (CGRect{{90, 123}, {200, 300}}));
    EXPECT_EQ(place.frame(), (CGRect{{90, 110}, {200, 313}}));
}

TEST(PopoverPlaces, NothingLeavesTheRoom) {
    const PopoverPlace corner = popoverPlace({{380, 60}, {10, 10}}, {280, 400}, room, Side::up);
    EXPECT_EQ(corner.box.origin.x + corner.box.size.width, 380);
    EXPECT_LT(corner.tip.x, 380 - PopoverPlace::cornerRadius) << "clear of the rounded corner";
    const PopoverPlace huge = popoverPlace({{150, 400}, {80, 30}}, {1e9, 1e9}, room, Side::any);
    EXPECT_EQ(huge.box.size.width, 370);
    EXPECT_LE(huge.box.origin.y + huge.box.size.height, 800);
}

TEST(PopoverPlaces, ABoxLiesOverAnAnchorThatFillsTheScreen) {
    const CGRect screen{{10, 57}, {370, 743}};
    const auto place = [&](CGRect anchor) {
        return popoverPlace(anchor, {140, 528}, screen, ui::PopoverArrowDirection::any);
    };
    EXPECT_EQ(place({{0, 0}, {390, 844}}).box.size, (CGSize{140, 528}));
    EXPECT_EQ(place({{0, 210}, {390, 1050}}).box.origin.y, 210 + PopoverPlace::arrowHeight);
    EXPECT_EQ(
        popoverPlace({{0, 0}, {390, 844}}, {140, 528}, screen, ui::PopoverArrowDirection::down)
            .box.size.height,
        0)
        << "there is no room above";
}

TEST(Sheets, LeaveTheTopToWhatTheyCover) {
    EXPECT_EQ(sheetFrame({{0, 0}, {390, 844}}, {47, 0, 34, 0}), (CGRect{{0, 57}, {390, 787}}));
    EXPECT_EQ(sheetFrame({{0, 0}, {10, 20}}, {47, 0, 34, 0}).size.height, 0);
    const CGRect sideways{{0, 0}, {844, 390}};
    EXPECT_EQ(sheetFrame(sideways, {0, 47, 21, 47}), sideways);
}

TEST(AlertLayouts, TwoShortActionsStandSideBySide) {
    AlertContent content;
    content.headerHeight = 100;
    content.rowCount = 2;
    content.rowsAreShort = true;
    const AlertLayout layout = layOutAlert(content, {390, 763});
    EXPECT_EQ(layout.size, (CGSize{270, 144}));
    EXPECT_EQ(layout.rows.at(1), (CGRect{{135, 0}, {135, 44}}));
    content.rowsAreShort = false;
    EXPECT_EQ(layOutAlert(content, {390, 763}).rows.at(1), (CGRect{{0, 44}, {270, 44}}));
}

TEST(AlertLayouts, LongListsAndTextsScrollOnTheScreen) {
    AlertContent content;
    content.isSheet = true;
    content.rowCount = 25;
    content.hasCancelCard = true;
    const AlertLayout list = layOutAlert(content, {390, 763});
    EXPECT_EQ(list.size.width, 374);
    EXPECT_LE(list.size.height, 763);
    EXPECT_EQ(list.listContentHeight, 25 * 57);
    EXPECT_EQ(list.cancelCard.origin.y, list.card.size.height + 8);
    content.headerHeight = 1e6;
    const AlertLayout text = layOutAlert(content, {390, 763});
    EXPECT_LE(text.size.height, 763);
    EXPECT_GE(text.list.size.height, 57) << "an action stays within reach";
    content = {};
    EXPECT_EQ(layOutAlert(content, {390, 763}).size.height, 0);
}

TEST(ButtonLayouts, ImageAndTitleAreCentredTogether) {
    ButtonContent content;
    content.image = {20, 22};
    content.title = {50, 18};
    const CGRect bounds{{0, 0}, {100, 30}};
    EXPECT_EQ(layOutButton(content, bounds).image, (CGRect{{15, 4}, {20, 22}}));
    EXPECT_EQ(layOutButton(content, bounds).title, (CGRect{{35, 6}, {50, 18}}));
    content.horizontal = HorizontalAlignment::left;
    content.vertical = VerticalAlignment::bottom;
    EXPECT_EQ(layOutButton(content, bounds).image, (CGRect{{0, 8}, {20, 22}}));
    content.horizontal = HorizontalAlignment::right;
    EXPECT_EQ(layOutButton(content, bounds).title, (CGRect{{50, 12}, {50, 18}}));
}

TEST(ButtonLayouts, InsetsMoveOnePartAndTheContentsMakeRoom) {
    ButtonContent content;
    content.image = {20, 22};
    content.title = {50, 18};
    content.imageInsets = {0, 0, 0, 4};
    const CGRect bounds{{0, 0}, {100, 30}};
    EXPECT_EQ(layOutButton(content, bounds).image.origin.x, 13);
    EXPECT_EQ(layOutButton(content, bounds).title.origin.x, 35);
    EXPECT_EQ(buttonSize(content), (CGSize{70, 30})) << "with air around the title";
    content.contentInsets = {6, 6, 6, 6};
    EXPECT_EQ(buttonSize(content), (CGSize{82, 34}));
}

TEST(ButtonLayouts, TheTitleGivesWayFirst) {
    ButtonContent content;
    content.image = {20, 22};
    content.title = {500, 18};
    const ButtonLayout layout = layOutButton(content, {{0, 0}, {80, 30}});
    EXPECT_EQ(layout.image, (CGRect{{0, 4}, {20, 22}}));
    EXPECT_EQ(layout.title, (CGRect{{20, 6}, {60, 18}}));
    content.contentInsets = {1e9, 1e9, 1e9, 1e9};
    EXPECT_EQ(layOutButton(content, {{0, 0}, {80, 30}}).title.size.width, 0);
}

TEST(Toolbars, FlexibleSpacesShareWhatIsLeft) {
    EXPECT_EQ(toolbarPlaces({20, -1, 40, -1, 30}, 222), (std::vector<double>{0, 20, 86, 126, 192}));
    EXPECT_EQ(toolbarPlaces({20, 40}, 222), (std::vector<double>{0, 28}));
    EXPECT_EQ(toolbarPlaces({200, -1, 200}, 10), (std::vector<double>{0, 200, 200}));
}

} // namespace
