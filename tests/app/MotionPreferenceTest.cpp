#include "app/MotionPreference.h"

#include "Harness.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace drossbin {
namespace {

/// Answers every question with one variant inside another, as the desktop's portal does.
class Portal : public QDBusVirtualObject {
  public:
    [[nodiscard]] QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        question = message.member() + " " + message.arguments().value(0).toString() + " " +
                   message.arguments().value(1).toString();
        const QVariant inner = QVariant::fromValue(QDBusVariant(animationsAreEnabled));
        return connection.send(message.createReply(QVariant::fromValue(QDBusVariant(inner))));
    }

    QString question;
    QVariant animationsAreEnabled;
};

/// A session bus of its own, with a portal on it.
struct Motion : ::testing::Test {
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
        ASSERT_TRUE(bus().registerVirtualObject("/org/freedesktop/portal/desktop", &portal));
        ASSERT_TRUE(bus().registerService("org.freedesktop.portal.Desktop"));
    }

    void TearDown() override {
        bus().unregisterService("org.freedesktop.portal.Desktop");
        bus().unregisterObject("/org/freedesktop/portal/desktop");
    }

    static QDBusConnection bus() {
        return QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"),
                                             "portal");
    }

    Portal portal;
    MotionPreference motion;
    QSignalSpy changed{&motion, &MotionPreference::answered};
};

TEST_F(Motion, is_not_reduced_before_the_desktop_has_answered) {
    EXPECT_FALSE(motion.isReduced());
}

TEST_F(Motion, is_reduced_when_the_desktop_has_no_animations) {
    portal.animationsAreEnabled = false;
    motion.ask();
    EXPECT_TRUE(test::turnUntil([this] { return changed.count() > 0; }));
    EXPECT_TRUE(motion.isReduced());
    EXPECT_EQ(portal.question, "Read org.gnome.desktop.interface enable-animations");
}

TEST_F(Motion, is_not_reduced_when_the_desktop_has_animations_or_answers_oddly) {
    for (const QVariant& answer : {QVariant(true), QVariant(QString("false")), QVariant(0)}) {
        portal.animationsAreEnabled = answer;
        MotionPreference preference;
        const QSignalSpy answers(&preference, &MotionPreference::answered);
        portal.question.clear();
        preference.ask();
        EXPECT_TRUE(test::turnUntil([this] { return !portal.question.isEmpty(); }));
        test::turnUntil([&answers] { return answers.count() > 0; });
        EXPECT_FALSE(preference.isReduced());
    }
}

TEST_F(Motion, is_asked_for_once) {
    portal.animationsAreEnabled = false;
    motion.ask();
    motion.ask();
    EXPECT_TRUE(test::turnUntil([this] { return changed.count() > 0; }));
    portal.question.clear();
    motion.ask();
    test::turn();
    EXPECT_EQ(portal.question, "");
}

} // namespace
} // namespace drossbin
