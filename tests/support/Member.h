#pragma once

#include <lvdata/core/DataArrayObject.h>
#include <lvdata/xml/property.h>

#include <cstddef>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace lv::test {

struct Member;

/// The members of a value, in the order of writing.
using Members = std::vector<Member>;

/// Where a plain value is held.
using Place =
    std::variant<bool*, int*, unsigned int*, double*, std::string*, std::vector<int>*, std::vector<unsigned int>*>;

template <class T>
inline constexpr bool isPlain = std::is_constructible_v<Place, T*>;

/// The rows of a list. What was told of their members holds until the next `resize` or `erase`.
class Rows {
public:
    Rows() = default;
    Rows(const Rows&) = delete;
    Rows& operator=(const Rows&) = delete;
    virtual ~Rows() = default;

    [[nodiscard]] virtual std::size_t size() const = 0;
    [[nodiscard]] virtual Members membersOf(std::size_t index) const = 0;
    virtual void resize(std::size_t size) = 0;
    virtual void erase(std::size_t index) = 0;
};

/// One member of a record, or of a value that records hold: a plain value, a value with members of its own, or rows.
struct Member {
    enum class Role {
        inDocuments,
        flagOfPrevious,  ///< The flag of the member before, of which it is no part.
        flagOfAll,       ///< The flag of the value that it is a member of.
        wasRead,         ///< Whether the rows before were ever read.
        inNoDocument,    ///< No document holds it, and reading leaves it alone.
    };

    std::string name;
    Role role = Role::inDocuments;

    /// Of a plain value; of any other the place is null.
    bool isPlain = false;
    Place place{};

    /// Of a property; null for any other.
    bool* flag = nullptr;

    /// Of a value with members of its own.
    Members members{};
    bool isRecord = false;

    /// Of a list; null for any other.
    std::shared_ptr<Rows> rows{};
};

/// Collects members. Each record, and each value that records hold, has a function `members(list, value)` that hands it
/// all members by name, in the order of writing. They are written by hand: what the library forgets, they do not.
class MemberList {
public:
    template <class T>
    Member& add(const std::string& name, T& value) {
        Member member{name};
        if constexpr (test::isPlain<T>) {
            member.isPlain = true;
            member.place = &value;
        } else {
            member.members = listOf(value);
            member.isRecord = std::is_base_of_v<DataObject, T>;
        }
        return members_.emplace_back(std::move(member));
    }

    template <class T>
    Member& add(const std::string& name, property<T>& value) {
        Member& member = add(name, value.value);
        member.flag = &value.hasValue;
        return member;
    }

    void addFlag(const std::string& name, bool& flag, Member::Role role) { add(name, flag).role = role; }

    template <class Row>
    void addRows(DataArrayObject<Row>& record);

    /// What all records have; the first call of every record's own function.
    void addBase(DataObject& record);

    [[nodiscard]] Members take() { return std::move(members_); }

    /// All members of a value.
    template <class T>
    [[nodiscard]] static Members listOf(T& value) {
        MemberList list;
        members(list, value);
        return list.take();
    }

private:
    Members members_;
};

template <class Row>
class RowsOf : public Rows {
public:
    explicit RowsOf(std::vector<Row>& rows) : rows_(&rows) {}

    [[nodiscard]] std::size_t size() const override { return rows_->size(); }
    [[nodiscard]] Members membersOf(std::size_t index) const override { return MemberList::listOf(rows_->at(index)); }
    void resize(std::size_t size) override { rows_->resize(size); }
    void erase(std::size_t index) override { rows_->erase(rows_->begin() + static_cast<std::ptrdiff_t>(index)); }

private:
    std::vector<Row>* rows_;
};

template <class Row>
void MemberList::addRows(DataArrayObject<Row>& record) {
    members_.push_back({"objects"});
    members_.back().rows = std::make_shared<RowsOf<Row>>(record.objects);
    addFlag("parsed", record.parsed, Member::Role::wasRead);
}

/// What can be done with each part of a value. `path` is its name with those of the values that it is part of, and with
/// "objects" for every row of a list.
class MemberVisitor {
public:
    MemberVisitor() = default;
    MemberVisitor(const MemberVisitor&) = delete;
    MemberVisitor& operator=(const MemberVisitor&) = delete;
    virtual ~MemberVisitor() = default;

    void visitAll(const Members& members) { visitAll(members, ""); }

protected:
    virtual void visit(const std::string& path, const Place& place) = 0;

    /// The members of a value.
    virtual void visitMembers(const Member& member, const std::string& path) { visitAll(member.members, path + '.'); }

    /// Before its rows.
    virtual void visitRows(const std::string& /*path*/, Rows& /*rows*/) {}

    void visitAll(const Members& members, const std::string& prefix);
};

/// The members of a value, a line each: "redGain = 1000000 (set)", "hue = (unset)", "hue.red = 3",
/// "objects[1].RGB = 3 entries: 0 0 255".
[[nodiscard]] std::string textOf(const Members& members);

[[nodiscard]] std::string textOf(const Place& place);

}  // namespace lv::test
