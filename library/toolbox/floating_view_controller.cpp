// The controller's class: its properties and the hour of its birth.
#include "library/toolbox/floating_view_controller.hpp"

#include "bindings/objc/peer.hpp"
#include "bindings/replaykit/screen_recorder.hpp"
#include "library/startup/preference_writing.hpp"
#include "library/toolbox/grid/handing_on.hpp"
#include "library/toolbox/grid/select_all.hpp"
#include "library/toolbox/grid/selection.hpp"
#include "library/toolbox/grid/slide.hpp"
#include "library/toolbox/grid/statistics.hpp"
#include "library/toolbox/grid/word_grid.hpp"
#include "library/toolbox/panel/body.hpp"
#include "library/toolbox/panel/buttons.hpp"
#include "library/toolbox/panel/crosshair.hpp"
#include "library/toolbox/panel/host_filter_editor.hpp"
#include "library/toolbox/panel/host_screens.hpp"
#include "library/toolbox/panel/keyboard_insets.hpp"
#include "library/toolbox/panel/movable_container.hpp"
#include "library/toolbox/panel/text_targets.hpp"
#include "library/toolbox/panel/view_size.hpp"

#include <vector>

namespace wentra::toolbox {
namespace {

/// Keeps the properties; whoever does something with them is in a category.
class Own : public objc::Peer<Own, FloatingViewController> {
public:
    static std::vector<objc::MethodRow> methods() {
        return {
            objc::method<"viewDidLoad", &Own::viewDidLoad>(),
            objc::method<"viewDidLayoutSubviews", &Own::viewDidLayoutSubviews>(),
            objc::method<"viewWillAppear:", &Own::viewWillAppear>(),
            objc::method<"viewWillDisappear:", &Own::viewWillDisappear>(),
            objc::property<"wzjhButton", &Own::wzjhButton_>(),
            objc::property<"zzjsButton", &Own::zzjsButton_>(),
            objc::property<"ljtzButton", &Own::ljtzButton_>(),
            objc::property<"selectAllButton", &Own::selectAllButton_>(),
            objc::property<"shareButton", &Own::shareButton_>(),
            objc::property<"umzhButton", &Own::umzhButton_>(),
            objc::property<"pasteButton", &Own::pasteButton_>(),
            objc::property<"explodeButton", &Own::explodeButton_>(),
            objc::property<"startRecordButton", &Own::startRecordButton_>(),
            objc::property<"stopRecordButton", &Own::stopRecordButton_>(),
            objc::property<"wzthButton", &Own::wzthButton_>(),
            objc::property<"zsdmButton", &Own::zsdmButton_>(),
            objc::property<"editButton", &Own::editButton_>(),
            objc::property<"editContentButton", &Own::editContentButton_>(),
            objc::property<"closeButton", &Own::closeButton_>(),
            objc::property<"currentValues", &Own::currentValues_>(),
            objc::property<"originalValues", &Own::originalValues_>(),
            objc::property<"coordinateLabel", &Own::coordinateLabel_>(),
            objc::property<"lineViewX", &Own::lineViewX_>(),
            objc::property<"lineViewY", &Own::lineViewY_>(),
            objc::property<"adstextView", &Own::adstextView_>(),
            objc::property<"wordsCollectionView", &Own::wordsCollectionView_>(),
            objc::property<"wordsArray", &Own::wordsArray_>(),
            objc::property<"originalWordsArray", &Own::originalWordsArray_>(),
            objc::property<"selectedIndexPaths", &Own::selectedIndexPaths_>(),
            objc::property<"selectedWords", &Own::selectedWords_>(),
            objc::property<"selectedString", &Own::selectedString_>(),
            objc::property<"startIndexPath", &Own::startIndexPath_>(),
            objc::property<"endIndexPath", &Own::endIndexPath_>(),
            objc::property<"isSlideSelecting", &Own::isSlideSelecting_>(),
            objc::property<"isAllSelected", &Own::isAllSelected_>(),
            objc::property<"isExploded", &Own::isExploded_>(),
            objc::property<"textToDisplay", &Own::textToDisplay_>(),
            objc::property<"totalWordsLabel", &Own::totalWordsLabel_>(),
            objc::property<"totalSymbolsLabel", &Own::totalSymbolsLabel_>(),
            objc::property<"selectedWordsLabel", &Own::selectedWordsLabel_>(),
            objc::property<"selectedSymbolsLabel", &Own::selectedSymbolsLabel_>(),
            objc::property<"appList", &Own::appList_>(),
            objc::property<"appMethods", &Own::appMethods_>(),
            objc::property<"linkTitleDictionary", &Own::linkTitleDictionary_>(),
            objc::property<"webViewController", &Own::webViewController_>(),
            objc::property<"webView", &Own::webView_>(),
            objc::property<"synth", &Own::synth_>(),
            objc::property<"screenRecorder", &Own::screenRecorder_>(),
            objc::property<"stopButton", &Own::stopButton_>(),
            objc::property<"recordingLabel", &Own::recordingLabel_>(),
            objc::property<"container", &Own::container_>(),
            objc::property<"screenshotsArray", &Own::screenshotsArray_>(),
            objc::property<"speechRecognizer", &Own::speechRecognizer_>(),
            objc::property<"recognitionRequest", &Own::recognitionRequest_>(),
            objc::property<"recognitionTask", &Own::recognitionTask_>(),
            objc::property<"audioEngine", &Own::audioEngine_>(),
            objc::property<"speechString", &Own::speechString_>(),
            objc::property<"progressView", &Own::progressView_>(),
            objc::property<"downloadTask", &Own::downloadTask_>(),
            objc::property<"canceldownloadButton", &Own::canceldownloadButton_>(),
            objc::property<"path1", &Own::path1_>(),
            objc::property<"path2", &Own::path2_>(),
            objc::property<"fileDate1", &Own::fileDate1_>(),
            objc::property<"fileDate2", &Own::fileDate2_>(),
            objc::property<"fileSize1", &Own::fileSize1_>(),
            objc::property<"fileSize2", &Own::fileSize2_>(),
            objc::property<"ipsFiles", &Own::ipsFiles_>(),
            objc::property<"ipsFilesOriginal", &Own::ipsFilesOriginal_>(),
            objc::property<"ipsFilesMutable", &Own::ipsFilesMutable_>(),
            objc::property<"sortedIpsFiles", &Own::sortedIpsFiles_>(),
        };
    }

private:
    void viewDidLoad() {
        super<"viewDidLoad">();
        begin();
        buildBody(self());
    }

    void viewDidLayoutSubviews() {
        super<"viewDidLayoutSubviews">();
        layOutBody(self());
    }

    void viewWillAppear(bool animated) {
        super<"viewWillAppear:">(animated);
        watchKeyboard(self());
    }

    void viewWillDisappear(bool animated) {
        super<"viewWillDisappear:">(animated);
        leaveKeyboard(self());
    }

    /// Nothing is picked and listed yet; the preferences are read.
    void begin() {
        ipsFiles_ = ns::MutableArray::make();
        sortedIpsFiles_ = ns::MutableArray::make();
        wordsArray_ = ns::MutableArray::make().copied();
        screenshotsArray_ = ns::MutableArray::make();
        selectedIndexPaths_ = ns::MutableSet::make();
        selectedWords_ = ns::MutableArray::make();
        isAllSelected_ = false;
        synth_ = av::SpeechSynthesizer::make();
        currentValues_ = startup::storedPreferences();
        appList_ = shownTargets(currentValues_);
        appMethods_ = targetMethods();
        if (!originalValues_) {
            originalValues_ = ns::MutableDictionary::copyOf(currentValues_);
        }
        linkTitleDictionary_ = linkTitles();
        screenRecorder_ = rp::ScreenRecorder::shared();
    }

    // The tools' buttons.
    objc::Strong<ui::Button> wzjhButton_;
    objc::Strong<ui::Button> zzjsButton_;
    objc::Strong<ui::Button> ljtzButton_;
    objc::Strong<ui::Button> selectAllButton_;
    objc::Strong<ui::Button> shareButton_;
    objc::Strong<ui::Button> umzhButton_;
    objc::Strong<ui::Button> pasteButton_;
    objc::Strong<ui::Button> explodeButton_;
    objc::Strong<ui::Button> startRecordButton_;
    objc::Strong<ui::Button> stopRecordButton_;
    objc::Strong<ui::Button> wzthButton_;
    objc::Strong<ui::Button> zsdmButton_;
    objc::Strong<ui::Button> editButton_;
    objc::Strong<ui::Button> editContentButton_;
    objc::Strong<ui::Button> closeButton_;

    // The preference file as loaded, and as it was when the view was first loaded.
    objc::Strong<ns::MutableDictionary> currentValues_;
    objc::Strong<ns::MutableDictionary> originalValues_;

    // The crosshair.
    objc::Strong<ui::Label> coordinateLabel_;
    objc::Strong<ui::View> lineViewX_;
    objc::Strong<ui::View> lineViewY_;

    // The editor of the host filter.
    objc::Strong<ui::TextView> adstextView_;

    // The word grid.
    objc::Strong<ui::CollectionView> wordsCollectionView_;
    objc::Strong<ns::Array> wordsArray_;
    objc::Strong<ns::Array> originalWordsArray_;
    objc::Strong<ns::MutableSet> selectedIndexPaths_;
    objc::Strong<ns::MutableArray> selectedWords_;
    objc::Strong<ns::String> selectedString_;
    objc::Strong<ns::IndexPath> startIndexPath_;
    objc::Strong<ns::IndexPath> endIndexPath_;
    bool isSlideSelecting_ = false;
    bool isAllSelected_ = false;
    bool isExploded_ = false;
    objc::Strong<ns::String> textToDisplay_;
    objc::Strong<ui::Label> totalWordsLabel_;
    objc::Strong<ui::Label> totalSymbolsLabel_;
    objc::Strong<ui::Label> selectedWordsLabel_;
    objc::Strong<ui::Label> selectedSymbolsLabel_;

    // Searching and jumping.
    objc::Strong<ns::Array> appList_;
    objc::Strong<ns::Dictionary> appMethods_;
    objc::Strong<ns::Dictionary> linkTitleDictionary_;
    objc::Strong<ui::ViewController> webViewController_;
    objc::Strong<ui::View> webView_;

    // Speech.
    objc::Strong<av::SpeechSynthesizer> synth_;

    // Capturing.
    objc::Strong<objc::Object> screenRecorder_;
    objc::Strong<ui::Button> stopButton_;
    objc::Strong<ui::Label> recordingLabel_;
    objc::Strong<ui::View> container_;
    objc::Strong<ns::MutableArray> screenshotsArray_;
    objc::Strong<objc::Object> speechRecognizer_;
    objc::Strong<objc::Object> recognitionRequest_;
    objc::Strong<objc::Object> recognitionTask_;
    objc::Strong<objc::Object> audioEngine_;
    objc::Strong<ns::String> speechString_;

    // Downloading.
    objc::Strong<ui::View> progressView_;
    objc::Strong<objc::Object> downloadTask_;
    objc::Strong<ui::Button> canceldownloadButton_;

    // The lists of files and crash logs.
    objc::Strong<ns::String> path1_;
    objc::Strong<ns::String> path2_;
    objc::Strong<objc::Object> fileDate1_;
    objc::Strong<objc::Object> fileDate2_;
    objc::Strong<objc::Object> fileSize1_;
    objc::Strong<objc::Object> fileSize2_;
    objc::Strong<ns::Array> ipsFiles_;
    objc::Strong<ns::Array> ipsFilesOriginal_;
    objc::Strong<ns::Array> ipsFilesMutable_;
    objc::Strong<ns::Array> sortedIpsFiles_;
};

} // namespace

void registerFloatingViewController() {
    if (Own::registerClass() == nullptr) {
        return; // the application has a class of that name, which is not ours to change
    }
    for (const auto category :
         {&wordGridCategory, &selectionCategory, &slideCategory, &selectAllCategory,
          &handingOnCategory, &statisticsCategory, &buttonCategory, &viewSizeCategory,
          &crosshairCategory, &hostFilterEditorCategory, &keyboardCategory, &containerCategory,
          &hostScreenCategory}) {
        for (const objc::Change& change : category()) {
            objc::install(change);
        }
    }
}

} // namespace wentra::toolbox
