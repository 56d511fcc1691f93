#include "app/EventLoop.h"

#include "platform/MainThread.h"

#include <QCoreApplication>

#include <utility>

namespace drossbin {

void connectMainThreadToEventLoop() {
    MainThread::connect([](MainThread::Job job) {
        QMetaObject::invokeMethod(qApp, std::move(job), Qt::QueuedConnection);
    });
}

} // namespace drossbin
