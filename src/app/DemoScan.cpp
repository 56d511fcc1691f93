#include "app/ContentView.h"

#include <QGuiApplication>

#include <array>

namespace drossbin {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::nanoseconds demoStepTime = 300ms;
constexpr double demoBytes = 200'000'000'000;
constexpr std::array demoTasks{"Scanning program caches...", "Scanning package caches...",
                               "Scanning app data...", "Scanning logs...", "Scan complete"};

} // namespace

bool ContentView::optionHeld() {
    return QGuiApplication::queryKeyboardModifiers().testFlag(Qt::AltModifier);
}

QCoro::Task<std::vector<DiskItem>> ContentView::scanDemo() {
    for (std::size_t step = 1; step <= demoTasks.size(); ++step) {
        co_await m_services.sleep(demoStepTime);
        const double fraction = static_cast<double>(step) / demoTasks.size();
        m_scanResult.scanProgress = fraction;
        m_scanResult.currentTask = demoTasks[step - 1];
        m_scanResult.bytesFoundSoFar = static_cast<std::int64_t>(fraction * demoBytes);
    }
    co_return m_services.demoItems();
}

} // namespace drossbin
