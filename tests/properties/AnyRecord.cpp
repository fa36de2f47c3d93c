#include <tests/properties/AnyRecord.h>
#include <tests/support/describe.h>
#include <tests/support/model/model.h>

#include <lvdata/records/EveryRecord.h>

#include <utility>

namespace lv::test {
namespace {

template <class Record>
class Held : public AnyRecord {
public:
    Held() = default;
    explicit Held(const Record& record) : record_(record) {}

    [[nodiscard]] std::string rootName() const override { return Record::rootElementName; }
    [[nodiscard]] std::string description() const override { return describe(record_); }
    [[nodiscard]] Members members() override { return MemberList::listOf(record_); }
    [[nodiscard]] const TraitsByPath& traits() const override { return traitsOf<Record>(); }

    [[nodiscard]] std::string text(const PrintForm& form) const override {
        return record_.toXMLString(form.declaration, form.pretty);
    }

    [[nodiscard]] bool parse(const std::string& text) override { return record_.parseXMLString(text); }

    [[nodiscard]] std::string textByTheRules(const PrintForm& form) const override {
        return writtenByTheRules(record_, form);
    }

    [[nodiscard]] bool parseByTheRules(const std::string& text) override { return readByTheRules(record_, text); }

    [[nodiscard]] std::unique_ptr<AnyRecord> fresh() const override { return std::make_unique<Held>(); }
    [[nodiscard]] std::unique_ptr<AnyRecord> copy() const override { return std::make_unique<Held>(record_); }
    void assign(const AnyRecord& other) override { record_ = recordOf(other); }
    [[nodiscard]] bool isEqualTo(const AnyRecord& other) const override { return record_ == recordOf(other); }

private:
    [[nodiscard]] static const Record& recordOf(const AnyRecord& held) {
        return dynamic_cast<const Held&>(held).record_;
    }

    Record record_;
};

template <class... Records>
std::vector<SharedRecord> freshOnes(RecordTypes<Records...> /*list*/) {
    return {std::make_shared<Held<Records>>()...};
}

}  // namespace

std::vector<SharedRecord> everyRecord() {
    return freshOnes(EveryRecord());
}

}  // namespace lv::test
