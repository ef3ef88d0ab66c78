// Asks for names, and makes what has none yet; an existing entry stays as it is.
#include "library/files/browser/creating.hpp"

#include "library/common/alert.hpp"
#include "library/files/file_path.hpp"
#include "library/files/operations/item_changes.hpp"

namespace wentra::files {

using namespace ns::literals;

void Creating::create(ns::String folder, ns::String name, bool isFile) const {
    const std::string path = joined(pathOf(folder), pathOf(name));
    static_cast<void>(isFile ? makeFile(path) : makeFolder(path)); // the panes show what is there
}

void Creating::ask(bool isFile, ui::TableView table) {
    const auto make = [this, isFile, table = objc::Strong(table),
                       whole = objc::Strong(self())](ui::TextField field) {
        whole.send<"createItemAtDirectory:withName:isFile:">(textOf(panes_.folder(table)),
                                                             field.text(), isFile);
        panes_.reload();
    };
    Alert(isFile ? u"新建文件"_ns : u"新建文件夹"_ns, u"请输入名称:"_ns)
        .field()
        .action(u"确认"_ns, make)
        .action(u"取消"_ns, ui::AlertActionStyle::cancel)
        .presentFrom(self());
}

void Creating::createAnywhere(const std::string& name, Kind kind) {
    create(textOf(panes_.current()), textOf(name), kind == Kind::file);
    panes_.reload();
}

void Creating::askAnywhere() {
    const Alert alert(u"新建"_ns, u"\n文件还是文件夹？"_ns);
    alert.field(u"名称"_ns);
    const auto making = [this](const std::string& ending, Kind kind) {
        return [this, ending, kind, whole = objc::Strong(self())](ui::TextField field) {
            createAnywhere(pathOf(field.text()) + ending, kind);
        };
    };
    for (const char* const ending : {".png", ".jpg", ".txt"}) {
        alert.action(ns::String::fromUtf8(ending), making(ending, Kind::file));
    }
    alert.action(u"文件"_ns, making("", Kind::file))
        .action(u"文件夹"_ns, making("", Kind::folder))
        .action(u"取消"_ns, ui::AlertActionStyle::cancel)
        .presentFrom(self());
}

} // namespace wentra::files
