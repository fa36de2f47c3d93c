#pragma once

#include <tests/support/Member.h>

#include <lvdata/records/CorrelationInfo.h>

namespace lv::test {

inline void members(MemberList& list, CorrelationInfo& record) {
    list.addBase(record);
    list.add("referenceSensorID", record.referenceSensorID);
    list.add("referenceSensorSerial", record.referenceSensorSerial);
    list.add("correlationDate", record.correlationDate);
}

}  // namespace lv::test
