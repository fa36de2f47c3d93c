#include <tests/properties/records.h>

namespace lv::test {

void members(Members& visit, CorrelationInfo& record) {
    membersOfBase(visit, record);
    visit.all(record.referenceSensorID, record.referenceSensorSerial, record.correlationDate);
}

void lose(CorrelationInfo& record, bool /*hlgSwitch*/) {
    loseInGeneral(record);
}

void read(const Found& element, CorrelationInfo& record) {
    element("ReferenceSensorID", record.referenceSensorID);
    element("ReferenceSensorSerial", record.referenceSensorSerial);
    element("CorrelationDate", record.correlationDate);
}

}  // namespace lv::test
