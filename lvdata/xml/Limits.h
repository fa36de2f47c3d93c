#pragma once

#include <lvdata/export.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace lv {

/// The most that a document may hold, for programs that take documents from others. Parsing has no limits of its own:
/// check a text with `findExcess` before you parse it.
///
///     if (const std::optional<lv::Excess> excess = lv::findExcess(text)) {
///         return "line " + std::to_string(excess->line) + ": " + excess->toString();
///     }
///
/// Documents of this library stay far below the defaults. What goes beyond them can take the XML library minutes, or
/// gigabytes of memory. `docs/security.md` has figures.
struct Limits {
    /// The size of the text.
    std::size_t bytes = 64UL * 1024 * 1024;

    /// All elements. Each can become a row of a list, which takes its full size however little of it is in the text.
    std::size_t elements = 250'000;

    /// All elements, attributes, texts, comments, and other markup except end tags. Texts of white space do not count.
    std::size_t nodes = 1'000'000;

    /// The attributes of one element. Parsing compares each of them with all before it.
    std::size_t attributes = 100;

    /// The broken references in one text or one attribute: "&#" without a ";" before the next "&#" or the end. For each
    /// of them parsing searches the rest of that text.
    std::size_t brokenReferences = 100;
};

/// What a document has more of than a limit allows, and where.
struct Excess {
    /// What there is too much of. Each is called as its member of `Limits`.
    enum class What {
        bytes,             ///< The size of the text.
        elements,          ///< All elements.
        nodes,             ///< All elements, attributes, texts, comments and other markup.
        attributes,        ///< The attributes of one element.
        brokenReferences,  ///< The broken references in one text or one attribute.
    };

    /// What there is too much of.
    What what = What::bytes;

    /// The limit that is exceeded, as it was given.
    std::size_t limit = 0;

    /// The place in the text: of the first byte too many, or where the markup or the text begins that is too much.
    std::size_t position = 0;

    /// The line of that place, counted from 1; 0 with `bytes`, where no line is to blame.
    int line = 0;

    /// What is wrong, for a message: "more than 100 attributes per element", "more than 1 byte".
    [[nodiscard]] LVDATA_EXPORT std::string toString() const;
};

/// The first place where the text exceeds one of the limits; nothing when it is within all of them.
///
/// One pass over the text, without building anything, and none when the text has too many bytes. It sees the same tags
/// and texts as parsing does, and ends where parsing would refuse the text. A text without excess need not be XML. The
/// text may hold any bytes; what parsing would not read, because a NUL ends the text before it, is checked as well.
///
/// Never fails; may be called from any thread.
[[nodiscard]] LVDATA_EXPORT std::optional<Excess> findExcess(std::string_view text, const Limits& limits = {});

}  // namespace lv
