#include "report_pages.h"

#include <tests/analysis/catalogue.h>

#include <lvdata/analysis/check/check.h>
#include <lvdata/analysis/json/JSON.h>

#include <limits>

namespace lv::test {
namespace {

using analysis::ReportedDocument;

/// Gives each element of that name another text.
void replaceTexts(std::string& document, const std::string& element, const std::string& text) {
    const std::string start = "<" + element + ">";
    std::size_t position = document.find(start);
    while (position != std::string::npos) {
        position += start.size();
        document.replace(position, document.find('<', position) - position, text);
        position = document.find(start, position + text.size());
    }
}

std::string referencesOf(const std::string& text) {
    std::string out;
    for (const char character : text) {
        out += character == '<' ? "&lt;" : character == '&' ? "&amp;" : std::string(1, character);
    }
    return out;
}

MonitorInfo parsed(const std::string& text) {
    MonitorInfo monitor;
    EXPECT_TRUE(monitor.parseXMLString(text));
    monitor.writeHLGSystemGamma = true;
    return monitor;
}

CalibrationModeResultObject& firstResult(MonitorInfo& monitor) {
    return monitor.calibrationModeResult.value.objects.at(0);
}

ReportedDocument ofYear(unsigned int year) {
    MonitorInfo monitor = studioMonitor();
    for (CalibrationModeResultObject& mode : monitor.calibrationModeResult.value.objects) {
        mode.calibratedTime.value.replace(0, 4, std::to_string(year));
        std::vector<unsigned int>& white = mode.basicData.justCalibratedWhite.value;
        if (!white.empty()) {
            white[0] += (year - 2022) * 1200000;
        }
    }
    return reportedDocument(monitor, "studio-" + std::to_string(year) + ".xml");
}

analysis::FleetEntry entryOf(const std::string& page, const std::vector<ReportedDocument>& documents) {
    analysis::FleetEntry entry = analysis::fleetEntry(documents, defaultForm());
    entry.page = page;
    return entry;
}

std::string fleetOfFour() {
    const ReportedDocument bare = reportedDocument(MonitorInfo(), "bare.xml");
    const ReportedDocument evil = reportedDocument(monitorNamed("</td><script>alert(1)</script>"), "evil.xml");
    const ReportedDocument studio = reportedDocument(studioMonitor(), "studio.xml");
    return analysis::fleetPage({entryOf("studio.html", {studio}), entryOf("three-years.html", threeYears()),
                                entryOf("evil.html", {evil}), entryOf("bare.html", {bare})},
                               defaultForm());
}

}  // namespace

ReportedDocument reportedDocument(const std::string& text, const std::string& name) {
    ReportedDocument reported;
    const analysis::Document document(text, catalogue());
    EXPECT_EQ(document.refusal(), nullptr);
    reported.snapshot.document = name;
    reported.snapshot.figures = analysis::monitorFigures(analysis::monitorOf(document.record()).value());
    reported.snapshot.when = latestTimeOf(reported.snapshot.figures);
    reported.findings = analysis::checkDocument(document);
    reported.json = analysis::toJSON(document.record(), catalogue(), {true, false}).text;
    return reported;
}

ReportedDocument reportedDocument(const MonitorInfo& monitor, const std::string& name) {
    return reportedDocument(monitor.toXMLString(true, true), name);
}

analysis::ReportForm defaultForm() {
    analysis::ReportForm form;
    form.limits = &analysis::knownLimitSets().front();
    return form;
}

std::string pageOf(const ReportedDocument& document) {
    return analysis::reportPage({document}, defaultForm());
}

std::string pageOf(const MonitorInfo& monitor) {
    return pageOf(reportedDocument(monitor, "monitor.xml"));
}

MeasurementData patchSeries(std::size_t patches) {
    MeasurementData series;
    for (std::size_t number = 0; number < patches; ++number) {
        const auto level = static_cast<unsigned int>(number % 256);
        const int light = static_cast<int>(level * level) * 1500 + 50000;
        MeasurementDataObject patch;
        patch.RGB = {level, number % 3 == 0 ? level : 255 - level, level};
        patch.XYZ = {light, light + 4000, light + 9000};
        series.objects.push_back(patch);
    }
    return series;
}

MonitorInfo monitorNamed(const std::string& name) {
    std::string document = studioText();
    for (const char* const element :
         {"UUID", "Name", "Model", "Serial", "Asset1", "Asset2", "CalibratedTime", "ColorSensorName",
          "ColorSensorSerial", "ReferenceColorSensorName", "Software", "executedDate", "UpdatedAt", "Standard"}) {
        replaceTexts(document, element, referencesOf(name));
    }
    return parsed(document);
}

MonitorInfo monitorWithPatches(std::size_t patches) {
    MonitorInfo monitor = studioMonitor();
    firstResult(monitor).measurementData = patchSeries(patches);
    return monitor;
}

MonitorInfo monitorWithExtremes() {
    constexpr int greatest = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    constexpr unsigned int most = std::numeric_limits<unsigned int>::max();
    MonitorInfo monitor = studioMonitor();
    CalibrationModeResultObject& mode = firstResult(monitor);
    mode.measurementData.objects = {};
    for (const std::vector<int>& XYZ :
         {std::vector<int>{greatest, greatest, greatest}, {least, least, least}, {0, 0, 0}, {greatest, least, 0}}) {
        MeasurementDataObject patch;
        patch.RGB = {most, 0, most};
        patch.XYZ = XYZ;
        mode.measurementData.objects.push_back(patch);
    }
    mode.basicData.justCalibratedWhite.set({most, 1, 0});
    mode.profileData.measuredXYZ.set({{most, most, most}, {0, 0, 0}, {1, 0, 0}, {most, 0, most}, {0, 0, 0}});
    monitor.candelaMap.value.uniformity.values = {0, most, 0, most};
    return monitor;
}

std::vector<ReportedDocument> threeYears() {
    return {ofYear(2022), ofYear(2023), ofYear(2024)};
}

std::vector<NamedPage> everyPage() {
    return {
        {"studio.html", pageOf(reportedDocument(studioText(), "studio.xml"))},
        {"bare.html", pageOf(MonitorInfo())},
        {"one-patch.html", pageOf(monitorWithPatches(1))},
        {"1024-patches.html", pageOf(monitorWithPatches(1024))},
        {"extremes.html", pageOf(monitorWithExtremes())},
        {"evil.html",
         pageOf(monitorNamed("\"'></title></script><script>alert(1)</script><!--<img src=x onerror=alert(2)>"))},
        {"long.html", pageOf(monitorNamed(std::string(10000, 'W')))},
        {"three-years.html", analysis::reportPage(threeYears(), defaultForm())},
        {"fleet.html", fleetOfFour()},
    };
}

}  // namespace lv::test
