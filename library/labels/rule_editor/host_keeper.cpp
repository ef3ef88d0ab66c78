// Two invisible views: one in the window keeps the host, one in the text view notices its leaving.
#include "library/labels/rule_editor/host_keeper.hpp"

#include "bindings/objc/peer.hpp"
#include "bindings/objc/weak.hpp"
#include "bindings/uikit/window.hpp"

#include <array>

namespace wentra::labels {
namespace {

struct HostKeeper : objc::Kind<HostKeeper, "WentraHostKeeper", ui::View> {
    using Kind::Kind;
};

/// The window owns the keeper and the keeper the host, so that nobody keeps himself: the host,
/// which owns the text view, is not known to anything in it.
class HostKeeperPeer : public objc::Peer<HostKeeperPeer, HostKeeper> {
public:
    static constexpr auto methods() {
        return std::array{objc::method<"didMoveToWindow", &HostKeeperPeer::didMoveToWindow>()};
    }
    static HostKeeper addTo(ui::View place) {
        const auto view = HostKeeper::make<"initWithFrame:">(CGRect());
        view.setHidden(true);
        place.addSubview(view);
        return view;
    }
    void keep(ui::View host) { host_ = host; }
    void takeAlong(HostKeeper keeper) { keeper_ = keeper; }

private:
    void didMoveToWindow() {
        if (!self().window()) {
            keeper_.strong().removeFromSuperview();
            host_ = nullptr;
        }
    }

    objc::Strong<ui::View> host_;
    objc::Weak<HostKeeper> keeper_;
};

} // namespace

void keepHostWhileOpen(ui::View host, ui::TextView editor) {
    const HostKeeper keeper = HostKeeperPeer::addTo(editor.window());
    HostKeeperPeer::of(keeper).keep(host);
    HostKeeperPeer::of(HostKeeperPeer::addTo(editor)).takeAlong(keeper);
}

void registerHostKeeper() { HostKeeperPeer::registerClass(); }

} // namespace wentra::labels
