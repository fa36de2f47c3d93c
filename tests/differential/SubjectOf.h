#pragma once

#include <tests/differential/Subject.h>
#include <tests/support/every_record.h>

namespace lv::test {

/// A record of the style that this is compiled in.
template <class Record>
class SubjectOf final : public differential::Subject {
public:
    void fill() override { record_ = filled<Record>(); }
    [[nodiscard]] bool parse(const std::string& document) override { return record_.parseXMLString(document); }
    [[nodiscard]] std::string members() const override { return describe(record_); }
    [[nodiscard]] std::string print(bool pretty) const override { return record_.toXMLString(false, pretty); }

private:
    Record record_;
};

template <class Record>
std::unique_ptr<differential::Subject> make() {
    return std::make_unique<SubjectOf<Record>>();
}

template <class... Records>
[[nodiscard]] differential::Makers makersOf(::testing::Types<Records...> /*list*/) {
    return {{Records::rootElementName, &make<Records>}...};
}

}  // namespace lv::test
