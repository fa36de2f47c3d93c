#include <lvdata/analysis/report/View.h>

#include <utility>

namespace lv::analysis {

View::View(bool condition) : value_(condition) {}

View::View(std::string text) : value_(std::move(text)) {}

View::View(std::string_view text) : value_(std::string(text)) {}

View::View(const char* text) : value_(std::string(text)) {}

View::View(Items items) : value_(std::move(items)) {}

View::View(Members members) : value_(std::move(members)) {}

}  // namespace lv::analysis
