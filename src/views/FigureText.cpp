#include "views/FigureText.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>

#include <cmath>

namespace drossbin {
namespace {

/// What a digit lacks on each of its sides to be as wide as its script's zero; 0 for all else.
double lackingBeside(QChar digit, const QFontMetricsF& metrics) {
    if (!digit.isDigit()) {
        return 0;
    }
    const QChar zero(digit.unicode() - digit.digitValue());
    return (metrics.horizontalAdvance(zero) - metrics.horizontalAdvance(digit)) / 2;
}

/// For each character, the space after it that gives digits what they lack on both sides.
QList<QTextLayout::FormatRange> evenDigits(const QString& text, const QFontMetricsF& metrics) {
    QList<QTextLayout::FormatRange> ranges;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const double after = at + 1 < text.size() ? lackingBeside(text[at + 1], metrics) : 0;
        QTextCharFormat format;
        format.setFontLetterSpacingType(QFont::AbsoluteSpacing);
        format.setFontLetterSpacing(lackingBeside(text[at], metrics) + after);
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
    const QString text = m_layout.text();
    const QFontMetricsF metrics(m_layout.font());
    const double before = text.isEmpty() ? 0 : lackingBeside(text[0], metrics);
    m_layout.setFormats(evenDigits(text, metrics));
    m_layout.beginLayout();
    QTextLine line = m_layout.createLine();
    if (line.isValid()) {
        line.setPosition({before, 0});
    }
    m_layout.endLayout();
    setImplicitSize(std::ceil(before + m_layout.maximumWidth()), std::ceil(metrics.height()));
    update();
}

void FigureText::paint(QPainter* painter) {
    painter->setPen(m_color);
    m_layout.draw(painter, {0, 0});
}

} // namespace drossbin
