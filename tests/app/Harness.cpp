#include "Harness.h"

#include "platform/BackgroundThread.h"

#include <QTest>

#include <sstream>
#include <utility>

namespace drossbin::test {

namespace {

std::string quoted(const std::string& text) {
    return "\"" + text + "\"";
}

std::string word(bool value) {
    return value ? "true" : "false";
}

std::string number(double value) {
    std::ostringstream text;
    text << value;
    return text.str();
}

std::string namesOf(const std::vector<DiskItem>& items) {
    std::string names;
    for (const DiskItem& item : items) {
        names += (names.empty() ? "" : ",") + item.name + (item.isSelected ? "*" : "");
    }
    return "[" + names + "]";
}

std::string joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += (text.empty() ? "" : ",") + line;
    }
    return "[" + text + "]";
}

std::string written(const ScanResult& result, ScanResult::Field field) {
    using enum ScanResult::Field;
    switch (field) {
    case items:
        return "items=" + namesOf(result.items);
    case isScanning:
        return "isScanning=" + word(result.isScanning);
    case hasScanned:
        return "hasScanned=" + word(result.hasScanned);
    case scanProgress:
        return "scanProgress=" + number(result.scanProgress);
    case currentTask:
        return "currentTask=" + quoted(result.currentTask);
    case bytesFoundSoFar:
        return "bytesFoundSoFar=" + std::to_string(result.bytesFoundSoFar);
    case isDeleting:
        return "isDeleting=" + word(result.isDeleting);
    case deleteProgress:
        return "deleteProgress=" + number(result.deleteProgress);
    case freedSpace:
        return "freedSpace=" + std::to_string(result.freedSpace);
    case showDeletionComplete:
        return "showDeletionComplete=" + word(result.showDeletionComplete);
    case showConfirmation:
        return "showConfirmation=" + word(result.showConfirmation);
    case deletionLog:
        return "deletionLog=" + joined(result.deletionLog);
    case searchText:
        return "searchText=" + quoted(result.searchText);
    }
    return {};
}

} // namespace

DiskItem item(const std::string& name, std::int64_t size, DiskCategory category, RiskLevel risk) {
    DiskItem item;
    item.name = name;
    item.path = "/home/ada/" + name;
    item.size = size;
    item.category = category;
    item.risk = risk;
    item.sfSymbol = icon(category);
    return item;
}

DiskItem selected(DiskItem item) {
    item.isSelected = true;
    return item;
}

Services servicesThatFind(std::vector<DiskItem> found) {
    return {
        .scan = [found](const DiskScanner::Progress&) { return found; },
        .demoItems = [found] { return found; },
        .deleteItems = [](const auto&, const auto&) { return DiskCleaner::Outcome{}; },
        .diskSpace = [] { return 1'000'000'000'000; },
        .sleep = [](std::chrono::nanoseconds) -> QCoro::Task<> { co_return; },
    };
}

bool turnUntil(const std::function<bool()>& holds) {
    constexpr int limitInMilliseconds = 10'000;
    return QTest::qWaitFor(holds, limitInMilliseconds);
}

void turn() {
    bool hasTurned = false;
    QMetaObject::invokeMethod(
        qApp, [&hasTurned] { hasTurned = true; }, Qt::QueuedConnection);
    turnUntil([&hasTurned] { return hasTurned; });
}

void settle() {
    BackgroundThread::waitForAll();
    turn();
    turn();
}

void scan(ContentView& view) {
    view.startScan(false);
    settle();
}

Recorder::Recorder(ScanResult& result)
    : m_result(result)
    , m_subscription(result.objectWillChange.subscribe([this](ScanResult::Field field) {
        finishWrite();
        m_announced = field;
    })) {}

std::vector<std::string> Recorder::take() {
    finishWrite();
    return std::exchange(m_writes, {});
}

// A write is announced before it is made, so its value is there when the next is announced.
void Recorder::finishWrite() {
    if (const auto field = std::exchange(m_announced, std::nullopt)) {
        m_writes.push_back(written(m_result, *field));
    }
}

} // namespace drossbin::test
