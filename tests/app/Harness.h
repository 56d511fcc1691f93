#pragma once

#include "app/ContentView.h"

#include <functional>
#include <string>
#include <vector>

namespace drossbin::test {

/// An item of `size` bytes at "/home/ada/<name>".
DiskItem item(const std::string& name, std::int64_t size,
              DiskCategory category = DiskCategory::programCaches,
              RiskLevel risk = RiskLevel::safe);

DiskItem selected(DiskItem item);

/// Services that answer at once: a scan and a demo find `found`, a deletion does nothing, the disk
/// holds 1 TB, and no sleep takes time.
Services servicesThatFind(std::vector<DiskItem> found);

/// Turns the event loop until `holds`; false when it does not within ten seconds.
bool turnUntil(const std::function<bool()>& holds);

/// Turns the event loop until everything that is queued now has run.
void turn();

/// Waits for all work in the background, and turns the event loop for what came of it. To be done
/// before a view goes that started some.
void settle();

/// Scans and waits for the end.
void scan(ContentView& view);

/// Every write that a session announces, in order, as "field=value".
class Recorder {
  public:
    explicit Recorder(ScanResult& result);

    /// The writes since the last call.
    std::vector<std::string> take();

  private:
    void finishWrite();

    ScanResult& m_result;
    std::optional<ScanResult::Field> m_announced;
    std::vector<std::string> m_writes;
    ChangePublisher<ScanResult::Field>::Subscription m_subscription;
};

} // namespace drossbin::test
