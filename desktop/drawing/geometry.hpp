// Plain values of two-dimensional geometry, in points with the origin at the top left.
#pragma once

namespace desktop {

struct Point {
    double x = 0;
    double y = 0;
    bool operator==(const Point&) const = default;
};

struct Size {
    double width = 0;
    double height = 0;
    bool operator==(const Size&) const = default;
};

struct Rectangle {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    bool operator==(const Rectangle&) const = default;
};

} // namespace desktop
