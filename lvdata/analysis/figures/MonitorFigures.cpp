#include <lvdata/analysis/figures/MonitorFigures.h>

namespace lv::analysis {

MonitorFigures monitorFigures(const MonitorInfo& monitor, const KnownUnits& known) {
    MonitorFigures figures;
    figures.modes = modeFigures(monitor.monitorConfiguration.value.colorModeSettings.value,
                                monitor.calibrationModeResult.value, known);
    return figures;
}

MapFigures mapFigures(std::string_view name, const CandelaMapEntry&, const KnownUnits&) {
    MapFigures figures;
    figures.name = name;
    return figures;
}

std::optional<MonitorInfo> monitorOf(const DataObject& record) {
    const auto* const whole = dynamic_cast<const MonitorInfo*>(&record);
    return whole != nullptr ? std::optional(*whole) : std::nullopt;
}

}  // namespace lv::analysis
