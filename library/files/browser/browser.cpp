// The browser's class: its parts, and how its view comes up.
#include "library/files/browser/browser.hpp"

#include "bindings/objc/peer.hpp"
#include "bindings/uikit/collection_view_flow_layout.hpp"
#include "library/files/browser/cells.hpp"
#include "library/files/browser/menus.hpp"
#include "library/files/browser/opening.hpp"
#include "library/files/browser/screen.hpp"
#include "library/files/conversion/package_extraction.hpp"

namespace wentra::files {
namespace {

/// Puts the parts together; each lists its own rows.
class UmaCollectionViewControllerPeer
    : public objc::Peer<UmaCollectionViewControllerPeer, UmaCollectionViewController> {
public:
    static constexpr auto methods() {
        using Self = UmaCollectionViewControllerPeer;
        return objc::join(std::array{objc::method<"init", &Self::init>(),
                                     objc::method<"viewDidLoad", &Self::load>()},
                          Panes::methods(), Screen::methods(), Cells::methods(), Opening::methods(),
                          Pasting::methods(), Deleting::methods(), Creating::methods(),
                          DuplicateFinder::methods(), ImageConversion::methods(),
                          MailSending::methods(), PackageExtraction::methods(), Menus::methods());
    }

    Panes panes{self()};
    Screen screen{self(), panes};
    Cells cells{self(), panes};
    Opening opening{self(), panes};
    Pasting pasting{self(), panes};
    Deleting deleting{self(), panes};
    Creating creating{self(), panes};
    DuplicateFinder duplicates{self(), panes};
    ImageConversion imageConversion{self(), panes};
    MailSending mailSending{self(), panes};
    PackageExtraction packageExtraction{self()};
    Menus menus{self(),
                {panes, pasting, deleting, creating, duplicates, imageConversion, mailSending,
                 Transfers(self(), panes)}};

private:
    /// Presenters make it as any controller; its superclass wants a layout nevertheless.
    ui::CollectionViewController init() {
        return self().send<"initWithCollectionViewLayout:", ui::CollectionViewController>(
            ui::CollectionViewFlowLayout::make());
    }
    void load();
};

void UmaCollectionViewControllerPeer::load() {
    super<"viewDidLoad">();
    pasting.begin();
    screen.build();
    panes.reload();
}

} // namespace

void registerUmaCollectionViewController() { UmaCollectionViewControllerPeer::registerClass(); }

using Whole = UmaCollectionViewControllerPeer;

Panes& Panes::of(objc::Object controller) { return Whole::of(controller).panes; }
Screen& Screen::of(objc::Object controller) { return Whole::of(controller).screen; }
Cells& Cells::of(objc::Object controller) { return Whole::of(controller).cells; }
Opening& Opening::of(objc::Object controller) { return Whole::of(controller).opening; }
Pasting& Pasting::of(objc::Object controller) { return Whole::of(controller).pasting; }
Deleting& Deleting::of(objc::Object controller) { return Whole::of(controller).deleting; }
Creating& Creating::of(objc::Object controller) { return Whole::of(controller).creating; }
DuplicateFinder& DuplicateFinder::of(objc::Object controller) {
    return Whole::of(controller).duplicates;
}
ImageConversion& ImageConversion::of(objc::Object controller) {
    return Whole::of(controller).imageConversion;
}
MailSending& MailSending::of(objc::Object controller) { return Whole::of(controller).mailSending; }
PackageExtraction& PackageExtraction::of(objc::Object controller) {
    return Whole::of(controller).packageExtraction;
}
Menus& Menus::of(objc::Object controller) { return Whole::of(controller).menus; }

} // namespace wentra::files
