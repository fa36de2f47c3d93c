#pragma once

#include <lvdata/export.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace lv {

/// Limits for documents, for programs that take documents from others. Parsing itself has no limits: check a text with
/// `findExcess` before you parse it.
///
///     if (const std::optional<lv::Excess> excess = lv::findExcess(text)) {
///         return "line " + std::to_string(excess->line) + ": " + excess->toString();
///     }
///
/// Documents of this library stay far below the defaults. Larger documents can take the XML library minutes, or
/// gigabytes of memory. `docs/security.md` has figures.
struct Limits {
    /// The size of the text.
    std::size_t bytes = 64UL * 1024 * 1024;

    /// All elements. Each can become a row of a list, which takes its full size even if the text has little of it.
    std::size_t elements = 250'000;

    /// All elements, attributes, texts, comments, and other markup except end tags. Whitespace-only texts do not count.
    std::size_t nodes = 1'000'000;

    /// The attributes of one element. Parsing compares each of them with all earlier ones.
    std::size_t attributes = 100;

    /// The broken references in one text or one attribute: "&#" without a ";" before the next "&#" or the end. For each
    /// of them, parsing searches the rest of that text.
    std::size_t brokenReferences = 100;
};

/// The limit that a document exceeds, and the place.
struct Excess {
    /// The limited things. Each has the name of its member of `Limits`.
    enum class What {
        bytes,             ///< The size of the text.
        elements,          ///< All elements.
        nodes,             ///< All elements, attributes, texts, comments and other markup.
        attributes,        ///< The attributes of one element.
        brokenReferences,  ///< The broken references in one text or one attribute.
    };

    /// The thing that the document has too many of.
    What what = What::bytes;

    /// The limit that is exceeded, as it was given.
    std::size_t limit = 0;

    /// The place in the text: the first byte too many, or the start of the markup or text that exceeds the limit.
    std::size_t position = 0;

    /// The line of that place, counted from 1; 0 with `bytes`, where no line applies.
    int line = 0;

    /// The reason, for a message: "more than 100 attributes per element", "more than 1 byte".
    [[nodiscard]] LVDATA_EXPORT std::string toString() const;
};

/// The first place where the text exceeds one of the limits; no value when it is within all of them.
///
/// It scans the text once, without building anything; it does not read a text that has too many bytes. It sees
/// the same tags and texts as parsing does, and ends where parsing would refuse the text. A text within the limits need
/// not be XML. The text may hold any bytes; the part after a NUL, which parsing would not read, is checked as well.
///
/// Never fails; may be called from any thread.
[[nodiscard]] LVDATA_EXPORT std::optional<Excess> findExcess(std::string_view text, const Limits& limits = {});

}  // namespace lv
