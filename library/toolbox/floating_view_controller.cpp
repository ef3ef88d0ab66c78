// The controller's class: its parts, and how its view comes up.
#include "library/toolbox/floating_view_controller.hpp"

#include "bindings/objc/peer.hpp"
#include "bindings/uikit/screen.hpp"
#include "library/common/keyboard_insets.hpp"
#include "library/preferences/preference_writing.hpp"
#include "library/toolbox/capture/dictation.hpp"
#include "library/toolbox/capture/pictures.hpp"
#include "library/toolbox/capture/recording.hpp"
#include "library/toolbox/download/download.hpp"
#include "library/toolbox/file_lists.hpp"
#include "library/toolbox/grid/word_grid.hpp"
#include "library/toolbox/panel/buttons.hpp"
#include "library/toolbox/panel/crosshair.hpp"
#include "library/toolbox/panel/host_filter_editor.hpp"
#include "library/toolbox/panel/host_screens.hpp"
#include "library/toolbox/panel/quick_screens.hpp"
#include "library/toolbox/panel/sizes.hpp"
#include "library/toolbox/search/pinyin.hpp"
#include "library/toolbox/search/search_targets.hpp"
#include "library/toolbox/text_tools/link_finder.hpp"
#include "library/toolbox/text_tools/text_tools.hpp"
#include "library/toolbox/translation/translation.hpp"

namespace wentra::toolbox {
namespace {

/// Puts the parts together; each lists its own rows.
class FloatingViewControllerPeer
    : public objc::Peer<FloatingViewControllerPeer, FloatingViewController> {
public:
    static constexpr auto methods() {
        return objc::join(
            std::array{
                objc::method<"viewDidLoad", &FloatingViewControllerPeer::load>(),
                objc::method<"viewDidLayoutSubviews", &FloatingViewControllerPeer::layOut>(),
                objc::method<"viewWillAppear:", &FloatingViewControllerPeer::appear>(),
                objc::method<"viewDidAppear:", &FloatingViewControllerPeer::appeared>(),
                objc::method<"viewWillDisappear:", &FloatingViewControllerPeer::disappear>()},
            Buttons::methods(), WordGrid::methods(), Sizes::methods(), Crosshair::methods(),
            HostFilterEditor::methods(), HostScreens::methods(), QuickScreens::methods(),
            WebPreview::methods(), SearchTargets::methods(), Pinyin::methods(),
            TextTools::methods(), LinkFinder::methods(), Recording::methods(), Pictures::methods(),
            Dictation::methods(), Download::methods(), FileLists::methods(),
            Translation::methods());
    }

    Buttons buttons{self()};
    WordGrid wordGrid{self(), buttons};
    Sizes sizes{self(), wordGrid.tiles};
    Crosshair crosshair{self()};
    HostFilterEditor hostFilterEditor{self()};
    HostScreens hostScreens{self()};
    QuickScreens quickScreens{self()};
    WebPreview webPreview{self()};
    SearchTargets searchTargets{self(), wordGrid.selection, webPreview};
    TextTools textTools{self(), wordGrid.selection};
    LinkFinder linkFinder{self(), wordGrid.selection};
    Recording recording{self()};
    Pictures pictures{self(), recording};
    Dictation dictation{self()};
    Download download{self(), wordGrid.selection};
    FileLists fileLists{self()};
    Translation translation{self(), wordGrid.selection};
    Pinyin pinyin{self(), translation};

private:
    void load();
    void layOut();
    void appear(bool animated);
    void appeared(bool animated);
    void disappear(bool animated);
    /// Nothing is picked and listed yet; the preferences are read.
    void begin();
    void build(const BodyLayout& layout);
};

void FloatingViewControllerPeer::load() {
    super<"viewDidLoad">();
    begin();
    build(BodyLayout::from(preferences::Preferences::read()));
}

void FloatingViewControllerPeer::begin() {
    fileLists.begin();
    recording.begin();
    pictures.begin();
    translation.begin();
    sizes.begin();
    searchTargets.begin(preferences::storedPreferences());
    linkFinder.begin();
}

void FloatingViewControllerPeer::build(const BodyLayout& layout) {
    const double width = ui::Screen::mainScreen().bounds().size.width;
    self().setView(ui::View::withFrame(layout.body(width)));
    self().view().setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth);
    wordGrid.add(layout, width);
    crosshair.attach();
    buttons.add(layout.buttonShade);
    self().view().setUserInteractionEnabled(true);
}

void FloatingViewControllerPeer::layOut() {
    super<"viewDidLayoutSubviews">();
    buttons.layOut(BodyLayout::from(preferences::Preferences::read()));
}

void FloatingViewControllerPeer::appear(bool animated) {
    super<"viewWillAppear:">(animated);
    watchKeyboard(self());
}

void FloatingViewControllerPeer::appeared(bool animated) {
    super<"viewDidAppear:">(animated);
    dictation.prepare();
}

void FloatingViewControllerPeer::disappear(bool animated) {
    super<"viewWillDisappear:">(animated);
    stopWatchingKeyboard(self());
}

} // namespace

using Whole = FloatingViewControllerPeer;

Buttons& Buttons::of(objc::Object controller) { return Whole::of(controller).buttons; }
WordGrid& WordGrid::of(objc::Object controller) { return Whole::of(controller).wordGrid; }
Sizes& Sizes::of(objc::Object controller) { return Whole::of(controller).sizes; }
Crosshair& Crosshair::of(objc::Object controller) { return Whole::of(controller).crosshair; }
HostFilterEditor& HostFilterEditor::of(objc::Object controller) {
    return Whole::of(controller).hostFilterEditor;
}
HostScreens& HostScreens::of(objc::Object controller) { return Whole::of(controller).hostScreens; }
QuickScreens& QuickScreens::of(objc::Object controller) {
    return Whole::of(controller).quickScreens;
}
WebPreview& WebPreview::of(objc::Object controller) { return Whole::of(controller).webPreview; }
Pinyin& Pinyin::of(objc::Object controller) { return Whole::of(controller).pinyin; }
TextTools& TextTools::of(objc::Object controller) { return Whole::of(controller).textTools; }
LinkFinder& LinkFinder::of(objc::Object controller) { return Whole::of(controller).linkFinder; }
SearchTargets& SearchTargets::of(objc::Object controller) {
    return Whole::of(controller).searchTargets;
}
Recording& Recording::of(objc::Object controller) { return Whole::of(controller).recording; }
Pictures& Pictures::of(objc::Object controller) { return Whole::of(controller).pictures; }
Dictation& Dictation::of(objc::Object controller) { return Whole::of(controller).dictation; }
Download& Download::of(objc::Object controller) { return Whole::of(controller).download; }
FileLists& FileLists::of(objc::Object controller) { return Whole::of(controller).fileLists; }
Translation& Translation::of(objc::Object controller) { return Whole::of(controller).translation; }

void registerFloatingViewController() { Whole::registerClass(); }

} // namespace wentra::toolbox
