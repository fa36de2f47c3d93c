#include <tests/bounds/studio.h>

namespace lv::test {
namespace {

TEST(CutOffDocument, IsRefusedWithoutHarmAtEveryLength) {
    expectPrefixesAreHarmless(1);
}

}  // namespace
}  // namespace lv::test
