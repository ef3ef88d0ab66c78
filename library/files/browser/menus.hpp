// The menus that lead to the operations: a pane's, and each entry's.
#pragma once

#include "bindings/uikit/context_menu_configuration.hpp"
#include "bindings/uikit/context_menu_interaction.hpp"
#include "bindings/uikit/gesture_recognizer.hpp"
#include "library/files/browser/creating.hpp"
#include "library/files/browser/deleting.hpp"
#include "library/files/browser/duplicate_finder.hpp"
#include "library/files/browser/pasting.hpp"
#include "library/files/browser/transfers.hpp"
#include "library/files/conversion/image_conversion.hpp"
#include "library/files/conversion/mail_sending.hpp"

namespace wentra::files {

/// The operations that the menus lead to.
struct Operations {
    Panes& panes;
    Pasting& pasting;
    Deleting& deleting;
    Creating& creating;
    DuplicateFinder& duplicates;
    ImageConversion& imageConversion;
    MailSending& mailSending;
    Transfers transfers;
};

class Menus : public objc::Part<UmaCollectionViewController> {
public:
    Menus(UmaCollectionViewController whole, const Operations& operations)
        : Part(whole), operations_(operations) {}
    static Menus& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::method<"handleLongPress:", &Menus::showPaneMenu>(),
            objc::method<"contextMenuInteraction:configurationForMenuAtLocation:",
                         &Menus::contextMenu>(),
        };
    }

private:
    void showPaneMenu(ui::GestureRecognizer press);
    [[nodiscard]] ui::ContextMenuConfiguration contextMenu(ui::ContextMenuInteraction interaction,
                                                           CGPoint place);
    [[nodiscard]] ui::Menu menuFor(ui::TableView table, ns::IndexPath row);

    Operations operations_;
};

} // namespace wentra::files
