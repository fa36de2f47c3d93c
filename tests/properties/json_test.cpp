#include <tests/properties/AnyRecordTest.h>

#include <lvdata/analysis/Document.h>
#include <lvdata/analysis/json/JSON.h>

// The way of any record's document to JSON and back.

namespace lv::test {
namespace {

using analysis::Document;
using analysis::FromJSON;
using analysis::JSONResult;

class JSONOfAnyRecord : public AnyRecordTest {
protected:
    /// What every record's documents can contain, made once.
    static const analysis::Catalogue& catalogue() {
        static const analysis::Catalogue all;
        return all;
    }

    /// Nothing when JSON cannot carry it.
    static std::string jsonOf(const Document& document) {
        const JSONResult json = analysis::toJSON(document.record(), catalogue(), {true});
        requireEqual(json ? "" : json.error->reason, json ? "" : "JSON cannot carry bytes that are not UTF-8");
        return json.text;
    }

    static void requireSame(const FromJSON& back, const Document& document) {
        const std::string text = document.record().toXMLString(false, false);
        requireEqual(back.record->toXMLString(false, false), text);
        requireEqual(analysis::toJSON(*back.record, catalogue(), {true}).text, jsonOf(document));
    }
};

INSTANTIATE_TEST_SUITE_P(Every, JSONOfAnyRecord, testing::ValuesIn(everyRecord()), nameOf);

TEST_P(JSONOfAnyRecord, GivesTheSameRecordBack) {
    expectHolds([] {
        const Document document(compactTextOf(*anyRecord(Texts::xml)), catalogue());
        const FromJSON back = analysis::fromJSON(jsonOf(document), catalogue());
        RC_ASSERT(static_cast<bool>(back));
        requireSame(back, document);
    });
}

TEST_P(JSONOfAnyRecord, IsRefusedWhenXMLCannotCarryItsTexts) {
    expectHolds([] {
        const Document document(compactTextOf(*anyRecord(Texts::any)), catalogue());
        RC_PRE(document.refusal() == nullptr);
        const std::string json = jsonOf(document);
        const FromJSON back = analysis::fromJSON(json, catalogue());
        if (back) {
            requireSame(back, document);
        } else if (!json.empty()) {
            requireEqual(back.error->reason.substr(0, 16), "XML cannot carry");
        }
    });
}

}  // namespace
}  // namespace lv::test
