#pragma once

#include <lvdata/core/detail/conditions.h>
#include <lvdata/core/quantities.h>
#include <lvdata/xml/XMLElement.h>
#include <lvdata/xml/detail/ChildFinder.h>
#include <lvdata/xml/detail/WrapperMark.h>
#include <lvdata/xml/detail/element_reading.h>
#include <lvdata/xml/detail/parsed_array.h>
#include <lvdata/xml/property.h>

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace lv::detail {

/// One direction of a visit: fills the members from the children of an element. `Writer` is the other; `Describer`
/// describes the visit, and `MemberCollector` finds the members. All offer the same operations.
///
/// A record's visit names each of its elements once, in the order of writing. The operation says how the member is
/// held:
///
///     io.field(name, property)              an optional value; its flag is whether the element was found
///     io.value(name, member)                a plain value; written always, left as it was when not found
///     io.text(member)                       a plain value that is this element's own text
///     io.attribute(name, member)            an attribute, of a property or plain; written always, whatever the flag
///     io.constant(name, text)               an attribute that is written, and ignored when reading
///     io.array(name, member, lengths, q)    an array that must have one of these lengths
///     io.structure(name, property, visit)   an optional structure in its own child element
///     io.group(property, visit)             an optional structure spread over children of this very element
///     io.record(property)                   a nested record; its flag is whether the record accepted its element
///     io.rows(name, record, visit)          the rows of a list
///     io.rowsWithContent(name, record, ...) the same; rows for which the visit would write nothing are omitted
///     io.keyed(name, key, text, visit)      the child elements of that name whose attribute `key` is `text`
///     io.element(name)                      a child element, to visit further
///     io.derive(flag, condition)            a flag that reading computes from what the members then hold
///
/// `field`, `value`, `text` and `array` take the quantity of their numbers as a last argument: one of `quantities.h`,
/// or a choice of two. Without it a number is the application's.
///
/// `value`, `attribute`, `text`, `array` on a plain vector, and the visits handed to `structure`, `group` and `rows`
/// answer whether they found something: that becomes the flag of a structure and decides whether a row is kept. The
/// answer is for `|=`, `derive` and the end of a visit; to the describer it says what was looked for.
///
/// A gate before the operation says where the directions differ or a condition (`conditions.h`) decides. After a closed
/// gate reading finds nothing, as if the element were missing, and nothing is written:
///
///     io.readWhen(condition)               closes reading
///     io.writeWhen(condition)              closes writing
///     io.when(condition)                   closes both
///     io.always()                          writing does not consult the member's own flag
///
/// A reader knows whether its document is as it was parsed, and passes that on to nested records; arrays are then read
/// faster.
class Reader {
public:
    /// Of an element of any document, which may have been changed since it was parsed.
    explicit Reader(const XMLElement& element) : Reader(toElement(element), false) {}

    /// Of the parameter of a record's `parseXMLElement`. Its mark counts: it was passed there directly, and the record
    /// reads before other code can change the document.
    [[nodiscard]] static Reader ofParameter(const XMLElement& parameter) {
        return {toElement(parameter), WrapperMark::isAsParsed(parameter)};
    }

    template <class Gate, class = RequireCondition<Gate>>
    [[nodiscard]] Reader readWhen(const Gate& condition) const {
        return condition.holds() ? *this : Reader(nullptr, isAsParsed_);
    }

    template <class Gate, class = RequireCondition<Gate>>
    [[nodiscard]] Reader writeWhen(const Gate& /*condition*/) const {
        return *this;
    }

    template <class Gate, class = RequireCondition<Gate>>
    [[nodiscard]] Reader when(const Gate& condition) const {
        return readWhen(condition);
    }

    [[nodiscard]] Reader always() const { return *this; }

    /// Whether there is an element to read from.
    [[nodiscard]] bool exists() const { return element_ != nullptr; }

    /// Whether it has that name.
    [[nodiscard]] bool isNamed(const char* name) const { return detail::isNamed(element_, name); }

    /// That element as the wrapper that applications know.
    [[nodiscard]] XMLElement xmlElement() const { return toHandle(element_); }

    [[nodiscard]] Reader element(const char* name) const { return {children_.find(name), isAsParsed_}; }

    static void derive(bool& flag, bool found) { flag = found; }

    template <class Gate, class = RequireCondition<Gate>>
    static void derive(bool& flag, const Gate& condition) {
        flag = condition.holds();
    }

    template <class T>
    bool attribute(const char* name, T& member, const Quantity& /*quantity*/ = quantities::number) {
        return readAttribute(element_, name, member);
    }

    template <class T>
    bool attribute(const char* name, property<T>& member, const Quantity& /*quantity*/ = quantities::number) {
        member.hasValue = attribute(name, member.value);
        return member.hasValue;
    }

    void constant(const char* /*name*/, const char* /*text*/) {}

    template <class T, class AnyQuantity = Quantity>
    bool text(T& member, const AnyQuantity& /*quantity*/ = quantities::number) {
        return read(element_, member);
    }

    template <class T, class AnyQuantity = Quantity>
    void field(const char* name, property<T>& member, const AnyQuantity& /*quantity*/ = quantities::number) {
        member.hasValue = value(name, member.value);
    }

    template <class T, class AnyQuantity = Quantity>
    bool value(const char* name, T& member, const AnyQuantity& /*quantity*/ = quantities::number) {
        return read(children_.find(name), member);
    }

    /// Entries of another number stay in memory, but the flag is cleared.
    template <class Number, class AnyQuantity>
    void array(const char* name, property<std::vector<Number>>& member, std::initializer_list<std::size_t> lengths,
               const AnyQuantity& /*quantity*/) {
        field(name, member);
        member.hasValue = member.hasValue && std::count(lengths.begin(), lengths.end(), member.value.size()) != 0;
    }

    /// A plain vector takes any number of entries.
    template <class Number>
    bool array(const char* name, std::vector<Number>& member, std::size_t /*length*/, const Quantity& /*quantity*/) {
        return value(name, member);
    }

    template <class T, class Visit>
    void structure(const char* name, property<T>& member, Visit visit) {
        element(name).group(member, visit);
    }

    template <class T, class Visit>
    void group(property<T>& member, Visit visit) {
        member.hasValue = visit(*this, member.value);
    }

    template <class Record>
    void record(Record& member, bool& flag) {
        flag = member.parseXMLElement(passedOn(children_.find(Record::rootElementName)));
    }

    template <class Record>
    void record(property<Record>& member) {
        record(member.value, member.hasValue);
    }

    template <class Visit>
    void keyed(const char* name, const char* key, std::string_view text, Visit visit) {
        for (tinyxml2::XMLElement* const child : findChildren(element_, name)) {
            Reader io(child, isAsParsed_);
            std::string found;
            if (io.attribute(key, found) && found == text) {
                visit(io);
            }
        }
    }

    template <class Record, class Visit>
    void rowsWithContent(const char* name, Record& record, Visit visit) {
        rows(name, record, visit);
    }

    template <class Record, class Visit>
    void rows(const char* name, Record& record, Visit visit) {
        const std::vector<tinyxml2::XMLElement*> children = findChildren(element_, name);
        record.objects.clear();
        record.objects.reserve(children.size());
        record.parsed = true;
        for (tinyxml2::XMLElement* const child : children) {
            Reader io(child, isAsParsed_);
            if (!visit(io, record.objects.emplace_back())) {
                record.objects.pop_back();
            }
        }
    }

private:
    Reader(tinyxml2::XMLElement* element, bool isAsParsed)
        : element_(element),
          isAsParsed_(isAsParsed),
          children_(element) {}

    /// The element for a nested record, which reads before other code can change the document. To be passed as it is
    /// returned, since a copy would not be marked.
    [[nodiscard]] XMLElement passedOn(tinyxml2::XMLElement* element) const {
        return isAsParsed_ ? WrapperMark::asParsed(element) : XMLElement(toHandle(element));
    }

    template <class T>
    [[nodiscard]] bool read(const tinyxml2::XMLElement* element, T& member) const {
        return readText(element, member);
    }

    template <class Number>
    [[nodiscard]] bool read(const tinyxml2::XMLElement* element, std::vector<Number>& member) const {
        return isAsParsed_ ? readParsedArray(element, member) : readArray(element, member, arraySeparator);
    }

    tinyxml2::XMLElement* element_;
    bool isAsParsed_;
    mutable ChildFinder children_;  // remembers how far it came; what it answers does not depend on that
};

}  // namespace lv::detail
