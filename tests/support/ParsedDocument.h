#pragma once

#include <lvdata/xml/XMLDocument.h>

#include <string>

#include <gtest/gtest.h>

namespace lv::test {

/// A document made from a literal; one that is not well-formed fails the test.
class ParsedDocument {
public:
    explicit ParsedDocument(const std::string& text) { EXPECT_TRUE(document_.parseXMLString(text)) << text; }

    /// The first element at document level.
    [[nodiscard]] XMLElement root() const { return document_.rootElement(); }

    /// What the document holds now: compact, without a declaration.
    [[nodiscard]] std::string text() const { return document_.toXMLString(false, false); }

private:
    XMLDocument document_;
};

}  // namespace lv::test
