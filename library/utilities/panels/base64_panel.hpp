// The panel that turns texts into Base64 and back.
#pragma once

#include "library/utilities/panels/panel_parts.hpp"

namespace wentra::utilities {

/// Two texts: encoding goes from the upper to the lower one, decoding from the lower to the upper.
class Base64Panel : public objc::Part<UmacaTableViewController> {
public:
    Base64Panel(UmacaTableViewController whole, ToolScreens& screens)
        : Part(whole), screens_(screens) {}
    static Base64Panel& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"inputBase64TextView", &Base64Panel::input_>(),
            objc::property<"outputBase64TextView", &Base64Panel::output_>(),
            objc::method<"base64EncryptButtonPressed:", &Base64Panel::encode>(),
            objc::method<"base64DecryptButtonPressed:", &Base64Panel::decode>(),
        };
    }

    void show();

private:
    void encode(objc::Object sender);
    /// What is not Base64 of UTF-8 empties the upper text.
    void decode(objc::Object sender);

    ToolScreens& screens_;
    objc::Strong<ui::TextView> input_;
    objc::Strong<ui::TextView> output_;
};

} // namespace wentra::utilities
