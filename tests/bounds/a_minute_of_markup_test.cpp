#include <tests/bounds/costly_markup.h>

namespace lv::test {
namespace {

TEST(CostlyMarkup, OfAHundredThousandAttributesComesToAnEnd) {
    expectAttributesArePassedOver(100'000);
}

TEST(CostlyMarkup, OfAMegabyteOfBrokenReferencesComesToAnEnd) {
    expectBrokenReferencesLoseOneAmpersand(500'000);
}

}  // namespace
}  // namespace lv::test
