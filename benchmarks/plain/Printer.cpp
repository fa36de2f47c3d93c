#include <lvdata/xml/detail/Printer.h>

// The text of a document is that of the XML library's own printer.

namespace lv::detail {

Printer::Printer(bool compact) : XMLPrinter(nullptr, compact), compact_(compact) {}

void Printer::addDeclaration() {
    PushDeclaration(R"(xml version="1.0" encoding="UTF-8" standalone="no")");
}

bool Printer::Visit(const tinyxml2::XMLText& text) {
    return XMLPrinter::Visit(text);
}

}  // namespace lv::detail
