#include <lvdata/analysis/Document.h>

#include <lvdata/records/MonitorInfo.h>

#include <tests/analysis/catalogue.h>
#include <tests/analysis/studio_text.h>

#include <gtest/gtest.h>

using lv::analysis::Document;
using lv::analysis::Refusal;
using lv::test::catalogue;

TEST(Document, HoldsTheRecordAndWhatTheTextHolds) {
    const Document document("<AssetInfo><Asset1>Room 4</Asset1><Owner/></AssetInfo>", catalogue());
    ASSERT_EQ(document.refusal(), nullptr);
    EXPECT_STREQ(document.entry().recordClass->name, "AssetInfo");
    EXPECT_EQ(document.source().root()->firstChild->next->name, "Owner");
    EXPECT_EQ(document.printed().root()->firstChild->next->next->name, "Asset1");
    EXPECT_FALSE(document.record().writeHLGSystemGamma);
}

TEST(Document, SaysWhyThereIsNoRecord) {
    const auto refusalOf = [](const std::string& text) {
        return *Document(text, catalogue()).refusal();
    };
    EXPECT_EQ(refusalOf("<A>\n</B>").kind, Refusal::Kind::notXML);
    EXPECT_EQ(refusalOf("").kind, Refusal::Kind::notXML);
    EXPECT_EQ(refusalOf("\n<Asset/>").kind, Refusal::Kind::unknownRoot);
    EXPECT_EQ(refusalOf("\n<Asset/>").line, 2);
    EXPECT_EQ(refusalOf("\n<Asset/>").reason, "Asset");
    const std::string nul = std::string("<AssetInfo>\n") + '\0' + "</AssetInfo>";
    EXPECT_EQ(refusalOf(nul).kind, Refusal::Kind::nulCharacter);
    EXPECT_EQ(refusalOf(nul).line, 2);
}

TEST(Document, KeepsTheHLGSystemGammaOfADocumentThatHasIt) {
    const std::string text = lv::test::studioText();
    const Document document(text, catalogue());
    ASSERT_EQ(document.refusal(), nullptr);
    EXPECT_TRUE(document.record().writeHLGSystemGamma);
    EXPECT_EQ(document.record().toXMLString(true, true), text);
}

TEST(Document, KnowsWhichHLGSystemGammaTheSwitchGoverns) {
    const auto switchOf = [](const std::string& text) {
        return Document(text, catalogue()).record().writeHLGSystemGamma;
    };
    EXPECT_TRUE(switchOf("<ParameterSetting><Gamma><HLGSystemGamma/></Gamma></ParameterSetting>"));
    EXPECT_FALSE(switchOf("<ParameterSetting><HLGSystemGamma/></ParameterSetting>"));
    EXPECT_FALSE(switchOf("<MonitorParameter><HLGSystemGamma>120</HLGSystemGamma></MonitorParameter>"));
}
