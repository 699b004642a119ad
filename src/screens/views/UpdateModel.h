#pragma once

#include <QtQml/qqmlregistration.h>

#include <QObject>

#include "support/Subscription.h"
#include "updateflow/UpdateFlow.h"

namespace vantle {

/// An update for its view.
class UpdateModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the window")

    Q_PROPERTY(QString headline READ headline NOTIFY changed)
    Q_PROPERTY(QString detail READ detail NOTIFY changed)
    /// What is new, as rich text.
    Q_PROPERTY(QString notes READ notes NOTIFY changed)
    /// The same without looks, to be spoken.
    Q_PROPERTY(QString plainNotes READ plainNotes NOTIFY changed)
    Q_PROPERTY(QString symbol READ symbol NOTIFY changed)
    Q_PROPERTY(bool isWarning READ isWarning NOTIFY changed)
    /// Something is under way.
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
    /// How much of it is done, from 0 to 1; negative when nobody knows.
    Q_PROPERTY(double progress READ progress NOTIFY changed)
    /// The titles of the buttons; empty where there is none. The default one is what can be done
    /// about it, the other one leaves it, the last one leaves it for good.
    Q_PROPERTY(QString defaultTitle READ defaultTitle NOTIFY changed)
    Q_PROPERTY(QString closeTitle READ closeTitle NOTIFY changed)
    Q_PROPERTY(QString skipTitle READ skipTitle NOTIFY changed)

public:
    /// `flow` outlives it.
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
    UpdateState state_;  ///< A change is announced before it is stored.
    Subscription subscription_;
};

}  // namespace vantle
