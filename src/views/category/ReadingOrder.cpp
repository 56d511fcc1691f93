#include "views/category/ReadingOrder.h"

namespace drossbin {

void ReadingOrder::put(QQuickItem* item, const QQuickItem* previous, const QQuickItem* next) {
    if (item == nullptr) {
        return;
    }
    if (previous != nullptr && previous != item) {
        item->stackAfter(previous);
    } else if (next != nullptr && next != item) {
        item->stackBefore(next);
    }
}

} // namespace drossbin
