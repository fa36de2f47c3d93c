#include <tests/properties/AnyRecordTest.h>

#include <libxml/parser.h>
#include <libxml/tree.h>

// What any record's text is like, and that printing leaves the record alone.

namespace lv::test {
namespace {

class PrintingOfAnyRecord : public AnyRecordTest {};

INSTANTIATE_TEST_SUITE_P(Every, PrintingOfAnyRecord, testing::ValuesIn(everyRecord()), nameOf);

TEST_P(PrintingOfAnyRecord, ChangesNoMember) {
    expectHolds([] {
        const SharedRecord record = anyRecord();
        const std::string before = record->description();
        for (const PrintForm& form : everyPrintForm) {
            static_cast<void>(record->text(form));
            requireEqual(record->description(), before);
        }
    });
}

TEST_P(PrintingOfAnyRecord, GivesTheSameTextAgain) {
    expectHolds([] {
        const SharedRecord record = anyRecord();
        for (const PrintForm& form : everyPrintForm) {
            const std::string text = record->text(form);
            requireEqual(record->text(form), text);
        }
    });
}

TEST_P(PrintingOfAnyRecord, FollowsTheRules) {
    expectHolds([] {
        const SharedRecord record = anyRecord();
        for (const PrintForm& form : everyPrintForm) {
            requireEqual(record->text(form), record->textByTheRules(form));
        }
    });
}

/// The name of the root that another XML parser finds; empty when it refuses the text.
std::string rootNameByAnotherParser(const std::string& text) {
    const std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> document(
        xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr,
                      XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING),
        &xmlFreeDoc);
    const xmlNode* const root = document != nullptr ? xmlDocGetRootElement(document.get()) : nullptr;
    return root != nullptr ? reinterpret_cast<const char*>(root->name) : "";
}

TEST_P(PrintingOfAnyRecord, IsWellFormedForAnotherParser) {
    expectHolds([] {
        const SharedRecord record = anyRecord(Texts::xml);
        for (const PrintForm& form : everyPrintForm) {
            const std::string text = record->text(form);
            requireEqual(rootNameByAnotherParser(text), record->rootName());
        }
    });
}

}  // namespace
}  // namespace lv::test
