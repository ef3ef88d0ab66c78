// One row below the other.
#include "desktop/messageui/mail_form.hpp"

#include "bindings/uikit/label.hpp"
#include "desktop/uikit/application/screen.hpp"

namespace desktop {
namespace {

using namespace ns::literals;

constexpr double margin = 16;
constexpr double barHeight = 56; // of a sheet's navigation bar
constexpr double rowHeight = 44;

/// The text without its tags, as far as people would see it.
std::string withoutTags(const std::string& html) {
    std::string text;
    bool inTag = false;
    for (const char c : html) {
        inTag = c == '<' || (inTag && c != '>');
        if (!inTag && c != '>') {
            text += c;
        }
    }
    return text;
}

std::string joined(const std::vector<std::string>& texts) {
    std::string line;
    for (const std::string& text : texts) {
        line.append(line.empty() ? "" : ", ").append(text);
    }
    return line;
}

class Rows {
public:
    explicit Rows(ui::View view) : view_(view) {}

    void add(const std::string& text, ui::Color color = ui::Color::label()) {
        const double width = view_.bounds().size.width;
        const auto label = ui::Label::withFrame({{margin, top_}, {width - 2 * margin, rowHeight}});
        label.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth);
        label.setNumberOfLines(2);
        label.setFont(ui::Font::system(16));
        label.setTextColor(color);
        label.setText(ns::String::fromUtf8(text));
        view_.addSubview(label);
        addLine(width);
        top_ += rowHeight;
    }

private:
    void addLine(double width) const {
        const auto line = ui::View::withFrame({{margin, top_ + rowHeight}, {width - margin, 0.5}});
        line.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth);
        line.setBackgroundColor(ui::Color::named("separatorColor"));
        view_.addSubview(line);
    }

    ui::View view_;
    double top_ = barHeight;
};

} // namespace

void showMail(const mail::Message& message, ui::View view) {
    view.setBackgroundColor(ui::Color::systemBackground());
    Rows rows(view);
    rows.add("收件人： " + joined(message.to));
    rows.add("主题： " + message.subject);
    for (const mail::Attachment& attachment : message.attachments) {
        rows.add("附件： " + attachment.name, ui::Color::secondaryLabel());
    }
    rows.add(message.isHtml ? withoutTags(message.body) : message.body);
}

} // namespace desktop
