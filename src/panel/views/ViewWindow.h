#pragma once

#include <QQuickView>

namespace vantle {

/// Chooses how Qt Quick draws windows, which must be done before the first window is made.
class QuickRendering {
protected:
    QuickRendering();
};

/// A translucent window that shows one of the program's views.
class ViewWindow : private QuickRendering, public QQuickView {
protected:
    ViewWindow();
    /// The view must go before the models that a derived class gave it, so the derived class must
    /// call unload() in its destructor.
    ~ViewWindow() override = default;

    /// Sets the properties, then shows the view in that file (below qrc:/qt/qml/Vantle).
    void load(const QString& file, const QVariantMap& properties);
    /// Deletes the view. The memory of its pictures is free when another window has drawn a frame,
    /// for which this asks.
    void unload();
};

}  // namespace vantle
