#include "PreviewStage.h"

#include <stdexcept>

#include "preview/PreviewLayout.h"

namespace vantle {
namespace {

PreviewZoom fitted(Size pixels, bool isVector) {
    const Size maximum = PreviewLayout::maximumArea(PreviewStage::screen);
    const Size whole = PreviewLayout::fitted(pixels, 1, maximum, isVector);
    return {whole, pixels == Size{} ? whole : pixels, maximum};
}

}  // namespace

PreviewStage::PreviewStage() {
    state.window = screen;
}

PreviewActions PreviewStage::recordedActions() {
    const auto onRequest = [this](const char* what) {
        return [this, what] { asked.push_back(what); };
    };
    const auto onStep = [this](const std::string& what) {
        return [this, what](int by) { asked.push_back(what + " " + std::to_string(by)); };
    };
    PreviewActions actions;
    actions.close = onRequest("close");
    actions.step = onStep("step");
    actions.stepPage = onStep("page");
    actions.toggleRealPixels = [this](Point at) {
        asked.push_back("real pixels at " + std::to_string(std::lround(at.x)) + ", " +
                        std::to_string(std::lround(at.y)));
    };
    actions.zoomBy = [this](double factor, Point) {
        asked.push_back(factor > 1 ? "zoom in" : "zoom out");
    };
    actions.moveBy = [this](double x, double y) {
        asked.push_back("move by " + std::to_string(std::lround(x)) + ", " +
                        std::to_string(std::lround(y)));
    };
    actions.open = onRequest("open");
    actions.copy = onRequest("copy");
    actions.trash = onRequest("trash");
    actions.copyText = onRequest("copy text");
    actions.stopCopyingText = onRequest("stop copying text");
    actions.dragItems = [] { return std::vector<DragItem>{}; };
    actions.dragBegan = onRequest("drag began");
    actions.dragEnded = [this](bool completed, const std::vector<Url>&) {
        asked.push_back(completed ? "dragged" : "not dragged");
    };
    actions.closed = onRequest("closed");
    return actions;
}

void PreviewStage::begin(const CapturePointer& capture, PreviewFacts facts) {
    facts.pixels = capture->pixelSize();
    state.facts.set(facts);
    state.zoom.set(fitted(facts.pixels, facts.isVector));
    state.tile.set(tile);
    state.capture.set(capture);
    panel = std::make_unique<PreviewPanel>(
        PreviewModel::Context{state, clock, dragging, recordedActions()});
    panel->open({{0, 0}, screen});
    window().resize(static_cast<int>(screen.width), static_cast<int>(screen.height));
    if (!QTest::qWaitForWindowExposed(&window())) throw std::runtime_error("no window came up");
    state.isOpen.set(true);
}

void PreviewStage::show(const CapturePointer& capture, PreviewFacts facts) {
    begin(capture, facts);
    frames.settle();
    // The pointer goes away from the buttons that appear below it. Qt reports it only when it
    // moves.
    QTest::mouseMove(&window(), {1, 1});
    QTest::mouseMove(&window(), {2, 2});
    frames.settle();
}

std::vector<QQuickItem*> PreviewStage::items(const char* type, QQuickItem* below) const {
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

QQuickItem* PreviewStage::item(const char* type) const {
    const auto found = items(type);
    if (found.empty()) throw std::runtime_error(std::string("there is no ") + type);
    return found.front();
}

QQuickItem* PreviewStage::button(const char* name) const {
    for (QQuickItem* press : items("PressArea"))
        if (press->property("name").toString() == QString::fromUtf8(name)) return press;
    throw std::runtime_error(std::string("there is no button ") + name);
}

const std::vector<PreviewScene>& previewScenes() {
    static const std::vector<PreviewScene> scenes = {
        {"wide",
         [](PreviewStage& stage) {
             stage.show(capture("Screenshot from 2026-11-21", {2880, 1800}, stage.clock.now()),
                        {.position = 2, .count = 5, .bytes = 1'234'567});
         }},
        {"tall",
         [](PreviewStage& stage) {
             stage.show(capture("A long page", {600, 4000}, stage.clock.now()),
                        {.count = 1, .bytes = 345'678});
         }},
        {"tiny",
         [](PreviewStage& stage) {
             stage.show(capture("Icon", {48, 32}, stage.clock.now()),
                        {.position = 1, .count = 2, .bytes = 321});
         }},
        {"recording",
         [](PreviewStage& stage) {
             stage.show(recording("Recording", 75, {1280, 720}, stage.clock.now()),
                        {.count = 1, .bytes = 12'345'678});
         }},
        {"document",
         [](PreviewStage& stage) {
             stage.show(capture("Paper", {595, 842}, stage.clock.now()),
                        {.count = 1, .page = 1, .pageCount = 7, .isVector = true, .bytes = 54'321});
         }},
        {"text-reading",
         [](PreviewStage& stage) {
             stage.state.canCopyText.set(true);
             stage.state.textCopying.set(PanelState::TextCopying{.fraction = 0.4, .notice = ""});
             stage.show(capture("Screenshot from 2026-11-21", {1200, 700}, stage.clock.now()),
                        {.position = 2, .count = 5, .bytes = 1'234'567});
         }},
        {"text-copied",
         [](PreviewStage& stage) {
             stage.state.canCopyText.set(true);
             stage.state.textCopying.set(
                 PanelState::TextCopying{.fraction = 1, .notice = "Copied 12 words"});
             stage.show(capture("Screenshot from 2026-11-21", {1200, 700}, stage.clock.now()),
                        {.position = 2, .count = 5, .bytes = 1'234'567});
         }},
        {"text-tiny",
         [](PreviewStage& stage) {
             stage.state.canCopyText.set(true);
             stage.show(capture("Icon", {48, 32}, stage.clock.now()),
                        {.position = 1, .count = 2, .page = 0, .pageCount = 3, .bytes = 321});
         }},
        {"unreadable",
         [](PreviewStage& stage) {
             stage.show(capture("Damaged", {}, stage.clock.now()));
             stage.state.cannotBeDrawn.set(true);
         }},
    };
    return scenes;
}

}  // namespace vantle
