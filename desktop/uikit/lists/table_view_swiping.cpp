// Tables: rows that are swiped for what can be done with them.
#include "desktop/uikit/lists/table_view.hpp"

#include "bindings/uikit/pan_gesture_recognizer.hpp"
#include "desktop/uikit/gestures/gesture_recognizer.hpp"
#include "desktop/uikit/lists/contextual_action.hpp"
#include "desktop/uikit/lists/swipe_actions_configuration.hpp"

#include <cmath>
#include <utility>

namespace desktop {
namespace {

using namespace ns::literals;

using EditingStyle = ui::TableViewCellEditingStyle;

} // namespace

void TableView::addSwipe() {
    swipePan_ = ui::GestureRecognizer::with<ui::PanGestureRecognizer>(
        self(), objc::selector<"handleRowSwipe:">());
    GestureRecognizer::of(swipePan_).belongsToView = true;
    swipePan_.setDelegate(self());
    self().addGestureRecognizer(swipePan_);
}

bool TableView::mayEdit(ItemIndex index) const {
    return !answers<"tableView:canEditRowAtIndexPath:">(dataSource_) ||
           dataSource().send<"tableView:canEditRowAtIndexPath:", bool>(self(), index.path());
}

bool TableView::deletes(ItemIndex index) const {
    const objc::Object asked = delegate();
    return answers<"tableView:commitEditingStyle:forRowAtIndexPath:">(dataSource_) &&
           (!answers<"tableView:editingStyleForRowAtIndexPath:">(asked) ||
            asked.send<"tableView:editingStyleForRowAtIndexPath:", EditingStyle>(
                self(), index.path()) == EditingStyle::delete_);
}

RowActions TableView::actionsOf(ItemIndex index) {
    if (!mayEdit(index)) {
        return {};
    }
    const objc::Object asked = delegate();
    if (answers<"tableView:trailingSwipeActionsConfigurationForRowAtIndexPath:">(asked)) {
        const auto configuration =
            asked.send<"tableView:trailingSwipeActionsConfigurationForRowAtIndexPath:",
                       ui::SwipeActionsConfiguration>(self(), index.path());
        if (configuration) {
            return offered(SwipeActionsConfiguration::of(configuration));
        }
    }
    return deletes(index) ? RowActions{{deletion(index)}} : RowActions{};
}

RowActions TableView::offered(const SwipeActionsConfiguration& configuration) {
    RowActions actions;
    for (const ui::ContextualAction action : configuration.actions()) {
        const ContextualAction& peer = ContextualAction::of(action);
        actions.list.push_back({peer.title(), peer.backgroundColor(),
                                [table = objc::Weak<ui::TableView>(self()),
                                 kept = objc::Strong(action)](ui::View source) {
                                    ContextualAction::of(kept).perform(
                                        source,
                                        ui::ContextualAction::Completion::from([table](bool) {
                                            if (const auto alive = table.strong(); alive) {
                                                of(alive).closeSwipe();
                                            }
                                        }));
                                }});
    }
    actions.performsFirst = configuration.performsFirst();
    return actions;
}

RowAction TableView::deletion(ItemIndex index) {
    const objc::Object told = delegate();
    const ns::String title =
        answers<"tableView:titleForDeleteConfirmationButtonForRowAtIndexPath:">(told)
            ? told.send<"tableView:titleForDeleteConfirmationButtonForRowAtIndexPath:", ns::String>(
                  self(), index.path())
            : ns::String(u"删除"_ns);
    return {title, ui::Color::named("systemRedColor"), [this, index](ui::View) {
                const objc::Strong<ui::TableView> kept = self();
                dataSource().send<"tableView:commitEditingStyle:forRowAtIndexPath:">(
                    self(), EditingStyle::delete_, index.path());
                closeSwipe();
            }};
}

/// A drag to the left over a row that offers something, or any along the open row.
bool TableView::shouldBegin(ui::GestureRecognizer recognizer) {
    if (recognizer != swipePan_) {
        return super<"gestureRecognizerShouldBegin:", bool>(recognizer);
    }
    const CGPoint way = swipePan_.translationIn(self());
    if (std::abs(way.x) <= std::abs(way.y)) {
        return false;
    }
    const ns::IndexPath path = pathAt(swipePan_.locationIn(self()));
    return path && way.x < 0 && beginSwipe(ItemIndex::of(path));
}

bool TableView::beginSwipe(ItemIndex row) {
    if (swipe_ && swipe_->row() == row) {
        return true;
    }
    RowActions actions = actionsOf(row);
    if (actions.list.empty()) {
        return false;
    }
    release();
    swipe_ = std::make_unique<RowSwipe>(row, std::move(actions), self());
    tell<"tableView:willBeginEditingRowAtIndexPath:">(row.path());
    return true;
}

void TableView::handleSwipe(ui::PanGestureRecognizer pan) {
    if (!swipe_) {
        return;
    }
    const double width = self().bounds().size.width;
    switch (pan.state()) {
    case ui::GestureState::began:
    case ui::GestureState::changed:
        swipe_->moveTo(-pan.translationIn(self()).x);
        placeSwiped();
        break;
    case ui::GestureState::ended:
        if (swipe_->meansFirst(width)) {
            choose(0);
        } else if (swipe_->staysOpen(pan.velocityIn(self()).x)) {
            slideSwiped(swipe_->openOffset());
        } else {
            closeSwipe();
        }
        break;
    default:
        closeSwipe();
    }
}

void TableView::openSwipe(ItemIndex row) {
    if (beginSwipe(row)) {
        slideSwiped(swipe_->openOffset());
    }
}

void TableView::placeSwiped() {
    const CGRect frame = frameOf(swipe_->row());
    swipe_->layOut(frame);
    cells_.at(swipe_->row()).setFrame({{-swipe_->offset(), frame.origin.y}, frame.size});
}

void TableView::slideSwiped(double offset) {
    constexpr double duration = 0.25;
    swipe_->moveTo(offset);
    const objc::Strong<ui::TableView> kept = self();
    ui::View::animate(duration, ui::View::Changes::from([this, kept] {
                          if (swipe_) {
                              placeSwiped();
                          }
                      }));
}

/// The row slides back, if it still exists.
void TableView::closeSwipe() {
    const auto swipe = std::exchange(swipe_, nullptr);
    if (!swipe) {
        return;
    }
    const ItemIndex row = swipe->row();
    if (placement_.contains(row)) {
        constexpr double duration = 0.25;
        ui::View::animate(duration,
                          ui::View::Changes::from([cell = objc::Strong(cells_.at(row)),
                                                   at = frameOf(row)] { cell.setFrame(at); }));
    }
    tell<"tableView:didEndEditingRowAtIndexPath:">(row.path());
}

void TableView::choose(std::size_t action) {
    if (swipe_) {
        const RowAction chosen = swipe_->action(action); // a copy: the swipe ends with it
        chosen.perform(cells_.at(swipe_->row()));
    }
}

void TableView::chooseButton(ui::Button button) {
    if (swipe_ && swipe_->has(button)) {
        choose(static_cast<std::size_t>(button.tag()));
    }
}

} // namespace desktop
