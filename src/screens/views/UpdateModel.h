#pragma once

#include <QtQml/qqmlregistration.h>

#include <QObject>

#include "support/Subscription.h"
#include "updateflow/UpdateFlow.h"

namespace vantle {

/// Provides an update to its view.
class UpdateModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("created by the window")

    Q_PROPERTY(QString headline READ headline NOTIFY changed)
    Q_PROPERTY(QString detail READ detail NOTIFY changed)
    /// The release notes as rich text.
    Q_PROPERTY(QString notes READ notes NOTIFY changed)
    /// The release notes as plain text, for screen readers.
    Q_PROPERTY(QString plainNotes READ plainNotes NOTIFY changed)
    Q_PROPERTY(QString symbol READ symbol NOTIFY changed)
    Q_PROPERTY(bool isWarning READ isWarning NOTIFY changed)
    /// True while something is in progress.
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
    /// The progress from 0 to 1; negative if it is unknown.
    Q_PROPERTY(double progress READ progress NOTIFY changed)
    /// The titles of the buttons; empty if there is no such button. The default button acts on the
    /// update, the close button postpones or cancels it, the skip button skips this version for
    /// good.
    Q_PROPERTY(QString defaultTitle READ defaultTitle NOTIFY changed)
    Q_PROPERTY(QString closeTitle READ closeTitle NOTIFY changed)
    Q_PROPERTY(QString skipTitle READ skipTitle NOTIFY changed)

public:
    /// `flow` must outlive the model.
    explicit UpdateModel(UpdateFlow& flow);

    QString headline() const;
    QString detail() const;
    QString notes() const;
    QString plainNotes() const;
    QString symbol() const;
    bool isWarning() const {
        return state_.stage == UpdateState::Stage::checkFailed ||
               state_.stage == UpdateState::Stage::failed;
    }
    bool isBusy() const;
    double progress() const;
    QString defaultTitle() const;
    QString closeTitle() const;
    QString skipTitle() const;

    Q_INVOKABLE void pressDefault();
    Q_INVOKABLE void close() { flow_.close(); }
    Q_INVOKABLE void skip() { flow_.skip(); }
    Q_INVOKABLE void openLink(const QString& address) { flow_.openLink(address.toStdString()); }

signals:
    void changed();

private:
    QString amount() const;
    bool isPage() const { return state_.item.installation == UpdateItem::Installation::page; }

    UpdateFlow& flow_;
    UpdateState state_;  ///< A copy: a change is announced before it is stored.
    Subscription subscription_;
};

}  // namespace vantle
