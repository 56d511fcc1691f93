#include "app/DesktopSettings.h"

#include "Harness.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>

namespace drossbin {
namespace {

const QString path = "/org/freedesktop/portal/desktop";
const QString service = "org.freedesktop.portal.Desktop";
const QString appearance = "org.freedesktop.appearance";
const QString gnome = "org.gnome.desktop.interface";

/// Answers every question with all that it has, as the desktop's portal does.
class Portal : public QDBusVirtualObject {
  public:
    [[nodiscard]] QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        questions << message.interface() + " " + message.member() + " " +
                         message.arguments().value(0).toStringList().join(" ");
        return connection.send(
            fails ? message.createErrorReply("org.freedesktop.portal.Error.Failed", "not now")
                  : message.createReply(QVariant::fromValue(values)));
    }

    QStringList questions;
    QMap<QString, QVariantMap> values;
    bool fails = false;
};

/// A session bus of its own, with a portal on it.
struct DesktopSettingsTest : ::testing::Test {
    /// Lives as long as the process, as Qt's connection to it does.
    struct Daemon : QProcess {
        Daemon() {
            start("dbus-daemon", {"--session", "--nofork", "--print-address"});
            if (waitForReadyRead()) {
                qputenv("DBUS_SESSION_BUS_ADDRESS", readLine().trimmed());
            }
        }
        ~Daemon() override {
            terminate();
            waitForFinished();
        }
        Q_DISABLE_COPY_MOVE(Daemon)
    };

    static const QProcess& daemon() {
        static const Daemon instance;
        return instance;
    }

    void SetUp() override {
        if (daemon().state() != QProcess::Running) {
            GTEST_SKIP() << "there is no dbus-daemon to make a session bus with";
        }
        qDBusRegisterMetaType<QMap<QString, QVariantMap>>();
        ASSERT_TRUE(bus().registerVirtualObject(path, &portal));
        ASSERT_TRUE(bus().registerService(service));
    }

    void TearDown() override {
        bus().unregisterService(service);
        bus().unregisterObject(path);
    }

    static QDBusConnection bus() {
        return QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"),
                                             "portal");
    }

    /// Has the desktop set one value, and tell of it.
    void change(const QString& part, const QString& key, const QVariant& value) {
        portal.values[part][key] = value;
        QDBusMessage told =
            QDBusMessage::createSignal(path, "org.freedesktop.portal.Settings", "SettingChanged");
        told << part << key << QVariant::fromValue(QDBusVariant(value));
        ASSERT_TRUE(bus().send(told));
    }

    bool isAnswered(qsizetype times) {
        return test::turnUntil([this, times] { return answers.count() >= times; });
    }

    /// The colour scheme, the contrast and the motion, in a word each.
    QStringList asked() const {
        const QStringList schemes{"any", "dark", "light"};
        return {schemes.value(settings.colorScheme()),
                settings.increasesContrast() ? "increased" : "standard",
                settings.reducesMotion() ? "still" : "moving"};
    }

    Portal portal;
    DesktopSettings settings;
    QSignalSpy answers{&settings, &DesktopSettings::answered};
    const QStringList nothing{"any", "standard", "moving"};
};

TEST_F(DesktopSettingsTest, ask_for_nothing_before_the_desktop_has_answered) {
    portal.values = {{appearance, {{"color-scheme", 1U}}}};
    EXPECT_EQ(asked(), nothing);
    settings.follow();
    EXPECT_EQ(asked(), nothing);
    EXPECT_TRUE(isAnswered(1));
}

TEST_F(DesktopSettingsTest, are_read_together_and_once) {
    portal.values = {{appearance, {{"color-scheme", 1U}, {"contrast", 1U}}},
                     {gnome, {{"enable-animations", false}}}};
    settings.follow();
    settings.follow();
    EXPECT_TRUE(isAnswered(1));
    EXPECT_EQ(asked(), (QStringList{"dark", "increased", "still"}));
    settings.follow();
    test::settle();
    EXPECT_EQ(portal.questions,
              QStringList("org.freedesktop.portal.Settings ReadAll org.freedesktop.appearance "
                          "org.gnome.desktop.interface"));
}

TEST_F(DesktopSettingsTest, mean_what_the_portal_says_and_nothing_where_it_answers_oddly) {
    const struct {
        QString part;
        QString key;
        QVariant value;
        QStringList asked;
    } cases[] = {
        {appearance, "color-scheme", 0U, nothing},
        {appearance, "color-scheme", 1U, {"dark", "standard", "moving"}},
        {appearance, "color-scheme", 2U, {"light", "standard", "moving"}},
        {appearance, "color-scheme", 3U, nothing},
        {appearance, "color-scheme", 1, nothing},
        {appearance, "color-scheme", "1", nothing},
        {appearance, "contrast", 0U, nothing},
        {appearance, "contrast", 1U, {"any", "increased", "moving"}},
        {appearance, "contrast", 2U, nothing},
        {appearance, "contrast", true, nothing},
        {gnome, "enable-animations", false, {"any", "standard", "still"}},
        {gnome, "enable-animations", true, nothing},
        {gnome, "enable-animations", "false", nothing},
        {gnome, "enable-animations", 0U, nothing},
        {gnome, "color-scheme", 1U, nothing},
    };
    settings.follow();
    EXPECT_TRUE(isAnswered(1));
    for (const auto& one : cases) {
        SCOPED_TRACE((one.key + " " + one.value.toString()).toStdString());
        portal.values.clear();
        const auto before = answers.count();
        change(one.part, one.key, one.value);
        EXPECT_TRUE(isAnswered(before + 1));
        EXPECT_EQ(asked(), one.asked);
    }
}

TEST_F(DesktopSettingsTest, are_followed_while_the_program_runs) {
    settings.follow();
    EXPECT_TRUE(isAnswered(1));
    EXPECT_EQ(asked(), nothing);
    change(appearance, "color-scheme", 1U);
    EXPECT_TRUE(isAnswered(2));
    EXPECT_EQ(asked(), (QStringList{"dark", "standard", "moving"}));
    change(gnome, "enable-animations", false);
    EXPECT_TRUE(isAnswered(3));
    EXPECT_EQ(asked(), (QStringList{"dark", "standard", "still"}));
    change(appearance, "color-scheme", 0U);
    EXPECT_TRUE(isAnswered(4));
    EXPECT_EQ(asked(), (QStringList{"any", "standard", "still"}));
}

TEST_F(DesktopSettingsTest, are_not_asked_for_again_when_others_change) {
    settings.follow();
    EXPECT_TRUE(isAnswered(1));
    change("org.gnome.desktop.sound", "event-sounds", false);
    change(appearance, "contrast", 1U);
    EXPECT_TRUE(isAnswered(2));
    test::settle();
    EXPECT_EQ(portal.questions.count(), 2);
}

TEST_F(DesktopSettingsTest, stay_as_they_are_while_the_portal_cannot_tell) {
    portal.values = {{appearance, {{"color-scheme", 1U}}}};
    settings.follow();
    EXPECT_TRUE(isAnswered(1));
    portal.fails = true;
    change(appearance, "color-scheme", 2U);
    EXPECT_TRUE(test::turnUntil([this] { return portal.questions.count() == 2; }));
    test::settle();
    EXPECT_EQ(asked(), (QStringList{"dark", "standard", "moving"}));
    portal.fails = false;
    change(appearance, "color-scheme", 2U);
    EXPECT_TRUE(isAnswered(2));
    EXPECT_EQ(asked(), (QStringList{"light", "standard", "moving"}));
}

TEST_F(DesktopSettingsTest, are_no_longer_asked_for_when_nobody_wants_them) {
    auto gone = std::make_unique<DesktopSettings>();
    gone->follow();
    gone.reset();
    test::settle();
    settings.follow();
    EXPECT_TRUE(isAnswered(1));
    EXPECT_EQ(portal.questions.count(), 1);
}

} // namespace
} // namespace drossbin
