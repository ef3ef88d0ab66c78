// The platform's geometric value types. Points, origin at the top left.
#pragma once

#include "bindings/objc/encoding.hpp"

struct CGPoint {
    double x = 0;
    double y = 0;
    friend constexpr bool operator==(const CGPoint&, const CGPoint&) = default;
};
struct CGSize {
    double width = 0;
    double height = 0;
    friend constexpr bool operator==(const CGSize&, const CGSize&) = default;
};
struct CGRect {
    CGPoint origin;
    CGSize size;
    friend constexpr bool operator==(const CGRect&, const CGRect&) = default;
};
/// x' = a·x + c·y + tx, y' = b·x + d·y + ty.
struct CGAffineTransform {
    double a = 1;
    double b = 0;
    double c = 0;
    double d = 1;
    double tx = 0;
    double ty = 0;
    friend constexpr bool operator==(const CGAffineTransform&, const CGAffineTransform&) = default;
};
struct UIEdgeInsets {
    double top = 0;
    double left = 0;
    double bottom = 0;
    double right = 0;
    friend constexpr bool operator==(const UIEdgeInsets&, const UIEdgeInsets&) = default;
};

template <>
struct objc::Encoding<CGPoint> {
    static constexpr Literal value = "{CGPoint=dd}";
};
template <>
struct objc::Encoding<CGSize> {
    static constexpr Literal value = "{CGSize=dd}";
};
template <>
struct objc::Encoding<CGRect> {
    static constexpr Literal value = "{CGRect={CGPoint=dd}{CGSize=dd}}";
};
template <>
struct objc::Encoding<CGAffineTransform> {
    static constexpr Literal value = "{CGAffineTransform=dddddd}";
};
template <>
struct objc::Encoding<UIEdgeInsets> {
    static constexpr Literal value = "{UIEdgeInsets=dddd}";
};
