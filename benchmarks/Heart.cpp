#include "Heart.h"

#include <algorithm>

using namespace std::chrono_literals;

Heart::Heart() {
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { beat(); });
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.start(2ms);
    restart();
}

void Heart::restart() {
    m_lastBeat = Clock::now();
    m_longestGap = {};
}

double Heart::longestGap() const {
    return std::chrono::duration<double, std::milli>(m_longestGap).count();
}

void Heart::beat() {
    const auto now = Clock::now();
    m_longestGap = std::max(m_longestGap, now - m_lastBeat);
    m_lastBeat = now;
}
