#include <tests/differential/SubjectOf.h>

namespace differential {

Makers plainSubjects() {
    return lv::test::makersOf(lv::test::EveryRecord());
}

}  // namespace differential
