#include "OutputTest.h"

#include <gmock/gmock.h>

OutputTest::OutputTest() {
    write("in.xml", untidy);
    write("broken.xml", "<AssetInfo>");
    write("large.xml", large());
}

Outcome OutputTest::formatTo(const std::string& output, const Surroundings& around) const {
    return run({"format", "--no-declaration", "in.xml", "-o", output}, around);
}

bool OutputTest::holdsBesides(std::vector<std::string> others) const {
    others.insert(others.end(), {"broken.xml", "in.xml", "large.xml"});
    return testing::Matches(testing::UnorderedElementsAreArray(others))(names());
}
