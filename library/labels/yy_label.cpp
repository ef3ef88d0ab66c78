// The stand-in YYLabel class.
#include "library/labels/yy_label.hpp"

#include "bindings/applications/yy_label.hpp"
#include "bindings/objc/peer.hpp"

namespace wentra::labels {
namespace {

class YYLabelPeer : public objc::Peer<YYLabelPeer, apps::YYLabel, objc::Boundary::contained,
                                      objc::Methods::atOnce> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::property<"font", &YYLabelPeer::font_>(),
            objc::property<"textColor", &YYLabelPeer::textColor_>(),
        };
    }

private:
    objc::Strong<ui::Font> font_;
    objc::Strong<ui::Color> textColor_;
};

} // namespace

void registerYYLabel() { YYLabelPeer::registerClass(); }

} // namespace wentra::labels
