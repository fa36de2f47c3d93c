#include <tests/analysis/schemas/XMLSchema.h>
#include <tests/properties/AnyRecordTest.h>

#include <lvdata/analysis/Catalogue.h>
#include <lvdata/analysis/schemas/xsd.h>

// The XML Schema of a record accepts what it prints.

namespace lv::test {
namespace {

class SchemaOfAnyRecord : public AnyRecordTest {};

INSTANTIATE_TEST_SUITE_P(Every, SchemaOfAnyRecord, testing::ValuesIn(everyRecord()), nameOf);

/// Only an application can give the measured colours another number of entries, while it sets their flag. No record
/// reads that back, and the schema refuses it.
bool isOfOtherLength(const std::string& refusal) {
    return refusal.find("refused: Element 'MeasuredXYZ'") == 0;
}

TEST_P(SchemaOfAnyRecord, AcceptsWhatItPrints) {
    static const analysis::Catalogue catalogue;
    const XMLSchema schema(analysis::xsd(*catalogue.find(GetParam()->rootName())->shape));
    expectHolds([&schema] {
        const std::string text = compactTextOf(*anyRecord(Texts::xml));
        const std::string refusal = schema.refusalOf(text);
        requireEqual(isOfOtherLength(refusal) ? "" : refusal, "");
        requireEqual(schema.refusalOf(compactTextOf(*parsed(text))), "");
    });
}

}  // namespace
}  // namespace lv::test
