#include "Window.h"

#include <QTest>

#include <array>
#include <string>

using namespace drossbin;

namespace {

constexpr std::array names{"Editor", "Google Chrome", "Sketchpad", "Notebook", "Mail"};

/// Four in ten are program caches, one in ten is protected and two are to be looked at: what is
/// selected together is never one range of rows. One in a hundred has a name beyond ASCII.
DiskItem item(std::size_t number, std::size_t count) {
    constexpr std::array categories{DiskCategory::programCaches, DiskCategory::packageCaches,
                                    DiskCategory::appData,       DiskCategory::programCaches,
                                    DiskCategory::logFiles,      DiskCategory::oldDownloads,
                                    DiskCategory::programCaches, DiskCategory::appData,
                                    DiskCategory::programCaches, DiskCategory::packageCaches};
    constexpr std::array risks{
        RiskLevel::safe, RiskLevel::safe,     RiskLevel::caution, RiskLevel::safe, RiskLevel::safe,
        RiskLevel::safe, RiskLevel::critical, RiskLevel::caution, RiskLevel::safe, RiskLevel::safe};
    DiskItem item;
    const char* const name = number % 100 == 0 ? "Café" : names.at(number % names.size());
    item.name = std::string(name) + " " + std::to_string(number);
    item.path = "/home/ada/Library/Caches/com.example/" + item.name;
    item.size = static_cast<std::int64_t>(count - number) * 4096;
    item.category = categories.at(number % categories.size());
    item.risk = risks.at(number / categories.size() % risks.size());
    item.lastAccessed = now() - std::chrono::minutes(number);
    item.sfSymbol = icon(item.category);
    item.safetyNote = "Cache file — the app will rebuild this automatically.";
    return item;
}

std::vector<DiskItem> items(std::size_t count) {
    std::vector<DiskItem> items;
    items.reserve(count);
    for (std::size_t number = 0; number < count; ++number) {
        items.push_back(item(number, count));
    }
    return items;
}

/// Also where another component is made from it.
bool isA(const QQuickItem& item, const QString& component) {
    for (const QMetaObject* type = item.metaObject(); type != nullptr; type = type->superClass()) {
        if (QString(type->className()).startsWith(component + u'_')) {
            return true;
        }
    }
    return false;
}

QQuickItem* find(QQuickItem* item, const QString& component, const char* property,
                 const QVariant& value) {
    if (!item->isVisible()) {
        return nullptr;
    }
    if (isA(*item, component) && item->property(property) == value) {
        return item;
    }
    for (QQuickItem* child : item->childItems()) {
        if (QQuickItem* found = find(child, component, property, value)) {
            return found;
        }
    }
    return nullptr;
}

} // namespace

Window::Window() {
    m_engine.load(QUrl(QStringLiteral("qrc:/Drossbin/Views/Main.qml")));
    m_window = qobject_cast<QQuickWindow*>(m_engine.rootObjects().constFirst());
    m_content = m_window->findChild<ContentView*>();
}

void Window::fill(std::size_t count) {
    m_content->scanResult().items = items(count);
    m_content->scanResult().hasScanned = true;
}

void Window::clickScan() const {
    if (m_content->screen() == ContentView::Landing) {
        clickButton("Start System Scan");
    } else {
        click("ToolbarButton", "label", "Scan");
    }
}

void Window::clickButton(const QString& label) const {
    click("PillButton", "label", label);
}

void Window::clickCategory(const QString& name) const {
    click("CategoryRow", "name", name);
}

void Window::clickFirstCheckBox() const {
    click("CheckMark", "enabled", true);
}

void Window::click(const char* component, const char* property, const QVariant& value) const {
    const QQuickItem* const item = find(m_window->contentItem(), component, property, value);
    if (item == nullptr) {
        qFatal("no %s is shown whose %s is %s", component, property, qPrintable(value.toString()));
    }
    const QPointF place = item->mapToScene(item->boundingRect().center());
    const QPointF onScreen = m_window->mapToGlobal(place);
    qt_handleMouseEvent(m_window, place, onScreen, Qt::LeftButton, Qt::LeftButton,
                        QEvent::MouseButtonPress, Qt::NoModifier, -1);
    qt_handleMouseEvent(m_window, place, onScreen, Qt::NoButton, Qt::LeftButton,
                        QEvent::MouseButtonRelease, Qt::NoModifier, -1);
}

void Window::press(int key, Qt::KeyboardModifiers modifiers, const QString& text) const {
    qt_handleKeyEvent(m_window, QEvent::KeyPress, key, modifiers, text);
    qt_handleKeyEvent(m_window, QEvent::KeyRelease, key, modifiers, text);
}
