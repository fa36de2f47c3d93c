#include <tests/properties/records.h>

namespace lv::test {
namespace {

void loseInMap(CandelaMapEntry& map) {
    keepWhen(map.valid, map);
    map.valid = !map.values.empty();
}

void readMap(const Found& element, CandelaMapEntry& map) {
    element("Values", map.values);
    element("UpdatedAt", map.updatedAt);
    map.valid = !map.values.empty();
}

}  // namespace

void members(Members& visit, CandelaMapEntry& map) {
    visit.all(map.values, map.updatedAt, map.valid);
}

void members(Members& visit, CandelaMap& record) {
    membersOfBase(visit, record);
    visit.all(record.uniformity, record.brightness);
}

void lose(CandelaMap& record, bool /*hlgSwitch*/) {
    loseInMap(record.uniformity);
    loseInMap(record.brightness);
    loseInGeneral(record);
}

void read(const Found& element, CandelaMap& record) {
    readMap(element.child("Uniformity"), record.uniformity);
    readMap(element.child("Brightness"), record.brightness);
}

}  // namespace lv::test
