#include "Environment.h"
#include "app/EventLoop.h"
#include "platform/BackgroundThread.h"
#include "platform/OutOfMemory.h"
#include "platform/words/Locale.h"
#include "views/Renderer.h"
#include "views/texts/Typeface.h"

#include <QGuiApplication>
#include <QLocale>
#include <QQmlApplicationEngine>
#include <QUrl>

#include <cstdlib>

namespace {

using namespace drossbin;

void followTheUsersLocale() {
    const QLocale locale = QLocale::system();
    const bool isNone = locale.language() == QLocale::C;
    Locale::setCurrent({isNone ? "en_US" : locale.name().toStdString()});
}

} // namespace

int main(int argc, char** argv) {
    stopWhenOutOfMemory();
    keepToItself();
    const QGuiApplication application(argc, argv);
    // By it a Wayland desktop finds the window's icon.
    QGuiApplication::setDesktopFileName(QStringLiteral("org.drossbin.Drossbin"));
    followTheUsersLocale();
    chooseRenderer();
    chooseTypeface();
    connectMainThreadToEventLoop();
    QQmlApplicationEngine engine;
    engine.load(QUrl(QStringLiteral("qrc:/Drossbin/Views/Main.qml")));
    if (engine.rootObjects().isEmpty()) {
        return EXIT_FAILURE;
    }
    const int result = QGuiApplication::exec();
    if (BackgroundThread::isAnyRunning()) {
        // A scan is still walking the disk. It changes nothing and holds nothing that must be put
        // away, while waiting for it would keep a closed program alive for as long as it takes.
        std::_Exit(result);
    }
    return result;
}
