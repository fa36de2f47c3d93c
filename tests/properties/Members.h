#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/xml/property.h>

#include <cstddef>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace lv::test {

/// What is worth knowing of a member beyond its type.
struct MemberTraits {
    std::vector<std::string> texts;     ///< texts that decide something
    std::vector<unsigned int> numbers;  ///< numbers that decide something
    std::vector<std::size_t> lengths;   ///< numbers of entries that decide something
    bool inAttribute = false;           ///< a text that stands in an attribute, not in an element
};

[[nodiscard]] inline MemberTraits attribute(std::vector<std::string> texts = {}) {
    return {std::move(texts), {}, {}, true};
}

[[nodiscard]] inline MemberTraits likelyTexts(std::vector<std::string> texts) {
    return {std::move(texts), {}, {}, false};
}

[[nodiscard]] inline MemberTraits likelyNumbers(std::vector<unsigned int> numbers) {
    return {{}, std::move(numbers), {}, false};
}

[[nodiscard]] inline MemberTraits likelyLengths(std::vector<std::size_t> lengths) {
    return {{}, {}, std::move(lengths), false};
}

template <class T>
inline constexpr bool isPlain = std::is_arithmetic_v<T> || std::is_same_v<T, std::string>;

template <class Number>
inline constexpr bool isPlain<std::vector<Number>> = std::is_arithmetic_v<Number>;

/// Something to do with every member of a record. `members(visit, record)` hands it each of them, once; nested records
/// and structures have `members` of their own.
class Members {
public:
    Members() = default;
    Members(const Members&) = delete;
    Members& operator=(const Members&) = delete;
    virtual ~Members() = default;

    template <class T>
    void operator()(T& member, const MemberTraits& traits = {}) {
        if constexpr (isPlain<T>) {
            plain(member, traits);
        } else if (!std::is_base_of_v<DataObject, T> || entersRecords()) {
            members(*this, member);
        }
    }

    template <class T>
    void operator()(property<T>& member, const MemberTraits& traits = {}) {
        if (resetsProperty(member.hasValue, isDefault(member))) {
            member = property<T>();
            return;
        }
        plain(member.hasValue, {});
        (*this)(member.value, traits);
        if constexpr (std::is_same_v<T, std::vector<unsigned int>> || std::is_same_v<T, std::vector<int>>) {
            endOfArray(member.hasValue, member.value.empty());
        }
    }

    /// Members that nothing more is to be said of.
    template <class... Ts>
    void all(Ts&... each) {
        ((*this)(each), ...);
    }

    template <class Row>
    void rows(std::vector<Row>& rows) {
        rows.resize(rowCount(rows.size()));
        for (auto row = rows.begin(); row != rows.end();) {
            if (erasesRow()) {
                row = rows.erase(row);
            } else {
                members(*this, *row++);
            }
        }
    }

protected:
    virtual void visit(bool& member) = 0;
    virtual void visit(int& member) = 0;
    virtual void visit(unsigned int& member, const MemberTraits& traits) = 0;
    virtual void visit(std::string& member, const MemberTraits& traits) = 0;
    virtual void visit(std::vector<int>& member, const MemberTraits& traits) = 0;
    virtual void visit(std::vector<unsigned int>& member, const MemberTraits& traits) = 0;

    [[nodiscard]] virtual bool entersRecords() const { return true; }
    [[nodiscard]] virtual bool resetsProperty(bool /*hasValue*/, bool /*isDefault*/) { return false; }
    [[nodiscard]] virtual bool resetsPlain(bool /*isDefault*/) { return false; }
    [[nodiscard]] virtual bool erasesRow() { return false; }
    [[nodiscard]] virtual std::size_t rowCount(std::size_t present) { return present; }
    virtual void endOfArray(bool& /*hasValue*/, bool /*isEmpty*/) {}

private:
    template <class T>
    [[nodiscard]] static bool isDefault(const property<T>& member) {
        if constexpr (isPlain<T>) {
            return member == property<T>();
        } else {
            return !member.hasValue;
        }
    }

    template <class T>
    void plain(T& member, const MemberTraits& traits) {
        if (resetsPlain(member == T())) {
            member = T();
        } else if constexpr (std::is_same_v<T, bool> || std::is_same_v<T, int>) {
            visit(member);
        } else {
            visit(member, traits);
        }
    }
};

/// What all records have; the first call of every record's own function.
void membersOfBase(Members& visit, DataObject& record);

}  // namespace lv::test
