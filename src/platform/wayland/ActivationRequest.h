#pragma once

#include <QObject>

#include "platform/qt/DisplayServer.h"

namespace vantle::wayland {

/// Asks the compositor for a token for the user's last click or key press
/// (DisplayServer::requestActivationToken). Calls `receiver` with an empty token if the compositor
/// does not offer tokens or does not answer within a second.
void requestActivationToken(QObject& owner, DisplayServer::TokenReceiver receiver);

}  // namespace vantle::wayland
