#pragma once

#include <optional>
#include <string>

namespace lv::analysis {

/// The result of a strict parser of XML 1.0.
struct XMLVerdict {
    /// Where the text breaks the rules of XML.
    struct Fault {
        int line = 0;          ///< Counted from 1.
        std::string reason{};  ///< "the end tag does not match the start tag".
    };

    std::optional<Fault> fault{};    ///< The first fault; no value when the text is well-formed, or is not UTF-8.
    std::string declaredEncoding{};  ///< The encoding that the XML declaration names; empty when it names none.
};

/// Checks the text as UTF-8, whatever encoding it declares. The library's own parser accepts more than XML allows, and
/// may then read less than the text holds. Entities that the document itself declares are not expanded.
[[nodiscard]] XMLVerdict judgeXML(const std::string& text);

}  // namespace lv::analysis
