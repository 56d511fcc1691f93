#pragma once

#include <QAnimationDriver>
#include <QCoreApplication>
#include <QVariantAnimation>

namespace drossbin::test {

/// Time that passes for animations only when a test says so.
class HeldTime : public QAnimationDriver {
    Q_OBJECT

  public:
    /// From here on; to be called before anything moves.
    Q_INVOKABLE void hold() {
        install();
        // The clock of this machine counts until the first animation has begun. Let that be this.
        m_first.setStartValue(0);
        m_first.setEndValue(1);
        m_first.setDuration(endless);
        m_first.start();
        while (!isRunning()) {
            look();
        }
        look();
    }

    Q_INVOKABLE void letGo() {
        if (m_first.state() == QAbstractAnimation::Running) {
            m_first.stop();
            uninstall();
        }
    }

    Q_INVOKABLE void pass(int milliseconds) {
        // Animations begin with their first look at the clock, up to two turns later.
        look();
        look();
        m_elapsed += milliseconds;
        advanceAnimation();
    }

    [[nodiscard]] qint64 elapsed() const override { return m_elapsed; }

  protected:
    void start() override {
        m_elapsed = 0;
        QAnimationDriver::start();
    }

  private:
    static constexpr int endless = 1'000'000;

    void look() {
        QCoreApplication::processEvents();
        advanceAnimation();
    }

    qint64 m_elapsed = 0;
    QVariantAnimation m_first;
};

} // namespace drossbin::test
