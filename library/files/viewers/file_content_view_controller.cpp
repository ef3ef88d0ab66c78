// The viewer's class: its parts, its views and where they lie.
#include "library/files/viewers/file_content_view_controller.hpp"

#include "bindings/objc/peer.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "library/common/alert.hpp"
#include "library/common/buttons.hpp"
#include "library/common/gestures.hpp"
#include "library/common/keyboard_insets.hpp"
#include "library/common/light_background.hpp"
#include "library/common/outline.hpp"
#include "library/common/screens.hpp"
#include "library/files/viewers/report_analysis.hpp"
#include "library/files/viewers/text_colouring.hpp"
#include "library/files/viewers/text_paging.hpp"
#include "library/files/viewers/text_saving.hpp"
#include "library/files/viewers/text_search.hpp"

namespace wentra::files {
namespace {

using namespace ns::literals;

class FileContentViewControllerPeer
    : public objc::Peer<FileContentViewControllerPeer, FileContentViewController> {
public:
    static constexpr auto methods() {
        using Peer = FileContentViewControllerPeer;
        return objc::join(
            std::array{
                objc::property<"fileContent", &Peer::fileContent_>(),
                objc::property<"fileURL", &Peer::fileUrl_>(),
                objc::property<"textView", &Peer::textView_>(),
                objc::method<"viewDidLoad", &Peer::viewDidLoad>(),
                objc::method<"viewDidLayoutSubviews", &Peer::viewDidLayoutSubviews>(),
                objc::method<"viewWillAppear:", &Peer::viewWillAppear>(),
                objc::method<"viewWillDisappear:", &Peer::viewWillDisappear>(),
                objc::method<"copyContent", &Peer::copyContent>(),
                objc::method<"longPressCopyButton:", &Peer::copyLongPressed>(),
                objc::method<"showCopyMenu", &Peer::showCopyMenu>(),
                objc::method<"keyboardWillShow:", &Peer::keyboardMoves>(),
                objc::method<"keyboardWillHide:", &Peer::keyboardMoves>(),
                objc::method<"keyWindow", &ScreenLookups::first>(),
            },
            TextPaging::methods(), TextSearch::methods(), TextColouring::methods(),
            TextSaving::methods(), ReportAnalysis::methods());
    }

    TextPaging paging{self()};
    TextSearch search{self()};
    TextColouring colouring{self()};
    TextSaving saving{self()};
    ReportAnalysis analysis{self()};

private:
    void viewDidLoad();
    void addText(ns::String text);
    void addButtons();
    [[nodiscard]] ui::Button addButton(ns::String title, SEL action);
    void viewDidLayoutSubviews();
    void layOut(CGSize view, UIEdgeInsets safe);
    void viewWillAppear(bool animated);
    void viewWillDisappear(bool animated);

    void copyContent() { ui::Pasteboard::generalPasteboard().setString(fileContent_); }
    void copyLongPressed(ui::LongPressGestureRecognizer press);
    void showCopyMenu();

    void keyboardMoves(ns::Notification notification) const {
        keepClear(textView_, firstWindow(), self(), notification);
    }

    objc::Copied<ns::String> fileContent_;
    objc::Strong<ns::Url> fileUrl_;
    objc::Strong<ui::TextView> textView_;
    objc::Strong<ui::Button> analyseButton_;
    objc::Strong<ui::Button> copyButton_;
    objc::Strong<ui::Button> searchButton_;
};

void FileContentViewControllerPeer::viewDidLoad() {
    super<"viewDidLoad">();
    setLightBackground(self().view(), ui::Color::white());
    addText(paging.begin());
    addButtons();
    search.add(searchButton_);
    saving.add();
}

void FileContentViewControllerPeer::addText(ns::String text) {
    textView_ = ui::TextView::withFrame({});
    drawOutline(textView_, {5, 1, ui::Color::gray()});
    textView_.setText(text ? text : u""_ns);
    textView_.setDelegate(self());
    self().view().addSubview(textView_);
}

ui::Button FileContentViewControllerPeer::addButton(ns::String title, SEL action) {
    const ButtonLook look{.title = title,
                          .titleColor = ui::Color::black(),
                          .background = ui::Color::lightGray().withAlphaComponent(0.7),
                          .cornerRadius = 6};
    const auto button = makeButton(look, self(), action);
    self().view().addSubview(button);
    return button;
}

void FileContentViewControllerPeer::addButtons() {
    constexpr double holdSeconds = 0.2;
    analyseButton_ = addButton(u"日志检索"_ns, objc::selector<"zzjsButtonClicked:">());
    copyButton_ = addButton(u"复制全文"_ns, objc::selector<"copyContent">());
    searchButton_ = addButton(u"搜索内容"_ns, objc::selector<"searchButtonClicked:">());
    addPress(copyButton_, self(), objc::selector<"longPressCopyButton:">(), holdSeconds);
}

void FileContentViewControllerPeer::viewDidLayoutSubviews() {
    super<"viewDidLayoutSubviews">();
    layOut(self().view().bounds().size, self().view().safeAreaInsets());
    search.layOut(copyButton_.frame());
}

void FileContentViewControllerPeer::layOut(CGSize view, UIEdgeInsets safe) {
    constexpr double margin = 20;
    const CGSize button{view.width / 3, 35};
    const double row = view.height - safe.bottom - 55 - button.height;
    analyseButton_.setFrame({{0, row}, button});
    copyButton_.setFrame({{button.width, row}, button});
    searchButton_.setFrame({{2 * button.width, row}, button});
    const double top = safe.top + margin;
    textView_.setFrame({{margin, top}, {view.width - 2 * margin, row - margin - top}});
}

void FileContentViewControllerPeer::viewWillAppear(bool animated) {
    super<"viewWillAppear:">(animated);
    watchKeyboard(self());
}

void FileContentViewControllerPeer::viewWillDisappear(bool animated) {
    super<"viewWillDisappear:">(animated);
    stopWatchingKeyboard(self());
}

void FileContentViewControllerPeer::copyLongPressed(ui::LongPressGestureRecognizer press) {
    if (press.state() == ui::GestureState::began) {
        self().send<"showCopyMenu">();
    }
}

void FileContentViewControllerPeer::showCopyMenu() {
    const objc::Strong controller = self();
    Alert(ui::AlertController::with(nullptr, nullptr, ui::AlertStyle::actionSheet))
        .action(u"文字大小"_ns, [controller] { controller.send<"changeFontSize">(); })
        .action(u"字符高亮"_ns, [controller] { controller.send<"highlightSyntax">(); })
        .action(u"取消"_ns, ui::AlertActionStyle::cancel)
        .from(copyButton_, copyButton_.bounds())
        .presentFrom(controller);
}

} // namespace

using Whole = FileContentViewControllerPeer;

TextPaging& TextPaging::of(objc::Object controller) { return Whole::of(controller).paging; }
TextSearch& TextSearch::of(objc::Object controller) { return Whole::of(controller).search; }
TextColouring& TextColouring::of(objc::Object controller) {
    return Whole::of(controller).colouring;
}
TextSaving& TextSaving::of(objc::Object controller) { return Whole::of(controller).saving; }
ReportAnalysis& ReportAnalysis::of(objc::Object controller) {
    return Whole::of(controller).analysis;
}

void registerFileContentViewController() { Whole::registerClass(); }

} // namespace wentra::files
