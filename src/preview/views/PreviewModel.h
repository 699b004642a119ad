#pragma once

#include <QtQml/qqmlregistration.h>

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <vector>

#include "panel/views/DragSource.h"
#include "platform/WallClock.h"
#include "preview/PreviewActions.h"
#include "preview/PreviewState.h"
#include "support/Subscription.h"

namespace vantle {

/// The preview's state as properties for QML, and the preview's requests as functions. It keeps the
/// values that it receives, because a change is announced before it is stored.
class PreviewModel : public vantle::DragSource {  // the linter needs the full name
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("created by the preview")

    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged)
    Q_PROPERTY(QString captureId READ captureId NOTIFY captureChanged)
    Q_PROPERTY(QString fileName READ fileName NOTIFY captureChanged)
    Q_PROPERTY(bool isRecording READ isRecording NOTIFY captureChanged)
    Q_PROPERTY(QString durationText READ durationText NOTIFY captureChanged)
    /// The addresses of the small and of the sharp picture; empty while there is none.
    Q_PROPERTY(QString thumbnail READ thumbnail NOTIFY captureChanged)
    Q_PROPERTY(QString picture READ picture NOTIFY pictureChanged)
    Q_PROPERTY(bool cannotBeDrawn READ cannotBeDrawn NOTIFY cannotBeDrawnChanged)
    /// The line below the name: place on the card, page, sizes and age.
    Q_PROPERTY(QString details READ details NOTIFY factsChanged)
    Q_PROPERTY(bool hasPrevious READ hasPrevious NOTIFY factsChanged)
    Q_PROPERTY(bool hasNext READ hasNext NOTIFY factsChanged)
    Q_PROPERTY(bool hasPages READ hasPages NOTIFY factsChanged)
    /// The frame of the tile, or a small frame in the middle of the window if there is none.
    Q_PROPERTY(QRectF tile READ tile NOTIFY tileChanged)
    Q_PROPERTY(bool hasTile READ hasTile NOTIFY tileChanged)
    /// The frame of the glass in the window when nothing moves.
    Q_PROPERTY(QRectF glass READ glass NOTIFY zoomChanged)
    /// The size of the picture, and where its middle is in the area, from the area's middle.
    Q_PROPERTY(QSizeF pictureSize READ pictureSize NOTIFY zoomChanged)
    Q_PROPERTY(QPointF pictureCentre READ pictureCentre NOTIFY zoomChanged)
    Q_PROPERTY(QSizeF area READ area NOTIFY zoomChanged)
    Q_PROPERTY(bool canMove READ canMove NOTIFY zoomChanged)
    Q_PROPERTY(bool isReal READ isReal NOTIFY zoomChanged)
    /// False if the whole picture is shown in its real pixels already.
    Q_PROPERTY(bool hasOtherZoom READ hasOtherZoom NOTIFY zoomChanged)
    Q_PROPERTY(bool isDragging READ isDragging NOTIFY isDraggingChanged)
    Q_PROPERTY(bool canCopyText READ canCopyText NOTIFY canCopyTextChanged)
    /// The text is being read; how much of the picture is done, and what became of it in the end.
    Q_PROPERTY(bool isReadingText READ isReadingText NOTIFY textChanged)
    Q_PROPERTY(double textProgress READ textProgress NOTIFY textChanged)
    Q_PROPERTY(QString textNotice READ textNotice NOTIFY textChanged)
    Q_PROPERTY(double margin READ margin CONSTANT)
    Q_PROPERTY(double barHeight READ barHeight CONSTANT)

public:
    /// All references must outlive the model.
    struct Context {
        PreviewState& state;
        const WallClock& clock;
        DraggingSessions& dragging;
        PreviewActions actions;
    };

    explicit PreviewModel(Context context);

    bool isOpen() const { return isOpen_; }
    QString captureId() const;
    QString fileName() const;
    bool isRecording() const;
    QString durationText() const;
    QString thumbnail() const;
    QString picture() const;
    bool cannotBeDrawn() const { return cannotBeDrawn_; }
    QString details() const;
    bool hasPrevious() const { return facts_.position > 0; }
    bool hasNext() const { return facts_.position + 1 < facts_.count; }
    bool hasPages() const { return facts_.pageCount > 1; }
    QRectF tile() const;
    bool hasTile() const { return tile_.has_value(); }
    QRectF glass() const;
    QSizeF pictureSize() const;
    QPointF pictureCentre() const;
    QSizeF area() const;
    bool canMove() const { return zoom_.canMove(); }
    bool isReal() const { return zoom_.isReal(); }
    bool hasOtherZoom() const { return !zoom_.isReal() || !zoom_.isFitted(); }
    bool isDragging() const { return isDragging_; }
    bool canCopyText() const { return canCopyText_; }
    bool isReadingText() const { return text_ && text_->notice.empty(); }
    double textProgress() const { return text_ ? text_->fraction : 0; }
    QString textNotice() const { return text_ ? QString::fromStdString(text_->notice) : QString(); }
    static double margin();
    static double barHeight();

    /// Returns the picture at an address without its scheme; null if it is not shown any more.
    ImagePointer image(const QString& id) const;

    DraggingSessions& draggingSessions() override { return context_.dragging; }
    std::vector<DragItem> dragItems(const QString& captureId) const override;
    void dragBegan() override;
    void dragEnded(bool completed, const std::vector<Url>& urls) override;

    Q_INVOKABLE void close() { context_.actions.close(); }
    Q_INVOKABLE void closed() { context_.actions.closed(); }
    Q_INVOKABLE void step(int direction) { context_.actions.step(direction); }
    Q_INVOKABLE void stepPage(int direction) { context_.actions.stepPage(direction); }
    Q_INVOKABLE void open() { context_.actions.open(); }
    Q_INVOKABLE void copy() { context_.actions.copy(); }
    Q_INVOKABLE void trash() { context_.actions.trash(); }
    Q_INVOKABLE void copyText() { context_.actions.copyText(); }
    Q_INVOKABLE void stopCopyingText() { context_.actions.stopCopyingText(); }
    /// Places count from the middle of the area.
    Q_INVOKABLE void toggleRealPixels(const QPointF& anchor);
    Q_INVOKABLE void zoomBy(double factor, const QPointF& anchor);
    Q_INVOKABLE void moveBy(double x, double y) { context_.actions.moveBy(x, y); }

signals:
    void isOpenChanged();
    void captureChanged();
    void pictureChanged();
    void cannotBeDrawnChanged();
    void factsChanged();
    void tileChanged();
    void zoomChanged();
    void canCopyTextChanged();
    void textChanged();
    void isDraggingChanged();

private:
    void observe();

    Context context_;
    bool isOpen_ = false;
    bool cannotBeDrawn_ = false;
    bool isDragging_ = false;
    bool canCopyText_ = false;
    std::optional<PanelState::TextCopying> text_;
    CapturePointer capture_;
    ImagePointer picture_;
    int pictureNumber_ = 0;  ///< Distinguishes the pictures, which may be of the same capture.
    PreviewFacts facts_;
    PreviewZoom zoom_;
    std::optional<Rect> tile_;
    std::vector<Subscription> subscriptions_;
};

}  // namespace vantle
