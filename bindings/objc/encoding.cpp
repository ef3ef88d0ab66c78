// Comparing method encodings that different compilers wrote.
#include "bindings/objc/encoding.hpp"

#include <string>

namespace objc {
namespace {

/// One spelling for each meaning.
std::string normalised(std::string_view encoding) {
    std::string plain;
    bool inName = false; // between "{" and "=": a structure's name, which compilers differ on
    for (std::size_t at = 0; at < encoding.size(); ++at) {
        const char c = encoding[at];
        if (inName) {
            inName = c != '=' && c != '}';
            if (c == '}') {
                plain += c;
            }
            continue;
        }
        switch (c) {
        case '0':
        case '1':
        case '2':
        case '3':
        case '4':
        case '5':
        case '6':
        case '7':
        case '8':
        case '9':
        case '+':
        case '-': // frame offsets
        case 'r':
        case 'n':
        case 'N':
        case 'o':
        case 'O':
        case 'R':
        case 'V':
        case 'A': // qualifiers
            break;
        case '"': // the class of an object argument
            at = std::min(encoding.find('"', at + 1), encoding.size());
            break;
        case '?': // "@?" is a block, which travels as any object; "^?" stays a pointer
            if (plain.empty() || plain.back() != '@') {
                plain += c;
            }
            break;
        case 'l':
            plain += 'q';
            break;
        case 'L':
            plain += 'Q';
            break;
        case 'c':
        case 'C':
            plain += 'B';
            break;
        case '*':
            plain += "^B";
            break;
        case '{':
            plain += c;
            inName = true;
            break;
        default:
            plain += c;
        }
    }
    return plain;
}

} // namespace

bool sameMeaning(std::string_view one, std::string_view other) {
    return normalised(one) == normalised(other);
}

} // namespace objc
