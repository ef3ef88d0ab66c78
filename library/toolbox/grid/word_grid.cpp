// The collection view, its tiles and their sizes.
#include "library/toolbox/grid/word_grid.hpp"

#include "bindings/uikit/long_press_gesture_recognizer.hpp"
#include "library/toolbox/grid/selection.hpp"
#include "library/toolbox/grid/tile_measuring.hpp"
#include "library/toolbox/stored_size.hpp"

#include <array>

namespace wentra::toolbox {
namespace {

using namespace ns::literals;
using startup::keys;
using startup::Preferences;

constexpr double cornerRadius = 4;

void update(FloatingViewController controller, ns::Array words) {
    controller.setWordsArray(words.copied());
    controller.wordsCollectionView().reloadData();
}

long count(FloatingViewController controller, ui::CollectionView, long) {
    return static_cast<long>(controller.wordsArray().count());
}

/// A line break would leave its tile empty.
ns::String shown(ns::String token) {
    return token && token.isEqualToString(u"\n"_ns) ? u"⏎"_ns : token;
}

ui::Label tileLabel(ns::String token, CGRect bounds) {
    constexpr double standardSize = 14.5;
    const double size = storedSize(Preferences::read(), keys.gridTextSize, standardSize);
    const auto label = ui::Label::withFrame(bounds);
    label.setFont(ui::Font::system(size));
    label.setTextAlignment(ui::TextAlignment::center);
    label.setTextColor(ui::Color::black());
    label.setNumberOfLines(0);
    label.setLineBreakMode(ui::LineBreakMode::wordWrapping);
    label.setBaselineAdjustment(ui::BaselineAdjustment::alignCenters);
    label.setText(shown(token));
    return label;
}

ui::CollectionViewCell tile(FloatingViewController controller, ui::CollectionView grid,
                            ns::IndexPath path) {
    const ui::CollectionViewCell cell = grid.dequeue(u"Cell"_ns, path);
    const ui::View content = cell.contentView();
    for (const objc::Object old : content.subviews().copied()) {
        old.assume<ui::View>().removeFromSuperview();
    }
    content.addSubview(tileLabel(tokenAt(controller, path), cell.bounds()));
    content.setBackgroundColor(ui::Color::white());
    content.layer().setCornerRadius(cornerRadius);
    return cell;
}

CGSize sizeOfTile(FloatingViewController controller, ui::CollectionView grid, objc::Object,
                  ns::IndexPath path) {
    return measuredTile(tokenAt(controller, path), grid.bounds().size.width);
}

} // namespace

void addWordGrid(FloatingViewController controller, CGRect frame, double shade) {
    constexpr double spaceBetweenTiles = 2;
    constexpr double spaceBetweenLines = 4.5;
    constexpr double shortestPress = 0.1; // seconds
    const auto layout = ui::CollectionViewFlowLayout::make();
    layout.setMinimumInteritemSpacing(spaceBetweenTiles);
    layout.setMinimumLineSpacing(spaceBetweenLines);

    const auto grid = ui::CollectionView::withFrame(frame, layout);
    grid.layer().setCornerRadius(cornerRadius);
    grid.setBackgroundColor(ui::Color::lightGray().withAlpha(shade));
    grid.setAllowsMultipleSelection(true);
    grid.registerClass(ui::CollectionViewCell::classObject(), u"Cell"_ns);
    grid.setDelegate(controller);
    grid.setDataSource(controller);

    const auto press = ui::GestureRecognizer::with<ui::LongPressGestureRecognizer>(
        controller, objc::selector<"longPressGestureRecognized:">());
    press.setMinimumPressDuration(shortestPress);
    grid.addGestureRecognizer(press);

    controller.view().addSubview(grid);
    controller.setWordsCollectionView(grid);
}

std::span<const objc::Change> wordGridCategory() {
    static constexpr std::array changes{
        objc::addition<"ZKFloatingViewController", "updateWordsArray:", &update>(),
        objc::addition<"ZKFloatingViewController",
                       "collectionView:numberOfItemsInSection:", &count>(),
        objc::addition<"ZKFloatingViewController",
                       "collectionView:cellForItemAtIndexPath:", &tile>(),
        objc::addition<"ZKFloatingViewController",
                       "collectionView:layout:sizeForItemAtIndexPath:", &sizeOfTile>(),
    };
    return changes;
}

} // namespace wentra::toolbox
