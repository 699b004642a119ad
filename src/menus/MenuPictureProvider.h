#pragma once

#include <QQuickImageProvider>

#include "menus/MenuModel.h"

namespace vantle {

/// Draws the pictures of a menu's lines: "image://menu/REVISION/PAGE/LINE".
class MenuPictureProvider final : public QQuickImageProvider {
public:
    /// `model` must outlive the provider.
    explicit MenuPictureProvider(const MenuModel& model)
        : QQuickImageProvider(QQuickImageProvider::Image), model_(model) {}

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;

private:
    const MenuModel& model_;
};

}  // namespace vantle
