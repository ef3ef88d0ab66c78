// Looking imports up: translated ones first, then what is handed on, and nothing else.
#include "device/emulation/imports.hpp"

#include <dlfcn.h>
#include <unordered_map>

namespace emulation {
namespace {

using Table = std::unordered_map<std::string_view, void*>;

Table makeTable() {
    Table table;
    for (const auto subject :
         {&compilerTranslations, &constantTranslations, &errorTranslations, &exceptionTranslations,
          &fileTranslations, &folderTranslations, &imageTranslations, &listTranslations,
          &processTranslations, &runtimeTranslations, &threadTranslations}) {
        for (const Translation& one : subject()) {
            table.emplace(one.name, one.address);
        }
    }
    for (const std::string_view name : sameOnBothSides()) {
        table.emplace(name, dlsym(RTLD_DEFAULT, name.substr(1).data()));
    }
    return table;
}

} // namespace

void* importNamed(const std::string& name) {
    static const Table table = makeTable();
    const auto found = table.find(name);
    return found == table.end() ? nullptr : found->second;
}

} // namespace emulation
