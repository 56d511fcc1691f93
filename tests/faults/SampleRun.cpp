#include "faults/SampleRun.h"

#include "cleaner/DiskCleaner.h"
#include "platform/BackgroundThread.h"
#include "platform/OutOfMemory.h"
#include "scanner/DiskScanner.h"
#include "support/ChildProcess.h"
#include "support/HandTurnedQueue.h"
#include "support/March.h"
#include "support/ScopedLocale.h"
#include "support/SystemCalls.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <iterator>
#include <memory>
#include <sstream>
#include <sys/mman.h>
#include <sys/resource.h>
#include <unistd.h>
#include <utility>

namespace drossbin::test {

namespace {

/// What a process tells its parent as it goes, however it ends.
struct Report {
    std::atomic<int> calls;
    std::atomic<bool> hasHappened;
    std::atomic<bool> hasFinished;
    int descriptorsLeft;
    std::int64_t bytesFreed;
    std::array<char, 16'384> items; ///< size, name and path of each, a line apiece
    std::array<char, 16'384> log;
};

struct Unmap {
    void operator()(Report* report) const { ::munmap(report, sizeof(Report)); }
};

std::unique_ptr<Report, Unmap> sharedReport() {
    void* const memory =
        ::mmap(nullptr, sizeof(Report), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    return std::unique_ptr<Report, Unmap>(static_cast<Report*>(memory));
}

int openDescriptors() {
    return static_cast<int>(std::distance(std::filesystem::directory_iterator("/dev/fd"),
                                          std::filesystem::directory_iterator()));
}

void note(const std::string& text, std::array<char, 16'384>& place) {
    std::memcpy(place.data(), text.data(), std::min(text.size(), place.size() - 1));
}

/// The scan and the deletion, each on a thread of its own as in the program.
class Program {
  public:
    Program(std::string home, const Disturbance& disturbance, Report& report)
        : m_home(std::move(home))
        , m_disturbance(disturbance)
        , m_report(report) {}

    void live() {
        const int before = openDescriptors();
        std::vector<DiskItem> items;
        inBackground(m_disturbance.signal == 0, [&] { items = DiskScanner::scan([](auto...) {}); });
        std::erase_if(items, [this](const DiskItem& item) {
            return item.risk == RiskLevel::critical || !item.path.starts_with(m_home + "/");
        });
        noteItems(items);
        DiskCleaner::Outcome outcome;
        inBackground(true, [&] {
            outcome = DiskCleaner::deleteItems(
                items, [](auto...) {}, [] { return march; });
        });
        noteOutcome(outcome);
        m_report.descriptorsLeft = openDescriptors() - before;
        m_report.hasFinished = true;
    }

  private:
    void inBackground(bool isDisturbed, const std::function<void()>& job) {
        const SystemCallHook hook(
            [&](const SystemCallHook::Call& call) { return isDisturbed ? disturb(call) : 0; },
            SystemCallHook::Threads::all);
        BackgroundThread::run(job);
        m_mainThread.turn();
        BackgroundThread::waitForAll();
    }

    int disturb(const SystemCallHook::Call& call) {
        const bool isOfFiles = call.function != "malloc" && call.function != "pthread_create";
        const bool counts =
            m_disturbance.function.empty() ? isOfFiles : m_disturbance.function == call.function;
        if (!counts || ++m_report.calls != m_disturbance.nth) {
            return 0;
        }
        m_report.hasHappened = true;
        if (m_disturbance.signal != 0) {
            ::raise(m_disturbance.signal);
        }
        return m_disturbance.error;
    }

    void noteItems(const std::vector<DiskItem>& items) {
        std::string text;
        for (const DiskItem& item : items) {
            text += std::to_string(item.size) + "\t" + item.name + "\t" + item.path + "\n";
        }
        note(text, m_report.items);
    }

    void noteOutcome(const DiskCleaner::Outcome& outcome) {
        m_report.bytesFreed = outcome.bytesFreed;
        std::string text;
        for (const std::string& line : outcome.log) {
            text += line + "\n";
        }
        note(text, m_report.log);
    }

    std::string m_home;
    Disturbance m_disturbance;
    Report& m_report;
    HandTurnedQueue m_mainThread;
};

void run(const SampleHome& home, const Disturbance& disturbance, Report& report) {
    ::dup2(::open(home.errors().c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600), STDERR_FILENO);
    ::setenv("HOME", home.path().c_str(), 1);
    ::signal(SIGHUP, SIG_DFL); // the tests may have been started by nohup
    const rlimit noCore{0, 0}; // it may end by an abort, many times
    ::setrlimit(RLIMIT_CORE, &noCore);
    stopWhenOutOfMemory();
    const StandInFolder systemLogs("/var/log", home.systemLogs());
    Program(home.path(), disturbance, report).live();
}

} // namespace

bool isWhole() {
    // NOLINTNEXTLINE(concurrency-mt-unsafe): nobody sets it meanwhile
    return std::getenv("DROSSBIN_WHOLE") != nullptr;
}

SampleRun::SampleRun(const SampleHome& home, const Disturbance& disturbance) {
    const ScopedLocale english({"en_US"});
    const auto report = sharedReport();
    status = endOfChild([&] {
        run(home, disturbance, *report);
        return EXIT_SUCCESS;
    });
    hasHappened = report->hasHappened;
    hasFinished = report->hasFinished;
    descriptorsLeft = report->descriptorsLeft;
    bytesFreed = report->bytesFreed;
    std::istringstream items(report->items.data());
    std::int64_t size = 0;
    for (std::string name, path; items >> size && items.ignore() &&
                                 std::getline(items, name, '\t') && std::getline(items, path);) {
        sizes[path] = size;
        names[path] = name;
    }
    std::istringstream lines(report->log.data());
    for (std::string line; std::getline(lines, line);) {
        log.push_back(line);
    }
}

} // namespace drossbin::test
