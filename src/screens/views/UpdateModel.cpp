#include "screens/views/UpdateModel.h"

#include <QLocale>
#include <QTextDocumentFragment>
#include <algorithm>

namespace vantle {
namespace {

using Stage = UpdateState::Stage;

QString size(double bytes) {
    return QLocale().formattedDataSize(static_cast<qint64>(bytes), 1, QLocale::DataSizeSIFormat);
}

}  // namespace

UpdateModel::UpdateModel(UpdateFlow& flow)
    : flow_(flow),
      state_(flow.state.value()),
      subscription_(flow.state.observeChanges([this](const UpdateState& state) {
          // A closed update stays as it was until its window has gone.
          if (state.stage == Stage::closed) return;
          state_ = state;
          emit changed();
      })) {}

QString UpdateModel::headline() const {
    const QString name = QString::fromStdString(state_.item.displayVersion);
    switch (state_.stage) {
        case Stage::checking:
            return tr("Checking for updates…");
        case Stage::found:
            return tr("Vantle %1 is available").arg(name);
        case Stage::downloading:
            return tr("Downloading Vantle %1…").arg(name);
        case Stage::installing:
            return tr("Installing Vantle %1…").arg(name);
        case Stage::upToDate:
            return tr("Vantle is up to date");
        case Stage::checkFailed:
            return tr("Could not check for updates");
        case Stage::failed:
            return tr("Vantle could not be updated");
        case Stage::closed:
            break;
    }
    return {};
}

QString UpdateModel::detail() const {
    switch (state_.stage) {
        case Stage::found: {
            const QString question =
                isPage() ? tr("You have version %1. Download the new one from Vantle's website.")
                         : tr("You have version %1. Would you like to install the new one now?");
            return question.arg(QString::fromStdString(flow_.version()));
        }
        case Stage::downloading:
            return amount();
        case Stage::installing:
            return state_.item.installation == UpdateItem::Installation::package
                       ? tr("Your system may ask for your permission.")
                       : tr("Vantle will restart in a moment.");
        default:
            return QString::fromStdString(state_.message);
    }
}

QString UpdateModel::symbol() const {
    if (isWarning()) return QStringLiteral("exclamationmark.triangle");
    return state_.stage == Stage::upToDate ? QStringLiteral("checkmark.circle")
                                           : QStringLiteral("arrow.down.circle");
}

QString UpdateModel::amount() const {
    const QString amount = tr("%1 of %2")
                               .arg(size(static_cast<double>(state_.received)),
                                    size(static_cast<double>(state_.item.length)));
    return state_.speed ? tr("%1, %2 per second").arg(amount, size(*state_.speed)) : amount;
}

QString UpdateModel::notes() const {
    return state_.stage == Stage::found ? QString::fromStdString(state_.item.notes) : QString();
}

QString UpdateModel::plainNotes() const {
    return QTextDocumentFragment::fromHtml(notes()).toPlainText();
}

bool UpdateModel::isBusy() const {
    return state_.stage == Stage::checking || state_.stage == Stage::downloading ||
           state_.stage == Stage::installing;
}

double UpdateModel::progress() const {
    if (state_.stage != Stage::downloading || state_.item.length == 0) return -1;
    return std::min(1.0,
                    static_cast<double>(state_.received) / static_cast<double>(state_.item.length));
}

QString UpdateModel::defaultTitle() const {
    if (state_.stage == Stage::found)
        return isPage() ? tr("Open Download Page") : tr("Install and Relaunch");
    if (isWarning() && !state_.page.empty()) return tr("Open Download Page");
    return isBusy() ? QString() : tr("OK");
}

QString UpdateModel::closeTitle() const {
    switch (state_.stage) {
        case Stage::found:
            return tr("Remind Me Later");
        case Stage::checking:
        case Stage::downloading:
            return tr("Cancel");
        case Stage::checkFailed:
        case Stage::failed:
            return state_.page.empty() ? QString() : tr("Close");
        default:
            return {};
    }
}

QString UpdateModel::skipTitle() const {
    return state_.stage == Stage::found ? tr("Skip This Version") : QString();
}

void UpdateModel::pressDefault() {
    if (state_.stage == Stage::found)
        flow_.install();
    else if (!state_.page.empty())
        flow_.openPage();
    else
        flow_.close();
}

}  // namespace vantle
