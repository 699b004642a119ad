#include <QVersionNumber>
#include <chrono>

#include "platform/qt/InputRegion.h"
#include "platform/qt/KeptInputRegion.h"
#include "platform/qt/X11.h"

namespace vantle {
namespace {

/// Longer than between two frames of the card, and than a compositor takes to show the last one.
constexpr std::chrono::milliseconds rest{100};

const QVersionNumber firstThatRemembers{44, 2};

/// Nobody can ask what a compositor does with clicks; but Mutter, and so GNOME Shell, tells its
/// version beside its name.
bool compositorForgets() {
    if (!x11::connection() || !x11::isXWayland()) return false;
    const std::string version = x11::propertyOfWindowManager("_MUTTER_VERSION");
    return !version.empty() &&
           QVersionNumber::fromString(QString::fromStdString(version)) < firstThatRemembers;
}

/// The region, or the region without the pixel in one of its corners.
QRegion variant(const QRegion& region, int number) {
    const QRect bounds = region.boundingRect();
    switch (number) {
        case 1:
            return region - QRect(bounds.topLeft(), QSize(1, 1));
        case 2:
            return region - QRect(bounds.topRight(), QSize(1, 1));
        default:
            return region;
    }
}

}  // namespace

KeptInputRegion::KeptInputRegion(QWindow& window) : window_(window) {
    afterLastFrame_.setSingleShot(true);
    afterLastFrame_.setInterval(rest);
    connect(&afterLastFrame_, &QTimer::timeout, this, [this] { change(); });
}

void KeptInputRegion::set(const QRegion& region) {
    region_ = region;
    isForgotten_ = compositorForgets();
    setInputRegion(window_, variant(region_, variant_));
}

void KeptInputRegion::frameDrawn() {
    if (isForgotten_) afterLastFrame_.start();
}

void KeptInputRegion::change() {
    if (!window_.isExposed()) return;
    // Two would not do: the compositor may miss one, and find the region that it knows.
    constexpr int variants = 3;
    variant_ = (variant_ + 1) % variants;
    setInputRegion(window_, variant(region_, variant_));
}

}  // namespace vantle
