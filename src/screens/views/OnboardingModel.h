#pragma once

#include <QtQml/qqmlregistration.h>

#include <QObject>
#include <QVariantList>
#include <functional>
#include <optional>

#include "platform/StatusItem.h"
#include "platform/TrayExtension.h"
#include "screens/OnboardingSteps.h"
#include "screens/views/FolderAccessModel.h"
#include "screens/views/SettingsModel.h"
#include "support/Environment.h"

namespace vantle {

/// Provides the onboarding to its view.
class OnboardingModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("created by the window")

    Q_PROPERTY(vantle::SettingsModel* settings READ settings CONSTANT)
    Q_PROPERTY(vantle::FolderAccessModel* access READ access CONSTANT)
    Q_PROPERTY(int stepCount READ stepCount CONSTANT)
    Q_PROPERTY(int step READ step NOTIFY stepChanged)
    Q_PROPERTY(QString forwardTitle READ forwardTitle NOTIFY stepChanged)
    Q_PROPERTY(bool offersBack READ offersBack NOTIFY stepChanged)
    /// The outlook says what comes next; the summary has a "symbol" and a "text" for each choice.
    Q_PROPERTY(QString outlook READ outlook NOTIFY summaryChanged)
    /// Says how to get a tray if there is none; otherwise empty.
    Q_PROPERTY(QString trayAdvice READ trayAdvice NOTIFY summaryChanged)
    Q_PROPERTY(QVariantList summary READ summary NOTIFY summaryChanged)

public:
    /// All members must outlive the model.
    struct Context {
        SettingsModel::Context settings;
        SerialQueue& queue;
        PrivacySettings& privacySettings;
        const StatusItem& statusItem;
        /// Returns the extension that would provide a tray; may be empty.
        const std::function<std::optional<TrayExtension>()>& trayExtension;
        const Environment& environment;
    };

    /// Calls `finish` once, from the event loop, because it may destroy the view.
    OnboardingModel(const Context& context, std::function<void()> finish);

    void appear();

    SettingsModel* settings() { return &model_; }
    FolderAccessModel* access() { return &access_; }
    int stepCount() const { return OnboardingSteps::stepCount; }
    int step() const { return steps_.step(); }
    QString forwardTitle() const { return QString::fromStdString(steps_.forwardTitle()); }
    bool offersBack() const { return steps_.offersBack(); }
    QString outlook() const;
    QString trayAdvice() const;
    QVariantList summary() const;

    Q_INVOKABLE void forward();
    Q_INVOKABLE void back();

signals:
    void stepChanged();
    void summaryChanged();

private:
    Settings& settings_;
    const StatusItem& statusItem_;
    const std::function<std::optional<TrayExtension>()>& trayExtension_;
    SettingsModel model_;
    FolderAccessModel access_;
    OnboardingSteps steps_;
};

}  // namespace vantle
