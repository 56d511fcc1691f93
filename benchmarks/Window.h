#pragma once

#include "app/ContentView.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>

/// The program's own window, with a session of made-up items, and the hand that clicks in it.
class Window {
  public:
    explicit Window(std::size_t items);

    [[nodiscard]] drossbin::ContentView& content() const { return *m_content; }

    /// Without a window manager nobody else gives it the keyboard. To be done once it is shown.
    void activate() const { m_window->requestActivate(); }

    /// Each queues what the window system would send; the event loop's next turn handles it.
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
