// A colour in the sRGB space with straight (not premultiplied) alpha.
#pragma once

namespace desktop {

/// Components lie between 0 and 1; others, NaN included, are brought into that range when drawn.
struct Colour {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;
    bool operator==(const Colour&) const = default;
};

} // namespace desktop
