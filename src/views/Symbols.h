#pragma once

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace drossbin {

/// Where QML finds a symbol's image. Made with the first symbol shown, it brings the provider of
/// the images along, so that no window and no test has to install one.
class Symbols : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

  public:
    static Symbols* create(QQmlEngine* engine, QJSEngine* scripts);

    Q_INVOKABLE [[nodiscard]] static QString source(const QString& name, const QColor& color,
                                                    bool isHeavy);

  private:
    Symbols() = default;
};

} // namespace drossbin
