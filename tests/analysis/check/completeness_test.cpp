#include <lvdata/analysis/check/check.h>

#include <tests/analysis/catalogue.h>
#include <tests/differential/Damage.h>
#include <tests/support/golden.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <tinyxml2.h>

// No finding means that nothing is lost: what `check` says is compared with what becomes of a document, by a comparison
// of the two texts that knows nothing of records but the one key attribute.

using lv::analysis::check;
using lv::analysis::CheckOptions;
using lv::analysis::Document;
using lv::analysis::Findings;
using lv::test::catalogue;

namespace {

std::string shapeless(const tinyxml2::XMLNode& node);

std::string attributesOf(const tinyxml2::XMLElement& element) {
    std::vector<std::string> attributes;
    for (const auto* attribute = element.FirstAttribute(); attribute != nullptr; attribute = attribute->Next()) {
        attributes.push_back(' ' + std::string(attribute->Name()) + "='" + attribute->Value() + '\'');
    }
    std::sort(attributes.begin(), attributes.end());
    std::string all;
    for (const std::string& each : attributes) {
        all += each;
    }
    return all;
}

/// What the children are sorted by: the name, and the key of those that are told apart by one.
std::string keyOf(const tinyxml2::XMLNode& child) {
    const tinyxml2::XMLElement* const element = child.ToElement();
    if (element == nullptr) {
        return "";
    }
    const bool isKeyed = std::string(element->Name()) == "MeasuredXYZ";
    const char* const key = isKeyed ? element->Attribute("Color") : nullptr;
    return element->Name() + std::string(" ") + (key == nullptr ? "" : key);
}

std::string childrenOf(const tinyxml2::XMLNode& parent) {
    std::vector<std::pair<std::string, std::string>> children;
    for (const auto* child = parent.FirstChild(); child != nullptr; child = child->NextSibling()) {
        children.emplace_back(keyOf(*child), shapeless(*child));
    }
    std::stable_sort(children.begin(), children.end(),
                     [](const auto& left, const auto& right) { return left.first < right.first; });
    std::string all;
    for (const auto& child : children) {
        all += child.second;
    }
    return all;
}

/// The document without what does not count: the order of attributes and of elements of different names, the spelling
/// of characters, the declaration.
std::string shapeless(const tinyxml2::XMLNode& node) {
    if (const tinyxml2::XMLElement* const element = node.ToElement()) {
        return '<' + std::string(element->Name()) + attributesOf(*element) + '>' + childrenOf(node) + "</>";
    }
    if (node.ToText() != nullptr) {
        return *node.Value() == '\0' ? "" : "[" + std::string(node.Value()) + "]";
    }
    const bool isDeclaration = node.ToDeclaration() != nullptr && std::string(node.Value()).substr(0, 4) == "xml ";
    return isDeclaration ? "" : "{" + std::string(node.Value()) + "}";
}

std::string shapelessText(const std::string& text) {
    tinyxml2::XMLDocument document;
    document.Parse(text.c_str(), text.size());
    return childrenOf(document);
}

/// Remarks about what is kept as it is.
CheckOptions lossesAlone() {
    CheckOptions options = lv::analysis::lossOptions();
    options.ignored.insert({"312", "313"});
    return options;
}

std::string listed(const Findings& findings) {
    std::string text;
    for (const auto& finding : findings.listed) {
        text += std::string(finding.rule->id) + " line " + std::to_string(finding.line) + ": " + finding.message + '\n';
    }
    return text;
}

/// Whether the document was read; if so, both judgements must agree.
bool expectAgreement(const std::string& text) {
    const Document document(text, catalogue());
    if (document.refusal() != nullptr) {
        EXPECT_GE(check(text, catalogue()).errors, 1U);
        return false;
    }
    const Findings findings = check(text, catalogue(), lossesAlone());
    if (document.verdict().fault) {  // which the parser of this comparison may not see
        EXPECT_GT(findings.count(), 0U) << text;
        return true;
    }
    const std::string source = shapelessText(text);
    const std::string saved = shapelessText(document.record().toXMLString(false, false));
    EXPECT_EQ(findings.count() == 0, source == saved)
        << text << "\nread as   " << source << "\nwritten as " << saved << "\nfindings:\n"
        << listed(findings);
    return true;
}

std::vector<std::string> goldenDocuments() {
    std::vector<std::string> texts;
    for (const auto& folder : lv::test::goldenFilesOf("")) {
        for (const std::string& text : lv::test::goldenTextsOf(folder.filename().string())) {
            texts.push_back(text);
        }
    }
    return texts;
}

int casesAsked() {
    const char* const asked = std::getenv("LVDATA_DAMAGED_DOCUMENTS");
    return asked == nullptr ? 9000 : std::atoi(asked);
}

}  // namespace

TEST(Completeness, HasAFindingForEachLossInGoldenDocuments) {
    for (const std::string& text : goldenDocuments()) {
        expectAgreement(text);
    }
}

TEST(Completeness, HasAFindingForEachLossInPrintedRecords) {
    for (const std::string& text : goldenDocuments()) {
        const Document document(text, catalogue());
        if (document.refusal() == nullptr) {
            const std::string printed = document.record().toXMLString(true, true);
            EXPECT_TRUE(expectAgreement(printed));
        }
    }
}

TEST(Completeness, HasAFindingForEachLossInDamagedDocuments) {
    const std::vector<std::string> documents = goldenDocuments();
    differential::Damage damage(20261122);
    int read = 0;
    int kept = 0;
    const int cases = casesAsked();
    for (int number = 0; number < cases && !HasFailure(); ++number) {
        const std::string& whole = documents[static_cast<std::size_t>(number) % documents.size()];
        const std::string text = damage.damaged(whole);
        read += expectAgreement(text) ? 1 : 0;
        kept += check(text, catalogue(), lossesAlone()).count() == 0 ? 1 : 0;
    }
    EXPECT_GT(read, cases / 4) << "damage that leaves nothing to compare";
    EXPECT_GT(kept, cases / 100) << "damage that always loses something";
}
