#pragma once

#include <QtQml/qqmlregistration.h>

#include <QColor>
#include <QObject>

#include "platform/DesktopAppearance.h"
#include "support/Subscription.h"

namespace vantle {

/// The colours of the card, light or dark as the desktop asks, else as its palette is. They follow
/// both while the program runs.
class Appearance : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    Q_PROPERTY(bool isDark READ isDark NOTIFY changed)
    Q_PROPERTY(QColor primary READ primary NOTIFY changed)
    Q_PROPERTY(QColor secondary READ secondary NOTIFY changed)
    Q_PROPERTY(QColor accent READ accent NOTIFY changed)
    Q_PROPERTY(QColor windowBackground READ windowBackground NOTIFY changed)
    /// The translucent stuff of the plate where nothing blurs what is behind it.
    Q_PROPERTY(QColor popoverMaterial READ popoverMaterial NOTIFY changed)
    /// The same over a blur, which makes text legible by itself.
    Q_PROPERTY(QColor glassMaterial READ glassMaterial NOTIFY changed)
    /// How much larger than ours the letters of the desktop are: 1 or more.
    Q_PROPERTY(double textScale READ textScale NOTIFY changed)
    /// Whether the user wants things to fade rather than to fly.
    Q_PROPERTY(bool reducesMotion READ reducesMotion NOTIFY changed)

public:
    explicit Appearance(QObject* parent = nullptr);

    /// What all of them follow from now on besides the palette; null: nothing. It outlives them.
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

    /// What a font is to be told so that it is so many pixels large: fonts know whole pixels, or
    /// typographic points by the resolution of the first screen, whichever they are drawn on.
    Q_INVOKABLE static double fontPoints(double pixels);

    bool eventFilter(QObject* object, QEvent* event) override;

signals:
    void changed();

private:
    DesktopLook look_;
    Subscription subscription_;
};

}  // namespace vantle
