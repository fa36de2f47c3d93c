#include <lvdata/xml/detail/Printer.h>

namespace lv::detail {

bool Printer::Visit(const tinyxml2::XMLText& text) {
    return XMLPrinter::Visit(text);
}

void Printer::markAsPrinted(tinyxml2::XMLText& /*text*/) {}

}  // namespace lv::detail
