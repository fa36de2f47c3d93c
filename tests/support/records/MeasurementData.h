#pragma once

#include <tests/support/Member.h>

#include <lvdata/records/MeasurementData.h>

namespace lv::test {

inline void members(MemberList& list, MeasurementDataObject& row) {
    list.add("RGB", row.RGB);
    list.add("CMYK", row.CMYK);
    list.add("XYZ", row.XYZ);
    list.add("CIELAB", row.CIELAB);
    list.add("PQR", row.PQR);
}

inline void members(MemberList& list, MeasurementData& record) {
    list.addBase(record);
    list.addRows(record);
}

}  // namespace lv::test
