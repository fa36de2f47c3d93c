#include <tests/support/samples.h>

namespace lv::test {

void describeBase(Description& out, const DataObject& record) {
    out.member("version", record.version);
    out.member("minorVersion", record.minorVersion);
    out.member("writeHLGSystemGamma", record.writeHLGSystemGamma);
}

void fillBase(DataObject& record) {
    record.version.set(41);
    record.minorVersion.set(43);
    record.writeHLGSystemGamma = true;
}

}  // namespace lv::test
