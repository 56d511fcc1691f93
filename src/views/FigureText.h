#pragma once

#include <QColor>
#include <QFont>
#include <QQuickPaintedItem>
#include <QTextLayout>
#include <QtQml/qqmlregistration.h>

namespace drossbin {

/// One line of text, as large as the text is, whose digits are all as wide as the zero: figures
/// under each other line up whatever the font. (The fonts' own feature for this needs Qt 6.6.)
class FigureText : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY fontChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

  public:
    explicit FigureText(QQuickItem* parent = nullptr);

    [[nodiscard]] QString text() const { return m_layout.text(); }
    void setText(const QString& text);
    [[nodiscard]] QFont font() const { return m_layout.font(); }
    void setFont(const QFont& font);
    [[nodiscard]] QColor color() const { return m_color; }
    void setColor(const QColor& color);

    void paint(QPainter* painter) override;

  signals:
    void textChanged();
    void fontChanged();
    void colorChanged();

  private:
    void layOut();

    QTextLayout m_layout;
    QColor m_color = Qt::black;
};

} // namespace drossbin
