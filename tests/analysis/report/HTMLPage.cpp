#include "HTMLPage.h"

#include <tests/support/lines.h>

#include <gtest/gtest.h>

#include <libxml/xpath.h>

namespace lv::test {
namespace {

std::string contentOf(xmlNode* node) {
    const std::unique_ptr<xmlChar, decltype(xmlFree)> content(xmlNodeGetContent(node), xmlFree);
    return content == nullptr ? "" : trimmed(reinterpret_cast<const char*>(content.get()));
}

}  // namespace

HTMLPage::HTMLPage(const std::string& text)
    : document_(htmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, "UTF-8",
                               HTML_PARSE_NOERROR | HTML_PARSE_NOWARNING | XML_PARSE_HUGE),
                &xmlFreeDoc) {
    EXPECT_NE(document_, nullptr);
}

std::vector<std::string> HTMLPage::texts(const std::string& xpath) const {
    const std::unique_ptr<xmlXPathContext, decltype(&xmlXPathFreeContext)> context(xmlXPathNewContext(document_.get()),
                                                                                   &xmlXPathFreeContext);
    const auto* const expression = reinterpret_cast<const xmlChar*>(xpath.c_str());
    const std::unique_ptr<xmlXPathObject, decltype(&xmlXPathFreeObject)> found(
        xmlXPathEvalExpression(expression, context.get()), &xmlXPathFreeObject);
    std::vector<std::string> texts;
    const int count = found == nullptr || found->nodesetval == nullptr ? 0 : found->nodesetval->nodeNr;
    for (int index = 0; index < count; ++index) {
        texts.push_back(contentOf(found->nodesetval->nodeTab[index]));
    }
    return texts;
}

std::string HTMLPage::text(const std::string& xpath) const {
    const std::vector<std::string> all = texts(xpath);
    EXPECT_EQ(all.size(), 1U) << xpath;
    return all.empty() ? "" : all.front();
}

}  // namespace lv::test
