#include "schema_documents.h"

#include <tests/support/golden.h>

#include <lvdata/analysis/schemas/json_schema.h>
#include <lvdata/analysis/schemas/xsd.h>

#include <cstdlib>
#include <fstream>
#include <set>

// The files of schemas/ are what the library makes. With LVDATA_WRITE_SCHEMAS=1 in the environment the tests write them
// instead.

namespace lv::test {
namespace {

const fs::path folder = LVDATA_SCHEMAS_DIR;

bool mayWrite() {
    static const bool isAsked = std::getenv("LVDATA_WRITE_SCHEMAS") != nullptr;
    return isAsked;
}

void expectContent(const std::string& name, const std::string& text) {
    if (mayWrite()) {
        std::ofstream(folder / name, std::ios::binary) << text;
    }
    EXPECT_TRUE(contentOf(folder / name) == text)
        << name << " is not what the library makes. To write it anew, run this program with LVDATA_WRITE_SCHEMAS=1 and "
        << "--gtest_filter='SchemaFiles.*', then look at what changed.";
}

TEST(SchemaFiles, AreWhatTheLibraryMakes) {
    for (const analysis::Catalogue::Entry& entry : catalogue().entries()) {
        expectContent(entry.facts->name + ".xsd", analysis::xsd(*entry.shape));
        expectContent(entry.facts->name + ".schema.json", analysis::jsonSchema(*entry.shape));
    }
}

TEST(SchemaFiles, AreTwoForEachRecord) {
    std::set<std::string> expected;
    for (const analysis::Catalogue::Entry& entry : catalogue().entries()) {
        expected.insert({entry.facts->name + ".xsd", entry.facts->name + ".schema.json"});
    }
    std::set<std::string> found;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        found.insert(entry.path().filename().string());
    }
    EXPECT_EQ(found, expected);
}

}  // namespace
}  // namespace lv::test
