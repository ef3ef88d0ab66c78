// The chat application: a conversation in bubbles, whose texts are the application's own labels.
#include "desktop/host/app.hpp"
#include "desktop/host/apps/screen_parts.hpp"
#include "desktop/host/apps/yy_label.hpp"

#include "bindings/applications/yy_label.hpp"
#include "bindings/foundation/bundle.hpp"
#include "bindings/uikit/application.hpp"
#include "bindings/uikit/screen.hpp"

#include <algorithm>
#include <array>

namespace desktop::host {
namespace {

enum class Sender { other, self };

struct Message {
    Sender sender;
    const char* text;
};

constexpr std::array conversation{
    Message{Sender::other, "hello"},
    Message{Sender::self, "Good morning!"},
    Message{Sender::other, "周末去爬山吗？"},
    Message{Sender::self, "Sure! What time do we meet?"},
    Message{Sender::other,
            "早上七点半在地铁站 B 口集合，记得带水和防晒霜，山上风大，最好再加一件外套。"},
    Message{Sender::self, "好的，我带三明治 🥪"},
    Message{Sender::other, "Perfect. I'll bring the map and some fruit."},
    Message{Sender::self, "Name: Bob 也会来"},
};

/// Whom the application plays by its bundle identifier, and what stands above the conversation
/// then.
struct Role {
    std::u16string_view bundleIdentifier;
    std::string_view title;
};

constexpr Role usualRole{u"com.hammerandchisel.discord", "# 周末 weekend"};
constexpr std::array otherRoles{
    Role{u"com.zhiliaoapp.musically", "TikTok"},
    Role{u"com.ss.iphone.ugc.Aweme", "抖音"},
};

const Role& role() {
    const std::u16string identifier = ns::Bundle::mainBundle().bundleIdentifier().utf16();
    const auto* const found = std::ranges::find(otherRoles, identifier, &Role::bundleIdentifier);
    return found == otherRoles.end() ? usualRole : *found;
}

constexpr double margin = 12;
constexpr double padding = 12;

/// Adds the message's bubble; the result is where the next one may begin.
double addBubble(ui::View page, double top, const Message& message) {
    const bool isOwn = message.sender == Sender::self;
    const double width = page.bounds().size.width;
    const auto label =
        dressed(apps::YYLabel::withFrame({}), message.text,
                {.color = isOwn ? ui::Color::white() : ui::Color::label(), .lines = 0});
    const double widest = width * 0.72 - 2 * padding;
    const CGSize text = label.sizeThatFits({widest, 0});
    const CGSize size{text.width + 2 * padding, text.height + 2 * 8};
    label.setFrame({{padding, 8}, text});

    const auto bubble =
        ui::View::withFrame({{isOwn ? width - margin - size.width : margin, top}, size});
    bubble.layer().setCornerRadius(18);
    bubble.setAutoresizingMask(isOwn ? ui::ViewAutoresizing::flexibleLeftMargin
                                     : ui::ViewAutoresizing::flexibleRightMargin);
    bubble.setBackgroundColor(isOwn ? ui::Color::systemBlue()
                                    : ui::Color::named("systemGray5Color"));
    bubble.addSubview(label);
    page.addSubview(bubble);
    constexpr double gap = 10;
    return top + size.height + gap;
}

/// The place to write in, at the bottom.
void addComposer(ui::View page) {
    const CGSize room = page.bounds().size;
    constexpr double height = 36;
    const auto field = ui::View::withFrame(
        {{margin, room.height - 34 - height - 8}, {room.width - 2 * margin, height}});
    field.layer().setCornerRadius(height / 2);
    field.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth |
                              ui::ViewAutoresizing::flexibleTopMargin);
    field.layer().setBorderWidth(1);
    field.layer().setBorderColor(separatorColor().cgColor());
    field.addSubview(dressed(
        ui::Label::withFrame({{16, 0}, {room.width - 2 * margin - 32, height}}), "发送消息 Message",
        {.size = 16, .color = ui::Color::named("placeholderTextColor")}));
    page.addSubview(field);
}

void launch() {
    const auto controller = ui::ViewController::make();
    const ui::View page = controller.view();
    page.setFrame(ui::Screen::mainScreen().bounds());
    page.setBackgroundColor(ui::Color::systemBackground());
    double top = addNavigationBar(page, role().title) + margin;
    for (const Message& message : conversation) {
        top = addBubble(page, top, message);
    }
    addComposer(page);
    showInWindow(controller);
}

} // namespace

const App chatApp{"chat", "com.hammerandchisel.discord", [] { YYLabel::registerClass(); }, nullptr,
                  &launch};

} // namespace desktop::host
