#include <tests/bounds/studio.h>
#include <tests/support/round_trip.h>

namespace lv::test {
namespace {

TEST(CutOffDocument, IsRefusedWithoutHarmAtEveryLength) {
    // Indentation would only take time, and so do sanitizers.
    expectPrefixesAreHarmless(compact(parsed<MonitorInfo>(studioDocument())), LVDATA_SANITIZED ? 11 : 1);
}

}  // namespace
}  // namespace lv::test
