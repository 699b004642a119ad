#include "platform/freedesktop/ActivationToken.h"

#include <array>
#include <utility>

namespace vantle {
namespace {

/// Limited, because any program on the bus can send a token.
constexpr qsizetype maximumTokenLength = 1024;

/// The token's names in the environment and in platform data. The first one that is set counts.
constexpr std::array names = {std::pair{"XDG_ACTIVATION_TOKEN", "activation-token"},
                              std::pair{"DESKTOP_STARTUP_ID", "desktop-startup-id"}};

QString& keptToken() {
    static QString token;
    return token;
}

QVariantMap readEnvironment() {
    QVariantMap data;
    for (const auto& [variable, key] : names)
        if (!qEnvironmentVariableIsEmpty(variable))
            data.insert(QString::fromLatin1(key), qEnvironmentVariable(variable));
    return data;
}

}  // namespace

void keepActivationToken(const QString& token) {
    if (token.size() <= maximumTokenLength) keptToken() = token;
}

QString takeActivationToken() {
    return std::exchange(keptToken(), {});
}

QVariantMap platformDataOfThisStart() {
    static const QVariantMap data = readEnvironment();
    return data;
}

QString activationToken(const QVariantMap& platformData) {
    for (const auto& [variable, key] : names)
        if (const auto token = platformData.value(QString::fromLatin1(key)).toString();
            !token.isEmpty())
            return token;
    return {};
}

}  // namespace vantle
