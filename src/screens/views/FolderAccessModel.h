#pragma once

#include <QtQml/qqmlregistration.h>

#include <QObject>
#include <QStringList>
#include <memory>

#include "screens/FolderAccessRow.h"

namespace vantle {

/// Provides the folder access row to its view.
class FolderAccessModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("created by the window")

    Q_PROPERTY(QString symbol READ symbol NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString caption READ caption NOTIFY changed)
    Q_PROPERTY(QStringList buttons READ buttons NOTIFY changed)
    Q_PROPERTY(bool isGranted READ isGranted NOTIFY changed)
    Q_PROPERTY(bool isDenied READ isDenied NOTIFY changed)

public:
    explicit FolderAccessModel(const FolderAccessRow::Context& context)
        : row_(FolderAccessRow::create(context)),
          subscription_(row_->state.observeChanges([this](AccessState state) {
              state_ = state;
              emit changed();
          })) {}

    QString symbol() const { return QString::fromStdString(contents().symbol); }
    QString title() const { return QString::fromStdString(contents().title); }
    QString caption() const { return QString::fromStdString(contents().caption); }
    QStringList buttons() const {
        QStringList titles;
        for (const auto& button : contents().buttons)
            titles << QString::fromStdString(button.title);
        return titles;
    }
    bool isGranted() const { return state_ == AccessState::granted; }
    bool isDenied() const { return state_ == AccessState::denied; }

    Q_INVOKABLE void check() { row_->check(); }
    /// Presses the button with that number, from 0.
    Q_INVOKABLE void press(int button) {
        const auto& buttons = contents().buttons;
        (row_.get()->*buttons.at(static_cast<std::size_t>(button)).action)();
    }

signals:
    void changed();

private:
    FolderAccessRow::Contents contents() const { return FolderAccessRow::contents(state_); }

    std::shared_ptr<FolderAccessRow> row_;
    /// A copy of the row's state, because a change is announced before it is stored.
    AccessState state_ = AccessState::unknown;
    Subscription subscription_;
};

}  // namespace vantle
