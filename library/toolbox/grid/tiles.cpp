// The collection view, its tiles and their sizes.
#include "library/toolbox/grid/tiles.hpp"

#include "bindings/uikit/collection_view_flow_layout.hpp"
#include "bindings/uikit/label.hpp"
#include "library/toolbox/grid/tile_measuring.hpp"
#include "library/toolbox/stored_size.hpp"

namespace wentra::toolbox {
namespace {

using namespace ns::literals;
using preferences::keys;
using preferences::Preferences;

constexpr double cornerRadius = 4;

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

ui::CollectionViewFlowLayout tightLayout() {
    constexpr double spaceBetweenTiles = 2;
    constexpr double spaceBetweenLines = 4.5;
    const auto layout = ui::CollectionViewFlowLayout::make();
    layout.setMinimumInteritemSpacing(spaceBetweenTiles);
    layout.setMinimumLineSpacing(spaceBetweenLines);
    return layout;
}

} // namespace

void Tiles::add(CGRect frame, double shade) {
    tokens_ = ns::MutableArray::make().copied();
    grid_ = ui::CollectionView::withFrame(frame, tightLayout());
    grid_.layer().setCornerRadius(cornerRadius);
    grid_.setBackgroundColor(ui::Color::lightGray().withAlphaComponent(shade));
    grid_.setAllowsMultipleSelection(true);
    grid_.registerClass(ui::CollectionViewCell::classObject(), u"Cell"_ns);
    grid_.setDelegate(self());
    grid_.setDataSource(self());
    grid_.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth);
    self().view().addSubview(grid_);
}

void Tiles::show(ns::Array tokens) {
    tokens_ = tokens.copied();
    grid_.reloadData();
}

void Tiles::setFrame(CGRect frame) const {
    grid_.setFrame(frame);
    grid_.setNeedsLayout();
    grid_.layoutIfNeeded();
}

ns::String Tiles::tokenAt(ns::IndexPath path) const {
    const long row = path && path.section() == 0 ? path.item() : -1;
    const bool there = row >= 0 && row <= lastRow();
    return there ? tokens_.at(static_cast<unsigned long>(row)).as<ns::String>() : nullptr;
}

void Tiles::colour(ns::IndexPath path, ui::Color colour) const {
    grid_.cellForItem(path).contentView().setBackgroundColor(colour);
}

ui::CollectionViewCell Tiles::tile(ui::CollectionView grid, ns::IndexPath path) const {
    const ui::CollectionViewCell cell = grid.dequeueReusableCell(u"Cell"_ns, path);
    const ui::View content = cell.contentView();
    for (const objc::Object old : content.subviews().copied()) {
        old.assume<ui::View>().removeFromSuperview();
    }
    content.addSubview(tileLabel(tokenAt(path), cell.bounds()));
    content.setBackgroundColor(ui::Color::white());
    content.layer().setCornerRadius(cornerRadius);
    return cell;
}

CGSize Tiles::size(ui::CollectionView grid, objc::Object, ns::IndexPath path) const {
    return measuredTile(tokenAt(path), grid.bounds().size.width);
}

} // namespace wentra::toolbox
