// The files application: presents the library's file browser, as a host with two folders would.
#include "desktop/class.hpp"
#include "desktop/host/app.hpp"
#include "desktop/host/apps/file_tree.hpp"
#include "desktop/host/apps/screen_parts.hpp"

#include "bindings/uikit/button.hpp"
#include "bindings/uikit/collection_view_flow_layout.hpp"
#include "bindings/uikit/navigation_controller.hpp"
#include "bindings/uikit/screen.hpp"

#include <array>

namespace desktop::host {
namespace {

using namespace ns::literals;

/// The library's controller, found by its name; nil without the library.
ui::ViewController browserOf(const char* left, const char* right) {
    const Class cls = objc_lookUpClass("UmaCollectionViewController");
    if (cls == nullptr) {
        return nullptr;
    }
    const auto browser = objc::send<"alloc", ui::ViewController>(objc::object(cls))
                             .send<"initWithCollectionViewLayout:", ui::ViewController>(
                                 ui::CollectionViewFlowLayout::make())
                             .send<"autorelease", ui::ViewController>();
    browser.send<"setPath1:">(ns::String::fromUtf8(left));
    browser.send<"setPath2:">(ns::String::fromUtf8(right));
    return browser;
}

struct FilesControllerKind
    : objc::Kind<FilesControllerKind, "FilesController", ui::ViewController> {
    using Kind::Kind;
};

/// The application's own screen, which a closed browser leaves behind.
class FilesController : public PlatformClass<FilesController, FilesControllerKind> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"viewDidLoad", &FilesController::viewDidLoad>(),
            objc::method<"openBrowser", &FilesController::openBrowser>(),
        };
    }

private:
    void viewDidLoad() {
        super<"viewDidLoad">();
        const ui::View page = self().view();
        page.setFrame(ui::Screen::mainScreen().bounds());
        page.setBackgroundColor(pageColor());
        const double top = addNavigationBar(page, "文件");
        const auto open = ui::Button::withType(ui::ButtonType::system);
        open.setTitle(u"打开文件管理器"_ns, ui::ControlState::normal);
        open.setFrame({{16, top + 16}, {page.bounds().size.width - 32, 44}});
        open.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth);
        open.addTarget(self(), objc::selector<"openBrowser">(), ui::ControlEvents::touchUpInside);
        page.addSubview(open);
    }

    void openBrowser() {
        const auto browser = browserOf(documentsFolder, mediaFolder);
        if (!browser) {
            return;
        }
        const auto navigation = ui::NavigationController::withRoot(browser);
        navigation.setModalPresentationStyle(ui::ModalPresentation::fullScreen);
        constexpr bool animated = false;
        self().present(navigation, animated);
    }
};

void launch() {
    makeFileTree("/");
    const auto controller = FilesControllerKind::make();
    showInWindow(controller);
    controller.send<"openBrowser">();
}

} // namespace

const App filesApp{"files", "com.example.files", [] { FilesController::registerClass(); }, nullptr,
                   &launch};

} // namespace desktop::host
