// The panel's views, its text, and the file that mirrors it.
#include "library/scratchpad/scratch_pad.hpp"

#include "bindings/foundation/data.hpp"
#include "bindings/uikit/label.hpp"
#include "library/common/draggable_view.hpp"
#include "library/common/outline.hpp"
#include "library/common/text_encoding.hpp"
#include "library/paths/documents_folder.hpp"

namespace wentra::scratchpad {
namespace {

using namespace ns::literals;

void addTitle(ui::View panel) {
    const CGSize room = panel.bounds().size;
    const auto title = ui::Label::withFrame({{103, 3}, {room.width - 84, room.height - 40}});
    title.setText(u"临时粘贴板"_ns);
    title.setFont(ui::Font::system(12));
    title.setTextColor(ui::Color::orange());
    title.sizeToFit();
    panel.addSubview(title);
}

ui::TextView addText(ui::View panel) {
    const CGSize room = panel.bounds().size;
    const auto text = ui::TextView::withFrame({{room.width * 0.05, room.height * 0.05}, //
                                               {room.width * 0.9, room.height * 0.92}});
    text.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth |
                             ui::ViewAutoresizing::flexibleHeight);
    drawOutline(text, {5, 1, ui::Color::gray()});
    panel.addSubview(text);
    return text;
}

ui::View addPanel(ui::View page) {
    const auto panel = ui::View::withFrame({{140, 230}, {270, 400}});
    panel.setBackgroundColor(ui::Color::black().withAlphaComponent(0.05));
    drawOutline(panel, {7, 1.7, ui::Color::blue().withAlphaComponent(0.4)});
    panel.setClipsToBounds(true);
    panel.setHidden(true);
    makeDraggableAndZoomable(panel);
    page.addSubview(panel);
    return panel;
}

TrashButton addTrash(ui::View page) {
    const CGSize room = page.bounds().size;
    const auto trash = TrashButton::withType(ui::ButtonType::custom);
    trash.setFrame({{room.width / 2 - 55, room.height - 60}, {room.width / 2 - 110, 50}});
    trash.setBackgroundColor(ui::Color::withRed(0.7, 0.8, 0.9, 1));
    trash.layer().setCornerRadius(7);
    trash.setClipsToBounds(true);
    trash.setTitle(u"Hide(隐藏)"_ns, ui::ControlState::normal);
    trash.setTitleColor(ui::Color::red(), ui::ControlState::normal);
    trash.setHidden(true);
    trash.setTag(trashTag);
    trash.setAutoresizingMask(ui::ViewAutoresizing::flexibleTopMargin);
    page.addSubview(trash);
    return trash;
}

/// Half a surrogate pair has no UTF-8 form; it must not keep the rest from the file.
void save(std::u16string_view text) {
    if (const ns::String path = paths::documentPath(u"01Aaa复制内容.txt"); path) {
        static_cast<void>(
            ns::Data::from(utf8FromUtf16(text)).writeToFile(path, ns::DataWritingOptions::atomic));
    }
}

} // namespace

ScratchPad ScratchPad::over(ui::ViewController controller) {
    const ui::View panel = addPanel(controller.view());
    addTitle(panel);
    const ui::TextView text = addText(panel);
    makeDraggableAndZoomable(panel, addTrash(controller.view()));
    return {panel, text};
}

void ScratchPad::add(ns::String text) const {
    panel_.setHidden(false);
    const std::u16string whole = text_.text().utf16() + u'\n' + text.utf16();
    text_.setText(ns::String::from(whole));
    save(whole);
}

} // namespace wentra::scratchpad
