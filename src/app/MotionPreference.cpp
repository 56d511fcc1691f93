#include "app/MotionPreference.h"

#include "app/BackgroundTask.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <utility>

namespace drossbin {

namespace {

#ifdef Q_OS_MACOS
constexpr bool hasPortals = false;
#else
constexpr bool hasPortals = true;
#endif

} // namespace

void MotionPreference::ask() {
    // Without a session bus Qt would try to start one.
    const bool hasBus = hasPortals && qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS");
    if (!std::exchange(m_wasAsked, true) && hasBus) {
        askPortal();
    }
}

QCoro::Task<> MotionPreference::askPortal() {
    // Connecting waits for the bus, so it is done in the background.
    BackgroundTask connecting(&QDBusConnection::sessionBus);
    const QDBusConnection bus = co_await connecting;
    QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"),
        QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("Read"));
    question << QStringLiteral("org.gnome.desktop.interface")
             << QStringLiteral("enable-animations");
    m_answer = std::make_unique<QDBusPendingCallWatcher>(bus.asyncCall(question));
    connect(m_answer.get(), &QDBusPendingCallWatcher::finished, this, &MotionPreference::read);
}

void MotionPreference::read(QDBusPendingCallWatcher* answer) {
    const QDBusPendingReply<QDBusVariant> reply = *answer;
    if (reply.isError()) {
        return; // No portal, or one that knows no such setting: motion stays as it is.
    }
    // The portal wraps the setting's own variant in one of its own.
    const QVariant outer = reply.value().variant();
    const QVariant animationsAreEnabled =
        outer.canConvert<QDBusVariant>() ? outer.value<QDBusVariant>().variant() : outer;
    m_isReduced =
        animationsAreEnabled.typeId() == QMetaType::Bool && !animationsAreEnabled.toBool();
    emit answered();
}

} // namespace drossbin
