#include <lvdata/xml/detail/Output.h>
#include <lvdata/xml/detail/Printer.h>
#include <lvdata/xml/detail/element_writing.h>

#include <string>
#include <vector>

#include <tinyxml2.h>

namespace lv::detail {
namespace {

void print(Printer& printer, const Place& place, const std::string& value) {
    printer.addText(place, value.c_str());
}

void print(Printer& printer, const Place& place, bool value) {
    printer.addText(place, valueText(value).c_str());
}

template <class Number>
void print(Printer& printer, const Place& place, Number value) {
    printer.addNumber(place, value);
}

template <class Number>
void print(Printer& printer, const Place& place, const std::vector<Number>& values) {
    printer.addNumbers(place, values);
}

}  // namespace

Output Output::append(const char* name) const {
    Output child;
    if (printer_ != nullptr) {
        child.printer_ = printer_;
        child.place_ = printer_->open(place_, name);
    } else if (element_ != nullptr) {
        child.element_ = appendElement(*element_, name);
    }
    return child;
}

template <class T>
void Output::addText(const T& value) const {
    if (printer_ != nullptr) {
        print(*printer_, place_, value);
    } else if (element_ != nullptr) {
        appendText(*element_, valueText(value));
    }
}

template <class T>
void Output::setAttribute(const char* name, const T& value) const {
    if (printer_ != nullptr) {
        printer_->addAttribute(place_, name, valueText(value).c_str());
    } else if (element_ != nullptr) {
        detail::setAttribute(*element_, name, valueText(value));
    }
}

void Output::finish() const {
    if (printer_ != nullptr) {
        printer_->closeInside(place_);
    }
}

template void Output::addText(const std::string& value) const;
template void Output::addText(const bool& value) const;
template void Output::addText(const int& value) const;
template void Output::addText(const unsigned int& value) const;
template void Output::addText(const std::vector<int>& value) const;
template void Output::addText(const std::vector<unsigned int>& value) const;

template void Output::setAttribute(const char* name, const std::string& value) const;
template void Output::setAttribute(const char* name, const unsigned int& value) const;

}  // namespace lv::detail
