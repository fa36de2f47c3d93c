#include <tests/bounds/studio.h>

namespace lv::test {
namespace {

TEST(CutOffDocument, IsRefusedWithoutHarmAtEveryLength) {
    expectPrefixesAreHarmless(studioDocument(), LVDATA_SANITIZED ? 11 : 1);  // sanitizers take their time
}

}  // namespace
}  // namespace lv::test
