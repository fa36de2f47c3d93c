#include <tests/properties/Members.h>

namespace lv::test {

void membersOfBase(Members& visit, DataObject& record) {
    visit.all(record.version, record.minorVersion, record.writeHLGSystemGamma);
}

}  // namespace lv::test
