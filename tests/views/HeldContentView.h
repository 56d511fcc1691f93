#pragma once

#include "app/ContentView.h"
#include "platform/BackgroundThread.h"

#include <QCoreApplication>
#include <QSemaphore>
#include <QStringList>

#include <memory>
#include <string>

namespace drossbin::test {

/// A session that finds three items in each category or as many as it is told to, touches no disk,
/// and whose runs last until they are told to finish.
class HeldContentView : public ContentView {
    Q_OBJECT
    Q_PROPERTY(int perCategory READ perCategory WRITE setPerCategory)
    Q_PROPERTY(QString firstName READ firstName WRITE setFirstName)
    Q_PROPERTY(QString note READ note WRITE setNote)
    Q_PROPERTY(QStringList log READ log WRITE setLog)

  public:
    HeldContentView()
        : HeldContentView(std::make_shared<Runs>()) {}
    ~HeldContentView() override {
        m_runs->gate.release(someRuns);
        settle();
    }
    Q_DISABLE_COPY_MOVE(HeldContentView)

    /// Lets the run that is under way come to its end.
    Q_INVOKABLE void finish() {
        m_runs->gate.release();
        settle();
    }

    [[nodiscard]] int perCategory() const { return m_runs->perCategory; }
    void setPerCategory(int count) { m_runs->perCategory = count; }

    /// The name of the first item, if it is to have one of its own.
    [[nodiscard]] QString firstName() const { return m_runs->firstName; }
    void setFirstName(const QString& name) { m_runs->firstName = name; }

    /// What all items have as a note, if anything.
    [[nodiscard]] QString note() const { return m_runs->note; }
    void setNote(const QString& note) { m_runs->note = note; }

    /// What the next deletion says of its items.
    [[nodiscard]] QStringList log() const { return m_runs->log; }
    void setLog(const QStringList& lines) { m_runs->log = lines; }

  private:
    static constexpr int someRuns = 9;

    struct Runs {
        QSemaphore gate;
        int perCategory = 3;
        QString firstName;
        QString note;
        QStringList log;
    };

    explicit HeldContentView(const std::shared_ptr<Runs>& runs)
        : ContentView(services(runs))
        , m_runs(runs) {}

    static Services services(const std::shared_ptr<Runs>& runs) {
        return {
            .scan =
                [runs](const DiskScanner::Progress&) {
                    runs->gate.acquire();
                    return found(*runs);
                },
            .demoItems = [runs] { return found(*runs); },
            .deleteItems =
                [runs](const auto&, const auto&) {
                    runs->gate.acquire();
                    DiskCleaner::Outcome outcome;
                    for (const QString& line : runs->log) {
                        outcome.log.push_back(line.toStdString());
                    }
                    return outcome;
                },
            .diskSpace = [] { return 1'000'000'000'000; },
            .sleep = [](std::chrono::nanoseconds) -> QCoro::Task<> { co_return; },
        };
    }

    static std::vector<DiskItem> found(const Runs& runs) {
        std::vector<DiskItem> items;
        for (const DiskCategory category : allDiskCategories) {
            for (int number = 1; number <= runs.perCategory; ++number) {
                DiskItem item;
                item.name = std::string(rawValue(category)) + " " + std::to_string(number);
                item.path = "/home/ada/" + item.name;
                item.size = 1'000'000;
                item.category = category;
                if (!runs.note.isEmpty()) {
                    item.safetyNote = runs.note.toStdString();
                }
                items.push_back(item);
            }
        }
        if (!items.empty() && !runs.firstName.isEmpty()) {
            items.front().name = runs.firstName.toStdString();
        }
        return items;
    }

    static void settle() {
        BackgroundThread::waitForAll();
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    std::shared_ptr<Runs> m_runs;
};

} // namespace drossbin::test
