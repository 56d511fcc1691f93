#pragma once

#include "views/controls/AccessItem.h"

#include <QAccessibleObject>

namespace drossbin {

/// What assistive programs see of an AccessItem.
class AccessItemInterface : public QAccessibleObject, public QAccessibleValueInterface {
  public:
    explicit AccessItemInterface(AccessItem* item);

    [[nodiscard]] QWindow* window() const override;
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] QAccessible::State state() const override;

    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const override {
        return -1;
    }

    void* interface_cast(QAccessible::InterfaceType type) override;
    [[nodiscard]] QVariant currentValue() const override;
    void setCurrentValue(const QVariant& /*value*/) override {}
    [[nodiscard]] QVariant minimumValue() const override { return 0.0; }
    [[nodiscard]] QVariant maximumValue() const override { return 1.0; }
    [[nodiscard]] QVariant minimumStepSize() const override { return 0.0; }

  private:
    [[nodiscard]] AccessItem* item() const;
};

} // namespace drossbin
