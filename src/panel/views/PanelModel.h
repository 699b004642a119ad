#pragma once

#include <QtQml/qqmlregistration.h>

#include <QAccessible>
#include <QObject>
#include <QRectF>
#include <QString>
#include <utility>
#include <vector>

#include "panel/CardActions.h"
#include "panel/PanelState.h"
#include "panel/ScreenSide.h"
#include "panel/views/CaptureListModel.h"
#include "panel/views/DragSource.h"
#include "platform/Scheduler.h"
#include "platform/WallClock.h"
#include "settings/Settings.h"
#include "support/Subscription.h"

namespace vantle {

/// The panel's state as properties for the card, and the card's requests as functions. It keeps the
/// values that it receives, because a change is announced before it is stored.
class PanelModel : public vantle::DragSource,  // the linter needs the full name
                   private QAccessible::ActivationObserver {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("created by the panel")

    Q_PROPERTY(vantle::CaptureListModel* captures READ captures CONSTANT)
    /// The number of tiles on the card, with the notices of trashed captures. A card that leaves
    /// because its last tile was removed still shows that tile.
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(double contentWidth READ contentWidth NOTIFY countChanged)
    /// The height of the thumbnails in a row, or of the only thumbnail.
    Q_PROPERTY(double thumbnailHeight READ thumbnailHeight NOTIFY countChanged)
    Q_PROPERTY(bool overflows READ overflows NOTIFY countChanged)
    /// The spring of the latest change of the captures.
    Q_PROPERTY(double listResponse READ listResponse NOTIFY listAnimationChanged)
    Q_PROPERTY(double listDampingFraction READ listDampingFraction NOTIFY listAnimationChanged)
    /// The text below the name of a single capture.
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY subtitleChanged)

    /// True while there is a card: the panel is visible and not empty.
    Q_PROPERTY(bool isPresented READ isPresented NOTIFY isPresentedChanged)
    Q_PROPERTY(bool hovering READ isHovering NOTIFY hoveringChanged)
    /// The number of selected captures on the card.
    Q_PROPERTY(int selectedCount READ selectedCount NOTIFY selectedCountChanged)
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)
    /// True while captures of the card are being dragged.
    Q_PROPERTY(bool isDragging READ isDragging NOTIFY isDraggingChanged)
    Q_PROPERTY(bool hasMarquee READ hasMarquee NOTIFY marqueeChanged)
    Q_PROPERTY(QRectF marquee READ marquee NOTIFY marqueeChanged)
    /// The corner in which the panel was last shown.
    Q_PROPERTY(bool atRight READ atRight NOTIFY cornerChanged)
    Q_PROPERTY(bool atBottom READ atBottom NOTIFY cornerChanged)
    /// True if a timer dismisses captures; a pin exempts a capture from it.
    Q_PROPERTY(bool hasTimer READ hasTimer NOTIFY hasTimerChanged)
    Q_PROPERTY(bool rendersPlain READ rendersPlain CONSTANT)
    /// True while an assistive program reads the card, which therefore needs all its controls.
    Q_PROPERTY(bool isAssisted READ isAssisted NOTIFY isAssistedChanged)

public:
    enum class Rendering { glass, plain };

    /// The objects that the model shows and calls. All references must outlive the model.
    struct Context {
        PanelState& state;
        Settings& settings;
        const WallClock& clock;
        Scheduler& scheduler;
        DraggingSessions& dragging;
        CardActions actions;
        Rendering rendering = Rendering::glass;
    };

    explicit PanelModel(Context context);
    ~PanelModel() override;

    CaptureListModel* captures() { return &captures_; }
    const CaptureListModel* captures() const { return &captures_; }
    int count() const { return static_cast<int>(captures_.tiles().size()); }
    double contentWidth() const;
    double thumbnailHeight() const;
    bool overflows() const;
    double listResponse() const { return listAnimation_.response; }
    double listDampingFraction() const { return listAnimation_.dampingFraction; }
    QString subtitle() const;
    bool isPresented() const { return visible_ && !isEmpty_; }
    bool isHovering() const { return hovering_; }
    int selectedCount() const { return captures_.selectedCount(); }
    double progress() const { return progress_; }
    bool isDragging() const { return isDragging_; }
    bool hasMarquee() const { return marquee_.has_value(); }
    QRectF marquee() const;
    bool atRight() const { return isRight(corner_); }
    bool atBottom() const { return isBottom(corner_); }
    bool hasTimer() const { return dismissAfter_ > 0; }
    bool isAssisted() const { return QAccessible::isActive(); }
    bool rendersPlain() const { return context_.rendering == Rendering::plain; }

    /// Must be called before the panel is shown, because its corner may have changed.
    void updateCorner();
    /// Must be called when the card has gone from the screen. Drops the captures that it showed.
    void clearCaptures();

    /// Returns the time on the clock that only moves forward.
    Instant now() const { return context_.scheduler.now(); }
    /// Calls `work` after that time, unless the timer is cancelled.
    TimerPointer after(Seconds delay, Scheduler::Work work) const {
        return context_.scheduler.after(delay, std::move(work));
    }
    Scheduler& scheduler() const { return context_.scheduler; }
    ScreenSide nearEdge() const { return atRight() ? ScreenSide::right : ScreenSide::left; }
    DraggingSessions& draggingSessions() override { return context_.dragging; }
    std::vector<DragItem> dragItems(const QString& captureId) const override;
    void dragBegan() override;
    void dragEnded(bool completed, const std::vector<Url>& urls) override;

    /// Returns the identifier of the capture whose tile is under the pointer; empty if there is
    /// none.
    const QString& hoveredTile() const { return hoveredTile_; }

    Q_INVOKABLE void setHovering(bool hovering);
    /// Reports that the tile of a capture came under the pointer, or is no longer there.
    Q_INVOKABLE void setTileHovered(const QString& captureId, bool isHovered);
    /// Removes the row of a capture that has been shown leaving, after the tile's current work.
    Q_INVOKABLE void forget(const QString& captureId);
    Q_INVOKABLE void close(const QString& captureId);
    Q_INVOKABLE void closeAll();
    Q_INVOKABLE void open(const QString& captureId);
    Q_INVOKABLE void copy(const QString& captureId);
    Q_INVOKABLE void reveal(const QString& captureId);
    /// `anchor` is the button's frame in the panel's content, to which the menu points.
    Q_INVOKABLE void share(const QString& captureId, const QRectF& anchor);
    Q_INVOKABLE void trash(const QString& captureId);
    Q_INVOKABLE void toggleSelect(const QString& captureId);
    Q_INVOKABLE void togglePin(const QString& captureId);
    Q_INVOKABLE void clearSelection();
    Q_INVOKABLE void copySelected();
    Q_INVOKABLE void trashSelected();
    Q_INVOKABLE void removeSelected();
    Q_INVOKABLE void selectAll();
    /// `anchor` is what the menu points to, in the panel's content.
    Q_INVOKABLE void showMenu(const QString& captureId, const QRectF& anchor, bool byKeyboard);
    Q_INVOKABLE void showBackgroundMenu(const QRectF& anchor, bool byKeyboard);
    Q_INVOKABLE void beginRenaming(const QString& captureId);
    /// Gives the capture that is being renamed this name, without its extension.
    Q_INVOKABLE void finishRenaming(const QString& name);
    Q_INVOKABLE void cancelRenaming();
    Q_INVOKABLE void undo();
    /// Brings the file of a capture with a notice back from the Trash.
    Q_INVOKABLE void undoTrash(const QString& captureId);
    Q_INVOKABLE void stopCopyingText(const QString& captureId);
    Q_INVOKABLE void preview(const QString& captureId);

signals:
    void countChanged();
    void listAnimationChanged();
    void subtitleChanged();
    void isPresentedChanged();
    void hoveringChanged();
    void hoveredTileChanged();
    void selectedCountChanged();
    void progressChanged();
    void isDraggingChanged();
    void marqueeChanged();
    void cornerChanged();
    void hasTimerChanged();
    void isAssistedChanged();
    /// Emitted when the card is pressed anywhere, by mouse or touch.
    void pressed();

private:
    void accessibilityActiveChanged(bool) override { emit isAssistedChanged(); }
    void observeCaptures();
    void observeMarks();
    void observePresence();
    void setTiles(const std::vector<CapturePointer>& captures,
                  const std::map<UUID, TrashNotice>& notices);
    void setDragging(bool isDragging);
    /// Returns null if the capture has left or is leaving, because nothing can be done with it
    /// then.
    CapturePointer stayingCapture(const QString& captureId) const;
    void perform(const CardActions::OnCapture& action, const QString& captureId);
    const Capture* onlyCapture() const;

    Context context_;
    CaptureListModel captures_;
    PanelCorner corner_;
    Animation listAnimation_;
    bool visible_ = false;
    bool isEmpty_ = true;
    bool hovering_ = false;
    QString hoveredTile_;
    bool isDragging_ = false;
    double progress_ = 1;
    double dismissAfter_ = 0;
    std::optional<Rect> marquee_;
    std::vector<Subscription> subscriptions_;
};

}  // namespace vantle
