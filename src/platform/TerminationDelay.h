#pragma once

#include <array>
#include <csignal>

namespace drossbin {

/// While it lives, who asks the program to end has to wait. SIGTERM and SIGHUP, as the end of a
/// session sends them, and SIGINT, end it when this goes, as they would have at once; exit(), as
/// the toolkit calls it when an X11 display is gone, goes on when no background thread has work
/// left. (For a Wayland display that is gone it calls _exit(), which waits for nothing.) Only a
/// second SIGTERM or SIGINT ends the program on the spot.
///
/// What the program was told to ignore stays ignored, such as SIGHUP by nohup. One at a time.
class TerminationDelay {
  public:
    TerminationDelay();
    ~TerminationDelay();
    TerminationDelay(const TerminationDelay&) = delete;
    TerminationDelay& operator=(const TerminationDelay&) = delete;
    TerminationDelay(TerminationDelay&&) = delete;
    TerminationDelay& operator=(TerminationDelay&&) = delete;

  private:
    std::array<struct sigaction, 3> m_before{};
};

} // namespace drossbin
