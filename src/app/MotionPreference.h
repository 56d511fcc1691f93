#pragma once

#include <QCoroTask>
#include <QDBusPendingCallWatcher>
#include <QObject>

#include <memory>

namespace drossbin {

/// Whether the user asked the desktop for less motion, as far as its portal tells. Taken as no
/// until the portal has answered, and where there is none to ask, as on macOS: what the user asked
/// for there is not known here.
class MotionPreference : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;

    [[nodiscard]] bool isReduced() const { return m_isReduced; }

    /// Asks the desktop without waiting for it; the first call only.
    void ask();

  signals:
    void answered();

  private:
    QCoro::Task<> askPortal();
    void read(QDBusPendingCallWatcher* answer);

    bool m_wasAsked = false;
    bool m_isReduced = false;
    std::unique_ptr<QDBusPendingCallWatcher> m_answer;
};

} // namespace drossbin
