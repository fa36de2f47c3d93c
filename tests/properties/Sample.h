#pragma once

#include <tests/properties/AnyRecord.h>
#include <tests/properties/Arbitrary.h>

#include <ostream>

#include <rapidcheck.h>

namespace lv::test {

/// A record in any state, as RapidCheck makes, shrinks and shows it.
struct Sample {
    SharedRecord record;
};

std::ostream& operator<<(std::ostream& out, const Sample& sample);

/// Samples of the class of `fresh`.
[[nodiscard]] rc::Gen<Sample> samplesOf(const SharedRecord& fresh, Texts texts = Texts::any);

}  // namespace lv::test
