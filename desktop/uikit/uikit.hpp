// UIKit as a whole: its classes, the application's start, and the picture of the screen.
#pragma once

#include <string>

namespace desktop::uikit {

/// A screen in points, with pixels a point.
struct ScreenSize {
    double width;
    double height;
    double scale;
};

/// Makes all classes known to the runtime. Once, before anything else. Main thread.
void registerClasses();

/// Sets the screen up; the shared application and its scene exist from here on. Main thread.
void startApplication(ScreenSize size);

/// Brings the layout of all windows up to date. Main thread.
void layoutWindows();

/// Lays out and draws the windows, at device pixels, into a PNG file. Throws std::runtime_error
/// when it cannot be written. Main thread.
void renderScreen(const std::string& pngFile);

} // namespace desktop::uikit
