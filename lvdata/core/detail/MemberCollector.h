#pragma once

#include <lvdata/core/detail/conditions.h>
#include <lvdata/xml/property.h>

#include <array>
#include <cstddef>
#include <initializer_list>
#include <vector>

namespace lv::detail {

/// The members that a visit names, in its order, of two values of one type.
class MemberPairs {
public:
    MemberPairs();
    MemberPairs(const MemberPairs&) = delete;
    MemberPairs& operator=(const MemberPairs&) = delete;
    MemberPairs(MemberPairs&&) = delete;
    MemberPairs& operator=(MemberPairs&&) = delete;
    ~MemberPairs();

    /// Adds a member of one side, 0 or 1.
    template <class T>
    void add(std::size_t side, const T& member) {
        add(side, {&member, [](const void* left, const void* right) {
                       return *static_cast<const T*>(left) == *static_cast<const T*>(right);
                   }});
    }

    /// Whether both sides have equal members.
    [[nodiscard]] bool areEqual() const;

private:
    struct Member {
        const void* address;
        bool (*isEqual)(const void* left, const void* right);
    };

    void add(std::size_t side, const Member& member);

    std::array<std::vector<Member>, 2> sides_;
};

/// Runs over a visit to collect the members. `Reader` explains the operations. Gates are open: a member that would not
/// be written is one, too.
class MemberCollector {
public:
    MemberCollector(MemberPairs& members, std::size_t side) : members_(&members), side_(side) {}

    template <class Gate, class = RequireCondition<Gate>>
    [[nodiscard]] MemberCollector readWhen(const Gate& /*condition*/) const {
        return *this;
    }

    template <class Gate, class = RequireCondition<Gate>>
    [[nodiscard]] MemberCollector writeWhen(const Gate& /*condition*/) const {
        return *this;
    }

    template <class Gate, class = RequireCondition<Gate>>
    [[nodiscard]] MemberCollector when(const Gate& /*condition*/) const {
        return *this;
    }

    [[nodiscard]] MemberCollector always() const { return *this; }
    [[nodiscard]] static bool exists() { return true; }
    [[nodiscard]] MemberCollector element(const char* /*name*/) const { return *this; }
    static void constant(const char* /*name*/, const char* /*text*/) {}

    template <class T, class... AnyQuantity>
    bool attribute(const char* /*name*/, const T& member, const AnyQuantity&... /*quantity*/) {
        return add(member);
    }

    template <class T, class... AnyQuantity>
    bool text(const T& member, const AnyQuantity&... /*quantity*/) {
        return add(member);
    }

    template <class T, class... AnyQuantity>
    bool value(const char* /*name*/, const T& member, const AnyQuantity&... /*quantity*/) {
        return add(member);
    }

    template <class T, class... AnyQuantity>
    void field(const char* /*name*/, const property<T>& member, const AnyQuantity&... /*quantity*/) {
        add(member);
    }

    template <class Array, class AnyQuantity>
    bool array(const char* /*name*/, const Array& member, std::initializer_list<std::size_t> /*lengths*/,
               const AnyQuantity& /*quantity*/) {
        return add(member);
    }

    template <class Array, class AnyQuantity>
    bool array(const char* /*name*/, const Array& member, std::size_t /*length*/, const AnyQuantity& /*quantity*/) {
        return add(member);
    }

    template <class T, class Visit>
    void structure(const char* /*name*/, const property<T>& member, Visit visit) {
        group(member, visit);
    }

    template <class T, class Visit>
    void group(const property<T>& member, Visit visit) {
        add(member.hasValue);
        visit(*this, member.value);
    }

    template <class Record>
    void record(const Record& member, const bool& flag) {
        add(member);
        add(flag);
    }

    template <class Record>
    void record(const property<Record>& member) {
        add(member);
    }

    template <class Record, class Visit>
    void rows(const char* /*name*/, const Record& record, Visit /*visit*/) {
        add(record.objects);
    }

    template <class Record, class Visit>
    void rowsWithContent(const char* name, const Record& record, Visit visit) {
        rows(name, record, visit);
    }

    template <class Visit>
    void keyed(const char* /*name*/, const char* /*key*/, const char* /*text*/, Visit visit) {
        visit(*this);
    }

    template <class AnyCondition>
    void derive(const bool& flag, const AnyCondition& /*condition*/) {
        add(flag);
    }

private:
    template <class T>
    bool add(const T& member) {
        members_->add(side_, member);
        return true;
    }

    MemberPairs* members_;
    std::size_t side_;
};

/// Whether two values are equal in all members that their visit names.
template <class T, class Visit>
[[gnu::cold]] [[nodiscard]] bool areEqual(const T& left, const T& right, Visit visit) {
    const std::array<const T*, 2> sides = {&left, &right};
    MemberPairs members;
    for (std::size_t side = 0; side < sides.size(); ++side) {  // one call of the visit, so that its code is there once
        MemberCollector collector(members, side);
        visit(collector, *sides.at(side));
    }
    return members.areEqual();
}

}  // namespace lv::detail
