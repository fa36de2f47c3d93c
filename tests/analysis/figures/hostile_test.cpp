#include <lvdata/analysis/figures/LimitSet.h>
#include <lvdata/analysis/figures/lines.h>
#include <lvdata/records/types.h>

#include <cmath>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

// Records with values that no monitor has: figures of them are numbers or have a reason, and JSON of them is JSON.

namespace {

using lv::CalibrationModeResultObject;
using lv::ColorModeSettingsObject;
using lv::MonitorInfo;
using lv::ProfileData;
using lv::TargetSetting;
using lv::analysis::Figure;
using lv::analysis::FigureLine;
using lv::analysis::KnownUnits;
using lv::analysis::ModeFigures;
using lv::analysis::MonitorFigures;
using Numbers = std::vector<unsigned int>;
namespace types = lv::types;

/// The same numbers on every platform.
class Source {
public:
    explicit Source(unsigned int seed) : engine_(seed) {}

    unsigned int below(unsigned int end) { return static_cast<unsigned int>(engine_() % end); }
    bool coin() { return below(2) == 0; }

    template <class Value>
    Value oneOf(const std::vector<Value>& values) {
        return values[below(static_cast<unsigned int>(values.size()))];
    }

    unsigned int number() {
        return coin() ? below(200000000)
                      : oneOf<unsigned int>({0, 1, 255, 256, 3290, 1000000, 2147483647, 2147483648, 4294967295});
    }

    Numbers numbers(const std::vector<unsigned int>& counts) {
        Numbers values(oneOf(counts));
        for (unsigned int& value : values) {
            value = number();
        }
        return values;
    }

    Numbers triple() { return numbers({3, 3, 3, 3, 3, 3, 0, 1, 2, 5}); }
    Numbers table() { return numbers({0, 1, 2, 7, 64}); }

    TargetSetting::standard_t standard() {
        return {types::targetStandard::standard, oneOf<std::string>({"D65", "PQ", "HLG", "DICOM", "2.2", "BT.1886",
                                                                     "nan", "inf", "-1", "sRGB", "LStar", "BT.2020"})};
    }

private:
    std::mt19937 engine_;
};

TargetSetting::gamma_t gammaOf(Source& source) {
    const auto curve = [&](const std::string& type) {
        return TargetSetting::gamma_t::gamma_color{type, source.number(), source.table(), source.table()};
    };
    const auto type =
        source.oneOf<std::string>({types::targetCurve::formula, types::targetCurve::lut, types::targetCurve::lut24,
                                   types::targetCurve::hlg, types::targetCurve::pq});
    TargetSetting::gamma_t gamma;
    gamma.red = curve(type);
    gamma.green = curve(type);
    gamma.blue = curve(type);
    gamma.hlgSystemGamma = source.coin() ? 120 : source.number();
    return gamma;
}

void fill(TargetSetting& target, Source& source) {
    const auto coordinate = [&] {
        return TargetSetting::gamut_t::coordinate{source.below(12000), source.below(12000)};
    };
    if (source.coin()) {
        target.whitePoint.set({types::targetWhitePoint::coordinate, 0, source.below(5000), source.below(5000)});
        target.gamut.set({coordinate(), coordinate(), coordinate(), "", 0});
    }
    target.brightness.set({types::targetLevel::value, source.number()});
    target.gammaV7.set(source.standard());
    target.gamutV7.set(source.standard());
    target.whitePointV7.set(source.standard());
    if (source.coin()) {
        target.gamma.set(gammaOf(source));
    }
}

ColorModeSettingsObject settingOf(Source& source) {
    ColorModeSettingsObject setting;
    setting.type.set(source.oneOf<std::string>({types::colorMode::calibration, types::colorMode::standard, "\xFF"}));
    setting.name.set("\xFF\x01</script>");
    setting.index.set(source.below(2));
    fill(setting.targetSetting.value, source);
    setting.parameterSetting.value.gamma.value.type = types::gamma::value;
    setting.parameterSetting.value.gamma.value.value = source.number();
    return setting;
}

/// A display, or any numbers; black may be brighter than white.
void fill(ProfileData& profile, Source& source) {
    const auto black = source.coin() ? Numbers{1000, 1000, 1000} : source.triple();
    if (source.coin()) {
        profile.measuredXYZ.set({{41246000, 21267000, 1933000},
                                 {35758000, 71515000, 11919000},
                                 {18044000, 7217000, 95030000},
                                 {95047000, 100000000, 108883000},
                                 black});
    } else {
        profile.measuredXYZ.set({source.triple(), source.triple(), source.triple(), source.triple(), black});
    }
    for (auto* const curve : {&profile.redTargetCurve, &profile.greenTargetCurve, &profile.blueTargetCurve}) {
        curve->value.type = types::profileCurve::lut;
        curve->value.lut = source.table();
        curve->hasValue = source.coin();
    }
}

void addRows(CalibrationModeResultObject& result, Source& source) {
    for (unsigned int count = source.below(12); count > 0; --count) {
        const unsigned int grey = source.oneOf<unsigned int>({0, 100, 255, 300});
        lv::MeasurementDataObject row;
        row.RGB = source.coin() ? Numbers{grey, grey, grey} : source.triple();
        for (const unsigned int value : source.triple()) {
            const int part = static_cast<int>(value % 2147483648);
            row.XYZ.push_back(value % 3 == 0 ? -part - 1 : part);  // from INT_MIN on
        }
        result.measurementData.objects.push_back(row);
    }
}

CalibrationModeResultObject resultOf(Source& source) {
    CalibrationModeResultObject result;
    result.index.set(source.below(2));
    result.hasProfileData = source.coin() || source.coin();
    fill(result.profileData, source);
    result.hasBasicData = source.coin();
    result.basicData.justCalibratedWhite.set(source.triple());
    result.hasMeasurementData = true;
    addRows(result, source);
    return result;
}

MonitorInfo monitorOf(Source& source) {
    MonitorInfo monitor;
    auto& settings = monitor.monitorConfiguration.value.colorModeSettings.value.objects;
    settings = {settingOf(source), settingOf(source)};
    monitor.calibrationModeResult.value.objects = {resultOf(source), resultOf(source), resultOf(source)};
    monitor.candelaMap.hasValue = true;
    monitor.candelaMap.value.uniformity = {source.table(), "", true};
    monitor.candelaMap.value.brightness = {source.triple(), "", source.coin()};
    return monitor;
}

KnownUnits unitsOf(Source& source) {
    KnownUnits known;
    known.yUnit = source.coin() ? "cd/m²" : "";
    known.mapUnit = source.coin() ? "\xFF" : "";
    known.gridWidth = source.below(5);
    return known;
}

bool isFigure(const Figure& figure) {
    return figure.value ? std::isfinite(*figure.value) && figure.reason.empty() : !figure.reason.empty();
}

void expectWhole(const ModeFigures& mode, const KnownUnits& known) {
    const std::vector<FigureLine> lines = figureLines(mode, known);
    for (const FigureLine& line : lines) {
        EXPECT_TRUE(isFigure(line.measured)) << line.key;
        EXPECT_TRUE(!line.target.value || isFigure(line.difference)) << line.key;
    }
    for (const lv::analysis::LimitSet& set : lv::analysis::knownLimitSets()) {
        for (const lv::analysis::JudgedLine& judged : judge(lines, set)) {
            EXPECT_EQ(judged.mark == lv::analysis::Mark::none, judged.limit == nullptr) << judged.line.key;
        }
    }
}

}  // namespace

TEST(HostileRecords, HaveFiguresAndJSON) {
    Source source(1);
    for (int count = 0; count < 300; ++count) {
        const KnownUnits known = unitsOf(source);
        const MonitorFigures figures = monitorFigures(monitorOf(source), known);
        for (const ModeFigures& mode : figures.modes) {
            expectWhole(mode, known);
        }
        EXPECT_TRUE(nlohmann::json::accept(figuresJSON(figures))) << count;
    }
}
