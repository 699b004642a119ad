#include "platform/x11/PersistentInputRegion.h"

#include <QVersionNumber>
#include <chrono>

#include "platform/qt/TransparentWindow.h"
#include "platform/x11/Connection.h"
#include "platform/x11/WindowRegions.h"

namespace vantle::x11 {
namespace {

/// Longer than the time between two frames of the card, and than a compositor needs to show the
/// last frame.
constexpr std::chrono::milliseconds rest{100};
/// A busy compositor may take longer and miss the first round, so there is a second one.
constexpr std::chrono::milliseconds secondRound{1000};

const QVersionNumber firstVersionThatRemembers{44, 2};

bool forgets(const std::string& versionOfMutter) {
    const auto version = QVersionNumber::fromString(QString::fromStdString(versionOfMutter));
    return !version.isNull() && version < firstVersionThatRemembers;
}

/// One transparent pixel that takes no input.
class InvisibleWindow final : public TransparentWindow {
public:
    explicit InvisibleWindow(const QPoint& place) {
        makePassive();
        setGeometry(QRect(place, QSize(1, 1)));
    }
};

/// Returns the region, or the region without the pixel in one of its corners.
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

/// Has no visible effect, but sends the compositor a frame. The toolkit would draw nothing, because
/// nothing has changed.
void drawFirstPixel(const QWindow& window) {
    xcb_connection_t* x = connection();
    const xcb_gcontext_t clear = xcb_generate_id(x);
    const uint32_t colour = 0;
    xcb_create_gc(x, clear, windowId(window), XCB_GC_FOREGROUND, &colour);
    const xcb_point_t first{0, 0};
    xcb_poly_point(x, XCB_COORD_MODE_ORIGIN, windowId(window), clear, 1, &first);
    xcb_free_gc(x, clear);
    xcb_flush(x);
}

}  // namespace

bool inputRegionIsForgotten() {
    return forgets(versionOfMutter());
}

PersistentInputRegion::PersistentInputRegion(QWindow& window) : WindowInputRegion(window) {
    for (QTimer* timer : {&afterLastFrame_, &afterLastChange_}) {
        timer->setSingleShot(true);
        timer->setInterval(rest);
    }
    connect(&afterLastFrame_, &QTimer::timeout, this, [this] { takeNextStep(); });
    connect(&afterLastChange_, &QTimer::timeout, this, [this] { refreshPointer(); });
}

PersistentInputRegion::~PersistentInputRegion() = default;

void PersistentInputRegion::set(const QRegion& region) {
    region_ = region;
    const std::string version = versionOfMutter();
    isForgotten_ = forgets(version);
    setInputRegion(window(), variant(region_, variant_));
    if (!version.empty()) afterLastChange_.start();
}

void PersistentInputRegion::frameDrawn() {
    if (!isForgotten_) return;
    next_ = Step::change;
    rounds_ = 0;
    afterLastFrame_.start(rest);
}

void PersistentInputRegion::takeNextStep() {
    if (!window().isExposed()) return;
    switch (next_) {
        case Step::change:
            change();
            next_ = Step::draw;
            return afterLastFrame_.start(rest);
        case Step::draw:
            drawFirstPixel(window());
            next_ = Step::changeAgain;
            return afterLastFrame_.start(rest);
        case Step::changeAgain:
            change();
            next_ = Step::change;
            afterLastChange_.start();
            if (++rounds_ < 2) afterLastFrame_.start(secondRound);
    }
}

void PersistentInputRegion::change() {
    // Two variants are not enough: the compositor may miss one and then see the region that it
    // knows.
    constexpr int variants = 3;
    variant_ = (variant_ + 1) % variants;
    setInputRegion(window(), variant(region_, variant_));
}

void PersistentInputRegion::refreshPointer() {
    if (!window().isExposed()) return;
    invisibleWindow_ = std::make_unique<InvisibleWindow>(window().position());
    invisibleWindow_->show();
    QTimer::singleShot(rest, invisibleWindow_.get(), [this] { invisibleWindow_.reset(); });
}

}  // namespace vantle::x11
