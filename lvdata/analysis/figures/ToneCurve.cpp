#include <lvdata/analysis/figures/ToneCurve.h>

#include <lvdata/analysis/colour/transfer.h>
#include <lvdata/analysis/decimal.h>
#include <lvdata/analysis/figures/stored_values.h>
#include <lvdata/analysis/figures/target_texts.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace lv::analysis {
namespace {

using Kind = ToneCurve::Kind;

/// Small letters and digits alone.
std::string plain(std::string_view name) {
    std::string text;
    for (const char character : name) {
        const bool isCapital = character >= 'A' && character <= 'Z';
        const bool isSmall = character >= 'a' && character <= 'z';
        const bool isDigit = character >= '0' && character <= '9';
        if (isCapital || isSmall || isDigit) {
            text += isCapital ? static_cast<char>(character - 'A' + 'a') : character;
        }
    }
    return text;
}

/// No value for a number with an exponent either.
std::optional<double> numberOf(std::string_view text) {
    const bool hasExponent = text.find_first_of("eE") != std::string_view::npos;
    return hasExponent ? std::nullopt : decimalNumber(text);
}

struct Name {
    std::string_view name;
    Kind kind;
};

constexpr std::array names = {
    Name{"srgb", Kind::sRGB},         Name{"lstar", Kind::lightness}, Name{"l", Kind::lightness},
    Name{"bt1886", Kind::bt1886},     Name{"rec1886", Kind::bt1886},  Name{"itubt1886", Kind::bt1886},
    Name{"iturbt1886", Kind::bt1886}, Name{"hlg", Kind::hlg},         Name{"pq", Kind::pq},
    Name{"st2084", Kind::pq},         Name{"smptest2084", Kind::pq},  Name{"dicom", Kind::gsdf},
    Name{"gsdf", Kind::gsdf},         Name{"dicomgsdf", Kind::gsdf},  Name{"dicompart14", Kind::gsdf},
};

double interpolated(const std::vector<double>& entries, double signal) {
    const double place = std::clamp(signal, 0.0, 1.0) * static_cast<double>(entries.size() - 1);
    const auto below = std::min(static_cast<std::size_t>(place), entries.size() - 2);
    const double part = place - static_cast<double>(below);
    return entries[below] + (entries[below + 1] - entries[below]) * part;
}

constexpr const char* notAbsolute = "it needs Y in cd/m\u00B2, and the unit of Y is not recorded";

/// Of a luminance: where it lies between black and white.
Figure between(double luminance, const ToneRange& range) {
    return computed((luminance - range.black) / (range.white - range.black));
}

Figure pqLight(double signal, const ToneRange& range) {
    return between(std::clamp(colour::pqLuminance(signal), range.black, range.white), range);
}

Figure gsdfLight(double signal, const ToneRange& range) {
    constexpr double least = 0.05;  // DICOM PS3.14, 7.1
    constexpr double greatest = 4000;
    if (range.black < least || range.white > greatest) {
        return missing("black and white are not within the 0.05 to 4000 cd/m\u00B2 of DICOM PS3.14");
    }
    const double first = colour::gsdfIndex(range.black);
    const double last = colour::gsdfIndex(range.white);
    const ToneRange ends = {colour::gsdfLuminance(last), colour::gsdfLuminance(first)};  // the index is but a fit
    return between(colour::gsdfLuminance(first + (last - first) * signal), ends);
}

Figure hlgLight(const ToneCurve& curve, double signal, const ToneRange& range) {
    const Figure systemGamma = systemGammaOf(curve, range);
    return systemGamma.value ? computed(std::pow(colour::hlgSceneLight(signal), *systemGamma.value)) : systemGamma;
}

}  // namespace

bool operator==(const ToneCurve& left, const ToneCurve& right) {
    return left.kind == right.kind && left.exponent == right.exponent && left.entries == right.entries &&
           left.label == right.label;
}

std::optional<ToneCurve> powerCurve(double exponent) {
    return exponent > 0 ? std::optional(ToneCurve{Kind::power, exponent, {}, shortNumber(exponent)}) : std::nullopt;
}

std::optional<ToneCurve> tableCurve(std::vector<double> entries) {
    return entries.size() >= 2 ? std::optional(ToneCurve{Kind::table, 0, std::move(entries), "table"}) : std::nullopt;
}

std::optional<ToneCurve> curveNamed(std::string_view name) {
    constexpr double greatestExponent = 10;
    if (const auto number = numberOf(name)) {
        return *number <= greatestExponent ? powerCurve(*number) : std::nullopt;
    }
    const std::string text = plain(name);
    const auto* const found =
        std::find_if(names.begin(), names.end(), [&](const Name& known) { return known.name == text; });
    return found != names.end() ? std::optional(ToneCurve{found->kind, 0, {}, std::string(name)}) : std::nullopt;
}

Figure systemGammaOf(const ToneCurve& curve, const ToneRange& range) {
    if (curve.exponent > 0) {
        return {curve.exponent, ""};
    }
    return range.isAbsolute ? computed(colour::hlgSystemGamma(range.white))
                            : missing("the target has no HLG system gamma, and the unit of Y is not recorded");
}

Figure lightOf(const ToneCurve& curve, double signal, const ToneRange& range) {
    switch (curve.kind) {
    case Kind::power:
        return computed(std::pow(signal, curve.exponent));
    case Kind::table:
        return computed(interpolated(curve.entries, signal));
    case Kind::sRGB:
        return computed(colour::sRGBLight(signal));
    case Kind::lightness:
        return computed(colour::lightnessLight(signal));
    case Kind::bt1886:
        return between(colour::bt1886Luminance(signal, range.white, range.black), range);
    case Kind::hlg:
        return hlgLight(curve, signal, range);
    case Kind::pq:
        return range.isAbsolute ? pqLight(signal, range) : missing(notAbsolute);
    case Kind::gsdf:
        return range.isAbsolute ? gsdfLight(signal, range) : missing(notAbsolute);
    }
    return missing("");
}

}  // namespace lv::analysis
