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
/// The subjects are XPath expressions. They start at the element, attribute or text whose description has the
/// condition: "." is the described thing itself, "../\@Type" an attribute of its parent element. They stand for the
/// members that are read from there. So a condition looks at values as they were read, at the first of several
/// elements, and, if the document has no value, at the value of a fresh record (`Description::defaultText`).
struct LVDATA_EXPORT Condition {
    /// The kind of condition. It determines which of the other members are used.
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
        rule,         ///< The rule in the member `rule` holds.
    };

    /// The kind of condition.
    Kind kind = Kind::exists;

    /// The XPath expressions of the subjects; empty for `anyOf` and `hlgSwitch`.
    std::vector<std::string> subjects{};

    /// The texts that the subject is compared with, for `oneOf` and `noneOf`; otherwise empty. Numbers are in decimal,
    /// as in a document.
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

/// Everything that the library knows about a record's document: a tree with a node for each element and attribute, in
/// the order of writing. Each record class makes its own (`TargetSetting::describe()`); `recordClass` finds it by name.
///
/// It is made from the same code that reads and writes the record, so the two cannot differ. A plain value; each call
/// makes a new one.
struct LVDATA_EXPORT Description {
    /// The place of the described thing in its parent element.
    enum class Place {
        element,    ///< A child element.
        attribute,  ///< An attribute.
        text,  ///< The parent's own text. If an element can have several, conditions allow at most one to be read and
               ///< written.
    };

    /// The type of its text.
    enum class Content {
        none,            ///< It has no text: an element that holds others, or nothing.
        string,          ///< Any text.
        boolean,         ///< "true" or "false".
        unsignedNumber,  ///< A decimal number from 0 to 4294967295.
        signedNumber,    ///< A decimal number from -2147483648 to 2147483647.
        unsignedArray,   ///< Such unsigned numbers, joined by "|".
        signedArray,     ///< Such signed numbers, joined by "|".
    };

    /// How often it occurs in its parent.
    enum class Repetition {
        once,   ///< Once. If there are several, the first is read.
        rows,   ///< Any number of times, one for each row of a list.
        byKey,  ///< Once for each text of a key attribute. If several have the same key, the last one with a text is
                ///< read.
    };

    /// A quantity that replaces the usual one when a condition holds.
    struct QuantityWhen {
        /// When the other quantity applies.
        Condition condition;

        /// The quantity that then applies, instead of `Description::quantity`.
        Quantity quantity;
    };

    /// The name of the element or attribute; empty for a text.
    std::string name{};

    /// Whether it is a child element, an attribute or the text of its parent.
    Place place = Place::element;

    /// The type of its text.
    Content content = Content::none;

    /// What its number or numbers stand for. No value for other contents.
    std::optional<Quantity> quantity{};

    /// Other quantities: the first one whose condition holds applies.
    std::vector<QuantityWhen> otherQuantities{};

    /// The valid numbers of entries of an array; empty: any. An array with a different number of entries is not
    /// written, and when it is read its flag is cleared.
    std::vector<std::size_t> lengths{};

    /// The text in a fresh record: the value when no document gave one. "0", "false", or empty for strings and arrays;
    /// only version numbers have another default.
    std::string defaultText{};

    /// A constant text that is always written; the text in a document is ignored.
    std::optional<std::string> constant{};

    /// How often it occurs in its parent.
    Repetition repetition = Repetition::once;

    /// With `Repetition::byKey`: the name of the key attribute, which is also one of `children`. Otherwise empty.
    std::string keyAttribute{};

    /// With `Repetition::byKey`: the text of the key attribute. Otherwise empty.
    std::string keyText{};

    /// The class of the record, if the element is a record; otherwise empty. Nested records are described completely.
    std::string record{};

    /// The version of a fresh record of that class; 0 for anything else.
    unsigned int version = 0;

    /// The minor version of a fresh record of that class; 0 for anything else.
    unsigned int minorVersion = 0;

    /// Whether it is written only when its flag is set. Otherwise it is written always, or depends only on
    /// `writtenWhen`.
    bool isOptional = false;

    /// All these must hold for it to be written, in addition to what its parents need.
    std::vector<Condition> writtenWhen{};

    /// All these must hold for it to be read; otherwise it is ignored as if it were not there.
    std::vector<Condition> readWhen{};

    /// The condition that sets the member's flag when a document is read; otherwise the flag is clear. An array must
    /// also have one of the `lengths`. For a row: the condition for keeping it. No value for a plain value, which has
    /// no flag.
    std::optional<Condition> flag{};

    /// Attributes, texts and elements in the order of writing.
    std::vector<Description> children{};

    /// The last step of an XPath expression that leads here: "Type", "@Type", "text()", "MeasuredXYZ[@Color='Red']".
    [[nodiscard]] std::string xpathStep() const;
};

}  // namespace lv
