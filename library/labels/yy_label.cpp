// The stand-in YYLabel class.
#include "library/labels/yy_label.hpp"

#include "bindings/objc/peer.hpp"

namespace wentra::labels {
namespace {

class OwnYYLabel : public objc::Peer<OwnYYLabel, YYLabel> {
public:
    static auto methods() {
        return std::array{
            objc::property<"font", &OwnYYLabel::font_>(),
            objc::property<"textColor", &OwnYYLabel::textColor_>(),
        };
    }

private:
    objc::Strong<ui::Font> font_;
    objc::Strong<ui::Color> textColor_;
};

} // namespace

void registerYYLabel() { OwnYYLabel::registerClass(); }

} // namespace wentra::labels
