// MFMailComposeViewController: a mail to be looked over and sent.
#pragma once

#include "bindings/foundation/data.hpp"
#include "bindings/uikit/navigation_controller.hpp"

namespace mf {

/// How a composer ended; the platform's numbers.
enum class MailComposeResult : long { cancelled = 0, saved = 1, sent = 2, failed = 3 };

struct MailComposeViewController
    : objc::Kind<MailComposeViewController, "MFMailComposeViewController",
                 ui::NavigationController> {
    using Kind::Kind;

    /// False when there is no account; a composer must not be made then.
    static bool canSendMail() { return sendClass<"canSendMail", bool>(); }

    /// Not retained. It dismisses the composer.
    void setMailComposeDelegate(objc::Object delegate) const {
        send<"setMailComposeDelegate:">(delegate);
    }
    void setSubject(ns::String subject) const { send<"setSubject:">(subject); }
    void setToRecipients(ns::Array addresses) const { send<"setToRecipients:">(addresses); }
    void setMessageBody(ns::String body, bool isHtml) const {
        send<"setMessageBody:isHTML:">(body, isHtml);
    }
    void addAttachment(ns::Data data, ns::String mimeType, ns::String fileName) const {
        send<"addAttachmentData:mimeType:fileName:">(data, mimeType, fileName);
    }
};

} // namespace mf
