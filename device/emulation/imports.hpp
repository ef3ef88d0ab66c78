// What the library's imports are bound to.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace emulation {

/// An import that Linux's own function or variable of that name does not fit.
struct Translation {
    std::string_view name; ///< As the file has it, with an underscore in front.
    void* address;
};

template <class Function>
Translation translation(std::string_view name, Function* function) {
    return {name, reinterpret_cast<void*>(function)};
}

// Of each subject, its translations.
std::vector<Translation> compilerTranslations();
std::vector<Translation> constantTranslations();
std::vector<Translation> errorTranslations();
std::vector<Translation> exceptionTranslations();
std::vector<Translation> fileTranslations();
std::vector<Translation> folderTranslations();
std::vector<Translation> imageTranslations();
std::vector<Translation> listTranslations();
std::vector<Translation> processTranslations();
std::vector<Translation> runtimeTranslations();
std::vector<Translation> threadTranslations();

/// The names of imports that have the same form on both sides.
std::vector<std::string_view> sameOnBothSides();

/// Null for a name that is not known, or that nobody here has.
void* importNamed(const std::string& name);

} // namespace emulation
