// Gathers the phone's and the installed faces once, and looks fonts up among them.
#include "desktop/drawing/font_catalogue.hpp"

#include "desktop/drawing/font_machinery.hpp"
#include "desktop/drawing/phone_fonts.hpp"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <map>
#include <mutex>
#include <tuple>

namespace desktop {
namespace {

struct Face {
    std::string family;
    std::string postScriptName;
    std::string fullName;
    int weight;
    bool italic;

    auto order() const { return std::tie(family, italic, weight, postScriptName); }
};

std::string text(FcPattern* pattern, const char* property, int index = 0) {
    FcChar8* value = nullptr;
    if (FcPatternGetString(pattern, property, index, &value) != FcResultMatch) {
        return {};
    }
    return reinterpret_cast<const char*>(value);
}

int number(FcPattern* pattern, const char* property, int fallback) {
    double value = 0;
    const bool found = FcPatternGetDouble(pattern, property, 0, &value) == FcResultMatch;
    return found ? static_cast<int>(std::lround(value)) : fallback;
}

// A condensed face belongs to the normal one's family by its first name only; its second name is
// the one that tells it apart.
std::string familyOf(FcPattern* pattern) {
    const bool normalWidth =
        number(pattern, FC_WIDTH, FC_WIDTH_NORMAL) == static_cast<int>(FC_WIDTH_NORMAL);
    const std::string second = normalWidth ? "" : text(pattern, FC_FAMILY, 1);
    return second.empty() ? text(pattern, FC_FAMILY) : second;
}

Face installedFace(FcPattern* pattern) {
    const int weight = number(pattern, FC_WEIGHT, FC_WEIGHT_REGULAR);
    return {.family = familyOf(pattern),
            .postScriptName = text(pattern, FC_POSTSCRIPT_NAME),
            .fullName = text(pattern, FC_FULLNAME),
            .weight = FcWeightToOpenType(weight),
            .italic = number(pattern, FC_SLANT, FC_SLANT_ROMAN) != FC_SLANT_ROMAN};
}

void addInstalledFaces(std::vector<Face>& faces) {
    const Handle<FcPattern, FcPatternDestroy> anything(FcPatternCreate());
    const Handle<FcObjectSet, FcObjectSetDestroy> properties(
        FcObjectSetBuild(FC_FAMILY, FC_FULLNAME, FC_POSTSCRIPT_NAME, FC_WEIGHT, FC_WIDTH, FC_SLANT,
                         static_cast<const char*>(nullptr)));
    const Handle<FcFontSet, FcFontSetDestroy> found(
        FcFontList(fontConfiguration(), anything.get(), properties.get()));
    if (!found) {
        return;
    }
    for (int index = 0; index < found->nfont; ++index) {
        Face face = installedFace(found->fonts[index]);
        if (!face.family.empty() && !face.postScriptName.empty()) {
            faces.push_back(std::move(face));
        }
    }
}

void addPhoneFaces(std::vector<Face>& faces) {
    for (const PhoneFamily& family : phoneFamilies()) {
        for (const PhoneFace& face : family.faces) {
            std::string fullName(family.name);
            if (!face.style.empty()) {
                fullName.append(" ").append(face.style);
            }
            faces.push_back({.family = std::string(family.name),
                             .postScriptName = std::string(face.postScriptName),
                             .fullName = std::move(fullName),
                             .weight = face.weight,
                             .italic = face.italic});
        }
    }
}

const std::vector<Face>& catalogue() {
    static const std::vector<Face> faces = [] {
        std::vector<Face> all;
        addPhoneFaces(all);
        addInstalledFaces(all);
        std::ranges::sort(all, {}, &Face::order);
        return all;
    }();
    return faces;
}

char lowered(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool sameName(std::string_view one, std::string_view other) {
    return std::ranges::equal(one, other, {}, lowered, lowered);
}

// The smaller, the better the face renders the weight and slant.
int distance(const Face& face, int weight, bool italic) {
    return std::abs(face.weight - weight) + (face.italic == italic ? 0 : 1000);
}

const Face* nearestFace(std::string_view family, int weight, bool italic) {
    const Face* best = nullptr;
    for (const Face& face : catalogue()) {
        const bool nearer =
            best == nullptr || distance(face, weight, italic) < distance(*best, weight, italic);
        if (sameName(face.family, family) && nearer) {
            best = &face;
        }
    }
    return best;
}

const Face* faceNamed(std::string_view name) {
    if (name.empty()) {
        return nullptr;
    }
    const auto& faces = catalogue();
    for (const auto property : {&Face::postScriptName, &Face::fullName}) {
        const auto found = std::ranges::find_if(
            faces, [&](const Face& face) { return sameName(face.*property, name); });
        if (found != faces.end()) {
            return &*found;
        }
    }
    return nearestFace(name, 400, false);
}

/// The same for names that were asked for before, as labels ask for few names often.
const Face* knownFace(std::string_view name) {
    static std::mutex mutex;
    static std::map<std::string, const Face*, std::less<>> known;
    const std::scoped_lock lock(mutex);
    auto found = known.find(name);
    if (found == known.end()) {
        found = known.emplace(name, faceNamed(name)).first;
    }
    return found->second;
}

std::string systemName(const Font& font) {
    constexpr const char* weights[] = {"Ultralight", "Thin", "Light", "Regular", "Medium",
                                       "Semibold",   "Bold", "Heavy", "Black"};
    const auto step = static_cast<std::size_t>((std::clamp(font.weight, 100, 900) - 50) / 100);
    const std::string family = font.family.empty() ? ".SFUI-" : ".SFUIMono-";
    return family + weights[step] + (font.italic ? "Italic" : "");
}

} // namespace

std::optional<Font> fontNamed(std::string_view name, double size) {
    const Face* face = knownFace(name);
    if (face == nullptr) {
        return std::nullopt;
    }
    return Font{
        .family = face->family, .size = size, .weight = face->weight, .italic = face->italic};
}

std::string postScriptName(const Font& font) {
    const int weight = std::clamp(font.weight, 100, 900);
    if (const Face* face = nearestFace(font.family, weight, font.italic)) {
        return face->postScriptName;
    }
    return systemName(font);
}

std::vector<std::string> familyNames() {
    std::vector<std::string> names;
    for (const Face& face : catalogue()) {
        if (names.empty() || names.back() != face.family) {
            names.push_back(face.family);
        }
    }
    return names;
}

std::vector<std::string> fontNames(std::string_view family) {
    std::vector<std::string> names;
    for (const Face& face : catalogue()) {
        if (sameName(face.family, family)) {
            names.push_back(face.postScriptName);
        }
    }
    return names;
}

} // namespace desktop
