#include <tests/properties/AnyRecord.h>
#include <tests/properties/records.h>
#include <tests/support/describe.h>

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
    void visit(Members& visitor) override { members(visitor, record_); }

    [[nodiscard]] std::string text(bool declaration, bool pretty) const override {
        return record_.toXMLString(declaration, pretty);
    }

    [[nodiscard]] bool parse(const std::string& text) override { return record_.parseXMLString(text); }
    [[nodiscard]] bool readByTheRules(const Found& element) override { return readRecord(element, record_); }
    void loseByTheRules() override { lose(record_, record_.writeHLGSystemGamma); }

    [[nodiscard]] std::unique_ptr<AnyRecord> fresh() const override { return std::make_unique<Held>(); }
    [[nodiscard]] std::unique_ptr<AnyRecord> copy() const override { return std::make_unique<Held>(record_); }
    void assign(const AnyRecord& other) override { record_ = dynamic_cast<const Held&>(other).record_; }

private:
    Record record_;
};

template <class... Records>
std::vector<SharedRecord> freshOnes(testing::Types<Records...> /*list*/) {
    return {std::make_shared<Held<Records>>()...};
}

}  // namespace

std::vector<SharedRecord> everyRecord() {
    return freshOnes(EveryRecord());
}

}  // namespace lv::test
