// Mailing a file.
#pragma once

#include "bindings/messageui/mail_compose_view_controller.hpp"
#include "library/files/browser/panes.hpp"

namespace wentra::files {

class MailSending : public objc::Part<UmaCollectionViewController> {
public:
    MailSending(UmaCollectionViewController whole, const Panes& panes)
        : Part(whole), panes_(panes) {}
    static MailSending& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::method<"mailComposeController:didFinishWithResult:error:",
                         &MailSending::finished>(),
        };
    }

    /// Opens a mail with the row's file. Nothing on a phone that cannot send mail, and for what is
    /// no file that can be read.
    void compose(ui::TableView table, ns::IndexPath row);

private:
    void finished(mf::MailComposeViewController composer, mf::MailComposeResult result,
                  ns::Error error);

    const Panes& panes_;
};

} // namespace wentra::files
