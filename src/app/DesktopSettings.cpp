#include "app/DesktopSettings.h"

#include "app/BackgroundTask.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingReply>
#include <QPointer>

#include <utility>

namespace drossbin {

namespace {

#ifdef Q_OS_MACOS
constexpr bool hasPortals = false;
#else
constexpr bool hasPortals = true;
#endif

constexpr QLatin1String portal("org.freedesktop.portal.Desktop");
constexpr QLatin1String path("/org/freedesktop/portal/desktop");
constexpr QLatin1String settings("org.freedesktop.portal.Settings");

constexpr QLatin1String appearance("org.freedesktop.appearance");
constexpr QLatin1String gnome("org.gnome.desktop.interface");

/// The values by their keys, by their namespaces.
using Values = QMap<QString, QVariantMap>;

/// What has another type than it should have says nothing.
template <class Value>
Value valueOr(Value fallback, const QVariant& answer) {
    return answer.typeId() == qMetaTypeId<Value>() ? answer.value<Value>() : fallback;
}

} // namespace

void DesktopSettings::follow() {
    // Without a session bus Qt would try to start one.
    const bool hasBus = hasPortals && qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS");
    if (!std::exchange(m_isFollowing, true) && hasBus) {
        followPortal();
    }
}

QCoro::Task<> DesktopSettings::followPortal() {
    const QPointer<DesktopSettings> self(this);
    // Connecting waits for the bus, so it is done in the background.
    BackgroundTask connecting(&QDBusConnection::sessionBus);
    QDBusConnection bus = co_await connecting;
    if (!self) {
        co_return;
    }
    // From anyone: to be told of the portal's changes alone, Qt would wait for the bus to say who
    // that is. All that others can bring about is one more question.
    for (const QLatin1String part : {appearance, gnome}) {
        bus.connect({}, path, settings, QStringLiteral("SettingChanged"), {part},
                    QStringLiteral("ssv"), this, SLOT(ask()));
    }
    ask();
}

void DesktopSettings::ask() {
    qDBusRegisterMetaType<Values>();
    QDBusMessage question =
        QDBusMessage::createMethodCall(portal, path, settings, QStringLiteral("ReadAll"));
    question << QStringList{appearance, gnome};
    m_answer = std::make_unique<QDBusPendingCallWatcher>(
        QDBusConnection::sessionBus().asyncCall(question));
    connect(m_answer.get(), &QDBusPendingCallWatcher::finished, this, &DesktopSettings::read);
}

void DesktopSettings::read(QDBusPendingCallWatcher* answer) {
    const QDBusPendingReply<Values> reply = *answer;
    if (reply.isError()) {
        return; // No portal, or one that cannot tell now: all stays as it is.
    }
    const Values values = reply.value();
    const QVariantMap look = values.value(appearance);
    m_reducesMotion =
        !valueOr(true, values.value(gnome).value(QStringLiteral("enable-animations")));
    const uint scheme = valueOr(0U, look.value(QStringLiteral("color-scheme")));
    m_colorScheme = scheme == Dark || scheme == Light ? ColorScheme(scheme) : NoPreference;
    m_increasesContrast = valueOr(0U, look.value(QStringLiteral("contrast"))) == 1;
    emit answered();
}

} // namespace drossbin
