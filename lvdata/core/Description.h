#pragma once

#include <lvdata/core/Quantity.h>
#include <lvdata/export.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace lv {

/// A condition on what a record holds, such as `../\@Type is "Value"`.
///
/// Subjects are XPath expressions. They start at the element, attribute or text whose description holds the condition:
/// "." is the described thing itself, "../\@Type" an attribute of its parent element. They stand for the members that
/// are read from there. So a condition looks at values as they were read, at the first of several elements, and at the
/// value that a fresh record has (`Description::defaultText`) where the document has none.
struct LVDATA_EXPORT Condition {
    /// What a condition asks. It decides which of the other members count.
    enum class Kind {
        oneOf,        ///< The subject's value is one of `texts`.
        noneOf,       ///< The subject's value is none of `texts`.
        isSet,        ///< The flag of the subjects is set; several subjects share one flag.
        notEmpty,     ///< The subject has a text or, if it is an array, entries.
        haveEntries,  ///< Each of the subjects has exactly `entries` entries.
        exists,       ///< At least one of the subjects is there, with or without a text.
        hasText,      ///< At least one of the subjects is there with a text.
        anyOf,        ///< At least one of `alternatives` holds.
        hlgSwitch,    ///< The record that is printed has `writeHLGSystemGamma` set.
        rule,         ///< What `rule` says.
    };

    /// What the condition asks.
    Kind kind = Kind::exists;

    /// The XPath expressions of what is looked at; empty for `anyOf` and `hlgSwitch`.
    std::vector<std::string> subjects{};

    /// What the subject is compared with, for `oneOf` and `noneOf`; otherwise empty. Numbers are in decimal, as in a
    /// document.
    std::vector<std::string> texts{};

    /// The number of entries, for `haveEntries`; otherwise 0.
    std::size_t entries = 0;

    /// The conditions of which one must hold, for `anyOf`; otherwise empty.
    std::vector<Condition> alternatives{};

    /// A rule in words, for `rule`; otherwise empty.
    std::string rule{};

    /// The condition in words: `../\@Type is "PQ" or "HLG"`.
    [[nodiscard]] std::string toString() const;
};

/// Everything that the library knows of a record's document: a tree with a node for each element and attribute, in the
/// order of writing. Each record class makes its own (`TargetSetting::describe()`); `recordClass` finds it by name.
///
/// It is made from the very code that reads and writes the record, so it cannot contradict that. A plain value, made
/// anew by each call.
struct LVDATA_EXPORT Description {
    /// Where the described thing stands in its parent element.
    enum class Place {
        element,    ///< A child element.
        attribute,  ///< An attribute.
        text,  ///< The parent's own text. Of several in one element, conditions let at most one be read and written.
    };

    /// What its text is.
    enum class Content {
        none,            ///< It has no text: an element that holds others, or nothing.
        string,          ///< Any text.
        boolean,         ///< "true" or "false".
        unsignedNumber,  ///< A decimal number from 0 to 4294967295.
        signedNumber,    ///< A decimal number from -2147483648 to 2147483647.
        unsignedArray,   ///< Such unsigned numbers, joined by "|".
        signedArray,     ///< Such signed numbers, joined by "|".
    };

    /// How often it stands in its parent.
    enum class Repetition {
        once,   ///< Once. Of several, the first is read.
        rows,   ///< Any number of times, one for each row of a list.
        byKey,  ///< Once for each text of a key attribute. Of several with the same key, the last with a text is read.
    };

    /// A quantity that takes the place of the usual one when a condition holds.
    struct QuantityWhen {
        /// When the other quantity counts.
        Condition condition;

        /// The quantity that then counts, instead of `Description::quantity`.
        Quantity quantity;
    };

    /// The name of the element or attribute; empty for a text.
    std::string name{};

    /// Whether it is a child element, an attribute or the text of its parent.
    Place place = Place::element;

    /// What its text is.
    Content content = Content::none;

    /// What its number or numbers stand for. Nothing for other contents.
    std::optional<Quantity> quantity{};

    /// Other quantities, of which the first whose condition holds counts.
    std::vector<QuantityWhen> otherQuantities{};

    /// The numbers of entries at which an array counts; empty: any. An array with another number of entries is not
    /// written, and when it is read it clears its flag.
    std::vector<std::size_t> lengths{};

    /// The text of a fresh record: what a value has that no document gave. "0", "false", or empty for strings and
    /// arrays; only version numbers begin with something else.
    std::string defaultText{};

    /// A text that is written always; what a document has in its place is not looked at.
    std::optional<std::string> constant{};

    /// How often it stands in its parent.
    Repetition repetition = Repetition::once;

    /// With `Repetition::byKey`: the name of the key attribute, which is one of `children`, too. Otherwise empty.
    std::string keyAttribute{};

    /// With `Repetition::byKey`: the text of the key attribute. Otherwise empty.
    std::string keyText{};

    /// The class of the record that the element is; empty for any other. Nested records are described whole.
    std::string record{};

    /// The version of a fresh record of that class; 0 for anything else.
    unsigned int version = 0;

    /// The minor version of a fresh record of that class; 0 for anything else.
    unsigned int minorVersion = 0;

    /// Whether it is written only when its flag is set. Otherwise it is written always, or under `writtenWhen` alone.
    bool isOptional = false;

    /// All these must hold for it to be written, in addition to what its parents need.
    std::vector<Condition> writtenWhen{};

    /// All these must hold for it to be read; otherwise it is ignored as if it were not there.
    std::vector<Condition> readWhen{};

    /// What sets the member's flag when a document is read; the flag is clear otherwise. An array must also have one of
    /// the `lengths`. Of a row: what keeps it. Nothing for a plain value, which has no flag.
    std::optional<Condition> flag{};

    /// Attributes, texts and elements in the order of writing.
    std::vector<Description> children{};

    /// The last step of an XPath expression that leads here: "Type", "@Type", "text()", "MeasuredXYZ[@Color='Red']".
    [[nodiscard]] std::string xpathStep() const;
};

}  // namespace lv
