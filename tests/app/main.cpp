#include "platform/Locale.h"
#include "platform/MainThread.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

#include <utility>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    drossbin::Locale::setCurrent({"en_US"});
    drossbin::MainThread::connect([](drossbin::MainThread::Job job) {
        QMetaObject::invokeMethod(qApp, std::move(job), Qt::QueuedConnection);
    });
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
