// The command about mail composers.
#include "desktop/host/arguments.hpp"
#include "desktop/host/commands.hpp"

#include "bindings/uikit/application.hpp"
#include "desktop/messageui/mail_compose_view_controller.hpp"
#include "desktop/uikit/presentation/presentation.hpp"

#include <algorithm>
#include <array>

namespace desktop::host {
namespace {

/// The composer that is shown last; nil when there is none.
mf::MailComposeViewController openComposer() {
    mf::MailComposeViewController open;
    for (const ui::Window window : ui::Application::sharedApplication().windows()) {
        for (const ui::ViewController shown : Presentation::presentedIn(window)) {
            const auto composer = shown.as<mf::MailComposeViewController>();
            open = composer ? composer : open;
        }
    }
    return open;
}

Json described(const mail::Message& message) {
    Json attachments = Json::array();
    for (const mail::Attachment& attachment : message.attachments) {
        attachments.push_back({{"name", attachment.name},
                               {"type", attachment.type},
                               {"size", attachment.content.size()}});
    }
    return {{"to", message.to},
            {"subject", message.subject},
            {"body", message.body},
            {"html", message.isHtml},
            {"attachments", std::move(attachments)}};
}

mf::MailComposeResult resultNamed(const std::string& name) {
    // In the order of the platform's numbers.
    constexpr std::array<std::string_view, 4> names{"cancel", "save", "send", "fail"};
    const auto found = std::ranges::find(names, name);
    if (found == names.end()) {
        throw RequestError("\"choose\" must be cancel, save, send or fail");
    }
    return static_cast<mf::MailComposeResult>(found - names.begin());
}

} // namespace

Json mail(Session&, const Json& request) {
    if (argument(request, "available") != nullptr) {
        MailComposeViewController::setAvailable(flagArgument(request, "available"));
    }
    const objc::Strong composer = openComposer();
    Json result = composer ? described(MailComposeViewController::of(composer).message()) : Json();
    if (argument(request, "choose") != nullptr) {
        const auto chosen = resultNamed(stringArgument(request, "choose"));
        if (!composer) {
            throw RequestError("there is no mail composer");
        }
        MailComposeViewController::of(composer).finish(chosen);
    }
    return result;
}

} // namespace desktop::host
