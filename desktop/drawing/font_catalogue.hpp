// Finds fonts by name, among the installed ones and the phone's well-known ones.
#pragma once

#include "desktop/drawing/font.hpp"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace desktop {

/// The font with this PostScript name ("HelveticaNeue-Bold"), full name ("Helvetica Neue Bold")
/// or family name ("Helvetica Neue": its regular face). UTF-8, the case of ASCII letters does not
/// matter. Nothing when there is no such font or the name is empty. Any thread.
std::optional<Font> fontNamed(std::string_view name, double size);

/// The PostScript name of the face nearest to the font's weight and slant; for the system's fonts
/// the phone's private names (".SFUI-Semibold"). Any thread.
std::string postScriptName(const Font& font);

/// Every family, sorted by name, without the private system families. Any thread.
std::vector<std::string> familyNames();

/// The PostScript names of a family's faces, upright before italic and light before bold; empty
/// for an unknown family. Any thread.
std::vector<std::string> fontNames(std::string_view family);

} // namespace desktop
