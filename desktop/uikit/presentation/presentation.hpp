// How a presented controller is put on the screen and taken off it.
#pragma once

#include "bindings/uikit/view_controller.hpp"

#include "bindings/objc/strong.hpp"

#include <memory>
#include <vector>

namespace desktop {

/// One presentation, from when it is asked for until its view is gone. For the controllers it is
/// over in the next turn of the main loop, so that nobody has to know how long a movement takes;
/// what people see of it goes on upon the clock. Main thread.
class Presentation : public std::enable_shared_from_this<Presentation> {
public:
    /// What is presented in that window, from the back to the front: all that has not been asked to
    /// leave.
    [[nodiscard]] static std::vector<ui::ViewController> presentedIn(ui::Window window);

    /// Both outlive the presentation's entering; the views are kept as long as they are shown.
    Presentation(ui::ViewController presenting, ui::ViewController presented);
    Presentation(const Presentation&) = delete;
    Presentation& operator=(const Presentation&) = delete;
    ~Presentation();

    /// Puts the presented controller's view before everything in that window. Raises for a popover
    /// that belongs nowhere.
    void enter(ui::Window window, bool animated);
    /// Takes it away again; what it had covered is put back at once.
    void leave(bool animated);

private:
    enum class Look { full, over, sheet, popover, alert, actionSheet };
    static constexpr double duration = 0.4; // seconds, about the platform's
    /// The platform's number of the transition that fades.
    static constexpr long crossDissolve = 2;

    [[nodiscard]] static Look lookFor(ui::ViewController presented);
    [[nodiscard]] bool fillsScreen() const;
    [[nodiscard]] ui::Window window() const;
    [[nodiscard]] double dimming() const;
    void buildViews(CGRect bounds, ui::View view);
    void place(CGRect bounds);
    void setOffstage(bool offstage);
    void cover();
    void uncover();

    ui::ViewController presenting_;
    ui::ViewController presented_;
    Look look_ = Look::full;
    bool offstage_ = false;
    bool leaves_ = false;
    objc::Strong<ui::View> container_;
    objc::Strong<ui::View> dimming_;
    /// What moves or fades: the presented view, or what is drawn around it.
    objc::Strong<ui::View> stage_;
    /// The view that a full screen has taken out of the window, and where it was.
    objc::Strong<ui::View> covered_;
    objc::Strong<ui::View> coveredParent_;
    long coveredPlace_ = 0;
};

} // namespace desktop
