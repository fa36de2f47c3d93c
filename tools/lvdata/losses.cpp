#include "losses.h"

#include "finding_text.h"
#include "messages.h"

#include <cstddef>

namespace tool {

using lv::analysis::Finding;
using lv::analysis::Findings;
using lv::analysis::Severity;

void printLosses(const std::string& name, const Findings& losses, const std::string& more) {
    constexpr std::size_t mostPrinted = 10;
    std::size_t printed = 0;
    for (const Finding& loss : losses.listed) {
        if (loss.severity != Severity::info && printed++ < mostPrinted) {
            printMessage(lineOf(name, loss));
        }
    }
    const std::size_t count = losses.countFrom(Severity::warning);
    if (count > mostPrinted) {
        printMessage(name + ": warning: " + counted(count - mostPrinted, "more change") + more);
    }
}

}  // namespace tool
