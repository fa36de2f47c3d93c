#include <tests/support/samples.h>

namespace lv::test {

void describe(Description& out, const CorrelationInfo& record) {
    describeBase(out, record);
    out.member("referenceSensorID", record.referenceSensorID);
    out.member("referenceSensorSerial", record.referenceSensorSerial);
    out.member("correlationDate", record.correlationDate);
}

template <>
CorrelationInfo filled<CorrelationInfo>() {
    CorrelationInfo record;
    fillBase(record);
    record.referenceSensorID.set("0012");
    record.referenceSensorSerial.set("SN-5521");
    record.correlationDate.set("2024-03-17");
    return record;
}

}  // namespace lv::test
