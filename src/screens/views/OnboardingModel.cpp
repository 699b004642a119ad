#include "screens/views/OnboardingModel.h"

#include <utility>

#include "screens/MissingTrayAdvice.h"
#include "screens/OnboardingSummary.h"

namespace vantle {
namespace {

/// Returns a function that calls `finish` later, and only once however often it is called itself.
std::function<void()> onTheEventLoop(Scheduler& scheduler, std::function<void()> finish) {
    return [&scheduler, finish = std::move(finish), hasFinished = false]() mutable {
        if (!std::exchange(hasFinished, true)) scheduler.async(finish);
    };
}

}  // namespace

OnboardingModel::OnboardingModel(const Context& context, std::function<void()> finish)
    : settings_(context.settings.settings),
      statusItem_(context.statusItem),
      trayExtension_(context.trayExtension),
      model_(context.settings),
      access_({settings_, context.settings.files, context.queue, context.settings.scheduler,
               context.privacySettings}),
      steps_(settings_, onTheEventLoop(context.settings.scheduler, std::move(finish)),
             OnboardingSteps::initialStep(context.environment)) {
    connect(&model_, &SettingsModel::changed, this, &OnboardingModel::summaryChanged);
}

void OnboardingModel::appear() {
    steps_.appear();
    // Reads the system's settings back, because it may have refused some of the recommended ones.
    settings_.refreshFromSystem();
    model_.appear();
}

QString OnboardingModel::outlook() const {
    const Tray tray = statusItem_.isShown() ? Tray::isThere : Tray::isMissing;
    return QString::fromStdString(onboardingOutlook(settings_, tray));
}

QString OnboardingModel::trayAdvice() const {
    if (statusItem_.isShown() || !trayExtension_) return {};
    return QString::fromStdString(missingTrayAdvice(trayExtension_()));
}

QVariantList OnboardingModel::summary() const {
    QVariantList rows;
    for (const SummaryRow& row : onboardingSummary(settings_))
        rows << QVariantMap{{QStringLiteral("symbol"), QString::fromStdString(row.symbol)},
                            {QStringLiteral("text"), QString::fromStdString(row.text)}};
    return rows;
}

void OnboardingModel::forward() {
    steps_.forward();
    emit stepChanged();
    // A tray may have appeared meanwhile.
    emit summaryChanged();
}

void OnboardingModel::back() {
    steps_.back();
    emit stepChanged();
}

}  // namespace vantle
