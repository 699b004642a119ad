#include "panel/views/PanelModel.h"

#include <utility>

#include "panel/CardLayout.h"
#include "support/Debug.h"

namespace vantle {

PanelModel::PanelModel(PanelState& state, CardActions actions, Rendering rendering)
    : state_(state), actions_(std::move(actions)), rendering_(rendering), corner_(state.corner) {
    observe();
}

void PanelModel::observe() {
    subscriptions_.push_back(state_.captures.observe([this](const auto& captures) {
        captures_.setCaptures(captures);
        emit countChanged();
    }));
    subscriptions_.push_back(state_.selected.observe([this](const auto& selected) {
        captures_.setSelected(selected);
        hasSelection_ = !selected.empty();
        emit hasSelectionChanged();
    }));
    subscriptions_.push_back(
        state_.pinned.observe([this](const auto& pinned) { captures_.setPinned(pinned); }));
    subscriptions_.push_back(state_.visible.observe([this](bool visible) {
        visible_ = visible;
        emit visibleChanged();
    }));
    subscriptions_.push_back(state_.hovering.observe([this](bool hovering) {
        hovering_ = hovering;
        emit hoveringChanged();
    }));
    subscriptions_.push_back(state_.progress.observe([this](double progress) {
        progress_ = progress;
        emit progressChanged();
    }));
}

double PanelModel::contentWidth() const {
    return CardLayout::contentWidth(captures_.captures());
}

double PanelModel::thumbnailHeight() const {
    const auto& shown = captures_.captures();
    if (shown.empty()) return 0;
    return CardLayout::tileSize(count(), *shown.front()).height;
}

bool PanelModel::overflows() const {
    return contentWidth() > CardLayout::maxContentWidth;
}

void PanelModel::readCorner() {
    corner_ = state_.corner;
    emit visibleChanged();
}

void PanelModel::setHovering(bool hovering) {
    if (hovering != hovering_) state_.hovering.set(hovering);
}

void PanelModel::close(const QString& captureId) {
    Debug::log([] { return "tap X"; });
    if (const auto capture = captures_.capture(captureId)) actions_.close(capture);
}

void PanelModel::closeAll() {
    Debug::log([] { return "tap Clear all"; });
    actions_.closeAll();
}

}  // namespace vantle
