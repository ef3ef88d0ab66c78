// UIKit as a whole: its classes, the application's start, and the picture of the screen.
#pragma once

#include "desktop/uikit/application/device.hpp"

#include <string>
#include <string_view>

namespace desktop::uikit {

/// Makes the classes of UIKit known to the runtime. Once, before anything else. Main thread.
void registerClasses();

/// Sets the screen up; the shared application and its scene exist from here on. Main thread.
void startApplication(const Device& device);

enum class Appearance { light, dark };

/// Makes the phone light or dark, which whoever shows something is told at once. Main thread.
void setAppearance(Appearance appearance);
[[nodiscard]] Appearance appearance();

/// Turns the phone: "portrait", "landscapeLeft", "landscapeRight" or "portraitUpsideDown", where
/// the application supports it. False when there is no orientation of that name. Main thread.
bool turnTo(std::string_view orientation);
/// By the same names, how what is shown stands.
[[nodiscard]] std::string_view orientation();

/// Brings the layout of all windows up to date. Main thread.
void layoutWindows();

/// Lays out and draws the windows, at device pixels, into a PNG file. Throws std::runtime_error
/// when it cannot be written. Main thread.
void renderScreen(const std::string& pngFile);

} // namespace desktop::uikit
