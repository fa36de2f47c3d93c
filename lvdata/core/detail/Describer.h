#pragma once

#include <lvdata/core/Description.h>
#include <lvdata/core/detail/conditions.h>
#include <lvdata/core/quantities.h>
#include <lvdata/xml/property.h>

#include <array>
#include <cstddef>
#include <initializer_list>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

namespace lv::detail {

struct DraftGate;
struct DraftNode;

/// The content of an element or attribute that holds a `T`.
template <class T>
constexpr Description::Content contentOf() = delete;
template <>
constexpr Description::Content contentOf<std::string>() {
    return Description::Content::string;
}
template <>
constexpr Description::Content contentOf<bool>() {
    return Description::Content::boolean;
}
template <>
constexpr Description::Content contentOf<unsigned int>() {
    return Description::Content::unsignedNumber;
}
template <>
constexpr Description::Content contentOf<int>() {
    return Description::Content::signedNumber;
}
template <>
constexpr Description::Content contentOf<std::vector<unsigned int>>() {
    return Description::Content::unsignedArray;
}
template <>
constexpr Description::Content contentOf<std::vector<int>>() {
    return Description::Content::signedArray;
}

/// The quantities of a member: the usual one, and others that conditions choose.
struct DraftQuantity {
    const Quantity* usual = nullptr;
    const DraftQuantityWhen* others = nullptr;
    std::size_t count = 0;
};

/// Runs over a visit to describe what it reads and writes. `Reader` explains the operations. They are called with a
/// fresh record, whose members say by their addresses where a condition looks.
///
/// The templates only find out what a member is. The work is done in ordinary functions, and their results have no
/// destructor, so that the compiled code of the records stays small.
class Describer {
public:
    /// What an operation looks for. Not a bool, so that every answer in a visit comes from an operation.
    class Found {
    public:
        Found(Draft& draft, const std::vector<DraftNode*>* nodes) : draft_(&draft), nodes_(nodes) {}

        Found& operator|=(const Found& other);

        [[nodiscard]] const std::vector<DraftNode*>& nodes() const { return *nodes_; }

    private:
        Draft* draft_;
        const std::vector<DraftNode*>* nodes_;
    };

    /// Of the node of an element.
    Describer(Draft& draft, DraftNode& node) : draft_(&draft), node_(&node) {}

    template <class Gate, class = RequireCondition<Gate>>
    [[nodiscard]] Describer readWhen(const Gate& condition) const {
        return behindGate(condition.describeTo(*draft_), true, false);
    }

    template <class Gate, class = RequireCondition<Gate>>
    [[nodiscard]] Describer writeWhen(const Gate& condition) const {
        return behindGate(condition.describeTo(*draft_), false, true);
    }

    template <class Gate, class = RequireCondition<Gate>>
    [[nodiscard]] Describer when(const Gate& condition) const {
        return behindGate(condition.describeTo(*draft_), true, true);
    }

    [[nodiscard]] Describer always() const;

    [[nodiscard]] Found exists() const;

    [[nodiscard]] Describer element(const char* name) const;

    void constant(const char* name, const char* text);

    template <class T>
    Found attribute(const char* name, T& member, const Quantity& quantity = quantities::number) {
        return addValue({name, Description::Place::attribute, contentOf<T>(), &member}, quantity);
    }

    template <class T>
    Found attribute(const char* name, property<T>& member, const Quantity& quantity = quantities::number) {
        const Found leaf = attribute(name, member.value, quantity);
        addFlag(leaf, member.hasValue);
        return leaf;
    }

    template <class T, class AnyQuantity = Quantity>
    Found text(T& member, const AnyQuantity& quantity = quantities::number) {
        return addValue({"", Description::Place::text, contentOf<T>(), &member}, quantity);
    }

    template <class T, class AnyQuantity = Quantity>
    Found value(const char* name, T& member, const AnyQuantity& quantity = quantities::number) {
        return addValue({name, Description::Place::element, contentOf<T>(), &member}, quantity);
    }

    template <class T, class AnyQuantity = Quantity>
    void field(const char* name, property<T>& member, const AnyQuantity& quantity = quantities::number) {
        addFlag(optional().value(name, member.value, quantity), member.hasValue);
    }

    template <class Number, class AnyQuantity>
    void array(const char* name, property<std::vector<Number>>& member, std::initializer_list<std::size_t> lengths,
               const AnyQuantity& quantity) {
        field(name, member, quantity);
        setLengths(lengths);
    }

    template <class Number>
    Found array(const char* name, std::vector<Number>& member, std::size_t length, const Quantity& quantity) {
        const Found leaf = value(name, member, quantity);
        setLengths({length});
        return leaf;
    }

    template <class T, class Visit>
    void structure(const char* name, property<T>& member, Visit visit) {
        Describer inner = optional().element(name);
        inner.addFlag(visit(inner, member.value), member.hasValue, inner.exists());
    }

    template <class T, class Visit>
    void group(property<T>& member, Visit visit) {
        Describer inner = optional();
        addFlag(visit(inner, member.value), member.hasValue);
    }

    template <class Record>
    void record(Record& /*member*/, const bool& flag) {
        addRecord(Record::describe(), flag);
    }

    template <class Record>
    void record(property<Record>& member) {
        record(member.value, member.hasValue);
    }

    template <class Record, class Visit>
    void rows(const char* name, Record& record, Visit visit) {
        Describer row = rowElement(name);
        row.keepWhen(visit(row, record.objects.emplace_back()));
    }

    template <class Record, class Visit>
    void rowsWithContent(const char* name, Record& record, Visit visit) {
        Describer row = rowElement(name);
        row.keepWhen(visit(row, record.objects.emplace_back()));
        row.writeWhenAnyArrayCounts();
    }

    template <class Visit>
    void keyed(const char* name, const char* key, const char* text, Visit visit) {
        Describer child = keyedElement(name, key, text);
        visit(child);
    }

    /// A flag that says whether something was found.
    void derive(const bool& flag, const Found& found) { addFlag(found, flag); }

    /// A flag that follows from members, whose nodes then have it. No other condition says whose flag it is.
    template <class T>
    void derive(const bool& flag, const NotEmpty<T>& condition) {
        addFlag(*condition.describeTo(*draft_), flag);
    }

    template <class Number, std::size_t Size>
    void derive(const bool& flag, const HaveEntries<Number, Size>& condition) {
        addFlag(*condition.describeTo(*draft_), flag);
    }

private:
    struct Leaf {
        const char* name;
        Description::Place place;
        Description::Content content;
        const void* member;
    };

    Found addValue(const Leaf& leaf, const Quantity& quantity) { return addLeaf(leaf, {&quantity}); }

    template <class... Gates>
    Found addValue(const Leaf& leaf, const QuantityChoice<Gates...>& choice) {
        const auto others = std::apply(
            [this](const auto&... each) {
                return std::array{DraftQuantityWhen{each.condition.describeTo(*draft_), &each.quantity}...};
            },
            choice.others);
        return addLeaf(leaf, {&choice.usual, others.data(), others.size()});
    }

    [[nodiscard]] Describer behindGate(const DraftCondition* condition, bool closesReading, bool closesWriting) const;

    /// What is named next is written only when it is set, unless writing does not consult the flag.
    [[nodiscard]] Describer optional() const;

    [[nodiscard]] Found lookingFor(DraftNode& node) const;

    /// A new child, subject to the gates.
    [[nodiscard]] DraftNode& addNode(const char* name, Description::Place place) const;
    [[nodiscard]] Describer rowElement(const char* name) const;
    [[nodiscard]] Describer keyedElement(const char* name, const char* key, const char* text) const;

    Found addLeaf(const Leaf& leaf, const DraftQuantity& quantity);
    void addRecord(Description nested, const bool& flag);
    void setLengths(std::initializer_list<std::size_t> lengths);

    /// What sets the flag of a member, whose own nodes are those that are found unless others are stated.
    void addFlag(const Found& found, const bool& flag);
    void addFlag(const Found& found, const bool& flag, const Found& owners);
    void addFlag(const DraftCondition& condition, const bool& flag);

    void keepWhen(const Found& found);
    void writeWhenAnyArrayCounts();

    Draft* draft_;
    DraftNode* node_;
    const DraftGate* gate_ = nullptr;
    bool isOptional_ = false;
    bool isAlways_ = false;
};

/// The description of one record in the making.
class RecordDescriber {
public:
    RecordDescriber(const char* rootName, unsigned int version, unsigned int minorVersion);
    RecordDescriber(const RecordDescriber&) = delete;
    RecordDescriber& operator=(const RecordDescriber&) = delete;
    RecordDescriber(RecordDescriber&&) = delete;
    RecordDescriber& operator=(RecordDescriber&&) = delete;
    ~RecordDescriber();

    /// For the visit of the root element.
    [[nodiscard]] Describer rootElement();

    [[nodiscard]] Description finish() const;

private:
    std::unique_ptr<Draft> draft_;
};

}  // namespace lv::detail
