#pragma once

#include <QObject>
#include <QWindow>
#include <memory>

#include "panel/PreviewKeyRule.h"
#include "panel/views/PanelModel.h"
#include "platform/qt/BorrowedSpaceBar.h"

namespace vantle {

/// Lets the space bar preview the tile under the pointer while a window of another program has the
/// keyboard (PreviewKeyRule.h). Does nothing where the display server does not allow that.
class PreviewKeyFilter final : public QObject {
public:
    /// Both arguments must outlive the filter. `window` shows the card of `panel`.
    PreviewKeyFilter(QWindow& window, PanelModel& panel);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void press();

    PanelModel& panel_;
    const std::unique_ptr<BorrowedSpaceBar> key_;
    PreviewKeyRule rule_;
};

}  // namespace vantle
