# The suites of the backends that use Qt. They start their own displays and message bus.
add_executable(application_copy ${CMAKE_CURRENT_LIST_DIR}/ApplicationContractCopy.cpp)
target_link_libraries(application_copy PRIVATE vantle_platform_freedesktop vantle_warnings)

# The desktop tests use it as well.
add_executable(settings-portal ${CMAKE_CURRENT_LIST_DIR}/SettingsPortalProgram.cpp
                               ${CMAKE_CURRENT_LIST_DIR}/SettingsPortal.h)
set_target_properties(settings-portal PROPERTIES AUTOMOC ON)
target_include_directories(settings-portal PRIVATE ${CMAKE_SOURCE_DIR}/tests)
target_link_libraries(settings-portal PRIVATE Qt6::DBus vantle_warnings)

add_executable(
  qt_contract_tests
  ${CMAKE_CURRENT_LIST_DIR}/DBusApplicationTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DesktopFileOpenerTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DesktopOpenWithTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DesktopServices.h
  ${CMAKE_CURRENT_LIST_DIR}/DialogFolderChooserTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FileChooserPortal.h
  ${CMAKE_CURRENT_LIST_DIR}/FileMimeDataTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FileTransferPortalTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FileUseWatcherTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/GSettingsCommandTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/MountEventsTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/OpenWithPortal.h
  ${CMAKE_CURRENT_LIST_DIR}/PortalAppearanceTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PortalFolderChooserTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PrivacySettingsTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/QtContractMain.cpp
  ${CMAKE_CURRENT_LIST_DIR}/QtCanvasTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/QtGeometryTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/QtPasteboardTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/QtSchedulerTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/QtScreensTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ServerChoiceTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SettingsPortal.h
  ${CMAKE_CURRENT_LIST_DIR}/SharingServices.h
  ${CMAKE_CURRENT_LIST_DIR}/SharingSourceTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TranslationsTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TrayService.h
  ${CMAKE_CURRENT_LIST_DIR}/TrayStatusItemTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/UpdateProgramTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/UsableAreaTests.cpp)
set_target_properties(qt_contract_tests PROPERTIES AUTOMOC ON)
target_compile_definitions(
  qt_contract_tests PRIVATE VANTLE_APPLICATION_COPY="$<TARGET_FILE:application_copy>"
                            VANTLE_APPLICATIONS="$<TARGET_FILE:vantle-applications>"
                            VANTLE_TRANSLATIONS="${CMAKE_BINARY_DIR}/share/vantle/translations")
target_link_libraries(qt_contract_tests PRIVATE vantle_platform_displays
                                                vantle_platform_freedesktop_sharing
                                                vantle_platform_qt_translations
                                                vantle_platform_freedesktop_tray
                                                vantle_fakes vantle_warnings
                                                GTest::gmock)
vantle_precompile_tests(qt_contract_tests <gmock/gmock.h> <map> <string> <vector> <QDBusConnection>
                        <QDBusMessage> <QGuiApplication>)
add_dependencies(qt_contract_tests application_copy translations vantle-applications)
vantle_discover_tests(qt_contract_tests LABELS contract TIMEOUT 120)
