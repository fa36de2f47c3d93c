#pragma once

#include <memory>
#include <string>
#include <vector>

#include <libxml/HTMLparser.h>

namespace lv::test {

/// A page as libxml2 reads it.
class HTMLPage {
public:
    explicit HTMLPage(const std::string& text);

    /// The texts of what an XPath expression finds, without white space at both ends.
    [[nodiscard]] std::vector<std::string> texts(const std::string& xpath) const;

    /// The only text that the expression finds; anything else fails the test.
    [[nodiscard]] std::string text(const std::string& xpath) const;

    /// How much the expression finds.
    [[nodiscard]] std::size_t count(const std::string& xpath) const { return texts(xpath).size(); }

private:
    std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> document_;
};

}  // namespace lv::test
