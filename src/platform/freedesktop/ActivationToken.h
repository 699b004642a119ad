#pragma once

#include <QString>
#include <QVariantMap>

namespace vantle {

/// The desktop hands over an activation token when the user has asked for something of this
/// program: in the tray, in a launcher, or by starting it. With the token, the next window that is
/// brought to the front may cover those of other programs. Main thread only.

/// Keeps a token for the next window. An empty token removes the kept one.
void keepActivationToken(const QString& token);

/// Returns the kept token and forgets it.
QString takeActivationToken();

/// Returns what the desktop passed to this process at its start, as the "platform data" of
/// org.freedesktop.Application. The first call must come before the toolkit starts, because the
/// toolkit removes a part of it.
QVariantMap platformDataOfThisStart();

/// Returns the token in platform data, or an empty string if there is none.
QString activationToken(const QVariantMap& platformData);

}  // namespace vantle
