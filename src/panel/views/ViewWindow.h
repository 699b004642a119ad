#pragma once

#include <QQuickView>

namespace vantle {

/// Chooses how windows of Qt Quick are drawn. That has to be done before the first one is made.
class QuickRendering {
protected:
    QuickRendering();
};

/// A translucent window with one of our views in it.
class ViewWindow : private QuickRendering, public QQuickView {
protected:
    ViewWindow();
    /// The view goes before the models that a derived class gave it, so that one has to call
    /// unload() in its destructor.
    ~ViewWindow() override = default;

    /// Shows the view of that file (below qrc:/qt/qml), whose properties are set first.
    void load(const QString& file, const QVariantMap& properties);
    void unload();
};

}  // namespace vantle
