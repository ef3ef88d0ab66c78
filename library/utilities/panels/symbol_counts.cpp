// Counts every ASCII unit, and picks out the symbols.
#include "library/utilities/panels/symbol_counts.hpp"

#include "library/common/white_space.hpp"

#include <algorithm>

namespace wentra::utilities {
namespace {

constexpr std::size_t beyondAscii = 128; // where all that is no ASCII is counted

std::size_t slot(char16_t unit) { return std::min<std::size_t>(unit, beyondAscii); }

std::u16string digits(std::size_t number) {
    const std::string text = std::to_string(number);
    return {text.begin(), text.end()};
}

void appendLine(std::u16string& report, char16_t symbol, std::u16string_view between,
                std::size_t count) {
    report.append(u"   ").append(1, symbol).append(between).append(digits(count)).append(u"个\n");
}

void appendWhole(std::u16string_view text, std::u16string& report) {
    const SymbolCounts counts = countSymbols(text);
    for (std::size_t symbol = 0; symbol < symbols.size(); ++symbol) {
        appendLine(report, symbols[symbol], u" 符号有", counts[symbol]);
    }
}

void appendPart(std::u16string_view body, std::u16string& report) {
    const auto lineEnd = std::ranges::find_if(body, &isNewline);
    report.append(u"\n方法名: `").append(body.begin(), lineEnd).append(u"`\n");
    const SymbolCounts counts = countSymbols(body);
    for (std::size_t symbol = 0; symbol < symbols.size(); ++symbol) {
        if (counts[symbol] > 0) {
            appendLine(report, symbols[symbol], u"  符号有", counts[symbol]);
        }
    }
    report.append(u"\n--------\n");
}

} // namespace

SymbolCounts countSymbols(std::u16string_view text) {
    // Several tables: equal neighbours would wait for one another.
    constexpr std::size_t tables = 4;
    std::array<std::array<std::size_t, beyondAscii + 1>, tables> seen{};
    std::size_t at = 0;
    for (; at + tables <= text.size(); at += tables) {
        ++seen[0][slot(text[at])];
        ++seen[1][slot(text[at + 1])];
        ++seen[2][slot(text[at + 2])];
        ++seen[3][slot(text[at + 3])];
    }
    for (; at < text.size(); ++at) {
        ++seen[0][slot(text[at])];
    }
    SymbolCounts counts{};
    std::ranges::transform(symbols, counts.begin(), [&seen](char16_t symbol) {
        return seen[0][symbol] + seen[1][symbol] + seen[2][symbol] + seen[3][symbol];
    });
    return counts;
}

std::vector<std::u16string_view> methodBodies(std::u16string_view text) {
    constexpr std::u16string_view opening = u"- (";
    constexpr std::u16string_view closing = u"\n}";
    std::vector<std::u16string_view> bodies;
    for (std::size_t start = text.find(opening); start != text.npos;) {
        const std::size_t end = text.find(closing, start + opening.size());
        if (end == text.npos) {
            break; // nor is there one for any later opening
        }
        const std::size_t behind = end + closing.size();
        bodies.push_back(text.substr(start, behind - start));
        start = text.find(opening, behind);
    }
    return bodies;
}

std::u16string symbolReport(std::u16string_view text) {
    std::u16string report = u"全文符号数量：\n\n";
    appendWhole(text, report);
    const auto bodies = methodBodies(text);
    if (!bodies.empty()) {
        report.append(u"\n--------\n\n各段落符号数量：\n\n");
    }
    for (const std::u16string_view body : bodies) {
        appendPart(body, report);
    }
    return report;
}

} // namespace wentra::utilities
