#pragma once

#include "app/ContentView.h"

#include <QCoreApplication>
#include <QSemaphore>
#include <QThreadPool>

#include <memory>

namespace drossbin::test {

/// A session that finds three items in each category, touches no disk, and whose runs last until
/// they are told to finish.
class HeldSession : public ContentView {
    Q_OBJECT

  public:
    HeldSession()
        : HeldSession(std::make_shared<QSemaphore>()) {}
    ~HeldSession() override {
        m_gate->release(someRuns);
        settle();
    }
    Q_DISABLE_COPY_MOVE(HeldSession)

    /// Lets the run that is under way come to its end.
    Q_INVOKABLE void finish() {
        m_gate->release();
        settle();
    }

  private:
    static constexpr int someRuns = 9;

    explicit HeldSession(const std::shared_ptr<QSemaphore>& gate)
        : ContentView(services(gate))
        , m_gate(gate) {}

    static Services services(const std::shared_ptr<QSemaphore>& gate) {
        return {
            .scan =
                [gate](const DiskScanner::Progress&) {
                    gate->acquire();
                    return found();
                },
            .demoItems = found,
            .deleteItems =
                [gate](const auto&, const auto&) {
                    gate->acquire();
                    return DiskCleaner::Outcome{};
                },
            .diskSpace = [] { return 1'000'000'000'000; },
            .sleep = [](std::chrono::nanoseconds) -> QCoro::Task<> { co_return; },
        };
    }

    static std::vector<DiskItem> found() {
        std::vector<DiskItem> items;
        for (const DiskCategory category : allDiskCategories) {
            for (const char* number : {"1", "2", "3"}) {
                DiskItem item;
                item.name = std::string(rawValue(category)) + " " + number;
                item.path = "/home/ada/" + item.name;
                item.size = 1'000'000;
                item.category = category;
                items.push_back(item);
            }
        }
        return items;
    }

    static void settle() {
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    std::shared_ptr<QSemaphore> m_gate;
};

} // namespace drossbin::test
