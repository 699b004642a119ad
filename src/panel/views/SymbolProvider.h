#pragma once

#include <QQuickImageProvider>

namespace vantle {

/// Provides the symbols of assets/symbols in any colour: "image://symbol/NAME/RRGGBB/STROKE", with
/// the width of the strokes on the symbols' grid of 16 units. A symbol is drawn in the pixels that
/// the scene requests, so that it is crisp at every scale. A missing symbol is a programming error,
/// which ends the program.
class SymbolProvider final : public QQuickImageProvider {
public:
    SymbolProvider() : QQuickImageProvider(Image) {}

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

}  // namespace vantle
