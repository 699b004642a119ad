#include "panel/views/PanelModel.h"

#include <utility>

#include "panel/CardLayout.h"
#include "panel/views/DisplayText.h"
#include "support/Debug.h"

namespace vantle {
namespace {

/// The spring of changes that have none of their own.
constexpr Animation arrivalSpring{.response = 0.55, .dampingFraction = 0.8};

Rect toRect(const QRectF& rect) {
    return {{rect.x(), rect.y()}, {rect.width(), rect.height()}};
}

MenuRequest menuRequest(const QRectF& anchor, bool byKeyboard) {
    return {toRect(anchor), byKeyboard ? MenuRequest::By::keyboard : MenuRequest::By::pointer};
}

}  // namespace

PanelModel::PanelModel(Context context)
    : context_(std::move(context)), corner_(context_.state.corner), listAnimation_(arrivalSpring) {
    observeCaptures();
    observeMarks();
    observePresence();
    QAccessible::installActivationObserver(this);
}

PanelModel::~PanelModel() {
    QAccessible::removeActivationObserver(this);
}

void PanelModel::observeCaptures() {
    PanelState& state = context_.state;
    subscriptions_.push_back(state.captures.observe(
        [this, &state](const auto& captures) { setTiles(captures, state.trashNotices.value()); }));
    subscriptions_.push_back(state.trashNotices.observeChanges(
        [this, &state](const auto& notices) { setTiles(state.captures.value(), notices); }));
    subscriptions_.push_back(
        state.pinned.observe([this](const auto& pinned) { captures_.setPinned(pinned); }));
    subscriptions_.push_back(
        state.copiedID.observe([this](const auto& copied) { captures_.setCopied(copied); }));
    subscriptions_.push_back(state.openingFailure.observe(
        [this](const auto& failure) { captures_.setOpeningFailure(failure); }));
    subscriptions_.push_back(
        state.renaming.observe([this](const auto& renaming) { captures_.setRenaming(renaming); }));
    subscriptions_.push_back(
        state.textCopying.observe([this](const auto& all) { captures_.setTextCopying(all); }));
    subscriptions_.push_back(state.selected.observe([this](const auto& selected) {
        captures_.setSelected(selected);
        emit selectedCountChanged();
    }));
}

void PanelModel::observeMarks() {
    PanelState& state = context_.state;
    subscriptions_.push_back(state.marquee.observe([this](const auto& marquee) {
        marquee_ = marquee;
        emit marqueeChanged();
    }));
    subscriptions_.push_back(state.progress.observe([this](double progress) {
        if (progress == progress_) return;
        progress_ = progress;
        emit progressChanged();
    }));
    subscriptions_.push_back(context_.settings.dismissAfter.observe([this](double seconds) {
        dismissAfter_ = seconds;
        emit hasTimerChanged();
    }));
}

void PanelModel::observePresence() {
    PanelState& state = context_.state;
    subscriptions_.push_back(state.visible.observe([this](bool visible) {
        visible_ = visible;
        emit isPresentedChanged();
        emit subtitleChanged();
    }));
    subscriptions_.push_back(state.hovering.observe([this](bool hovering) {
        hovering_ = hovering;
        emit hoveringChanged();
        // The subtitle contains the capture's age, which grows while nothing else changes.
        emit subtitleChanged();
    }));
}

void PanelModel::setTiles(const std::vector<CapturePointer>& captures,
                          const std::map<UUID, TrashNotice>& notices) {
    isEmpty_ = captures.empty() && notices.empty();
    if (!isEmpty_) {
        listAnimation_ = context_.state.animation().value_or(arrivalSpring);
        emit listAnimationChanged();
        captures_.setTiles(captures, notices);
        emit countChanged();
        emit selectedCountChanged();
        emit subtitleChanged();
    }
    emit isPresentedChanged();
}

double PanelModel::contentWidth() const {
    return CardLayout::contentWidth(captures_.tiles());
}

double PanelModel::thumbnailHeight() const {
    const auto& shown = captures_.tiles();
    if (shown.empty()) return 0;
    return CardLayout::tileSize(count(), *shown.front()).height;
}

bool PanelModel::overflows() const {
    return contentWidth() > CardLayout::maxContentWidth;
}

const Capture* PanelModel::onlyCapture() const {
    return count() == 1 ? captures_.tiles().front().get() : nullptr;
}

QString PanelModel::subtitle() const {
    const Capture* capture = onlyCapture();
    if (!capture) return {};
    return vantle::subtitle(capture->pixelSize(), capture->date(), context_.clock.now());
}

QRectF PanelModel::marquee() const {
    const Rect rect = marquee_.value_or(Rect{});
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

void PanelModel::updateCorner() {
    corner_ = context_.state.corner;
    emit cornerChanged();
}

void PanelModel::clearCaptures() {
    captures_.clear();
    emit countChanged();
}

void PanelModel::forget(const QString& captureId) {
    QMetaObject::invokeMethod(
        this, [this, captureId] { captures_.forget(captureId); }, Qt::QueuedConnection);
}

void PanelModel::setHovering(bool hovering) {
    if (hovering != hovering_) context_.state.hovering.set(hovering);
}

void PanelModel::setTileHovered(const QString& captureId, bool isHovered) {
    // The pointer may reach a tile before it has left another one.
    if (!isHovered && hoveredTile_ != captureId) return;
    hoveredTile_ = isHovered ? captureId : QString();
    emit hoveredTileChanged();
}

std::vector<DragItem> PanelModel::dragItems(const QString& captureId) const {
    const auto capture = captures_.capture(captureId);
    if (!capture) return {};
    auto items = context_.actions.dragItems(capture);
    if (items.empty()) items.push_back({capture->url(), capture->thumbnail()});
    return items;
}

void PanelModel::setDragging(bool isDragging) {
    isDragging_ = isDragging;
    emit isDraggingChanged();
}

void PanelModel::dragBegan() {
    setDragging(true);
    context_.actions.dragBegan();
}

void PanelModel::dragEnded(bool completed, const std::vector<Url>& urls) {
    setDragging(false);
    context_.actions.dragEnded(completed, urls);
}

CapturePointer PanelModel::stayingCapture(const QString& captureId) const {
    return isPresented() ? captures_.stayingCapture(captureId) : nullptr;
}

void PanelModel::perform(const CardActions::OnCapture& action, const QString& captureId) {
    if (const auto capture = stayingCapture(captureId)) action(capture);
}

void PanelModel::close(const QString& captureId) {
    Debug::log([] { return "tap X"; });
    perform(context_.actions.close, captureId);
}

void PanelModel::closeAll() {
    context_.actions.closeAll();
}

void PanelModel::open(const QString& captureId) {
    perform(context_.actions.open, captureId);
}

void PanelModel::copy(const QString& captureId) {
    perform(context_.actions.copy, captureId);
}

void PanelModel::reveal(const QString& captureId) {
    perform(context_.actions.reveal, captureId);
}

void PanelModel::share(const QString& captureId, const QRectF& anchor) {
    if (const auto capture = stayingCapture(captureId))
        context_.actions.share(capture, toRect(anchor));
}

void PanelModel::trash(const QString& captureId) {
    perform(context_.actions.trash, captureId);
}

void PanelModel::toggleSelect(const QString& captureId) {
    perform(context_.actions.toggleSelect, captureId);
}

void PanelModel::togglePin(const QString& captureId) {
    perform(context_.actions.togglePin, captureId);
}

void PanelModel::clearSelection() {
    context_.actions.clearSelection();
}

void PanelModel::copySelected() {
    context_.actions.copySelected();
}

void PanelModel::trashSelected() {
    context_.actions.trashSelected();
}

void PanelModel::removeSelected() {
    context_.actions.removeSelected();
}

void PanelModel::selectAll() {
    context_.actions.selectAll();
}

void PanelModel::showMenu(const QString& captureId, const QRectF& anchor, bool byKeyboard) {
    if (const auto capture = stayingCapture(captureId))
        context_.actions.captureMenu(capture, menuRequest(anchor, byKeyboard));
}

void PanelModel::showBackgroundMenu(const QRectF& anchor, bool byKeyboard) {
    if (isPresented()) context_.actions.backgroundMenu(menuRequest(anchor, byKeyboard));
}

void PanelModel::beginRenaming(const QString& captureId) {
    perform(context_.actions.beginRenaming, captureId);
}

void PanelModel::finishRenaming(const QString& name) {
    context_.actions.finishRenaming(name.toStdString());
}

void PanelModel::cancelRenaming() {
    context_.actions.cancelRenaming();
}

void PanelModel::undo() {
    context_.actions.undo();
}

void PanelModel::undoTrash(const QString& captureId) {
    if (const auto capture = captures_.capture(captureId))
        context_.actions.undoTrash(capture->id());
}

void PanelModel::stopCopyingText(const QString& captureId) {
    perform(context_.actions.stopCopyingText, captureId);
}

void PanelModel::preview(const QString& captureId) {
    perform(context_.actions.preview, captureId);
}

}  // namespace vantle
