// The panel that counts the symbols of source code.
#pragma once

#include "library/utilities/panels/panel_parts.hpp"

namespace wentra::utilities {

/// A text to write into, and what its count tells below it.
class SymbolCounter : public objc::Part<UmacaTableViewController> {
public:
    SymbolCounter(UmacaTableViewController whole, ToolScreens& screens)
        : Part(whole), screens_(screens) {}
    static SymbolCounter& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"inputdmTextView", &SymbolCounter::input_>(),
            objc::property<"outputdmTextView", &SymbolCounter::output_>(),
            objc::property<"countButton", &SymbolCounter::countButton_>(),
            objc::method<"countSpecialCharacters:", &SymbolCounter::count>(),
        };
    }

    void show();

private:
    void count(objc::Object sender);

    ToolScreens& screens_;
    objc::Strong<ui::TextView> input_;
    objc::Strong<ui::TextView> output_;
    objc::Strong<ui::Button> countButton_; ///< for others: nothing here sets it
};

} // namespace wentra::utilities
