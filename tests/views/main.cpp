#include "HeldKey.h"
#include "HeldSession.h"
#include "HeldTime.h"
#include "app/EventLoop.h"
#include "platform/Locale.h"

#include <QQmlEngine>
#include <QtQuickTest>

/// Lets the tests import the views from the program's own resources, and gives them keys,
/// sessions and time.
class Setup : public QObject {
    Q_OBJECT

  public slots:
    void applicationAvailable() {
        drossbin::Locale::setCurrent({"en_US"});
        drossbin::connectMainThreadToEventLoop();
    }

    void qmlEngineAvailable(QQmlEngine* engine) {
        engine->addImportPath(QStringLiteral("qrc:/"));
        qmlRegisterType<drossbin::test::HeldKey>("Drossbin.Test", 1, 0, "HeldKey");
        qmlRegisterType<drossbin::test::HeldSession>("Drossbin.Test", 1, 0, "HeldSession");
        qmlRegisterType<drossbin::test::HeldTime>("Drossbin.Test", 1, 0, "HeldTime");
    }
};

QUICK_TEST_MAIN_WITH_SETUP(views, Setup)

#include "main.moc"
