#pragma once

#include <QString>
#include <QVariantMap>

namespace vantle {

/// What the desktop hands over when the user has asked it for something of this program: in its
/// tray, in a launcher, or by a start of the program. It lets the next window that is brought to
/// the front pass those of other programs. Main thread only.

/// Keeps a token for the next window. An empty one is none.
void keepActivationToken(const QString& token);

/// The token that is kept, which is used with that.
QString takeActivationToken();

/// What the desktop gave this copy with its start, as org.freedesktop.Application passes it on
/// ("platform data"). It has to be read before the toolkit starts, which takes a part of it away.
QVariantMap platformDataOfThisStart();

/// The token in such data; empty where there is none.
QString activationToken(const QVariantMap& platformData);

}  // namespace vantle
