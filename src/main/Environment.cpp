#include "Environment.h"

#include <QCoreApplication>
#include <QString>
#include <QUrl>

namespace drossbin {

namespace {

/// People start such a program when the disk is full: it must not fill it, nor the folders that it
/// measures, with caches of its own.
void writeNoCaches() {
    qputenv("QML_DISABLE_DISK_CACHE", "1");
    QCoreApplication::setAttribute(Qt::AA_DisableShaderDiskCache);
    // The drivers' own caches: Mesa's and NVIDIA's.
    qputenv("MESA_SHADER_CACHE_DISABLE", "true");
    qputenv("__GL_SHADER_DISK_CACHE", "0");
}

/// Plugins and QML come from where Qt is installed, not from folders that the environment names:
/// what another program keeps there for itself has no place in one that deletes.
void loadNoCodeFromElsewhere() {
    for (const char* const name :
         {"QT_PLUGIN_PATH", "QT_QPA_PLATFORM_PLUGIN_PATH", "QML_IMPORT_PATH", "QML2_IMPORT_PATH"}) {
        qunsetenv(name);
    }
}

/// Where no session bus runs, D-Bus would start one: by a program that it looks for along PATH. It
/// looks itself where desktops have their bus, but only when it is told to does it stay with that.
void startNoBus() {
    if (qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")) {
        const QString bus = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus");
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + QUrl::toPercentEncoding(bus, "/"));
    }
}

} // namespace

void keepToItself() {
    writeNoCaches();
    loadNoCodeFromElsewhere();
    startNoBus();
}

} // namespace drossbin
