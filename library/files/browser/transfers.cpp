// The alerts, and what their actions do. They tell of success before anything is done.
#include "library/files/browser/transfers.hpp"

#include "bindings/uikit/pasteboard.hpp"
#include "library/common/alert.hpp"
#include "library/files/file_path.hpp"
#include "library/files/operations/item_changes.hpp"

namespace wentra::files {

using namespace ns::literals;
using ui::AlertActionStyle::cancel;
using ui::AlertActionStyle::destructive;

void Transfers::copy(ui::TableView table, ns::IndexPath row) {
    const auto source = panes_.entry(table, row);
    if (!source) {
        return;
    }
    const auto destination = joined(panes_.folder(panes_.opposite(table)), lastComponent(*source));
    const auto copyAcross = [this, source = *source, destination, pane = objc::Strong(table),
                             whole = objc::Strong(whole_)] {
        static_cast<void>(copyItem(source, destination)); // the pane shows what is there
        panes_.reloadOther(pane);
    };
    Alert(u"复制完成"_ns, u"文件已成功复制"_ns)
        .action(
            u"常规复制"_ns,
            [source = *source] { ui::Pasteboard::generalPasteboard().setString(textOf(source)); })
        .action(u"复制到对面"_ns, copyAcross)
        .action(u"取消复制"_ns, cancel)
        .presentFrom(whole_);
}

void Transfers::move(ui::TableView table, ns::IndexPath row) {
    const auto source = panes_.entry(table, row);
    if (!source) {
        return;
    }
    const auto destination = joined(panes_.folder(panes_.opposite(table)), lastComponent(*source));
    if (entryExists(destination)) {
        moveOver(*source, destination);
    } else {
        moveAcross(*source, destination);
    }
}

void Transfers::moveOver(const std::string& source, const std::string& destination) {
    Alert(u"文件已存在"_ns, u"对面已存在同名文件，是否覆盖？"_ns)
        .action(u"确定覆盖"_ns, destructive,
                [this, source, destination, whole = objc::Strong(whole_)] {
                    static_cast<void>(replaceByMove(source, destination));
                    panes_.reload();
                })
        .action(u"取消移动"_ns, cancel)
        .presentFrom(whole_);
}

void Transfers::moveAcross(const std::string& source, const std::string& destination) {
    Alert(u"移动完成"_ns, u"文件已成功移动"_ns)
        .action(u"移动到对面"_ns,
                [this, source, destination, whole = objc::Strong(whole_)] {
                    static_cast<void>(moveItem(source, destination));
                    panes_.reload();
                })
        .action(u"取消移动"_ns, cancel)
        .presentFrom(whole_);
}

void Transfers::rename(ui::TableView table, ns::IndexPath row) {
    const auto source = panes_.entry(table, row);
    if (!source) {
        return;
    }
    const auto move = [this, source = *source, pane = objc::Strong(table),
                       whole = objc::Strong(whole_)](ui::TextField field) {
        const std::string name = pathOf(field.text());
        static_cast<void>(moveItem(source, joined(parentOf(source), name)));
        panes_.reloadPane(pane);
    };
    Alert(u"重命名"_ns, u"请输入新的文件名"_ns)
        .field(u"新文件名"_ns, textOf(lastComponent(*source)))
        .action(u"确认"_ns, move)
        .action(u"取消"_ns, cancel)
        .presentFrom(whole_);
}

} // namespace wentra::files
