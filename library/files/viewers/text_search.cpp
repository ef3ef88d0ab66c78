// Finds, counts and highlights.
#include "library/files/viewers/text_search.hpp"

#include "bindings/uikit/text_attributes.hpp"
#include "library/common/alert.hpp"
#include "library/common/buttons.hpp"
#include "library/common/case_insensitive_search.hpp"
#include "library/common/gestures.hpp"
#include "library/files/viewers/counter_text.hpp"
#include "library/files/viewers/plain_text.hpp"

#include <array>

namespace wentra::files {
namespace {

using namespace ns::literals;

/// What points at the usual culprits in crash reports.
constexpr std::array<std::u16string_view, 12> terms{
    u"spinlock",      u"queue",         u"CCSupport", u"Snapper3",
    u"kayoko",        u"Copylog",       u"procname",  u"SpringBoard",
    u"UIApplication", u"Primary state", u"Snowboard", u"split-view-pro"};

} // namespace

void TextSearch::add(ui::Button searchButton) {
    constexpr double holdSeconds = 0.1;
    searchButton_ = searchButton;
    addPress(searchButton, self(), objc::selector<"longPressSearchButton:">(), holdSeconds);
    countLabel_ = ui::Label::withFrame({});
    countLabel_.setFont(ui::Font::system(13));
    countLabel_.setTextAlignment(ui::TextAlignment::center);
    countLabel_.setText(u""_ns);
    self().view().addSubview(countLabel_);
    addStep(previousButton_, u"上一个"_ns, objc::selector<"highlightPreviousSearchResult">());
    addStep(nextButton_, u"下一个"_ns, objc::selector<"highlightNextSearchResult">());
}

void TextSearch::addStep(objc::Strong<ui::Button>& button, ns::String title, SEL action) {
    const ButtonLook look{.title = title,
                          .background = ui::Color::lightGray().withAlphaComponent(0.7),
                          .cornerRadius = 6};
    button = makeButton(look, self(), action);
    self().view().addSubview(button);
}

void TextSearch::layOut(CGRect below) {
    constexpr double gap = 3.6;
    const CGSize view = self().view().bounds().size;
    const double height = countLabel_.font().lineHeight();
    const double middle = below.origin.x + below.size.width / 2;
    countLabel_.setFrame(
        {{middle - view.width / 2, below.origin.y - gap - height}, {view.width, height}});
    const CGRect first{{(view.width - 195) / 2, view.height - 58}, {80, 35}};
    previousButton_.setFrame(first);
    nextButton_.setFrame({{first.origin.x + 115, first.origin.y}, first.size});
}

void TextSearch::askForTerm(objc::Object /*sender*/) {
    Alert(u"搜索内容"_ns)
        .field()
        .action(u"搜索"_ns, [this, keptAlive = objc::Strong(self())](
                                ui::TextField field) { searchAndShow(field.text()); })
        .presentFrom(self());
}

void TextSearch::longPressed(ui::LongPressGestureRecognizer press) {
    if (press.state() == ui::GestureState::began) {
        self().send<"showSearchMenu">();
    }
}

void TextSearch::offerTerms() {
    const Alert sheet(
        ui::AlertController::with(u"搜索内容"_ns, nullptr, ui::AlertStyle::actionSheet));
    for (const std::u16string_view term : terms) {
        const objc::Strong title = ns::String::from(term);
        sheet.action(title,
                     [this, keptAlive = objc::Strong(self()), title] { searchAndShow(title); });
    }
    sheet.action(u"取消"_ns, ui::AlertActionStyle::cancel)
        .from(searchButton_, searchButton_.bounds())
        .presentFrom(self());
}

void TextSearch::searchAndShow(ns::String term) {
    self().send<"findSearchResultsInTextView:">(term);
    self().send<"highlightNextSearchResult">();
}

void TextSearch::find(ns::String term) {
    searchResults_ = ns::MutableArray::make();
    currentIndex_ = -1;
    if (term.length() == 0) {
        countLabel_.setText(u""_ns);
        return;
    }
    for (const ns::Range& range : occurrencesIgnoringCase(self().textView().text(), term)) {
        searchResults_.add(ns::Value::from(range));
    }
    countLabel_.setText(ns::String::from(matchCount(searchResults_.count())));
}

void TextSearch::highlightNext() {
    if (const unsigned long count = searchResults_.count(); count > 0) {
        show((static_cast<unsigned long>(currentIndex_) + 1) % count);
    }
}

/// Before any was shown, one less than nothing wraps around, and the last but one comes first.
void TextSearch::highlightPrevious() {
    if (const unsigned long count = searchResults_.count(); count > 0) {
        show((static_cast<unsigned long>(currentIndex_) - 1 + count) % count);
    }
}

void TextSearch::show(unsigned long index) {
    currentIndex_ = static_cast<long>(index);
    self().send<"highlightSearchResultAtIndex:">(currentIndex_);
    countLabel_.setText(ns::String::from(matchCount(searchResults_.count(), index)));
}

/// The text may have become shorter since it was searched.
void TextSearch::highlight(long index) {
    if (index < 0 || static_cast<unsigned long>(index) >= searchResults_.count()) {
        return;
    }
    const ui::TextView view = self().textView();
    const auto text = plainText(view, ui::Color::black());
    const ns::Range match =
        searchResults_.at(static_cast<unsigned long>(index)).assume<ns::Value>().rangeValue();
    if (match.location + match.length <= text.length()) {
        text.addAttribute(ui::attributes::foregroundColor(), ui::Color::orange(), match);
    }
    view.setAttributedText(text);
    view.scrollRangeToVisible(match);
}

} // namespace wentra::files
