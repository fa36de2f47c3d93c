#include <lvdata/xml/XMLView.h>

#include <lvdata/core/ParsedDocument.h>
#include <lvdata/records/CandelaMap.h>
#include <lvdata/xml/XMLDocument.h>

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using lv::XMLAttributeView;
using lv::XMLView;
using Kind = lv::XMLView::Kind;

TEST(XMLView, VisitsEverythingInADocument) {
    lv::XMLDocument document;
    ASSERT_TRUE(
        document.parseXMLString("<?xml version='1.0'?>\n<!--c-->\n<A x='1'\n y='&lt;'>t&amp;<B/><![CDATA[<]]></A>"));
    const XMLView view(document);
    EXPECT_EQ(view.kind(), Kind::document);
    EXPECT_EQ(view.firstChild().kind(), Kind::other);
    const XMLView comment = view.firstChild().next();
    EXPECT_EQ(comment.kind(), Kind::comment);
    EXPECT_EQ(comment.value(), "c");
    EXPECT_EQ(comment.line(), 2);
    const XMLView element = comment.next();
    EXPECT_EQ(element.kind(), Kind::element);
    EXPECT_EQ(element.value(), "A");
    EXPECT_FALSE(element.next().isValid());
    const XMLView text = element.firstChild();
    EXPECT_EQ(text.kind(), Kind::text);
    EXPECT_EQ(text.value(), "t&");
    EXPECT_EQ(text.next().value(), "B");
    EXPECT_EQ(text.next().next().kind(), Kind::text);
    EXPECT_EQ(text.next().next().value(), "<");
}

TEST(XMLView, VisitsAttributes) {
    lv::XMLDocument document;
    ASSERT_TRUE(document.parseXMLString("<A x='1'\n y='&lt;'>t</A>"));
    const XMLView element = XMLView(document).firstChild();
    const XMLAttributeView x = element.firstAttribute();
    EXPECT_EQ(x.name(), "x");
    EXPECT_EQ(x.value(), "1");
    EXPECT_EQ(x.line(), 1);
    EXPECT_EQ(x.next().name(), "y");
    EXPECT_EQ(x.next().value(), "<");
    EXPECT_EQ(x.next().line(), 2);
    EXPECT_FALSE(x.next().next().isValid());
    EXPECT_FALSE(element.firstChild().firstAttribute().isValid());
}

TEST(XMLView, IsSafeWhenInvalid) {
    const XMLView nothing;
    EXPECT_FALSE(nothing.isValid());
    EXPECT_EQ(nothing.kind(), Kind::none);
    EXPECT_EQ(nothing.value(), "");
    EXPECT_EQ(nothing.line(), 0);
    EXPECT_FALSE(nothing.firstChild().isValid());
    EXPECT_FALSE(nothing.next().isValid());
    const XMLAttributeView none = nothing.firstAttribute();
    EXPECT_FALSE(none.isValid());
    EXPECT_EQ(none.name(), "");
    EXPECT_EQ(none.value(), "");
    EXPECT_EQ(none.line(), 0);
    EXPECT_FALSE(none.next().isValid());
}

TEST(XMLView, ShowsADocumentBeforeAndAfterItIsRead) {
    const std::string text = "<CandelaMap><Uniformity><Values>1|2|3</Values></Uniformity></CandelaMap>";
    const auto valuesOf = [&](bool isViewedBefore) {
        lv::ParsedDocument document(text);
        const auto viewed = [&] {
            return std::string(document.view().firstChild().firstChild().firstChild().firstChild().value());
        };
        if (isViewedBefore) {
            EXPECT_EQ(viewed(), "1|2|3");
        }
        lv::CandelaMap map;
        EXPECT_TRUE(document.read(map));
        EXPECT_EQ(viewed(), "1|2|3");
        return map.uniformity.values;
    };
    EXPECT_THAT(valuesOf(false), testing::ElementsAre(1U, 2U, 3U));
    EXPECT_THAT(valuesOf(true), testing::ElementsAre(1U, 2U, 3U));
}

TEST(XMLView, OfARefusedDocumentHasNoNodes) {
    lv::ParsedDocument document("<A>");
    EXPECT_FALSE(document.view().firstChild().isValid());
}
