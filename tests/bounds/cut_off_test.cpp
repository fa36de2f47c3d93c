#include <tests/bounds/studio.h>

namespace lv::test {
namespace {

TEST(CutOffDocument, IsRefusedWithoutHarm) {
    expectPrefixesAreHarmless(studioDocument(), 97);  // prime, so that every place in an element has its turn
}

}  // namespace
}  // namespace lv::test
