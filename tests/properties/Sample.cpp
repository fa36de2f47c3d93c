#include <tests/properties/Sample.h>
#include <tests/properties/Simpler.h>

#include <cstddef>
#include <memory>

namespace lv::test {
namespace {

/// Nothing when the record has no such place.
rc::Maybe<Sample> simplerAt(std::size_t place, const Sample& sample) {
    std::shared_ptr<AnyRecord> candidate = sample.record->copy();
    Simpler simpler(place);
    simpler.visitAll(candidate->members());
    return simpler.done() ? rc::Maybe<Sample>(Sample{candidate}) : rc::Nothing;
}

/// The record made simpler in each place in turn.
rc::Seq<Sample> simplerThan(const Sample& sample) {
    return rc::Seq<Sample>([sample, place = std::size_t{0}]() mutable { return simplerAt(place++, sample); });
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const Sample& sample) {
    return out << '\n' << sample.record->rootName() << ":\n" << sample.record->description();
}

rc::Gen<Sample> samplesOf(const SharedRecord& fresh, Texts texts) {
    return [fresh, texts](const rc::Random& random, int /*size*/) {
        std::shared_ptr<AnyRecord> record = fresh->copy();
        Arbitrary(random, texts, fresh->traits()).visitAll(record->members());
        return rc::shrinkable::shrinkRecur(Sample{record}, &simplerThan);
    };
}

}  // namespace lv::test
