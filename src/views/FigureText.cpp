#include "views/FigureText.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>

#include <cmath>

namespace drossbin {
namespace {

/// For each digit, the space after it that makes it as wide as its script's zero.
QList<QTextLayout::FormatRange> evenDigits(const QString& text, const QFont& font) {
    const QFontMetricsF metrics(font);
    QList<QTextLayout::FormatRange> ranges;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar digit = text[at];
        if (!digit.isDigit()) {
            continue;
        }
        const QChar zero(digit.unicode() - digit.digitValue());
        QTextCharFormat format;
        format.setFontLetterSpacingType(QFont::AbsoluteSpacing);
        format.setFontLetterSpacing(metrics.horizontalAdvance(zero) -
                                    metrics.horizontalAdvance(digit));
        ranges.append({int(at), 1, format});
    }
    return ranges;
}

} // namespace

FigureText::FigureText(QQuickItem* parent)
    : QQuickPaintedItem(parent) {}

void FigureText::setText(const QString& text) {
    if (text == m_layout.text()) {
        return;
    }
    m_layout.setText(text);
    layOut();
    emit textChanged();
}

void FigureText::setFont(const QFont& font) {
    if (font == m_layout.font()) {
        return;
    }
    m_layout.setFont(font);
    layOut();
    emit fontChanged();
}

void FigureText::setColor(const QColor& color) {
    if (color == m_color) {
        return;
    }
    m_color = color;
    update();
    emit colorChanged();
}

void FigureText::layOut() {
    m_layout.setFormats(evenDigits(m_layout.text(), m_layout.font()));
    m_layout.beginLayout();
    QTextLine line = m_layout.createLine();
    if (line.isValid()) {
        line.setPosition({0, 0});
    }
    m_layout.endLayout();
    setImplicitSize(std::ceil(m_layout.maximumWidth()),
                    std::ceil(QFontMetricsF(m_layout.font()).height()));
    update();
}

void FigureText::paint(QPainter* painter) {
    painter->setPen(m_color);
    m_layout.draw(painter, {0, 0});
}

} // namespace drossbin
