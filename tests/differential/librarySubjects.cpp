#include <tests/differential/SubjectOf.h>

namespace differential {

Makers librarySubjects() {
    return lv::test::makersOf(lv::test::EveryRecord());
}

}  // namespace differential
