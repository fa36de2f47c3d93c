#include <tests/analysis/any_record.h>
#include <tests/support/repeated.h>

#include <lvdata/analysis/json/JSON.h>

#include <string>

// A JSON text may hold so many bytes, elements and nodes, and not one more.

namespace lv::test {
namespace {

using What = Excess::What;

std::string errorOf(const std::string& json, const Limits& limits) {
    const analysis::FromJSON result = analysis::fromJSON(json, catalogue(), limits);
    return result ? "accepted" : result.error->toString();
}

Limits mostElements(std::size_t count) {
    Limits limits;
    limits.elements = count;
    return limits;
}

Limits mostNodes(std::size_t count) {
    Limits limits;
    limits.nodes = count;
    return limits;
}

/// So many rows without content.
std::string rows(std::size_t count) {
    return "{\"measurement_data\": {\"measurements\": [{}" + repeated(",\n{}", count - 1) + "]}}";
}

}  // namespace

TEST(JSONLimits, HoldForBytes) {
    const std::string json = "{\"asset_info\": {}}";
    Limits limits;
    limits.bytes = json.size();
    EXPECT_EQ(errorOf(json, limits), "accepted");
    EXPECT_EQ(errorOf(json + ' ', limits), "more than 18 bytes");
    EXPECT_EQ(analysis::fromJSON(json + ' ', catalogue(), limits).error->exceeded, What::bytes);
}

TEST(JSONLimits, HoldForRows) {
    EXPECT_EQ(errorOf(rows(3), mostElements(4)), "accepted");
    EXPECT_EQ(errorOf(rows(4), mostElements(4)), "line 4: more than 4 elements");
    EXPECT_EQ(analysis::fromJSON(rows(4), catalogue(), mostElements(4)).error->exceeded, What::elements);
}

TEST(JSONLimits, HoldForPlainValuesAndKeyedElements) {
    const std::string asset = "{\"asset_info\": {\"version\": 1, \"asset1\": \"\",\n\"asset2\": \"\"}}";
    EXPECT_EQ(errorOf(asset, mostElements(3)), "accepted");
    EXPECT_EQ(errorOf(asset, mostElements(2)), "line 2: more than 2 elements");
    const std::string keyed = "{\"profile_data\": {\"measured_xyz\": {\"red\": [1, 2, 3],\n\"green\": [1, 2, 3]}}}";
    EXPECT_EQ(errorOf(keyed, mostElements(3)), "accepted");
    EXPECT_EQ(errorOf(keyed, mostElements(2)), "line 2: more than 2 elements");
}

TEST(JSONLimits, CountElementsAttributesAndTextsAsNodes) {
    const std::string asset = "{\"asset_info\": {\"version\": 1,\n\"asset1\": \"one\"\n}}";
    EXPECT_EQ(errorOf(asset, mostNodes(4)), "accepted");
    EXPECT_EQ(errorOf(asset, mostNodes(3)), "line 2: more than 3 nodes");
    EXPECT_EQ(errorOf(asset, mostNodes(1)), "line 1: more than 1 node");
    EXPECT_EQ(analysis::fromJSON(asset, catalogue(), mostNodes(3)).error->exceeded, What::nodes);
}

TEST(JSONLimits, CountTheNumbersOfAnArrayAsOneText) {
    const std::string measurement = "{\"measurement_data\": {\"measurements\": [{\"rgb\": [1, 2, 3]}]}}";
    EXPECT_EQ(errorOf(measurement, mostNodes(4)), "accepted");
    EXPECT_EQ(errorOf(measurement, mostNodes(3)), "line 1: more than 3 nodes");
}

TEST(JSONLimits, AreThoseOfDocumentsUnlessGiven) {
    EXPECT_EQ(errorOf(rows(249'999), {}), "accepted");
    EXPECT_EQ(analysis::fromJSON(rows(250'000), catalogue()).error->toString(),
              "line 250000: more than 250000 elements");
}

}  // namespace lv::test
