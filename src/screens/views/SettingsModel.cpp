#include "screens/views/SettingsModel.h"

#include "support/Localization.h"
#include "support/Version.h"

namespace vantle {
namespace {

QString text(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QRect onScreen(const QQuickItem& item) {
    return QRectF(item.mapToGlobal(QPointF()), item.size()).toAlignedRect();
}

}  // namespace

SettingsModel::SettingsModel(const Context& context)
    : settings_(context.settings),
      vantleShowDemo_(context.vantleShowDemo),
      picker_({context.settings, context.files, context.folderChooser, context.application}),
      controls_(context.settings, context.scheduler),
      dockObstacle_(text(context.application.activationPolicyObstacle())),
      recordingsFolder_(context.recordingsFolder) {
    follow();
}

void SettingsModel::follow() {
    // The views are notified later, because a change is announced before it is stored.
    subscriptions_ = settings_.observeChanges(
        [this] { QMetaObject::invokeMethod(this, &SettingsModel::changed, Qt::QueuedConnection); });
}

void SettingsModel::appear() {
    controls_.appear();
    readObstacles();
    readRecordingsPlace();
    emit changed();
}

void SettingsModel::readRecordingsPlace() {
    if (!recordingsFolder_) return;
    recordingsPlace_ = text(filled(localized("SettingsModel", "Your desktop saves them in %1."),
                                   {picker_.displayName(recordingsFolder_())}));
}

void SettingsModel::readObstacles() {
    folderObstacle_ = text(settings_.screenshotFolderObstacle());
    thumbnailObstacle_ = text(settings_.systemThumbnailObstacle());
}

QString SettingsModel::version() const {
    return text(vantle::version);
}

QString SettingsModel::folder() const {
    return text(picker_.displayName(settings_.screenshotFolder.value()));
}

QString SettingsModel::dismissAfterText() const {
    return text(controls_.dismissAfterText());
}

QString SettingsModel::corner() const {
    return text(label(settings_.corner.value()));
}

void SettingsModel::setNeverDismiss(bool on) {
    controls_.setNeverDismiss(on);
    emit changed();
}

void SettingsModel::setDismissAfter(double seconds) {
    controls_.moveSlider(seconds);
    emit changed();
}

void SettingsModel::setRemoveAfterUse(bool on) {
    settings_.removeAfterUse.set(on);
    emit changed();
}

void SettingsModel::setDeleteAfterUse(bool on) {
    settings_.deleteAfterUse.set(on);
    emit changed();
}

void SettingsModel::setShowRecordings(bool on) {
    settings_.showRecordings.set(on);
    emit changed();
}

void SettingsModel::setCopyOnCapture(bool on) {
    settings_.copyOnCapture.set(on);
    emit changed();
}

void SettingsModel::setHideSystemThumbnail(bool on) {
    settings_.setHideSystemThumbnail(on);
    // If this failed the switch must return to its old position.
    settings_.refreshFromSystem();
    readObstacles();
    emit changed();
}

void SettingsModel::setLaunchAtLogin(bool on) {
    // If this fails the switch must return to its old position.
    settings_.setLaunchAtLogin(on);
    emit changed();
}

void SettingsModel::setShowInDock(bool on) {
    settings_.showInDock.set(on);
    emit changed();
}

void SettingsModel::openFolderMenu(QQuickItem* button) {
    open(picker_.menu(), *button);
}

void SettingsModel::openCornerMenu(QQuickItem* button) {
    open(cornerMenu(), *button);
}

Menu SettingsModel::cornerMenu() {
    Menu menu{.title = localized("SettingsModel", "Show panel in")};
    for (const PanelCorner corner : allPanelCorners) {
        const bool isChosen = corner == settings_.corner.value();
        if (isChosen) menu.current = static_cast<int>(menu.items.size());
        menu.items.push_back({.title = label(corner),
                              .symbol = isChosen ? "checkmark" : "",
                              .action = [this, corner] { settings_.corner.set(corner); }});
    }
    return menu;
}

void SettingsModel::open(const Menu& menu, const QQuickItem& button) {
    if (!menu_) menu_ = std::make_unique<MenuWindow>();
    menu_->open(menu, {onScreen(button), button.window()});
}

void SettingsModel::showSample() {
    vantleShowDemo_.notify();
}

}  // namespace vantle
