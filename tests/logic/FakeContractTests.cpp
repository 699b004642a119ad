// The fakes keep the contracts of the services. The suites are in tests/contract.
#include "contract/AlertsContract.h"
#include "contract/ApplicationContract.h"
#include "contract/ContextMenuContract.h"
#include "contract/DirectoryEventsContract.h"
#include "contract/FakeDisk.h"
#include "contract/FileManagerContract.h"
#include "contract/FileOpenerContract.h"
#include "contract/FolderChooserContract.h"
#include "contract/LoginItemContract.h"
#include "contract/MediaLoaderContract.h"
#include "contract/OpenWithContract.h"
#include "contract/PanelWindowContract.h"
#include "contract/PasteboardContract.h"
#include "contract/PreferencesDomainContract.h"
#include "contract/PrivacySettingsContract.h"
#include "contract/ProcessLauncherContract.h"
#include "contract/SchedulerContract.h"
#include "contract/ScreensContract.h"
#include "contract/SerialQueueContract.h"
#include "contract/SharingServicePickerContract.h"
#include "contract/SharingSourceContract.h"
#include "contract/StatusItemContract.h"
#include "contract/TextReaderContract.h"
#include "contract/TrashContract.h"
#include "contract/UpdateEngineContract.h"
#include "contract/UserDefaultsContract.h"
#include "contract/WindowContract.h"

namespace vantle {
namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(FakeAlerts, AlertsContract, RecordedAlerts);
INSTANTIATE_TYPED_TEST_SUITE_P(FakeApplication, ApplicationContract, FakeStart);
INSTANTIATE_TYPED_TEST_SUITE_P(FakeContextMenu, ContextMenuContract, PretendedContextMenu);
INSTANTIATE_TYPED_TEST_SUITE_P(FakeDirectoryEvents, DirectoryEventsContract, FakeDisk);
INSTANTIATE_TYPED_TEST_SUITE_P(FakeFileManager, FileManagerContract, FakeDisk);
INSTANTIATE_TYPED_TEST_SUITE_P(FakeFileOpener, FileOpenerContract, RecordedOpener);
INSTANTIATE_TYPED_TEST_SUITE_P(FakeFolderChooser, FolderChooserContract, RecordedChooser);
INSTANTIATE_TYPED_TEST_SUITE_P(FakeLoginItem, LoginItemContract, RememberedItem);
INSTANTIATE_TYPED_TEST_SUITE_P(FakeMediaLoader, MediaLoaderContract, FakeMedia);
INSTANTIATE_TYPED_TEST_SUITE_P(FakeOpenWith, OpenWithContract, PretendedPrograms);
INSTANTIATE_TYPED_TEST_SUITE_P(FakePanelWindow, PanelWindowContract, RecordedPanel);
INSTANTIATE_TYPED_TEST_SUITE_P(FakePasteboard, PasteboardContract, MemoryPasteboard);
INSTANTIATE_TYPED_TEST_SUITE_P(FakePreferencesDomain, PreferencesDomainContract, MemoryDomain);
INSTANTIATE_TYPED_TEST_SUITE_P(FakePrivacySettings, PrivacySettingsContract,
                               RecordedPrivacySettings);
INSTANTIATE_TYPED_TEST_SUITE_P(FakeProcessLauncher, ProcessLauncherContract, RecordedLauncher);
INSTANTIATE_TYPED_TEST_SUITE_P(FakeScheduler, SchedulerContract, VirtualRunLoop);
INSTANTIATE_TYPED_TEST_SUITE_P(FakeScreens, ScreensContract, FakeDesktop);
INSTANTIATE_TYPED_TEST_SUITE_P(FakeSerialQueue, SerialQueueContract, VirtualQueue);
INSTANTIATE_TYPED_TEST_SUITE_P(FakeSharingServicePicker, SharingServicePickerContract,
                               PretendedMenu);
INSTANTIATE_TYPED_TEST_SUITE_P(FakeSharingSource, SharingSourceContract, PreparedTargets);
INSTANTIATE_TYPED_TEST_SUITE_P(FakeStatusItem, StatusItemContract, RecordedTray);
INSTANTIATE_TYPED_TEST_SUITE_P(FakeTextReader, TextReaderContract, PreparedTexts);
INSTANTIATE_TYPED_TEST_SUITE_P(FakeTrash, TrashContract, MemoryTrash);
INSTANTIATE_TYPED_TEST_SUITE_P(FakeUpdateEngine, UpdateEngineContract, ToldEngine);
INSTANTIATE_TYPED_TEST_SUITE_P(FakeUserDefaults, UserDefaultsContract, MemoryDefaults);
INSTANTIATE_TYPED_TEST_SUITE_P(FakeWindow, WindowContract, RecordedWindow);

}  // namespace
}  // namespace vantle
