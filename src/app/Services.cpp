#include "app/Services.h"

#include "platform/FileManager.h"
#include "scanner/MockData.h"

#include <QCoroTimer>

namespace drossbin {

Services Services::real() {
    return {
        .scan = DiskScanner::scan,
        .demoItems = MockData::generate,
        .deleteItems =
            [](const auto& items, const auto& progress) {
                return DiskCleaner::deleteItems(items, progress);
            },
        .diskSpace = [] { return FileManager::systemSize("/"); },
        .sleep = [](std::chrono::nanoseconds time) { return QCoro::sleepFor(time); },
    };
}

} // namespace drossbin
