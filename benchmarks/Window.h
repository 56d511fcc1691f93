#pragma once

#include "app/ContentView.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>

/// The program's own window, and the hand that clicks in it.
class Window {
  public:
    Window();

    /// A session of so many made-up items, as after a scan.
    void fill(std::size_t items);

    [[nodiscard]] drossbin::ContentView& content() const { return *m_content; }

    /// Without a window manager nobody else gives it the keyboard. To be done once it is shown.
    void activate() const { m_window->requestActivate(); }

    /// Each queues what the window system would send; the event loop's next turn handles it.
    void clickScan() const; ///< on the landing screen's button or the toolbar's
    void clickButton(const QString& label) const;
    void clickCategory(const QString& name) const;
    void clickFirstCheckBox() const;
    void press(int key, Qt::KeyboardModifiers modifiers, const QString& text) const;

  private:
    void click(const char* component, const char* property, const QVariant& value) const;

    QQmlApplicationEngine m_engine;
    QQuickWindow* m_window = nullptr;
    drossbin::ContentView* m_content = nullptr;
};
