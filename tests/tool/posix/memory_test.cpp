#include "PosixTest.h"

#include <lvdata/xml/Limits.h>
#include <tests/support/repeated.h>

// What the tool does with little memory. Sanitizers need more.

namespace {

using lv::test::repeated;

class LittleMemory : public PosixTest {
protected:
    void SetUp() override {
        if (LVDATA_SANITIZED) {
            GTEST_SKIP() << "no room for sanitizers";
        }
    }
};

TEST_F(LittleMemory, IsReported) {
    write("in.xml", "<AssetInfo><Asset1>" + std::string(8'000'000, 'x') + "</Asset1></AssetInfo>");
    EXPECT_EQ(run({"format", "in.xml"}, {"", "", limitMemory(30'000'000)}), failed("lvdata: error: out of memory"));
}

/// A document at the limits of bytes and of elements, with what takes most memory: rows that print many elements, and
/// an attribute of quotation marks, each of which is printed as six bytes.
std::string mostCostlyDocument() {
    const lv::Limits limits;
    const std::string rows = repeated("<ColorMode Type='SyncSignal'/>", limits.elements - 2);
    const std::string document = "<ColorModeSettings>" + rows + "<ColorMode Type=''/></ColorModeSettings>";
    const std::size_t place = document.size() - std::string("'/></ColorModeSettings>").size();
    return std::string(document).insert(place, limits.bytes - document.size(), '"');
}

TEST_F(LittleMemory, IsEnoughWithinTheLimits) {
    write("in.xml", mostCostlyDocument());
    const Surroundings narrow{"", "", limitMemory(1'750'000'000)};  // so that the promise has some room
    EXPECT_EQ(run({"format", "in.xml", "--hlg-system-gamma", "-o", "out.xml"}, narrow), done());
    EXPECT_EQ(run({"format", "in.xml", "--hlg-system-gamma", "--compact", "-o", "out.xml"}, narrow), done());
}

}  // namespace
