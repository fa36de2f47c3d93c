#pragma once

#include <lvdata/core/detail/ContentProbe.h>
#include <lvdata/core/detail/RecordParent.h>
#include <lvdata/core/detail/conditions.h>
#include <lvdata/core/quantities.h>
#include <lvdata/xml/XMLElement.h>
#include <lvdata/xml/detail/Output.h>
#include <lvdata/xml/detail/handle.h>
#include <lvdata/xml/property.h>

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <vector>

namespace lv::detail {

/// The other direction of a visit: appends the members as children of an element. `Reader` explains the operations;
/// here each answers whether it wrote something.
///
/// Where it writes, among the nodes of a document or into a text at once, was decided for the outermost record; nested
/// records get the writer itself, and with it the HLG switch, through a `RecordParent`.
class Writer {
public:
    /// \param writeHLGSystemGamma  the switch of the outermost record, which is in force for all that it holds
    Writer(const Output& output, bool writeHLGSystemGamma)
        : output_(output),
          writeHLGSystemGamma_(writeHLGSystemGamma) {}

    explicit Writer(const XMLElement& element, bool writeHLGSystemGamma = false)
        : Writer(Output(toElement(element)), writeHLGSystemGamma) {}

    template <class Gate, class = RequireCondition<Gate>>
    [[nodiscard]] Writer readWhen(const Gate& /*condition*/) const {
        return *this;
    }

    template <class Gate, class = RequireCondition<Gate>>
    [[nodiscard]] Writer writeWhen(const Gate& condition) const {
        return condition.holds() ? *this : closed();
    }

    [[nodiscard]] Writer writeWhen(HLGSwitch /*condition*/) const { return writeHLGSystemGamma_ ? *this : closed(); }

    template <class Gate, class = RequireCondition<Gate>>
    [[nodiscard]] Writer when(const Gate& condition) const {
        return writeWhen(condition);
    }

    [[nodiscard]] Writer always() const {
        Writer io = *this;
        io.always_ = true;
        return io;
    }

    /// Whether there is an element to write into.
    [[nodiscard]] bool exists() const { return output_.exists(); }

    /// That element as the wrapper that applications know; invalid when it has become text.
    [[nodiscard]] XMLElement xmlElement() const { return toHandle(output_.node()); }

    [[nodiscard]] Writer element(const char* name) const { return {output_.append(name), writeHLGSystemGamma_}; }

    /// Nothing more comes into the elements appended so far, and their names need not live any longer.
    void finishElements() const { output_.finish(); }

    template <class AnyCondition>
    static void derive(const bool& /*flag*/, const AnyCondition& /*condition*/) {}

    template <class T>
    bool attribute(const char* name, const T& member, const Quantity& /*quantity*/ = quantities::number) {
        output_.setAttribute(name, member);
        return exists();
    }

    template <class T>
    bool attribute(const char* name, const property<T>& member, const Quantity& /*quantity*/ = quantities::number) {
        return attribute(name, member.value);
    }

    void constant(const char* name, const std::string& text) { attribute(name, text); }

    template <class T, class AnyQuantity = Quantity>
    bool text(const T& member, const AnyQuantity& /*quantity*/ = quantities::number) {
        output_.addText(member);
        return exists();
    }

    template <class T, class AnyQuantity = Quantity>
    void field(const char* name, const property<T>& member, const AnyQuantity& /*quantity*/ = quantities::number) {
        if (writes(member.hasValue)) {
            value(name, member.value);
        }
    }

    template <class T, class AnyQuantity = Quantity>
    bool value(const char* name, const T& member, const AnyQuantity& /*quantity*/ = quantities::number) {
        output_.appendLeaf(name, member);
        return exists();
    }

    template <class Number, class AnyQuantity>
    void array(const char* name, const property<std::vector<Number>>& member,
               std::initializer_list<std::size_t> lengths, const AnyQuantity& /*quantity*/) {
        if (std::count(lengths.begin(), lengths.end(), member.value.size()) != 0) {
            field(name, member);
        }
    }

    template <class Number>
    bool array(const char* name, const std::vector<Number>& member, std::size_t length, const Quantity& /*quantity*/) {
        return member.size() == length && value(name, member);
    }

    template <class T, class Visit>
    void structure(const char* name, const property<T>& member, Visit visit) {
        if (writes(member.hasValue)) {
            Writer io = element(name);
            visit(io, member.value);
        }
    }

    template <class T, class Visit>
    void group(const property<T>& member, Visit visit) {
        if (writes(member.hasValue)) {
            Writer io(output_, writeHLGSystemGamma_);
            visit(io, member.value);
        }
    }

    template <class Record>
    void record(const Record& member, bool flag) {
        if (writes(flag)) {
            RecordParent parent = RecordParent::nestedIn(xmlElement(), member, *this);
            member.appendXMLElement(parent);
        }
    }

    template <class Record>
    void record(const property<Record>& member) {
        record(member.value, member.hasValue);
    }

    template <class Visit>
    void keyed(const char* name, const char* key, const char* text, Visit visit) {
        Writer io = element(name);
        io.constant(key, text);
        visit(io);
    }

    template <class Record, class Visit>
    void rows(const char* name, const Record& record, Visit visit) {
        for (const auto& row : record.objects) {
            this->row(name, row, visit);
        }
    }

    template <class Record, class Visit>
    void rowsWithContent(const char* name, const Record& record, Visit visit) {
        const ContentProbe probe;
        for (const auto& row : record.objects) {
            if (visit(probe, row)) {
                this->row(name, row, visit);
            }
        }
    }

private:
    [[nodiscard]] Writer closed() const { return {Output(), writeHLGSystemGamma_}; }

    template <class Row, class Visit>
    void row(const char* name, const Row& row, Visit visit) {
        if (exists()) {
            Writer io = element(name);
            visit(io, row);
        }
    }

    /// Whether a member with that flag is written: not after a closed gate.
    [[nodiscard]] bool writes(bool flag) const { return exists() && (flag || always_); }

    Output output_;
    bool writeHLGSystemGamma_;
    bool always_ = false;
};

}  // namespace lv::detail
