#pragma once

#include <QCoroTask>
#include <QDBusPendingCallWatcher>
#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace drossbin {

/// What the user asked the desktop for, as far as its portal tells, now and whenever it changes.
/// Taken as nothing until the portal has answered, and where there is none to ask, as on macOS:
/// what the user asked for there is known by the palette alone.
class DesktopSettings : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A session has one of its own")
    Q_PROPERTY(bool reducesMotion READ reducesMotion NOTIFY answered)
    Q_PROPERTY(ColorScheme colorScheme READ colorScheme NOTIFY answered)
    Q_PROPERTY(bool increasesContrast READ increasesContrast NOTIFY answered)

  public:
    /// As the portal counts them.
    enum ColorScheme { NoPreference, Dark, Light };
    Q_ENUM(ColorScheme)

    using QObject::QObject;

    [[nodiscard]] bool reducesMotion() const { return m_reducesMotion; }
    [[nodiscard]] ColorScheme colorScheme() const { return m_colorScheme; }
    [[nodiscard]] bool increasesContrast() const { return m_increasesContrast; }

    /// Asks the desktop without waiting for it, and from then on whenever it tells of a change; the
    /// first call only.
    void follow();

  signals:
    void answered();

  private slots:
    void ask();

  private:
    QCoro::Task<> followPortal();
    void read(QDBusPendingCallWatcher* answer);

    bool m_isFollowing = false;
    bool m_reducesMotion = false;
    ColorScheme m_colorScheme = NoPreference;
    bool m_increasesContrast = false;
    std::unique_ptr<QDBusPendingCallWatcher> m_answer;
};

} // namespace drossbin
