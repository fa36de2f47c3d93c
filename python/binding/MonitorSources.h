#pragma once

#include "units.h"

#include <lvdata/analysis/figures/LimitSet.h>
#include <lvdata/analysis/monitors/Fleet.h>
#include <lvdata/analysis/monitors/MonitorPage.h>
#include <lvdata/analysis/pictures/drawing.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace lv::python {

/// The documents of one monitor. None of the functions needs the GIL; one thread at a time.
class MonitorSources {
public:
    /// \param isWhole  whether to keep what pictures draw: tables, patches, steps and maps
    MonitorSources(const Units& units, bool isWhole) : known_(knownUnits(units)), isWhole_(isWhole) {}

    /// Adds a document. Throws `ParseFailure` when it holds no monitor, or is of another one than those before.
    void add(const std::string& text, const std::string& file);

    /// The place of the latest one, counted from 0 in the order of adding.
    [[nodiscard]] std::size_t latest();

    /// A picture. Throws `std::invalid_argument` when the documents do not have what is asked for.
    [[nodiscard]] std::string picture(const analysis::PictureRequest& request, const analysis::LimitSet* limits);

    /// The page. `text` is that of the latest document.
    [[nodiscard]] analysis::MonitorPage page(const std::string& text, const analysis::ReportForm& form);

private:
    const analysis::MonitorDocuments& documents();

    analysis::KnownUnits known_;
    bool isWhole_;
    std::vector<std::string> files_;  // in the order of adding
    analysis::Fleet fleet_;
    analysis::MonitorDocuments documents_;  // once all are added; `file` is the place
};

}  // namespace lv::python
