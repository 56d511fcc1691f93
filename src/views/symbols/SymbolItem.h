#pragma once

#include "views/symbols/PixelAlignedImage.h"

#include <QColor>
#include <QQuickItem>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace drossbin {

/// A symbol in one colour. It is drawn for the pixels of its screen and lies on whole ones,
/// wherever the layout, a scroll or a fractional scale leaves it: so it is never blurred.
class SymbolItem : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name MEMBER m_name NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(int size MEMBER m_size NOTIFY changed)
    /// Whether its strokes are as heavy as those of semibold letters.
    Q_PROPERTY(bool isHeavy MEMBER m_isHeavy NOTIFY changed)

  public:
    explicit SymbolItem(QQuickItem* parent = nullptr);

  signals:
    void changed();

  protected:
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void updatePolish() override;

  private:
    QString m_name;
    QColor m_color;
    int m_size = 0;
    bool m_isHeavy = false;
    PixelAlignedImage m_image{this};
};

} // namespace drossbin
