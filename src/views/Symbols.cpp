#include "views/Symbols.h"

#include "views/SymbolProvider.h"

#include <QQmlEngine>

#include <memory>

namespace drossbin {

Symbols* Symbols::create(QQmlEngine* engine, QJSEngine* /*scripts*/) {
    // The engine owns both from here on.
    engine->addImageProvider(QStringLiteral("symbols"),
                             std::make_unique<SymbolProvider>().release());
    return std::unique_ptr<Symbols>(new Symbols).release();
}

QString Symbols::source(const QString& name, const QColor& color, bool isHeavy) {
    return QStringLiteral("image://symbols/%1/%2%3")
        .arg(name, color.name(QColor::HexArgb).mid(1), isHeavy ? "/heavy" : "");
}

} // namespace drossbin
