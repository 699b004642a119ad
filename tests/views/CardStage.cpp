#include "CardStage.h"

#include <stdexcept>

namespace vantle {

CardStage::CardStage() {
    state.visible.set(true);
    recordRequests();
}

void CardStage::recordRequests() {
    const auto onCapture = [this](const char* what) {
        return [this, what](const CapturePointer& one) {
            asked.push_back(std::string(what) + " " + one->fileName());
        };
    };
    const auto onPanel = [this](const char* what) {
        return [this, what] { asked.push_back(what); };
    };
    actions.close = onCapture("close");
    actions.closeAll = onPanel("close all");
    actions.open = onCapture("open");
    actions.copy = onCapture("copy");
    actions.reveal = onCapture("reveal");
    actions.share = [this](const CapturePointer& one, const Rect& anchor) {
        asked.push_back("share " + one->fileName());
        shareAnchor = anchor;
    };
    actions.trash = onCapture("trash");
    actions.toggleSelect = onCapture("toggle select");
    actions.togglePin = onCapture("toggle pin");
    actions.clearSelection = onPanel("clear selection");
    actions.dragItems = [this](const CapturePointer&) { return dragItems; };
    actions.dragBegan = onPanel("drag began");
    actions.dragEnded = [this](bool completed, const std::vector<Url>& urls) {
        std::string what = completed ? "dragged" : "not dragged";
        for (const Url& url : urls) what += " " + std::string(url.lastPathComponent());
        asked.push_back(what);
    };
    actions.copySelected = onPanel("copy selected");
    actions.trashSelected = onPanel("trash selected");
    actions.removeSelected = onPanel("remove selected");
    actions.selectAll = onPanel("select all");
    actions.beginRenaming = onCapture("rename");
    actions.finishRenaming = [this](const std::string& name) { asked.push_back("name " + name); };
    actions.cancelRenaming = onPanel("cancel renaming");
    actions.captureMenu = [this](const CapturePointer& one, const MenuRequest& request) {
        asked.push_back("menu of " + one->fileName());
        menuRequest = request;
    };
    actions.backgroundMenu = [this](const MenuRequest& request) {
        asked.push_back("menu");
        menuRequest = request;
    };
    actions.stopCopyingText = onCapture("stop copying text of");
    actions.undo = onPanel("undo");
    actions.preview = onCapture("preview");
    actions.undoTrash = [this](const UUID& id) { asked.push_back("undo trash " + id.text()); };
}

CapturePanel& CardStage::preparedCard() {
    panel.reset();
    panel = std::make_unique<CapturePanel>(
        PanelModel::Context{state, settings, clock, scheduler, dragging, actions, rendering});
    return *panel;
}

void CardStage::makeCard() {
    preparedCard().orderFrontRegardless();
    if (!QTest::qWaitForWindowExposed(&window())) throw std::runtime_error("no window came up");
    rest();
}

void CardStage::trash(const CapturePointer& trashed, TrashNotice notice) {
    auto notices = state.trashNotices.value();
    notices[trashed->id()] = notice;
    state.trashNotices.set(std::move(notices));
    auto left = state.captures.value();
    std::erase(left, trashed);
    state.captures.set(std::move(left));
    rest();
}

void CardStage::show(const std::vector<CapturePointer>& captures) {
    state.captures.set(captures);
    if (panel) rest();
}

QRectF CardStage::glassFrame() const {
    const auto* glass = PassthroughContainerView::findGlass(*window().contentItem());
    return glass ? frame(*glass) : QRectF();
}

std::vector<QQuickItem*> CardStage::items(const char* type, QQuickItem* below) const {
    std::vector<QQuickItem*> found;
    QQuickItem* root = below ? below : window().contentItem();
    for (QQuickItem* child : root->childItems()) {
        const QString name = QString::fromLatin1(child->metaObject()->className());
        if (name.section(QStringLiteral("_QML"), 0, 0).section(QStringLiteral("::"), -1) ==
            QLatin1String(type))
            found.push_back(child);
        const auto deeper = items(type, child);
        found.insert(found.end(), deeper.begin(), deeper.end());
    }
    return found;
}

QQuickItem* CardStage::item(const char* type, QQuickItem* below) const {
    const auto found = items(type, below);
    if (found.empty()) throw std::runtime_error(std::string("there is no ") + type);
    return found.front();
}

QQuickItem* CardStage::button(const char* name, QQuickItem* below) const {
    for (QQuickItem* press : items("PressArea", below))
        if (press->property("name").toString() == QString::fromUtf8(name)) return press;
    throw std::runtime_error(std::string("there is no button ") + name);
}

std::vector<std::string> CardStage::symbols(QQuickItem* below) const {
    std::vector<std::string> names;
    for (const char* type : {"TapIcon", "ShareButton"})
        for (const QQuickItem* icon : items(type, below))
            if (icon->isVisible()) names.push_back(text(icon, "symbol"));
    return names;
}

QRectF CardStage::frameIn(const QQuickItem& item, const QQuickItem& other) {
    return other.mapRectFromItem(&item, QRectF(QPointF(), item.size()));
}

QRectF CardStage::frame(const QQuickItem& item) const {
    return frameIn(item, *window().contentItem());
}

void CardStage::hover(const QPointF& point) {
    // Qt reports a pointer only when it moves.
    QTest::mouseMove(&window(), {1, 1});
    QTest::mouseMove(&window(), point.toPoint());
    rest();
}

void CardStage::click(const QPointF& point, Qt::KeyboardModifiers modifiers) {
    QTest::mouseClick(&window(), Qt::LeftButton, modifiers, point.toPoint());
    rest();
}

}  // namespace vantle
