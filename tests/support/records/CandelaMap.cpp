#include <tests/support/samples.h>

namespace lv::test {

void describe(Description& out, const CandelaMapEntry& map) {
    out.member("values", map.values);
    out.member("updatedAt", map.updatedAt);
    out.member("valid", map.valid);
}

void describe(Description& out, const CandelaMap& record) {
    describeBase(out, record);
    out.member("uniformity", record.uniformity);
    out.member("brightness", record.brightness);
}

template <>
CandelaMap filled<CandelaMap>() {
    CandelaMap record;
    fillBase(record);
    record.uniformity = {{101, 102, 103, 104}, "2024-05-01", true};
    record.brightness = {{351, 352, 353}, "2024-06-02", true};
    return record;
}

}  // namespace lv::test
