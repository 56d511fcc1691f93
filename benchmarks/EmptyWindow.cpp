#include <QGuiApplication>
#include <QQmlApplicationEngine>

#include <cstdlib>

// As little as a window of Qt Quick Controls can be: what no program with one can do without.

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine;
    engine.load(QUrl(QStringLiteral("qrc:/Drossbin/Benchmarks/EmptyWindow.qml")));
    return engine.rootObjects().isEmpty() ? EXIT_FAILURE : QGuiApplication::exec();
}
