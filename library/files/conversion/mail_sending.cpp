// The mail, and what became of it.
#include "library/files/conversion/mail_sending.hpp"

#include "library/common/alert.hpp"
#include "library/common/animated.hpp"
#include "library/files/file_path.hpp"
#include "library/files/regular_file.hpp"

namespace wentra::files {
namespace {

using namespace ns::literals;
using Result = mf::MailComposeResult;

ns::String messageOf(Result result, ns::Error error) {
    switch (result) {
    case Result::cancelled:
        return u"邮件已取消"_ns;
    case Result::saved:
        return u"邮件已保存"_ns;
    case Result::sent:
        return u"邮件发送成功"_ns;
    case Result::failed:
        break;
    }
    return ns::String::from(u"邮件发送失败: " + error.localizedDescription().utf16());
}

} // namespace

void MailSending::compose(ui::TableView table, ns::IndexPath row) {
    const auto path = panes_.entry(table, row);
    const auto data = path ? bytesOfFile(*path) : ns::Data();
    if (!data || !mf::MailComposeViewController::canSendMail()) {
        return;
    }
    const auto recipients = ns::MutableArray::make();
    recipients.add(u"接收对象"_ns); // to be replaced by whoever sends it
    const auto composer = mf::MailComposeViewController::make();
    composer.setMailComposeDelegate(self());
    composer.setSubject(u"发送新邮件"_ns);
    composer.setToRecipients(recipients);
    composer.setMessageBody(u"<p>您好，请查收附件。</p>"_ns, true);
    composer.addAttachment(data, u"application/octet-stream"_ns, textOf(lastComponent(*path)));
    self().present(composer, animated);
}

/// Only a mail that is sent or thrown away is over.
void MailSending::finished(mf::MailComposeViewController composer, Result result, ns::Error error) {
    Alert alert(u"邮件发送结果"_ns, messageOf(result, error));
    alert.action(u"好的"_ns);
    if (result != Result::cancelled && result != Result::sent) {
        alert.presentFrom(composer);
        return;
    }
    const auto tell = [alert, controller = objc::Strong(self())] { alert.presentFrom(controller); };
    composer.dismiss(animated, ui::ViewController::Completion::from(tell));
}

} // namespace wentra::files
