#include "app/EventLoop.h"
#include "platform/words/Locale.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    drossbin::Locale::setCurrent({"en_US"});
    drossbin::connectMainThreadToEventLoop();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
