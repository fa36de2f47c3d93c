#include <lvdata/analysis/colour/standards.h>

#include <lvdata/analysis/colour/colour_matching.h>

#include <string>

namespace lv::analysis::colour {
namespace {

constexpr Chromaticity d65 = {0.3127, 0.3290};
constexpr Primaries primariesOfBT709 = {{0.64, 0.33}, {0.30, 0.60}, {0.15, 0.06}};
constexpr Primaries primariesOfAdobeRGB = {{0.64, 0.33}, {0.21, 0.71}, {0.15, 0.06}};
constexpr Primaries primariesOfP3 = {{0.680, 0.320}, {0.265, 0.690}, {0.150, 0.060}};
constexpr Primaries primariesOfBT2020 = {{0.708, 0.292}, {0.170, 0.797}, {0.131, 0.046}};
constexpr Primaries primariesOfEBU = {{0.64, 0.33}, {0.29, 0.60}, {0.15, 0.06}};           // EBU Tech 3213
constexpr Primaries primariesOfSMPTEC = {{0.630, 0.340}, {0.310, 0.595}, {0.155, 0.070}};  // SMPTE RP 145

template <class Value>
struct Named {
    std::string_view name;  ///< As `comparable` makes it.
    Value value;
};

using NamedPrimaries = Named<Primaries>;
using NamedWhite = Named<Chromaticity>;

constexpr std::array namedPrimaries = {
    NamedPrimaries{"srgb", primariesOfBT709},
    NamedPrimaries{"iec6196621", primariesOfBT709},
    NamedPrimaries{"bt709", primariesOfBT709},
    NamedPrimaries{"rec709", primariesOfBT709},
    NamedPrimaries{"iturbt709", primariesOfBT709},
    NamedPrimaries{"adobergb", primariesOfAdobeRGB},
    NamedPrimaries{"adobergb1998", primariesOfAdobeRGB},
    NamedPrimaries{"p3", primariesOfP3},
    NamedPrimaries{"dcip3", primariesOfP3},
    NamedPrimaries{"p3dci", primariesOfP3},
    NamedPrimaries{"displayp3", primariesOfP3},
    NamedPrimaries{"p3d65", primariesOfP3},
    NamedPrimaries{"smpterp4312", primariesOfP3},
    NamedPrimaries{"smpteeg4321", primariesOfP3},
    NamedPrimaries{"bt2020", primariesOfBT2020},
    NamedPrimaries{"rec2020", primariesOfBT2020},
    NamedPrimaries{"iturbt2020", primariesOfBT2020},
    NamedPrimaries{"bt2100", primariesOfBT2020},
    NamedPrimaries{"rec2100", primariesOfBT2020},
    NamedPrimaries{"iturbt2100", primariesOfBT2020},
    NamedPrimaries{"ebu", primariesOfEBU},
    NamedPrimaries{"ebutech3213", primariesOfEBU},
    NamedPrimaries{"smptec", primariesOfSMPTEC},
    NamedPrimaries{"smpterp145", primariesOfSMPTEC},
};

// CIE 15, tables T.1 and T.3, with the four decimals that the standards of RGB spaces give.
constexpr std::array namedWhites = {
    NamedWhite{"a", {0.4476, 0.4074}},
    NamedWhite{"c", {0.3101, 0.3162}},
    NamedWhite{"d50", {0.3457, 0.3585}},
    NamedWhite{"d55", {0.3324, 0.3474}},
    NamedWhite{"d60", {0.32168, 0.33767}},  // SMPTE ST 2065-1
    NamedWhite{"d65", d65},
    NamedWhite{"d75", {0.2990, 0.3149}},
    NamedWhite{"dci", {0.314, 0.351}},  // SMPTE RP 431-2
    NamedWhite{"dcip3", {0.314, 0.351}},
    NamedWhite{"e", {1.0 / 3, 1.0 / 3}},
};

bool counts(char character) {
    constexpr std::string_view ignored = " .-_()";
    return ignored.find(character) == std::string_view::npos;
}

char lowerCase(char character) {
    const bool isUpperCase = character >= 'A' && character <= 'Z';
    return isUpperCase ? static_cast<char>(character - 'A' + 'a') : character;
}

// What of a name is compared.
std::string comparable(std::string_view name) {
    std::string result;
    for (const char character : name) {
        if (counts(character)) {
            result += lowerCase(character);
        }
    }
    return result;
}

template <class Value, std::size_t Count>
std::optional<Value> find(const std::array<Named<Value>, Count>& table, std::string_view name) {
    const std::string wanted = comparable(name);
    for (const Named<Value>& entry : table) {
        if (entry.name == wanted) {
            return entry.value;
        }
    }
    return std::nullopt;
}

LocusPoint locusPoint(const ColourMatch& match) {
    const auto [X, Y, Z] = match.functions;
    const double sum = X + Y + Z;
    return {match.wavelength, {X / sum, Y / sum}};
}

std::array<LocusPoint, locusPoints> computedLocus() {
    constexpr std::size_t rowsBefore = 4;  // 360 nm to 375 nm
    std::array<LocusPoint, locusPoints> points = {};
    for (std::size_t index = 0; index < points.size(); ++index) {
        points.at(index) = locusPoint(colourMatchingFunctions().at(rowsBefore + index));
    }
    return points;
}

}  // namespace

const std::array<RGBSpace, 4>& referenceSpaces() {
    static constexpr std::array<RGBSpace, 4> spaces = {{
        {"sRGB", "IEC 61966-2-1", primariesOfBT709, d65},
        {"Adobe RGB (1998)", "Adobe RGB (1998) Color Image Encoding, 2005-05", primariesOfAdobeRGB, d65},
        {"Display P3", "SMPTE EG 432-1", primariesOfP3, d65},
        {"BT.2020", "ITU-R BT.2020", primariesOfBT2020, d65},
    }};
    return spaces;
}

std::optional<Primaries> primariesNamed(std::string_view name) {
    return find(namedPrimaries, name);
}

std::optional<Chromaticity> whiteNamed(std::string_view name) {
    return find(namedWhites, name);
}

const std::array<LocusPoint, locusPoints>& spectrumLocus() {
    static const std::array<LocusPoint, locusPoints> points = computedLocus();
    return points;
}

}  // namespace lv::analysis::colour
