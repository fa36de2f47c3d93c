#include <tests/properties/records.h>

namespace lv::test {
namespace {

using Row = ColorModeSettingsObject;

/// The type alone decides which records are written.
void loseInRow(Row& row, bool hlgSwitch) {
    const std::string& type = row.type.value;
    row.type.hasValue = true;
    row.parameterSetting.hasValue = type == "Standard" || type == "SyncSignal";
    row.targetSetting.hasValue = type == "Calibration";
    loseNested(row.parameterSetting, hlgSwitch);
    loseNested(row.targetSetting, hlgSwitch);
    loseWrittenAlways(row.profilePolicy, hlgSwitch);
}

Row readRow(const Found& element) {
    Row row;
    element.attribute("Type", row.type);
    element("Index", row.index);
    element("Name", row.name);
    element("Availability", row.availability);
    element.record(row.parameterSetting);
    element.child("Target").record(row.targetSetting);
    element.record(row.profilePolicy);
    return row;
}

}  // namespace

void members(Members& visit, Row& row) {
    visit(row.type, attribute({"Standard", "SyncSignal", "Calibration"}));
    visit.all(row.index, row.name, row.availability);
    visit.all(row.parameterSetting, row.targetSetting, row.profilePolicy);
}

void members(Members& visit, ColorModeSettings& record) {
    membersOfBase(visit, record);
    visit(record.parsed);
    visit.rows(record.objects);
}

void lose(ColorModeSettings& record, bool hlgSwitch) {
    for (Row& row : record.objects) {
        loseInRow(row, hlgSwitch);
    }
    record.parsed = true;
    loseInGeneral(record);
}

void read(const Found& element, ColorModeSettings& record) {
    record.objects.clear();
    record.parsed = true;
    for (const Found& row : element.children("ColorMode")) {
        record.objects.push_back(readRow(row));
    }
}

}  // namespace lv::test
