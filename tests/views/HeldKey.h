#pragma once

#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QObject>
#include <QWindow>

namespace drossbin::test {

/// A key that is held down for so long that it repeats itself, as a desktop tells of it.
class HeldKey : public QObject {
    Q_OBJECT

  public:
    Q_INVOKABLE static void hold(int key) {
        send(QEvent::KeyPress, key, false);
        repeat(key);
        send(QEvent::KeyRelease, key, false);
    }

    /// What comes of a key that was pressed elsewhere and still is.
    Q_INVOKABLE static void repeat(int key) {
        for (int repetition = 0; repetition < 3; ++repetition) {
            send(QEvent::KeyRelease, key, true);
            send(QEvent::KeyPress, key, true);
        }
    }

  private:
    static void send(QEvent::Type type, int key, bool isRepeated) {
        const QString text = key == Qt::Key_Space ? QStringLiteral(" ") : QString();
        QKeyEvent event(type, key, Qt::NoModifier, text, isRepeated);
        QCoreApplication::sendEvent(QGuiApplication::focusWindow(), &event);
    }
};

} // namespace drossbin::test
