#include "views/Renderer.h"

#include "platform/GraphicsCard.h"

#include <QQuickWindow>
#include <QSGRendererInterface>

namespace drossbin {

void chooseRenderer() {
    if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND") && !hasGraphicsCard()) {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }
}

} // namespace drossbin
