#pragma once

#include "fakes/FakeApplication.h"
#include "fakes/FakeFileSystem.h"
#include "fakes/FakeLoginItem.h"
#include "fakes/FakePreferencesDomain.h"
#include "fakes/FakeProcessLauncher.h"
#include "fakes/FakeUserDefaults.h"
#include "fakes/VirtualTime.h"
#include "settings/Settings.h"

namespace vantle::fakes {

/// Settings, and fakes for everything that they use.
struct SettingsOnFakes {
    VirtualTime time;
    ManualQueue queue{time};
    FakeFileSystem files{queue};
    FakePreferencesDomain domain;
    FakeProcessLauncher launcher;
    FakeUserDefaults defaults;
    FakeLoginItem loginItem;
    FakeApplication application;
    Settings settings{defaults, SystemScreenshotPrefs(files, domain, launcher), loginItem,
                      application};
};

}  // namespace vantle::fakes
