#pragma once

#include <lvdata/xml/XMLElement.h>
#include <lvdata/xml/detail/element_writing.h>
#include <lvdata/xml/detail/own_document.h>
#include <lvdata/xml/property.h>

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <vector>

namespace lv::detail {

/// The other direction of a visit: appends the members as children of an element. `Reader` explains the operations;
/// here each answers whether it wrote something.
class Writer {
public:
    /// \param writeHLGSystemGamma  the switch of the record that is written, which is in force for all that it holds
    explicit Writer(void* element, bool writeHLGSystemGamma = false)
        : element_(element),
          writeHLGSystemGamma_(writeHLGSystemGamma) {}

    [[nodiscard]] Writer readWhen(bool /*condition*/) const { return *this; }
    [[nodiscard]] Writer writeWhen(bool condition) const {
        Writer io = *this;
        io.element_ = condition ? element_ : nullptr;
        return io;
    }

    [[nodiscard]] Writer when(bool condition) const { return writeWhen(condition); }

    [[nodiscard]] Writer always() const {
        Writer io = *this;
        io.always_ = true;
        return io;
    }

    /// Whether there is an element to write into.
    [[nodiscard]] bool exists() const { return element_ != nullptr; }

    /// That element as the wrapper that applications know.
    [[nodiscard]] XMLElement xmlElement() const { return XMLElement(element_); }

    [[nodiscard]] bool writesHLGSystemGamma() const { return writeHLGSystemGamma_; }

    [[nodiscard]] Writer element(const char* name) const {
        return Writer(appendChild(element_, name), writeHLGSystemGamma_);
    }

    static void derive(const bool& /*flag*/, bool /*condition*/) {}

    template <class T>
    bool attribute(const char* name, const T& member) {
        if (exists()) {
            setAttribute(element_, name, member);
        }
        return exists();
    }

    template <class T>
    bool attribute(const char* name, const property<T>& member) {
        return attribute(name, member.value);
    }

    void constant(const char* name, const std::string& text) { attribute(name, text); }

    template <class T>
    bool text(const T& member) {
        if (exists()) {
            setText(element_, member);
        }
        return exists();
    }

    template <class T>
    void field(const char* name, const property<T>& member) {
        if (writes(member.hasValue)) {
            value(name, member.value);
        }
    }

    template <class T>
    bool value(const char* name, const T& member) {
        return exists() && appendLeaf(element_, name, member);
    }

    template <class Number>
    void array(const char* name, const property<std::vector<Number>>& member,
               std::initializer_list<std::size_t> lengths) {
        if (std::count(lengths.begin(), lengths.end(), member.value.size()) != 0) {
            field(name, member);
        }
    }

    template <class Number>
    bool array(const char* name, const std::vector<Number>& member, std::size_t length) {
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
            Writer io(element_, writeHLGSystemGamma_);
            visit(io, member.value);
        }
    }

    template <class Record>
    void record(const Record& member, bool flag) {
        if (writes(flag)) {
            XMLElement parent = xmlElement();
            member.appendXMLElement(parent);
        }
    }

    template <class Record>
    void record(const property<Record>& member) {
        record(member.value, member.hasValue);
    }

    template <class Record>
    void recordWithSwitch(const property<Record>& member) {
        if (writes(member.hasValue)) {
            XMLElement parent = xmlElement();
            member.value.appendWithSwitch(parent, writeHLGSystemGamma_);
        }
    }

    template <class Visit>
    void keyed(const char* name, const char* key, const char* text, Visit visit) {
        Writer io = element(name);
        io.constant(key, text);
        visit(io);
    }

    template <class Record, class Visit>
    void rows(const char* name, const Record& record, Visit visit) {
        rows(name, record, visit, [](const auto& /*row*/) { return true; });
    }

    template <class Record, class Visit, class HasContent>
    void rows(const char* name, const Record& record, Visit visit, HasContent hasContent) {
        for (const auto& row : record.objects) {
            if (exists() && hasContent(row)) {
                Writer io = element(name);
                visit(io, row);
                finishElement(io.element_);
            }
        }
    }

private:
    /// Whether a member with that flag is written: not behind a closed gate, where no text shall even be made.
    [[nodiscard]] bool writes(bool flag) const { return exists() && (flag || always_); }

    void* element_;
    bool writeHLGSystemGamma_;
    bool always_ = false;
};

}  // namespace lv::detail
