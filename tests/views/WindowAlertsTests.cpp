#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QQuickItem>
#include <QTest>
#include <QTimer>

#include "contract/AlertsContract.h"
#include "screens/views/AlertWindow.h"

namespace vantle {
namespace {

/// Real alerts, and functions that use them as a user would.
struct ShownAlerts {
    using Act = std::function<void(QQuickView& window)>;

    /// Runs the alert and calls `act` when it is open. Returns the answer.
    int run(const Alert& asked, Act act) {
        const QWindow* below = topmost();
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&, below] {
            auto* window = topmost();
            if (!act || !window || window == below) return;
            std::exchange(act, nullptr)(*window);
        });
        timer.start(1);
        return alerts.runModal(asked);
    }
    /// Returns the alert that was opened last, or null if there is none.
    static QQuickView* topmost() {
        QQuickView* last = nullptr;
        for (QWindow* window : QGuiApplication::topLevelWindows())
            if (auto* alert = dynamic_cast<AlertWindow*>(window); alert && alert->isExposed())
                last = alert;
        return last;
    }

    static QQuickItem* find(const QQuickItem& item, const QString& title) {
        for (QQuickItem* child : item.childItems()) {
            if (child->property("text").toString() == title) return child;
            if (QQuickItem* found = find(*child, title)) return found;
        }
        return nullptr;
    }

    static void click(QQuickView& window, const char* title) {
        const QQuickItem* button = find(*window.rootObject(), QString::fromLatin1(title));
        ASSERT_TRUE(button) << title;
        QTest::mouseClick(&window, Qt::LeftButton, {},
                          button->mapToScene(button->boundingRect().center()).toPoint());
    }

    int runAndPress(const Alert& asked, std::size_t button) {
        return run(asked, [&](auto& window) { click(window, asked.buttons[button].c_str()); });
    }
    int runUnanswered(const Alert& asked) {
        return run(asked, [](auto& window) { window.close(); });
    }

    WindowAlerts alerts;
};

const Alert alert{Alert::Style::warning, "Message", "Text", {"Open", "Retry", "Later"}};

INSTANTIATE_TYPED_TEST_SUITE_P(WindowAlerts, AlertsContract, ShownAlerts);

class AlertTest : public testing::Test, protected ShownAlerts {
protected:
    int run(Act act) { return ShownAlerts::run(alert, std::move(act)); }
    using ShownAlerts::run;
};

TEST_F(AlertTest, ReturnPressesTheFirstButton) {
    EXPECT_EQ(run([](auto& window) { QTest::keyClick(&window, Qt::Key_Return); }), 1000);
}

TEST_F(AlertTest, EscapePressesTheLastButton) {
    EXPECT_EQ(run([](auto& window) { QTest::keyClick(&window, Qt::Key_Escape); }), 1002);
}

TEST_F(AlertTest, TabReachesEveryButton) {
    const auto answer = run([](auto& window) {
        QTest::keyClick(&window, Qt::Key_Tab);
        QTest::keyClick(&window, Qt::Key_Space);
    });
    EXPECT_EQ(answer, 1001);
}

TEST_F(AlertTest, TheEndOfTheProgramPressesTheLastButton) {
    int answer = 0;
    QTimer::singleShot(0, [&] { answer = run([](auto&) { QCoreApplication::exit(); }); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_EQ(answer, 1002);
}

TEST_F(AlertTest, AnAlertCanOpenAboveAnother) {
    int above = 0;
    const int below = run([&](auto& first) {
        const Alert second{Alert::Style::warning, "Second", "", {"Yes", "No"}};
        above = run(second, [](auto& window) { QTest::keyClick(&window, Qt::Key_Return); });
        QTest::keyClick(&first, Qt::Key_Escape);
    });
    EXPECT_EQ(above, 1000);
    EXPECT_EQ(below, 1002);
}

TEST_F(AlertTest, ItIsAsHighAsItsTextNeeds) {
    const auto heightOf = [](const std::string& text) {
        const Alert asked{Alert::Style::warning, "Message", text, {"OK"}};
        AlertWindow window(asked);
        window.grabWindow();
        return window.height();
    };
    std::string novel;
    for (int i = 0; i < 60; ++i) novel += "more words ";
    EXPECT_GT(heightOf(novel), heightOf("few words") + 80);
    EXPECT_GT(heightOf(std::string(600, 'x')), heightOf("few words") + 80);
}

}  // namespace
}  // namespace vantle
