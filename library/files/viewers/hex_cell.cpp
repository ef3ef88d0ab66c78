// The cell and its label.
#include "library/files/viewers/hex_cell.hpp"

#include "bindings/objc/peer.hpp"

namespace wentra::files {
namespace {

class HexCellPeer : public objc::Peer<HexCellPeer, HexCell> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"initWithFrame:", &HexCellPeer::initWithFrame>(),
            objc::property<"hexLabel", &HexCellPeer::label_>(),
        };
    }

private:
    HexCell initWithFrame(CGRect frame) {
        constexpr double textSize = 13;
        super<"initWithFrame:", objc::Object>(frame);
        const ui::View content = self().contentView();
        label_ = ui::Label::withFrame(content.bounds());
        label_.setFont(ui::Font::monospacedSystem(textSize, ui::Font::regular));
        label_.setTextAlignment(ui::TextAlignment::center);
        label_.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth |
                                   ui::ViewAutoresizing::flexibleHeight);
        content.addSubview(label_);
        return self();
    }

    objc::Strong<ui::Label> label_;
};

} // namespace

void registerHexCell() { HexCellPeer::registerClass(); }

} // namespace wentra::files
