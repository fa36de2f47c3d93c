#include <lvdata/records/EveryRecord.h>
#include <lvdata/records/RecordClass.h>

#include <algorithm>
#include <array>

namespace lv {
namespace {

template <class Record>
std::unique_ptr<DataObject> make() {
    return std::make_unique<Record>();
}

template <class... Records>
constexpr std::array<RecordClass, sizeof...(Records)> classesOf(RecordTypes<Records...> /*list*/) {
    return {RecordClass{Records::rootElementName, &make<Records>, &Records::describe}...};
}

constexpr auto classes = classesOf(EveryRecord());

}  // namespace

const RecordClass* RecordClasses::begin() const {
    return classes.data();
}

const RecordClass* RecordClasses::end() const {
    return classes.data() + classes.size();
}

std::size_t RecordClasses::size() const {
    return classes.size();
}

const RecordClass* recordClass(std::string_view name) {
    const RecordClasses all;
    const auto* const found =
        std::find_if(all.begin(), all.end(), [&](const RecordClass& candidate) { return candidate.name == name; });
    return found == all.end() ? nullptr : found;
}

}  // namespace lv
