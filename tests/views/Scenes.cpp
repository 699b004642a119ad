#include "Scenes.h"

#include <QQuickWindow>

#include "support/Localization.h"

namespace vantle {
namespace {

constexpr Size screen{2880, 1800};

/// Returns screenshots of several shapes, as people take them.
std::vector<CapturePointer> shots(CardStage& stage, int count) {
    constexpr std::array sizes = {screen,           Size{1200, 1600}, Size{1600, 900},
                                  Size{1000, 1000}, Size{2200, 1300}, Size{1920, 1080}};
    std::vector<CapturePointer> made;
    for (int i = 0; i < count; ++i)
        made.push_back(capture(std::string(1, static_cast<char>('A' + i % 26)) + " Screenshot " +
                                   std::to_string(i + 1),
                               sizes[static_cast<std::size_t>(i) % sizes.size()],
                               stage.clock.now() - std::chrono::seconds(2)));
    return made;
}

void showShots(CardStage& stage, int count) {
    stage.show(shots(stage, count));
    stage.makeCard();
}

void showOnly(CardStage& stage, const std::vector<CapturePointer>& captures) {
    stage.show(captures);
    stage.makeCard();
}

void select(CardStage& stage, const std::vector<std::size_t>& positions) {
    std::set<UUID> ids;
    for (const auto position : positions) ids.insert(stage.state.captures.value()[position]->id());
    stage.state.selected.set(ids);
    stage.rest();
}

void hoverTile(CardStage& stage, std::size_t position) {
    stage.hover(stage.frame(*stage.tile(position)).center() - QPointF(0, 20));
}

std::string copiedWords(const char* count) {
    return filled(localized("TextCopy", "Copied %1 words"), {count});
}

void setText(CardStage& stage, std::size_t position, PanelState::TextCopying copying) {
    auto all = stage.state.textCopying.value();
    all[stage.state.captures.value()[position]->id()] = std::move(copying);
    stage.state.textCopying.set(std::move(all));
    stage.rest();
}

}  // namespace

const std::vector<Scene>& allScenes() {
    static const std::vector<Scene> scenes = {
        {"one", [](CardStage& stage) { showShots(stage, 1); }},
        {"two", [](CardStage& stage) { showShots(stage, 2); }},
        {"five", [](CardStage& stage) { showShots(stage, 5); }},
        {"forty", [](CardStage& stage) { showShots(stage, 40); }},
        {"one-hovered",
         [](CardStage& stage) {
             showShots(stage, 1);
             hoverTile(stage, 0);
         }},
        {"hovered",
         [](CardStage& stage) {
             stage.settings.dismissAfter.set(10);
             showShots(stage, 5);
             hoverTile(stage, 2);
         }},
        {"selected",
         [](CardStage& stage) {
             showShots(stage, 3);
             select(stage, {0, 2});
             hoverTile(stage, 1);
         }},
        {"trashed",
         [](CardStage& stage) {
             showShots(stage, 3);
             stage.trash(stage.state.captures.value()[1]);
         }},
        {"trashed-one",
         [](CardStage& stage) {
             showShots(stage, 1);
             stage.trash(stage.state.captures.value()[0]);
         }},
        {"not-put-back",
         [](CardStage& stage) {
             showShots(stage, 6);
             const auto shown = stage.state.captures.value();
             stage.trash(shown[1], TrashNotice::notPutBack);
             stage.trash(shown[3], TrashNotice::notMoved);
         }},
        {"text-reading",
         [](CardStage& stage) {
             showShots(stage, 3);
             setText(stage, 1, {.fraction = 0.4, .notice = ""});
             hoverTile(stage, 1);
         }},
        {"text-reading-one",
         [](CardStage& stage) {
             showShots(stage, 1);
             setText(stage, 0, {.fraction = 0.8, .notice = ""});
         }},
        {"text-copied",
         [](CardStage& stage) {
             showShots(stage, 4);
             setText(stage, 0, {.fraction = 1, .notice = copiedWords("12")});
             setText(stage, 1, {.fraction = 1, .notice = localized("TextCopy", "No text found")});
             setText(stage, 2, {.fraction = 0, .notice = ""});
             setText(stage, 3,
                     {.fraction = 1,
                      .notice = localized("TextReader",
                                          "The program that recognizes text ended unexpectedly.")});
             hoverTile(stage, 0);
         }},
        {"marquee",
         [](CardStage& stage) {
             showShots(stage, 3);
             const QRectF glass = stage.glassFrame();
             stage.state.marquee.set(Rect{{glass.left() + 120, glass.bottom() - 80}, {150, 74}});
             select(stage, {0, 1});
         }},
        {"pinned",
         [](CardStage& stage) {
             stage.settings.dismissAfter.set(10);
             showShots(stage, 2);
             stage.state.pinned.set({stage.state.captures.value()[0]->id()});
             hoverTile(stage, 1);
         }},
        {"copied",
         [](CardStage& stage) {
             showShots(stage, 2);
             stage.state.copiedID.set(stage.state.captures.value()[1]->id());
             hoverTile(stage, 1);
         }},
        {"timer",
         [](CardStage& stage) {
             stage.settings.dismissAfter.set(10);
             showShots(stage, 1);
             stage.state.progress.set(0.6);
             stage.rest();
         }},
        {"recording",
         [](CardStage& stage) {
             showOnly(stage, {recording("Recording", 65, screen), shots(stage, 1).front()});
         }},
        {"without-picture",
         [](CardStage& stage) {
             showOnly(stage, {capture("Damaged"), recording("Empty", 0)});
         }},
        {"panorama",
         [](CardStage& stage) {
             showOnly(stage, {capture("Panorama", {9000, 900}, stage.clock.now())});
         }},
        {"portrait",
         [](CardStage& stage) {
             showOnly(stage, {capture("Whole page", {800, 4000}, stage.clock.now())});
         }},
        {"long-names",
         [](CardStage& stage) {
             const std::string name =
                 "Screenshot from the quarterly review of the northern offices, 2026-11-21 "
                 "12.14.14";
             showOnly(stage,
                      {capture(name + " (1)", screen), capture(name + " (2)", {1200, 1600})});
         }},
        {"right-to-left-names",
         [](CardStage& stage) {
             showOnly(stage, {capture("لقطة شاشة ١٢", screen), capture("צילום מסך 7", screen)});
         }},
        {"keyboard",
         [](CardStage& stage) {
             showShots(stage, 3);
             stage.panel->takeKeyboard();
             (void)QTest::qWaitForWindowActive(&stage.window());
             stage.rest();
         }},
    };
    return scenes;
}

QImage drawn(CardStage& stage) {
    return stage.window().grabWindow();
}

}  // namespace vantle
