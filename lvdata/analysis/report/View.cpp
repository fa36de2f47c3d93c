#include <lvdata/analysis/report/View.h>

namespace lv::analysis {

View::View(Items items) : value_(std::move(items)) {}

View::View(Members members) : value_(std::move(members)) {}

}  // namespace lv::analysis
