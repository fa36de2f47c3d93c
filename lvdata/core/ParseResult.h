#pragma once

#include <string>

namespace lv {

/// The result of reading a record from a text: done, or the reason for the failure. Converts to true when it is done.
struct ParseResult {
    /// How reading ended.
    enum class Outcome {
        done,                ///< The record was read.
        notXML,              ///< The XML library refused the text.
        nothingThere,        ///< The text is empty, or well-formed without an element.
        rootElementRefused,  ///< The record refused the root element: usually because it has a different name.
    };

    /// Whether the record was read; if not, why the text was refused.
    Outcome outcome = Outcome::done;

    /// Why it was refused, in a few words: "mismatched element"; with `rootElementRefused` the name of the root
    /// element, which may be as long as the text. Empty when done.
    std::string reason;

    /// The line of the error, counted from 1; 0 when no line applies, as in an empty text.
    int line = 0;

    /// Whether the record was read.
    [[nodiscard]] explicit operator bool() const { return outcome == Outcome::done; }
};

}  // namespace lv
