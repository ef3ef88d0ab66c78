// The classes that a method's declared types name for its arguments.
#pragma once

#include <string_view>
#include <vector>

namespace desktop::host {

/// A class, and the class of an array's elements; empty where none is declared.
struct DeclaredClass {
    std::string_view name;
    std::string_view elements;
};

/// One for each argument behind the selector, from types such as `v@:@"UIFont"d@"NSArray<UIView>"`.
[[nodiscard]] std::vector<DeclaredClass> declaredClasses(std::string_view types);

} // namespace desktop::host
