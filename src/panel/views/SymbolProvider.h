#pragma once

#include <QQuickImageProvider>

namespace vantle {

/// The symbols of assets/symbols in any colour: "image://symbol/NAME/RRGGBB/STROKE", with the
/// width of the strokes on the symbols' grid of 16 units. Drawn in the pixels that the scene asks
/// for, so that they are crisp at every scale. A symbol that does not exist is a programming error,
/// which ends the program.
class SymbolProvider final : public QQuickImageProvider {
public:
    SymbolProvider() : QQuickImageProvider(Image) {}

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

}  // namespace vantle
