#include "report_folder.h"

#include "Failure.h"
#include "OrderedWork.h"
#include "Output.h"
#include "messages.h"

#include <lvdata/analysis/files/DocumentWalk.h>
#include <lvdata/analysis/files/HeldSignals.h>
#include <lvdata/analysis/monitors/page_names.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <system_error>
#include <utility>
#include <variant>

namespace tool {
namespace {

namespace fs = std::filesystem;

using lv::analysis::MonitorDocuments;
using lv::analysis::MonitorPage;

/// A page, or the message why it could not be made.
using Made = std::variant<MonitorPage, std::string>;

Made make(const PageMaker& maker, const MonitorDocuments& documents) {
    try {
        return maker.pageOf(documents);
    } catch (const Failure& failure) {
        return failure.what();
    } catch (const std::bad_alloc&) {
        return std::string(Failure(latestOf(documents).snapshot.document, "out of memory").what());
    }
}

/// Calls `take` with each page, in order and on this thread; the pages are made by as many threads as there are jobs.
void makeAll(const std::vector<MonitorDocuments>& monitors, const PageMaker& maker, std::size_t jobs,
             const std::function<void(Made&&)>& take) {
    constexpr std::size_t pagesPerJob = 4;
    std::size_t next = 0;
    std::optional<OrderedWork<std::size_t, Made>> work;
    {
        const lv::analysis::HeldSignals held;  // signals go to this thread, which writes and must clean up
        work.emplace([&] { return next < monitors.size() ? std::optional(next++) : std::nullopt; },
                     [&](std::size_t index) { return make(maker, monitors[index]); }, jobs, jobs * pagesPerJob);
    }
    while (auto made = work->take()) {
        take(std::move(*made));
    }
}

/// Writes pages into a folder.
class FolderWriter {
public:
    FolderWriter(const std::string& folder, const InputFiles& inputs) : folder_(folder), inputs_(inputs) {
        std::error_code error;
        fs::create_directories(fs::u8path(folder), error);
        if (error) {
            const bool isNoFolder = error == std::errc::file_exists || error == std::errc::not_a_directory;
            throw Failure(folder, isNoFolder ? "not a folder" : error.message());
        }
    }

    /// Does not overwrite a file that is not such a page.
    void write(const std::string& page, const std::string& text) const {
        const std::string file = lv::analysis::pathIn(folder_, page);
        inputs_.refuseToOverwrite(file);
        refuseUnlessPage(file);
        writeResult(file, text);
    }

private:
    static void refuseUnlessPage(const std::string& file) {
        const std::string why = lv::analysis::whyNotOverwritten(fs::u8path(file));
        if (!why.empty()) {
            throw Failure(file, why);
        }
    }

    const std::string& folder_;
    const InputFiles& inputs_;
};

}  // namespace

ExitStatus writeReportFolder(const ReportFolder& report, const std::vector<MonitorDocuments>& monitors,
                             const PageMaker& maker, const InputFiles& inputs) {
    const std::vector<std::string> names = pageNames(monitors);
    const FolderWriter writer(report.folder, inputs);
    std::vector<lv::analysis::FleetEntry> entries;
    ExitStatus status = ExitStatus::done;
    std::size_t index = 0;
    makeAll(monitors, maker, report.jobs, [&](Made&& made) {
        const std::string& name = names[index++];
        if (const std::string* const message = std::get_if<std::string>(&made)) {
            printMessage(*message);
            status = ExitStatus::failed;
            return;
        }
        auto& page = std::get<MonitorPage>(made);
        writer.write(name, page.text);
        if (report.failsOnLimits && !page.isWithinLimits()) {
            status = worst(status, ExitStatus::found);
        }
        page.entry.page = name;
        entries.push_back(std::move(page.entry));
    });
    writer.write("index.html", fleetPage(entries, report.form));
    return status;
}

}  // namespace tool
