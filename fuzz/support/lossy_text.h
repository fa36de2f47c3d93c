#pragma once

#include <string>

namespace lv::fuzz {

/// Whether a document can hold text that is not the same after it was printed and read again: a carriage return, or an
/// element with whitespace-only text. Both need a numeric reference or a CDATA section to get into a record.
inline bool mayHoldLossyText(const std::string& document) {
    return document.find("&#") != std::string::npos || document.find("<![CDATA[") != std::string::npos;
}

}  // namespace lv::fuzz
