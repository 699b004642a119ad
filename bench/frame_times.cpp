// Measures how long the card's frames take on this display when the card appears, when a tile
// appears, when one is removed, and while a row of 40 tiles scrolls. Prints for each: the work of a
// frame (from its animations until its last pixel is handed over), the time between frames, and the
// processor time of the whole process.

#include <sys/resource.h>

#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include "fakes/FakeDraggingSessions.h"
#include "fakes/SettingsOnFakes.h"
#include "panel/CardLayout.h"
#include "panel/views/CapturePanel.h"
#include "platform/qt/QtGeometry.h"
#include "views/CapturesOfAnySize.h"

namespace {

using namespace vantle;

constexpr Size screenshot{2560, 1600};

double processorMilliseconds() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto milliseconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
    };
    return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
}

struct Series {
    std::vector<double> values;

    double part(double fraction) {
        if (values.empty()) return 0;
        std::ranges::sort(values);
        return values[static_cast<std::size_t>(fraction * static_cast<double>(values.size() - 1))];
    }
};

/// A panel on the display, and the times of the frames that it draws.
class Stage : public fakes::SettingsOnFakes {
public:
    Stage() {
        panel.setFrame(CardLayout::windowFrame(PanelCorner::bottomRight, visibleFrame()));
        panel.orderFrontRegardless();
        QObject::connect(
            &panel.window(), &QQuickWindow::afterAnimating, &panel.window(),
            [this] { begun_ = clock_.nsecsElapsed(); }, Qt::DirectConnection);
        QObject::connect(
            &panel.window(), &QQuickWindow::frameSwapped, &panel.window(), [this] { ended(); },
            Qt::DirectConnection);
        clock_.start();
    }

    /// Makes `change` and measures the frames that follow, until no more are drawn.
    void measure(const char* what, const std::function<void()>& change) {
        work_.values.clear();
        intervals_.values.clear();
        last_ = 0;
        const double before = processorMilliseconds();
        change();
        do {
            drawn_ = false;
            QEventLoop loop;
            QTimer::singleShot(150, &loop, &QEventLoop::quit);
            loop.exec();
        } while (drawn_);
        std::printf(
            "%-24s %4zu frames  work %5.1f ms (95 %%: %5.1f, worst %5.1f)  apart %5.1f ms "
            "(95 %%: %5.1f)  processor %5.0f ms\n",
            what, work_.values.size(), work_.part(0.5), work_.part(0.95), work_.part(1),
            intervals_.part(0.5), intervals_.part(0.95), processorMilliseconds() - before);
    }

    QObject* row() { return panel.window().findChild<QObject*>(QStringLiteral("tileRow")); }

    fakes::VirtualClock wallClock{time};
    fakes::ManualScheduler scheduler{time};
    fakes::FakeDraggingSessions dragging;
    PanelState state;
    CapturePanel panel{PanelModel::Context{state, settings, wallClock, scheduler, dragging, {}}};

private:
    static Rect visibleFrame() {
        const QRect all = primaryScreenGeometry();
        return {{0, 0}, {double(all.width()), double(all.height())}};
    }

    void ended() {
        const qint64 now = clock_.nsecsElapsed();
        work_.values.push_back(static_cast<double>(now - begun_) / 1e6);
        if (last_ > 0) intervals_.values.push_back(static_cast<double>(now - last_) / 1e6);
        last_ = now;
        drawn_ = true;
    }

    QElapsedTimer clock_;
    qint64 begun_ = 0;
    qint64 last_ = 0;
    bool drawn_ = false;
    Series work_;
    Series intervals_;
};

std::vector<CapturePointer> captures(int count) {
    std::vector<CapturePointer> made;
    for (int i = 0; i < count; ++i)
        made.push_back(capture(std::to_string(i) + " Screenshot", screenshot));
    return made;
}

}  // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    Stage stage;
    PanelState& state = stage.state;
    auto all = captures(40);
    std::printf("scale %g\n", application.devicePixelRatio());

    state.captures.set({all[0]});
    stage.measure("the card arrives", [&] { state.visible.set(true); });
    stage.measure("a second tile arrives", [&] { state.captures.set({all[0], all[1]}); });
    const auto some = std::vector(all.begin(), all.end() - 1);
    stage.measure("to 39 tiles", [&] { state.captures.set(some); });
    stage.measure("the 40th tile arrives", [&] { state.captures.set(all); });
    stage.measure("the row scrolls",
                  [&] { QMetaObject::invokeMethod(stage.row(), "scrollTo", Q_ARG(QVariant, 0)); });
    all.erase(all.begin() + 2);
    stage.measure("a tile is removed", [&] { state.captures.set(all); });
    stage.measure("the card leaves", [&] { state.visible.set(false); });
    stage.measure("nothing", [] {});
    return 0;
}
