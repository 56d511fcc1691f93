#pragma once

#include "faults/Losses.h"
#include "faults/SampleRun.h"

#include <cstdint>
#include <string>

namespace drossbin::test {

/// One call that fails in a run of the program, and what has to hold afterwards.
class Fault {
  public:
    Fault(const Disturbance& fault, bool isLarge);

    [[nodiscard]] bool hasHappened() const { return m_run.hasHappened; }
    [[nodiscard]] const SampleRun& run() const { return m_run; }
    [[nodiscard]] std::string home() const { return m_home.path(); }

    void expectNoLoss();

  private:
    void expectEndForLackOfMemory();
    void expectOrderlyEnd();
    void expectFate(const std::string& path, const std::string& name);
    void expectLog();

    Disturbance m_fault;
    SampleHome m_home;
    Entries m_before;
    SampleRun m_run;
    Entries m_after;
    int m_troubles = 0;
    int m_unmentioned = 0;
    std::int64_t m_freed = 0;
};

} // namespace drossbin::test
