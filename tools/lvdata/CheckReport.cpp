#include "CheckReport.h"

#include "finding_text.h"

#include <lvdata/analysis/printable.h>
#include <lvdata/analysis/utf8.h>

namespace tool {

using lv::analysis::Finding;
using lv::analysis::Findings;
using lv::analysis::Severity;
using lv::analysis::Sink;

CheckReport::CheckReport(Output& output, const Form& form)
    : output_(output),
      form_(form),
      palette_(form.color),
      writer_(pending_) {
    if (form_.isJSON) {
        writer_.beginObject();
        writer_.key("findings");
        writer_.beginArray(Sink::Entries::objects);
    }
}

void CheckReport::add(const std::string& name, const Findings& findings) {
    ++documents_;
    faulty_ += findings.countFrom(Severity::warning) > 0 ? 1 : 0;
    total_.errors += findings.errors;
    total_.warnings += findings.warnings;
    total_.infos += findings.infos;
    if (form_.isJSON) {
        addJSON(name, findings);
    } else {
        addText(name, findings);
    }
}

void CheckReport::addText(const std::string& name, const Findings& findings) {
    std::size_t omitted = findings.countFrom(form_.withInfos ? Severity::info : Severity::warning);
    for (const Finding& finding : findings.listed) {
        if (form_.withInfos || finding.severity != Severity::info) {
            output_.write(lineOf(name, finding, palette_));
            --omitted;
        }
    }
    if (omitted > 0) {
        output_.write(palette_.paint(Style::name, lv::analysis::printable(name)) + ": " +
                      counted(omitted, "more finding") + '\n');
    }
}

void CheckReport::addJSON(const std::string& name, const Findings& findings) {
    for (const Finding& finding : findings.listed) {
        writer_.beginObject();
        addMember("id", std::string(finding.rule->id));
        addMember("severity", std::string(nameOf(finding.severity)));
        addMember("file", name);
        addCount("line", static_cast<std::size_t>(finding.line));
        addMember("path", finding.path);
        addMember("message", finding.message);
        writer_.endObject();
    }
    writePending();
}

void CheckReport::end() {
    if (!form_.isJSON) {
        output_.write(summary());
        return;
    }
    writer_.endArray();
    addCount("documents", documents_);
    addCount("unreadable", unreadable_);
    addCount("documents_with_findings", faulty_);
    addCount("errors", total_.errors);
    addCount("warnings", total_.warnings);
    addCount("infos", total_.infos);
    writer_.endObject();
    pending_ += '\n';
    writePending();
}

/// "200 documents, 15 of them with findings: 3 errors, 14 warnings, 120 remarks".
std::string CheckReport::summary() const {
    std::string text = counted(documents_, "document") + ", ";
    if (faulty_ == 0) {
        text += "no findings";
    } else {
        text += (documents_ == 1 ? "" : std::to_string(faulty_) + " of them ") +
                "with findings: " + counted(total_.errors, "error") + ", " + counted(total_.warnings, "warning");
    }
    text += total_.infos == 0 ? "" : ", " + counted(total_.infos, "remark");
    text += total_.infos == 0 || form_.withInfos ? "" : " (--info lists them)";
    return text + (unreadable_ == 0 ? "" : ", " + std::to_string(unreadable_) + " could not be read") + '\n';
}

void CheckReport::addCount(const char* key, std::size_t count) {
    writer_.key(key);
    writer_.number(std::to_string(count), Sink::NumberKind::integer);
}

/// Names of files and texts of documents can hold any bytes.
void CheckReport::addMember(const char* key, const std::string& text) {
    writer_.key(key);
    writer_.string(lv::analysis::inUTF8(text));
}

void CheckReport::writePending() {
    output_.write(pending_);
    pending_.clear();
}

}  // namespace tool
