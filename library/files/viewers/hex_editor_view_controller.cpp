// Reads the file in blocks, and shows a section for each.
#include "library/files/viewers/hex_editor_view_controller.hpp"

#include "bindings/foundation/data.hpp"
#include "bindings/foundation/input_stream.hpp"
#include "bindings/objc/peer.hpp"
#include "bindings/objc/pool.hpp"
#include "bindings/uikit/collection_view_flow_layout.hpp"
#include "library/common/light_background.hpp"
#include "library/common/text_encoding.hpp"
#include "library/files/file_path.hpp"
#include "library/files/regular_file.hpp"
#include "library/files/viewers/hex_cell.hpp"
#include "library/files/viewers/hex_digits.hpp"

#include <algorithm>
#include <vector>

namespace wentra::files {
namespace {

using namespace ns::literals;

ns::InputStream streamOf(const std::string& path) {
    return isUtf8(path) ? ns::InputStream::withFileAtPath(ns::String::fromUtf8(path))
                        : ns::InputStream::withData(bytesOfFile(path));
}

class HexEditorViewControllerPeer
    : public objc::Peer<HexEditorViewControllerPeer, HexEditorViewController> {
public:
    static constexpr auto methods() {
        using Peer = HexEditorViewControllerPeer;
        return std::array{
            objc::property<"srcPath", &Peer::path_>(),
            objc::property<"inputStream", &Peer::stream_>(),
            objc::property<"pagedData", &Peer::blocks_>(),
            objc::method<"initWithSrcPath:", &Peer::initWithPath>(),
            objc::method<"viewDidLoad", &Peer::viewDidLoad>(),
            objc::method<"prepareData", &Peer::readFile>(),
            objc::method<"viewDidLayoutSubviews", &Peer::viewDidLayoutSubviews>(),
            objc::method<"numberOfSectionsInCollectionView:", &Peer::blockCount>(),
            objc::method<"collectionView:numberOfItemsInSection:", &Peer::byteCount>(),
            objc::method<"collectionView:cellForItemAtIndexPath:", &Peer::cell>(),
        };
    }

private:
    HexEditorViewController initWithPath(ns::String path);
    void viewDidLoad();
    void readFile();
    void readBytes(long long size);
    std::size_t fill(std::vector<char>& buffer);
    void cut(std::string_view bytes);
    void viewDidLayoutSubviews();
    void addGrid(CGRect frame);

    [[nodiscard]] long blockCount(ui::CollectionView) const {
        return static_cast<long>(blocks_.count());
    }
    [[nodiscard]] ns::Data block(long index) const {
        return blocks_.at(static_cast<unsigned long>(index)).assume<ns::Data>();
    }
    [[nodiscard]] long byteCount(ui::CollectionView, long section) const {
        return static_cast<long>(block(section).length());
    }
    [[nodiscard]] ui::CollectionViewCell cell(ui::CollectionView grid, ns::IndexPath path) const;

    objc::Copied<ns::String> path_;
    objc::Strong<ns::InputStream> stream_; ///< only while reading
    objc::Strong<ns::MutableArray> blocks_;
    /// Lies over the grid that every such controller has.
    objc::Strong<ui::CollectionView> grid_;
};

HexEditorViewController HexEditorViewControllerPeer::initWithPath(ns::String path) {
    super<"initWithCollectionViewLayout:", objc::Object>(ui::CollectionViewFlowLayout::make());
    path_ = path;
    return self();
}

void HexEditorViewControllerPeer::viewDidLoad() {
    super<"viewDidLoad">();
    // It would ask for cells that it does not know.
    self().collectionView().setDataSource(nullptr);
    self().send<"prepareData">();
}

void HexEditorViewControllerPeer::readFile() {
    blocks_ = ns::MutableArray::make();
    const std::string path = pathOfText(path_.utf16());
    const auto size = regularFileSize(path);
    if (!size) {
        return; // a pipe or a device need not have an end
    }
    stream_ = streamOf(path);
    stream_.open();
    readBytes(*size);
    stream_.close();
    stream_ = nullptr;
}

/// Many blocks at a time: asking for each would take most of the time. A file may grow as fast as
/// it is read: not much more is read than it had at first.
void HexEditorViewControllerPeer::readBytes(long long size) {
    constexpr long long partSize = 1LL << 16;
    std::vector<char> buffer(partSize);
    std::size_t count = buffer.size();
    for (long long read = 0; read <= size && count == buffer.size(); read += partSize) {
        count = fill(buffer);
        cut({buffer.data(), count});
    }
}

/// How many bytes there were, fewer than would fit at the end only.
std::size_t HexEditorViewControllerPeer::fill(std::vector<char>& buffer) {
    std::size_t filled = 0;
    while (stream_.hasBytesAvailable() && filled < buffer.size()) {
        const long count = stream_.read(buffer.data() + filled, buffer.size() - filled);
        if (count < 1) {
            break;
        }
        filled += static_cast<std::size_t>(count);
    }
    return filled;
}

void HexEditorViewControllerPeer::cut(std::string_view bytes) {
    constexpr std::size_t blockSize = 256;
    const objc::Pool pool;
    for (; !bytes.empty(); bytes.remove_prefix(std::min(blockSize, bytes.size()))) {
        blocks_.add(ns::Data::from(bytes.substr(0, blockSize)));
    }
}

void HexEditorViewControllerPeer::viewDidLayoutSubviews() {
    super<"viewDidLayoutSubviews">();
    const CGRect bounds = self().view().bounds();
    if (grid_) {
        grid_.setFrame(bounds);
    } else {
        addGrid(bounds);
    }
}

void HexEditorViewControllerPeer::addGrid(CGRect frame) {
    constexpr double side = 24; // sixteen bytes in the line of a phone
    const auto layout = ui::CollectionViewFlowLayout::make();
    layout.setItemSize({side, side});
    layout.setMinimumInteritemSpacing(0);
    layout.setMinimumLineSpacing(0);
    grid_ = ui::CollectionView::withFrame(frame, layout);
    grid_.registerClass(HexCell::classObject(), u"HexCell"_ns);
    setLightBackground(grid_, ui::Color::white());
    grid_.setDataSource(self());
    // Few bytes do not scroll, and would begin under the bar.
    grid_.setContentInsetAdjustmentBehavior(ui::ContentInsetAdjustmentBehavior::always);
    self().view().addSubview(grid_);
}

ui::CollectionViewCell HexEditorViewControllerPeer::cell(ui::CollectionView grid,
                                                         ns::IndexPath path) const {
    const auto cell = grid.dequeueReusableCell(u"HexCell"_ns, path).assume<HexCell>();
    const ns::Data bytes = block(path.section());
    const auto digits =
        hexDigits(static_cast<unsigned char>(bytes.bytes()[static_cast<std::size_t>(path.item())]));
    cell.hexLabel().setText(ns::String::from({digits.data(), digits.size()}));
    return cell;
}

} // namespace

void registerHexEditorViewController() { HexEditorViewControllerPeer::registerClass(); }

} // namespace wentra::files
