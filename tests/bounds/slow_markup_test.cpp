#include <tests/bounds/slow_markup.h>

namespace lv::test {
namespace {

TEST(SlowMarkup, WithAHundredThousandAttributesIsReadInTheEnd) {
    expectAttributesAreIgnored(100'000);
}

TEST(SlowMarkup, WithAMegabyteOfBrokenReferencesIsReadInTheEnd) {
    expectBrokenReferencesLoseOneAmpersand(500'000);
}

}  // namespace
}  // namespace lv::test
