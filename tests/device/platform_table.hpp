// Reads the table of the phone's classes and methods, and the list of the desktop's differences.
#pragma once

#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

/// One line of the table: a class (no selector) or one of its methods.
struct PlatformRow {
    std::string className;
    std::string side; ///< "-" or "+"
    std::string selector;
    std::string types; ///< or "absent"
    std::string since;

    /// "UIView", or "UIView - frame".
    [[nodiscard]] std::string key() const {
        return selector.empty() ? className : className + ' ' + side + ' ' + selector;
    }
};

inline std::vector<PlatformRow> readPlatformTable(const std::string& path) {
    std::vector<PlatformRow> rows;
    std::ifstream file(path);
    std::string className;
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        std::string first;
        std::string second;
        std::string third;
        std::string fourth;
        if (!(words >> first >> second >> third >> fourth) || first == "#") {
            continue;
        }
        if (second == ":") {
            className = first;
            rows.push_back({className, "", "", "", fourth});
        } else {
            rows.push_back({className, first, second, third, fourth});
        }
    }
    return rows;
}

/// Reasons by key; a line reads "UIView - frame | reason".
inline std::map<std::string, std::string> readDifferences(const std::string& path) {
    std::map<std::string, std::string> reasons;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        if (const auto bar = line.find(" | "); bar != std::string::npos && line[0] != '#') {
            reasons[line.substr(0, bar)] = line.substr(bar + 3);
        }
    }
    return reasons;
}
