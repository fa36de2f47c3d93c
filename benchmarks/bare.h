#pragma once

#include <cstddef>
#include <string>

#include <tinyxml2.h>

namespace benchmarks {

/// The compact text of a document by the XML library alone, which every printing is measured against.
inline std::string printBare(const tinyxml2::XMLDocument& document) {
    tinyxml2::XMLPrinter printer(nullptr, true);
    document.Accept(&printer);
    return {printer.CStr(), static_cast<std::size_t>(printer.CStrSize() - 1)};
}

}  // namespace benchmarks
