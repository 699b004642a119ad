#pragma once

#include <QtQml/qqmlregistration.h>

#include <QObject>
#include <QString>
#include <vector>

#include "panel/CardActions.h"
#include "panel/PanelState.h"
#include "panel/views/CaptureListModel.h"
#include "support/Subscription.h"

namespace vantle {

/// The panel's state for the card: properties that follow it, and the card's requests as verbs. It
/// keeps what it is told, because a change is announced before it is stored.
class PanelModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the panel")

    Q_PROPERTY(vantle::CaptureListModel* captures READ captures CONSTANT)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(double contentWidth READ contentWidth NOTIFY countChanged)
    /// The height of the thumbnails in a row of several; of the one when there is only one.
    Q_PROPERTY(double thumbnailHeight READ thumbnailHeight NOTIFY countChanged)
    Q_PROPERTY(bool overflows READ overflows NOTIFY countChanged)
    Q_PROPERTY(bool visible READ isVisible NOTIFY visibleChanged)
    Q_PROPERTY(bool hovering READ isHovering NOTIFY hoveringChanged)
    Q_PROPERTY(bool hasSelection READ hasSelection NOTIFY hasSelectionChanged)
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)
    /// The corner in which the panel stands since it was shown last.
    Q_PROPERTY(bool atRight READ atRight NOTIFY visibleChanged)
    Q_PROPERTY(bool atBottom READ atBottom NOTIFY visibleChanged)
    Q_PROPERTY(bool rendersPlain READ rendersPlain CONSTANT)

public:
    enum class Rendering { glass, plain };

    /// `state` outlives this.
    PanelModel(PanelState& state, CardActions actions, Rendering rendering);

    CaptureListModel* captures() { return &captures_; }
    int count() const { return captures_.rowCount(); }
    double contentWidth() const;
    double thumbnailHeight() const;
    bool overflows() const;
    bool isVisible() const { return visible_; }
    bool isHovering() const { return hovering_; }
    bool hasSelection() const { return hasSelection_; }
    double progress() const { return progress_; }
    bool atRight() const { return isRight(corner_); }
    bool atBottom() const { return isBottom(corner_); }
    bool rendersPlain() const { return rendering_ == Rendering::plain; }

    /// The corner may have changed: the panel is about to be shown there.
    void readCorner();

    Q_INVOKABLE void setHovering(bool hovering);
    Q_INVOKABLE void close(const QString& captureId);
    Q_INVOKABLE void closeAll();

signals:
    void countChanged();
    void visibleChanged();
    void hoveringChanged();
    void hasSelectionChanged();
    void progressChanged();

private:
    void observe();

    PanelState& state_;
    CardActions actions_;
    Rendering rendering_;
    CaptureListModel captures_;
    PanelCorner corner_;
    bool visible_ = false;
    bool hovering_ = false;
    bool hasSelection_ = false;
    double progress_ = 1;
    std::vector<Subscription> subscriptions_;
};

}  // namespace vantle
