// Copies what is on the list into a pane.
#include "library/files/browser/pasting.hpp"

#include "bindings/dispatch/dispatch.hpp"
#include "bindings/foundation/log.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "library/common/alert.hpp"
#include "library/files/browser/failures.hpp"
#include "library/files/file_path.hpp"
#include "library/files/operations/numbered_path.hpp"

namespace wentra::files {

using namespace ns::literals;

void Pasting::add(ns::IndexPath row, ui::TableView table) {
    if (const auto path = panes_.entry(table, row); path) {
        copiedPaths_.add(textOf(*path));
    }
}

void Pasting::addAll(ui::TableView table) {
    for (const std::string& path : panes_.entries(table)) {
        copiedPaths_.add(textOf(path));
    }
}

void Pasting::pasteAll(ui::TableView table) {
    self().send<"pasteItemsToTableView:">(table);
    pastePasteboard(table);
}

/// What is in the way is found out before the first copy starts: none counts for another of the
/// same name.
void Pasting::paste(ui::TableView table) {
    struct Paste {
        std::string source;
        std::string destination;
        bool isFree;
    };
    std::vector<Paste> pastes;
    for (const std::string& source : namesIn(copiedPaths_)) {
        std::string destination = joined(panes_.folder(table), lastComponent(source));
        const bool isFree = !entryExists(destination);
        pastes.push_back({source, std::move(destination), isFree});
    }
    for (const Paste& one : pastes) {
        if (one.isFree) {
            self().send<"copyItemAtPath:toPath:">(textOf(one.source), textOf(one.destination));
            panes_.reloadPane(table);
        } else {
            askAbout(one.source, one.destination, table);
        }
    }
}

void Pasting::askAbout(const std::string& source, const std::string& destination,
                       ui::TableView table) {
    const auto from = objc::Strong(textOf(source));
    const auto to = objc::Strong(textOf(destination));
    const auto pane = objc::Strong(table);
    Alert(u"警告"_ns, u"目标路径已存在同名文件，你希望覆盖文件还是重命名粘贴?"_ns)
        .action(u"覆盖文件"_ns,
                [from, to, whole = objc::Strong(self())] {
                    whole.send<"copyItemAtPath:toPath:">(static_cast<ns::String>(from),
                                                         static_cast<ns::String>(to));
                })
        .action(u"重命名粘贴"_ns,
                [this, pane, whole = objc::Strong(self())] { pasteNumbered(pane); })
        .action(u"取消"_ns, ui::AlertActionStyle::cancel)
        .presentFrom(self());
}

void Pasting::pasteNumbered(ui::TableView table) {
    for (const std::string& source : namesIn(copiedPaths_)) {
        const std::string destination = joined(panes_.folder(table), lastComponent(source));
        self().send<"renameAndPasteItemAtPath:toPath:">(textOf(source), textOf(destination));
    }
    panes_.reloadPane(table);
}

void Pasting::pastePasteboard(ui::TableView table) {
    const ns::String copied = ui::Pasteboard::generalPasteboard().string();
    if (!copied) {
        ns::log("粘贴板为空！");
        return;
    }
    const std::string source = pathOf(copied);
    const Failure failure = copyItem(source, joined(panes_.folder(table), lastComponent(source)));
    if (failure != 0) {
        ns::log(descriptionOf(failure).utf8());
        return;
    }
    panes_.reloadPane(table);
}

void Pasting::replace(ns::String source, ns::String destination) {
    dispatch::async(dispatch::globalQueue(),
                    [this, whole = objc::Strong(self()), text = objc::Strong(source),
                     from = pathOf(source), to = pathOf(destination)]() mutable {
                        const Failure failure = replaceByCopy(from, to);
                        // The controller may end with this: it does so on the main thread.
                        dispatch::async(dispatch::mainQueue(),
                                        [this, whole = std::move(whole), text = std::move(text),
                                         failure] { replaced(text, failure); });
                    });
}

void Pasting::replaced(ns::String source, Failure failure) {
    if (failure != 0) {
        showFailure(self(), u"文件复制出错: ", failure);
        return;
    }
    copiedPaths_.remove(source);
    panes_.reload();
}

void Pasting::copyNumbered(ns::String source, ns::String destination) {
    const std::string from = pathOf(source);
    const Failure failure = copyItem(from, numberedPath(from, pathOf(destination)));
    if (failure != 0) {
        showFailure(self(), u"重命名粘贴出错: ", failure);
    }
}

} // namespace wentra::files
