#pragma once

#include "platform/Alerts.h"
#include "platform/Application.h"

namespace vantle {

/// Brings the program to the front, shows the alert, and returns the answer.
inline int runInFront(const Alert& alert, Application& application, Alerts& alerts) {
    application.activate();
    return alerts.runModal(alert);
}

}  // namespace vantle
