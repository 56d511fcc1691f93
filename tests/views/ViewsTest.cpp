#include <QQmlEngine>
#include <QtQuickTest>

/// Lets the tests import the views from the program's own resources.
class Setup : public QObject {
    Q_OBJECT

  public slots:
    void qmlEngineAvailable(QQmlEngine* engine) { engine->addImportPath(QStringLiteral("qrc:/")); }
};

QUICK_TEST_MAIN_WITH_SETUP(views, Setup)

#include "ViewsTest.moc"
