// What a mail composer shows of its mail.
#pragma once

#include "bindings/uikit/view.hpp"
#include "desktop/messageui/mail_message.hpp"

namespace desktop {

/// Fills the view with rows: recipients, subject, attachments, and the body as text.
void showMail(const mail::Message& message, ui::View view);

} // namespace desktop
