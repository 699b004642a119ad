#pragma once

#include <QtQml/qqmlregistration.h>

#include <QColor>
#include <QObject>

#include "platform/DesktopAppearance.h"
#include "support/Subscription.h"

namespace vantle {

/// The colours of the card. They are light or dark according to the desktop's setting, or to its
/// palette if there is no setting, and follow changes of both while the program runs.
class Appearance : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    Q_PROPERTY(bool isDark READ isDark NOTIFY changed)
    Q_PROPERTY(QColor primary READ primary NOTIFY changed)
    Q_PROPERTY(QColor secondary READ secondary NOTIFY changed)
    Q_PROPERTY(QColor accent READ accent NOTIFY changed)
    Q_PROPERTY(QColor windowBackground READ windowBackground NOTIFY changed)
    /// The translucent material of the plate if nothing blurs what is behind it.
    Q_PROPERTY(QColor popoverMaterial READ popoverMaterial NOTIFY changed)
    /// The material of the plate over a blur, which makes text legible by itself.
    Q_PROPERTY(QColor glassMaterial READ glassMaterial NOTIFY changed)
    /// The size of the desktop's letters relative to the program's own, from 1 to 3.
    Q_PROPERTY(double textScale READ textScale NOTIFY changed)
    /// True if the user prefers fading to movement.
    Q_PROPERTY(bool reducesMotion READ reducesMotion NOTIFY changed)

public:
    explicit Appearance(QObject* parent = nullptr);

    /// Makes objects that are created later follow `desktop` as well as the palette, or only the
    /// palette if it is null. `desktop` must outlive these objects.
    static void follow(DesktopAppearance* desktop);

    bool isDark() const;
    QColor primary() const;
    QColor secondary() const;
    QColor accent() const;
    QColor windowBackground() const;
    QColor popoverMaterial() const;
    QColor glassMaterial() const;
    double textScale() const;
    bool reducesMotion() const { return look_.reducesMotion; }

    /// Returns the point size of a font whose letters are `pixels` pixels high. Pixel sizes can
    /// only be whole numbers, and points are converted by the resolution of the first screen,
    /// whichever screen the font is drawn on.
    Q_INVOKABLE static double fontPoints(double pixels);

    bool eventFilter(QObject* object, QEvent* event) override;

signals:
    void changed();

private:
    DesktopLook look_;
    Subscription subscription_;
};

}  // namespace vantle
