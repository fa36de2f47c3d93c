#include <lvdata/records/CorrelationInfo.h>
#include <lvdata/records/MonitorParameter.h>
#include <tests/support/without_rtti.h>

#include <vector>

#include <gtest/gtest.h>

namespace lv::test {
namespace {

TEST(WithoutRtti, DocumentsAndWrappersOfAnApplicationAreTaken) {
    CorrelationInfo info;
    info.referenceSensorID.set("S");
    EXPECT_EQ(printedWithoutRtti(info), info.toXMLString(false, false));
    MonitorParameter parameter;
    ASSERT_TRUE(parsedWithoutRtti(parameter, "<MonitorParameter><RedLUT>1|2|3</RedLUT></MonitorParameter>"));
    EXPECT_EQ(parameter.redLUT.value, (std::vector<unsigned int>{1, 2, 3}));
}

TEST(WithoutRtti, RecordsOfAnApplicationArePrinted) {
    EXPECT_EQ(ownListPrintedWithoutRtti(), "<List Version=\"1\" MinorVersion=\"2\"/>");
}

}  // namespace
}  // namespace lv::test
