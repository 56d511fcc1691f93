#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace drossbin {

/// What was pressed last, wherever in the program: it tells whether the keyboard is in use. Holding
/// Shift or the like is no press, and neither is the repetition of a key. The focus that a sheet, a
/// note or the window itself brings or gives back is taken for that press's: Qt has reasons of its
/// own for those, with which no control would draw a ring.
class LastPress : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// Why a control would get the focus: with Tab, which draws a ring, after a key.
    Q_PROPERTY(Qt::FocusReason reason READ reason NOTIFY pressed)

  public:
    explicit LastPress(QObject* parent = nullptr);

    [[nodiscard]] Qt::FocusReason reason() const { return m_reason; }

    bool eventFilter(QObject* watched, QEvent* event) override;

  signals:
    /// Before the press has its effect.
    void pressed();

  private:
    [[nodiscard]] bool focus(QObject* item, Qt::FocusReason given) const;
    void note(Qt::FocusReason reason);

    Qt::FocusReason m_reason = Qt::OtherFocusReason;
};

} // namespace drossbin
