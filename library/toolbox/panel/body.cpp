// Putting the panel's body together.
#include "library/toolbox/panel/body.hpp"

#include "bindings/uikit/application.hpp"
#include "library/toolbox/grid/word_grid.hpp"
#include "library/toolbox/panel/buttons.hpp"
#include "library/toolbox/panel/crosshair.hpp"

namespace wentra::toolbox {
namespace {

ui::Label addCount(FloatingViewController controller, CGPoint origin, double width) {
    constexpr double height = 20;
    constexpr double textSize = 12; // beside the buttons of the last row
    const auto label = ui::Label::withFrame({origin, {width, height}});
    label.setFont(ui::Font::system(textSize));
    controller.view().addSubview(label);
    return label;
}

void addCounts(FloatingViewController controller, const BodyLayout& layout) {
    constexpr double left = 15;
    constexpr double right = 225;
    constexpr double totalWidth = 180;
    constexpr double selectedWidth = 230;
    controller.setTotalWordsLabel(addCount(controller, {left, layout.totalsTop}, totalWidth));
    const ui::Label symbols = addCount(controller, {right, layout.totalsTop}, totalWidth);
    symbols.setTextAlignment(ui::TextAlignment::center); // its left end lies under a button
    controller.setTotalSymbolsLabel(symbols);
    controller.setSelectedWordsLabel(
        addCount(controller, {left, layout.selectionsTop}, selectedWidth));
    controller.setSelectedSymbolsLabel(
        addCount(controller, {right, layout.selectionsTop}, selectedWidth));
}

} // namespace

void buildBody(FloatingViewController controller) {
    const BodyLayout layout = BodyLayout::from(startup::Preferences::read());
    const double width = ui::Screen::main().bounds().size.width;
    controller.setView(ui::View::withFrame(layout.body(width)));
    addWordGrid(controller, layout.grid(width), layout.gridShade);
    addCounts(controller, layout);
    addCrosshair(controller);
    addButtons(controller, layout.buttonShade);
    controller.setIsExploded(false);
    watchPresses(controller);
    controller.view().setUserInteractionEnabled(true);
}

void layOutBody(FloatingViewController controller) {
    placeButtons(controller, BodyLayout::from(startup::Preferences::read()));
}

} // namespace wentra::toolbox
