// MFMailComposeViewController: shows a mail, and writes it into a file when it is sent or saved.
#pragma once

#include "bindings/messageui/mail_compose_view_controller.hpp"
#include "bindings/objc/weak.hpp"

#include "desktop/class.hpp"
#include "desktop/messageui/mail_message.hpp"

namespace desktop {

class MailComposeViewController
    : public PlatformClass<MailComposeViewController, mf::MailComposeViewController> {
public:
    using Peer::of;
    static constexpr auto methods() {
        using Self = MailComposeViewController;
        return std::array{
            objc::classMethod<"canSendMail", &Self::canSendMail>(),
            objc::method<"init", &Self::init>(),
            objc::property<"mailComposeDelegate", &Self::delegate_>(),
            objc::method<"setSubject:", &Self::setSubject>(),
            objc::method<"setToRecipients:", &Self::setToRecipients>(),
            objc::method<"setMessageBody:isHTML:", &Self::setBody>(),
            objc::method<"addAttachmentData:mimeType:fileName:", &Self::addAttachment>(),
            objc::method<"viewDidLoad", &Self::viewDidLoad>(),
            objc::method<"cancelPressed", &Self::cancelPressed>(),
            objc::method<"sendPressed", &Self::sendPressed>(),
        };
    }

    /// Whether the phone has a mail account.
    static void setAvailable(bool available) { isAvailable = available; }
    [[nodiscard]] const mail::Message& message() const { return message_; }
    /// Ends as if a person had chosen it: what is sent or saved becomes a file, and the delegate is
    /// told.
    void finish(mf::MailComposeResult result);

private:
    static bool canSendMail(Class) { return isAvailable; }
    mf::MailComposeViewController init();
    void setSubject(ns::String subject) { message_.subject = subject.utf8(); }
    void setToRecipients(ns::ArrayOf<ns::String> addresses);
    void setBody(ns::String body, bool isHtml);
    void addAttachment(ns::Data data, ns::String type, ns::String name);
    void viewDidLoad();
    void cancelPressed();
    void sendPressed() { finish(mf::MailComposeResult::sent); }
    void keep(mf::MailComposeResult result) const;

    static inline bool isAvailable = true;

    mail::Message message_;
    std::vector<objc::Strong<ns::Data>> contents_; ///< of its attachments
    objc::Weak<objc::Object> delegate_;
};

} // namespace desktop
