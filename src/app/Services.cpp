#include "app/Services.h"

#include "platform/FileManager.h"
#include "scanner/MockData.h"

#include <QCoroTimer>
#include <QTimer>

namespace drossbin {

namespace {

/// A timer that is not precise may end a twentieth early.
QCoro::Task<> sleepAtLeast(std::chrono::nanoseconds time) {
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    timer.setSingleShot(true);
    timer.start(std::chrono::ceil<std::chrono::milliseconds>(time));
    co_await timer;
}

} // namespace

Services Services::real() {
    return {
        .scan = DiskScanner::scan,
        .demoItems = MockData::generate,
        .deleteItems =
            [](const auto& items, const auto& progress) {
                return DiskCleaner::deleteItems(items, progress);
            },
        .diskSpace = [] { return FileManager::systemSize("/"); },
        .sleep = sleepAtLeast,
    };
}

} // namespace drossbin
