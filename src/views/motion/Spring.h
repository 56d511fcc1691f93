#pragma once

#include <QEasingCurve>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace drossbin {

/// The one spring of the screens, response 0.3 s and damping fraction 0.825: a damped oscillator
/// let go at rest. It never quite stops; its curve ends when what is left is under a thousandth.
class Spring : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QEasingCurve curve READ curve CONSTANT)
    Q_PROPERTY(int duration READ duration CONSTANT)

  public:
    /// How far the spring has come after `seconds`, 0 at the start and 1 at rest.
    [[nodiscard]] static double position(double seconds);

    [[nodiscard]] static QEasingCurve curve();
    /// In milliseconds.
    [[nodiscard]] static int duration();
};

} // namespace drossbin
