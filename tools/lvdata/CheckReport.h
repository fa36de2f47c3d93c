#pragma once

#include "Output.h"
#include "Palette.h"

#include <lvdata/analysis/check/Finding.h>
#include <lvdata/analysis/json/JSONWriter.h>

#include <cstddef>
#include <string>

namespace tool {

/// Writes the findings of documents as text for people, or as one JSON object.
class CheckReport {
public:
    /// The layout of the report.
    struct Form {
        bool isJSON = false;
        bool withInfos = false;  // text only: JSON has everything
        ColorChoice color = ColorChoice::automatic;
    };

    /// The output must outlive the report.
    CheckReport(Output& output, const Form& form);

    /// The findings of the next document.
    void add(const std::string& name, const lv::analysis::Findings& findings);

    /// A document that could not be read; it counts among the unreadable only.
    void addUnreadable() { ++unreadable_; }

    /// Writes the totals.
    void end();

private:
    void addText(const std::string& name, const lv::analysis::Findings& findings);
    void addJSON(const std::string& name, const lv::analysis::Findings& findings);
    void addCount(const char* key, std::size_t count);
    void addMember(const char* key, const std::string& text);
    void writePending();
    [[nodiscard]] std::string summary() const;

    Output& output_;
    Form form_;
    Palette palette_;
    std::string pending_{};  // JSON that is not written yet
    lv::analysis::JSONWriter writer_;
    std::size_t documents_ = 0;
    std::size_t faulty_ = 0;
    std::size_t unreadable_ = 0;
    lv::analysis::Findings total_{};
};

}  // namespace tool
