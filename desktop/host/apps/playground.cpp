// The playground: real text fields, addresses to open in each of the ways that there are, and a
// list that can be changed.
#include "desktop/host/app.hpp"
#include "desktop/host/apps/screen_parts.hpp"
#include "desktop/uikit/lists/item_index.hpp"

#include "bindings/foundation/array.hpp"
#include "bindings/safariservices/safari_view_controller.hpp"
#include "bindings/uikit/application.hpp"
#include "bindings/uikit/navigation_controller.hpp"
#include "bindings/uikit/navigation_item.hpp"
#include "bindings/uikit/screen.hpp"
#include "bindings/uikit/table_view_controller.hpp"
#include "bindings/uikit/text_field.hpp"
#include "bindings/uikit/text_view.hpp"
#include "bindings/webkit/web_view.hpp"
#include "desktop/class.hpp"

#include <array>
#include <vector>

namespace desktop::host {
namespace {

using namespace ns::literals;

constexpr double margin = 16;
constexpr double rowHeight = 44;
constexpr double textHeight = 120;

struct Field {
    std::string_view placeholder;
    ui::KeyboardType keyboard = ui::KeyboardType::default_;
    bool isSecret = false;
};

constexpr std::array fields{
    Field{"姓名 Name"},
    Field{"数字 Number", ui::KeyboardType::numberPad},
    Field{"密码 Password", ui::KeyboardType::default_, true},
};

void showInWebView(ui::ViewController from, ns::Url url) {
    const auto page = wk::WebView::withFrame(ui::Screen::mainScreen().bounds());
    const auto controller = ui::ViewController::make();
    controller.setView(page);
    controller.setTitle(url.absoluteString());
    from.navigationController().push(controller, true);
    page.load(ns::UrlRequest::withUrl(url));
}

void showInSafariPage(ui::ViewController from, ns::Url url) {
    from.present(sf::SafariViewController::with(url), true);
}

void openOutside(ui::ViewController, ns::Url url) {
    ui::Application::sharedApplication().openUrl(url);
}

struct Address {
    std::string_view text;
    std::string_view way;
    void (*open)(ui::ViewController from, ns::Url url);
};

constexpr std::array addresses{
    Address{"https://files.example/", "网页视图", &showInWebView},
    Address{"https://www.example.com/", "Safari 页面", &showInSafariPage},
    Address{"https://www.example.com/news", "系统", &openOutside},
    Address{"mailto:someone@example.com", "系统", &openOutside},
};

struct PlaygroundKind
    : objc::Kind<PlaygroundKind, "PlaygroundController", ui::TableViewController> {
    using Kind::Kind;
};

class Playground : public PlatformClass<Playground, PlaygroundKind> {
public:
    static constexpr auto methods() {
        using Self = Playground;
        return std::array{
            objc::method<"viewDidLoad", &Self::viewDidLoad>(),
            objc::method<"numberOfSectionsInTableView:", &Self::numberOfSections>(),
            objc::method<"tableView:numberOfRowsInSection:", &Self::numberOfRows>(),
            objc::method<"tableView:titleForHeaderInSection:", &Self::headerTitle>(),
            objc::method<"tableView:heightForRowAtIndexPath:", &Self::heightForRow>(),
            objc::method<"tableView:cellForRowAtIndexPath:", &Self::cellForRow>(),
            objc::method<"tableView:didSelectRowAtIndexPath:", &Self::didSelect>(),
            objc::method<"tableView:canEditRowAtIndexPath:", &Self::mayEdit>(),
            objc::method<"tableView:commitEditingStyle:forRowAtIndexPath:", &Self::commit>(),
            objc::method<"textFieldShouldReturn:", &Self::shouldReturn>(),
        };
    }

private:
    enum Section : long { texts, links, things, sectionCount };

    void viewDidLoad();
    [[nodiscard]] ui::TextField makeField(const Field& field) const;
    [[nodiscard]] long numberOfSections(ui::TableView) const { return sectionCount; }
    [[nodiscard]] long numberOfRows(ui::TableView, long section) const;
    [[nodiscard]] ns::String headerTitle(ui::TableView, long section) const;
    [[nodiscard]] double heightForRow(ui::TableView, ns::IndexPath path) const;
    [[nodiscard]] ui::TableViewCell cellForRow(ui::TableView, ns::IndexPath path) const;
    void fillCell(ui::TableViewCell cell, ItemIndex index) const;
    void didSelect(ui::TableView table, ns::IndexPath path);
    [[nodiscard]] bool mayEdit(ui::TableView, ns::IndexPath path) const;
    void commit(ui::TableView table, ui::TableViewCellEditingStyle, ns::IndexPath path);
    [[nodiscard]] bool shouldReturn(ui::TextField field);

    /// The fields, the text view below them, and the two fields that add an address and a thing.
    std::vector<objc::Strong<ui::View>> texts_;
    objc::Strong<ui::TextField> address_;
    objc::Strong<ui::TextField> newThing_;

    struct Thing {
        objc::Strong<ns::String> name;
        bool isDone = false;
    };
    std::vector<Thing> things_{{u"牛奶 Milk"_ns}, {u"面包 Bread"_ns, true}, {u"hello"_ns}};
};

ui::TextField Playground::makeField(const Field& field) const {
    const auto made = ui::TextField::withFrame({});
    made.setPlaceholder(ns::String::fromUtf8(field.placeholder));
    made.setKeyboardType(field.keyboard);
    made.setSecureTextEntry(field.isSecret);
    made.setClearButtonMode(ui::TextFieldViewMode::whileEditing);
    made.setDelegate(self());
    return made;
}

void Playground::viewDidLoad() {
    super<"viewDidLoad">();
    self().setTitle(u"试验场"_ns);
    for (const Field& field : fields) {
        texts_.emplace_back(makeField(field));
    }
    const auto text = ui::TextView::withFrame({});
    text.setFont(ui::Font::system(17));
    text.setText(u"多行文字 Text of several lines\nhttps://www.example.com/"_ns);
    text.setBackgroundColor(ui::Color::clear());
    texts_.emplace_back(text);
    address_ = makeField({"网址，回车打开 Address", ui::KeyboardType::url});
    newThing_ = makeField({"新项目，回车添加 New item"});
}

long Playground::numberOfRows(ui::TableView, long section) const {
    const std::size_t counts[] = {texts_.size(), addresses.size() + 1, things_.size() + 1};
    return static_cast<long>(counts[section]);
}

ns::String Playground::headerTitle(ui::TableView, long section) const {
    return section == texts   ? u"文字 Texts"_ns
           : section == links ? u"网址 Addresses"_ns
                              : u"清单 List"_ns;
}

double Playground::heightForRow(ui::TableView, ns::IndexPath path) const {
    const ItemIndex index = ItemIndex::of(path);
    const bool isText = index.section == texts && index.item == static_cast<long>(fields.size());
    return isText ? textHeight : rowHeight;
}

/// Puts the control between the cell's margins; it leaves the cell in which it was before.
void spread(ui::View control, ui::TableViewCell cell) {
    cell.layoutIfNeeded();
    const CGSize size = cell.contentView().bounds().size;
    control.setFrame({{margin, 0}, {size.width - 2 * margin, size.height}});
    control.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth |
                                ui::ViewAutoresizing::flexibleHeight);
    cell.contentView().addSubview(control);
}

ui::TableViewCell Playground::cellForRow(ui::TableView, ns::IndexPath path) const {
    const auto cell = ui::TableViewCell::withStyle(ui::TableViewCellStyle::value1, ns::String());
    cell.setBackgroundColor(cardColor());
    fillCell(cell, ItemIndex::of(path));
    return cell;
}

void Playground::fillCell(ui::TableViewCell cell, ItemIndex index) const {
    const auto item = static_cast<std::size_t>(index.item);
    if (index.section == texts) {
        spread(texts_.at(item), cell);
    } else if (index.section == links && item < addresses.size()) {
        cell.textLabel().setText(ns::String::fromUtf8(addresses.at(item).text));
        cell.detailTextLabel().setText(ns::String::fromUtf8(addresses.at(item).way));
        cell.textLabel().setAdjustsFontSizeToFitWidth(true);
    } else if (index.section == things && item < things_.size()) {
        cell.textLabel().setText(things_.at(item).name);
        cell.detailTextLabel().setText(things_.at(item).isDone ? u"✓"_ns : u""_ns);
    } else {
        spread(index.section == links ? address_ : newThing_, cell);
    }
}

void Playground::didSelect(ui::TableView table, ns::IndexPath path) {
    const ItemIndex index = ItemIndex::of(path);
    const auto item = static_cast<std::size_t>(index.item);
    table.deselectRow(path, true);
    if (index.section == links && item < addresses.size()) {
        const Address& address = addresses.at(item);
        address.open(self(), ns::Url::withString(ns::String::fromUtf8(address.text)));
    } else if (index.section == things && item < things_.size()) {
        things_.at(item).isDone = !things_.at(item).isDone;
        table.reloadData();
    }
}

bool Playground::mayEdit(ui::TableView, ns::IndexPath path) const {
    return path.section() == things && path.item() < static_cast<long>(things_.size());
}

void Playground::commit(ui::TableView table, ui::TableViewCellEditingStyle, ns::IndexPath path) {
    things_.erase(things_.begin() + path.item());
    const auto paths = ns::MutableArray::make();
    paths.add(path);
    table.deleteRows(paths, ui::TableViewRowAnimation::automatic);
}

bool Playground::shouldReturn(ui::TextField field) {
    if (field == address_) {
        if (const auto url = ns::Url::withString(field.text()); url.host()) {
            showInWebView(self(), url);
        }
    } else if (field == newThing_ && field.text().length() > 0) {
        things_.push_back({objc::Strong(field.text())});
        field.setText(u""_ns);
        self().tableView().reloadData();
        return false; // the next one may follow
    }
    field.send<"resignFirstResponder", bool>();
    return true;
}

void launch() {
    const auto list = PlaygroundKind::make<"initWithStyle:">(ui::TableViewStyle::grouped);
    showInWindow(ui::NavigationController::withRoot(list));
}

} // namespace

const App playgroundApp{"playground", "com.example.playground", [] { Playground::registerClass(); },
                        nullptr, &launch};

} // namespace desktop::host
