#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace drossbin {

/// Tells a pointer that is moved onto something from one that rests while something comes below
/// it, as a sheet or a row of a list that scrolls does: Qt says of both that the pointer is there.
class PointerMotion : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// Whether what happens now happens because the pointer was moved.
    Q_PROPERTY(bool isUnderWay READ isUnderWay)

  public:
    explicit PointerMotion(QObject* parent = nullptr);

    [[nodiscard]] bool isUnderWay() const { return m_isUnderWay; }

    bool eventFilter(QObject* watched, QEvent* event) override;

  signals:
    /// Before the move has its effect.
    void moved();

  private:
    bool m_isUnderWay = false;
};

} // namespace drossbin
