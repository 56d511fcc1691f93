#include "HeldContentView.h"
#include "HeldKey.h"
#include "HeldPalette.h"
#include "HeldTime.h"
#include "app/EventLoop.h"
#include "platform/words/Locale.h"
#include "views/texts/Typeface.h"

#include <QFontDatabase>
#include <QQmlEngine>
#include <QtQuickTest>

/// Where names in all scripts are to be shown: without typefaces for them that would prove nothing.
void needTypefaces() {
    if (qgetenv("FONTCONFIG_FILE") != "all_scripts.conf") {
        return;
    }
    for (const auto script :
         {QFontDatabase::SimplifiedChinese, QFontDatabase::Thai, QFontDatabase::Arabic,
          QFontDatabase::Devanagari, QFontDatabase::Bengali}) {
        if (QFontDatabase::families(script).isEmpty()) {
            qFatal("No typeface for %s is installed",
                   qPrintable(QFontDatabase::writingSystemName(script)));
        }
    }
}

/// Lets the tests import the views from the program's own resources, and gives them keys,
/// sessions and time.
class Setup : public QObject {
    Q_OBJECT

  public slots:
    void applicationAvailable() {
        drossbin::Locale::setCurrent({"en_US"});
        drossbin::connectMainThreadToEventLoop();
        drossbin::chooseTypeface();
        needTypefaces();
    }

    void qmlEngineAvailable(QQmlEngine* engine) {
        engine->addImportPath(QStringLiteral("qrc:/"));
        qmlRegisterType<drossbin::test::HeldKey>("Drossbin.Test", 1, 0, "HeldKey");
        qmlRegisterType<drossbin::test::HeldContentView>("Drossbin.Test", 1, 0, "HeldContentView");
        qmlRegisterType<drossbin::test::HeldPalette>("Drossbin.Test", 1, 0, "HeldPalette");
        qmlRegisterType<drossbin::test::HeldTime>("Drossbin.Test", 1, 0, "HeldTime");
    }
};

QUICK_TEST_MAIN_WITH_SETUP(views, Setup)

#include "main.moc"
