#include "frontends/kelvane/batch.h"

#include <algorithm>
#include <atomic>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

#include "frontends/kelvane/file_conversion.h"
#include "frontends/kelvane/output_file.h"
#include "frontends/kelvane/progress.h"

namespace kelvane {
namespace {

/// Takes outcomes as they come and passes them on in the order of the files.
class Desk {
 public:
  Desk(const std::vector<WorkItem>& items, const std::optional<std::string>& report)
      : items_(items), waiting_(items.size()), progress_(items.size()) {
    if (report) report_ = OpenOutput(*report);
  }

  /// Used by any thread.
  void Take(std::size_t index, FileOutcome outcome) {
    const std::scoped_lock lock(mutex_);
    waiting_[index] = std::move(outcome);
    for (; next_ < waiting_.size() && waiting_[next_]; ++next_)
      PassOn(items_[next_], *std::exchange(waiting_[next_], std::nullopt));
    progress_.Show(++taken_);
  }

  /// Once all have been taken. @return the exit status.
  int Close() {
    if (items_.size() > 1) progress_.Say(Totals());
    if (report_ && !reportError_) Report([this] { report_->Commit(); });
    if (reportError_) throw std::system_error(reportError_);
    return status_;
  }

 private:
  void PassOn(const WorkItem& item, const FileOutcome& outcome) {
    status_ = std::max(status_, outcome.status);
    converted_ += outcome.HasDocument() ? 1 : 0;
    incomplete_ += outcome.missing > 0 ? 1 : 0;
    const std::string message = MessageOn(outcome);
    const std::string name = item.input == "-" ? "standard input" : item.input;
    if (!message.empty()) progress_.Say("kelvane: " + name + ": " + message);
    if (report_ && !reportError_) {
      const std::string line = outcome.report + "\n";
      Report([&] {
        report_->Write({reinterpret_cast<const unsigned char*>(line.data()), line.size()});
      });
    }
  }

  /// A page that lacks something is spoken of where nothing else would tell of it.
  [[nodiscard]] std::string MessageOn(const FileOutcome& outcome) const {
    if (!outcome.message.empty() || outcome.missing == 0 || report_ || items_.size() > 1) {
      return outcome.message;
    }
    return std::to_string(outcome.missing) + (outcome.missing == 1 ? " record" : " records") +
           " left out of the picture; --report FILE tells which";
  }

  [[nodiscard]] std::string Totals() const {
    std::string line =
        std::to_string(items_.size()) + " files: " + std::to_string(converted_) + " converted";
    if (incomplete_ > 0) line += ", " + std::to_string(incomplete_) + " of them incomplete";
    const std::size_t failed = items_.size() - converted_;
    return failed > 0 ? line + ", " + std::to_string(failed) + " failed" : line;
  }

  /// What is wrong with the report stops neither the conversions nor their own messages.
  template <class Write>
  void Report(const Write& write) {
    try {
      write();
    } catch (const std::system_error& error) {
      reportError_ = error.code();
    }
  }

  const std::vector<WorkItem>& items_;
  std::mutex mutex_;
  std::vector<std::optional<FileOutcome>> waiting_;  // for those before them
  std::size_t next_ = 0;                             // to be passed on
  std::size_t taken_ = 0;
  std::size_t converted_ = 0;
  std::size_t incomplete_ = 0;
  int status_ = 0;
  Progress progress_;
  CFOwned<CGDataConsumer> report_;
  std::error_code reportError_;
};

/// Lets as many threads work as there are to be, this one among them.
template <class Work>
void InThreads(std::size_t count, const Work& work) {
  std::vector<std::jthread> others;
  try {
    while (others.size() + 1 < count)
      others.emplace_back(work);
  } catch (const std::system_error&) {
    // Those that there are will do.
  }
  work();
}

}  // namespace

int Convert(const std::vector<WorkItem>& items, const BatchOrders& orders) {
  Desk desk(items, orders.report);
  std::atomic<std::size_t> next = 0;
  InThreads(std::min<std::size_t>(orders.jobs, items.size()), [&] {
    for (std::size_t i = next++; i < items.size(); i = next++)
      desk.Take(i, ConvertFile(items[i], orders.options));
  });
  return desk.Close();
}

}  // namespace kelvane
