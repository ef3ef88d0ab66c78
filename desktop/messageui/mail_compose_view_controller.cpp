// The composer's ends: cancelled, saved, sent, failed.
#include "desktop/messageui/mail_compose_view_controller.hpp"

#include "bindings/foundation/error.hpp"
#include "bindings/foundation/number.hpp"
#include "bindings/uikit/alert_controller.hpp"
#include "desktop/foundation/numbered_file.hpp"
#include "desktop/messageui/mail_form.hpp"
#include "desktop/messageui/mail_message.hpp"
#include "desktop/runtime/clock.hpp"
#include "desktop/runtime/event_log.hpp"
#include "desktop/uikit/delegate_messages.hpp"

#include <array>
#include <ctime>
#include <fstream>

namespace desktop {
namespace {

using namespace ns::literals;
using Result = mf::MailComposeResult;

std::string dateHeader() {
    const auto now = static_cast<std::time_t>(Clock::shared().date());
    std::tm utc{};
    gmtime_r(&now, &utc);
    std::array<char, 64> text{};
    const std::size_t length =
        std::strftime(text.data(), text.size(), "%a, %d %b %Y %H:%M:%S +0000", &utc);
    return {text.data(), length};
}

ns::Array arrayOf(const std::vector<std::string>& texts) {
    const auto array = ns::MutableArray::make();
    for (const std::string& text : texts) {
        array.add(ns::String::fromUtf8(text));
    }
    return array;
}

ns::Array namesOf(const std::vector<mail::Attachment>& attachments) {
    std::vector<std::string> names;
    names.reserve(attachments.size());
    for (const mail::Attachment& attachment : attachments) {
        names.push_back(attachment.name);
    }
    return arrayOf(names);
}

ns::Error failure() {
    return ns::Error::withDescription(u"MFMailComposeErrorDomain"_ns, 1,
                                      u"The mail could not be sent."_ns);
}

} // namespace

mf::MailComposeViewController MailComposeViewController::init() {
    super<"init", objc::Object>();
    return self();
}

void MailComposeViewController::setToRecipients(ns::ArrayOf<ns::String> addresses) {
    message_.to.clear();
    for (const objc::Object address : addresses) {
        message_.to.push_back(address.as<ns::String>().utf8());
    }
}

void MailComposeViewController::setBody(ns::String body, bool isHtml) {
    message_.body = body.utf8();
    message_.isHtml = isHtml;
}

void MailComposeViewController::addAttachment(ns::Data data, ns::String type, ns::String name) {
    contents_.emplace_back(data);
    message_.attachments.push_back({name.utf8(), type.utf8(), data.bytes()});
}

void MailComposeViewController::viewDidLoad() {
    super<"viewDidLoad">();
    const auto form = ui::ViewController::make();
    form.view().setFrame(self().view().bounds());
    showMail(message_, form.view());
    form.navigationItem().setTitle(u"新邮件"_ns);
    form.navigationItem().setLeftBarButtonItem(ui::BarButtonItem::withSystemItem(
        ui::BarButtonSystemItem::cancel, self(), objc::selector<"cancelPressed">()));
    form.navigationItem().setRightBarButtonItem(ui::BarButtonItem::withTitle(
        u"发送"_ns, ui::BarButtonStyle::done, self(), objc::selector<"sendPressed">()));
    self().push(form, false);
}

void MailComposeViewController::cancelPressed() {
    using Style = ui::AlertActionStyle;
    const auto sheet = ui::AlertController::with(nullptr, nullptr, ui::AlertStyle::actionSheet);
    const auto ending = [this, kept = objc::Strong(self())](Result result) {
        return ui::AlertAction::Handler::from(
            [this, kept, result](ui::AlertAction) { finish(result); });
    };
    sheet.addAction(
        ui::AlertAction::with(u"删除草稿"_ns, Style::destructive, ending(Result::cancelled)));
    sheet.addAction(ui::AlertAction::with(u"存储草稿"_ns, Style::default_, ending(Result::saved)));
    sheet.addAction(ui::AlertAction::with(u"取消"_ns, Style::cancel, {}));
    self().present(sheet, true);
}

void MailComposeViewController::keep(Result result) const {
    const bool isSent = result == Result::sent;
    const auto file = foundation::numberedFile(
        isSent ? "/var/mobile/Library/Mail/Sent" : "/var/mobile/Library/Mail/Drafts", "", ".eml");
    std::ofstream(file, std::ios::binary) << mail::fileOf(message_, dateHeader());
    const auto fields = ns::MutableDictionary::make();
    fields.set(arrayOf(message_.to), u"to"_ns);
    fields.set(ns::String::fromUtf8(message_.subject), u"subject"_ns);
    fields.set(ns::String::fromUtf8(message_.body), u"body"_ns);
    fields.set(ns::Number::from(message_.isHtml), u"html"_ns);
    fields.set(namesOf(message_.attachments), u"attachments"_ns);
    fields.set(ns::Number::from(isSent), u"sent"_ns);
    fields.set(ns::String::fromUtf8(file.string()), u"file"_ns);
    EventLog::shared().record("mail", fields);
}

void MailComposeViewController::finish(Result result) {
    const objc::Strong<ui::ViewController> kept = self(); // the delegate may drop it
    if (result == Result::sent || result == Result::saved) {
        keep(result);
    }
    tell<"mailComposeController:didFinishWithResult:error:">(
        delegate_, self(), result, result == Result::failed ? failure() : ns::Error());
}

} // namespace desktop
