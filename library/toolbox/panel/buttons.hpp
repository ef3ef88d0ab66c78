// The panel's ten buttons.
#pragma once

#include "bindings/objc/part.hpp"
#include "bindings/uikit/button.hpp"
#include "library/toolbox/floating_view_controller.hpp"
#include "library/toolbox/panel/body_layout.hpp"

namespace wentra::toolbox {

/// How a function's button looks, whatever it does. Two of the panel's are of a paler colour.
enum class ButtonTone { usual, pale };
/// `shade` is the alpha of the background.
void styleButton(ui::Button button, ButtonTone tone, double shade);

/// The buttons of the tools, whose taps and long presses go to the controller.
class Buttons : public objc::Part<FloatingViewController> {
public:
    using Part::Part;
    static Buttons& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"wzjhButton", &Buttons::translate_>(),
            objc::property<"zzjsButton", &Buttons::logs_>(),
            objc::property<"ljtzButton", &Buttons::links_>(),
            objc::property<"selectAllButton", &Buttons::selectAll_>(),
            objc::property<"shareButton", &Buttons::share_>(),
            objc::property<"umzhButton", &Buttons::unicode_>(),
            objc::property<"pasteButton", &Buttons::paste_>(),
            objc::property<"explodeButton", &Buttons::viewSize_>(),
            objc::property<"startRecordButton", &Buttons::startRecording_>(),
            objc::property<"stopRecordButton", &Buttons::stopRecording_>(),
            // Without a button of the panel.
            objc::property<"wzthButton", &Buttons::wzth_>(),
            objc::property<"zsdmButton", &Buttons::zsdm_>(),
            objc::property<"editButton", &Buttons::edit_>(),
            objc::property<"editContentButton", &Buttons::editContent_>(),
            objc::property<"closeButton", &Buttons::close_>(),
            objc::method<"setButton:withFrame:", &Buttons::place>(),
        };
    }

    /// Makes the buttons and puts them into the controller's view. `shade` is the alpha of their
    /// backgrounds.
    void add(double shade);
    /// Puts every button into its place.
    void layOut(const BodyLayout& layout);

    /// Nil before `add`.
    [[nodiscard]] ui::Button selectAll() const { return selectAll_; }

private:
    struct Row;
    static const std::array<Row, 10> rows;

    [[nodiscard]] ui::Button made(const Row& row, double shade) const;
    void place(ui::Button button, CGRect frame);

    objc::Strong<ui::Button> translate_;
    objc::Strong<ui::Button> logs_;
    objc::Strong<ui::Button> links_;
    objc::Strong<ui::Button> selectAll_;
    objc::Strong<ui::Button> share_;
    objc::Strong<ui::Button> unicode_;
    objc::Strong<ui::Button> paste_;
    objc::Strong<ui::Button> viewSize_;
    objc::Strong<ui::Button> startRecording_;
    objc::Strong<ui::Button> stopRecording_;
    objc::Strong<ui::Button> wzth_;
    objc::Strong<ui::Button> zsdm_;
    objc::Strong<ui::Button> edit_;
    objc::Strong<ui::Button> editContent_;
    objc::Strong<ui::Button> close_;
};

} // namespace wentra::toolbox
