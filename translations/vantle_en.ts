<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>AppDelegate</name>
    <message>
        <source>This desktop has no tray for Vantle&apos;s icon. New captures still appear on the card. To open the settings, start Vantle again. To pause it or to open your screenshots, use the actions of its launcher.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantle is running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sample screenshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantle needs access to your screenshot folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>macOS is blocking Vantle from reading %1. Allow Vantle under System Settings → Privacy &amp; Security → Files and Folders, then click Retry.</source>
        <translation>Vantle is not allowed to read %1. Give yourself permission to read it in the folder&apos;s properties, then click Retry.</translation>
    </message>
    <message>
        <source>Open Privacy Settings</source>
        <translation>Show Permissions</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantle can&apos;t find your screenshot folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is missing and could not be recreated. Choose another folder in Settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantle can&apos;t watch your screenshot folder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BehaviorControls</name>
    <message>
        <source>Captures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep captures until dismissed (recommended)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pin a capture to keep it past the timer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>After I use a capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Using = dragging, opening, copying, sharing or revealing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove it from Vantle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep it in Vantle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the file to the Trash after I use it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>After dragging or copying. Recoverable from the Trash.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Also show screen recordings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy screenshot to clipboard automatically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Panel &amp; app</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show panel in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide the built-in macOS thumbnail</source>
        <translation>Hide the desktop&apos;s own preview</translation>
    </message>
    <message>
        <source>Recommended. Captures reach Vantle instantly instead of after Apple&apos;s preview.</source>
        <translation>Recommended. Then only Vantle shows new captures.</translation>
    </message>
    <message>
        <source>Open Vantle at login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Also show Vantle in the Dock</source>
        <translation>Also show Vantle in the taskbar</translation>
    </message>
    <message>
        <source>Useful if the menu bar icon is hidden under the notch.</source>
        <translation>Its windows then appear in the taskbar and the window switcher.</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CaptureTile</name>
    <message>
        <source>%1, recording, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copying text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CardMenus</name>
    <message>
        <source>Card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation>Show in File Manager</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Paths</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open With</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other...</source>
        <translation>Other…</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ClearAllPill</name>
    <message>
        <source>Clear all</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CloseButton</name>
    <message>
        <source>Dismiss</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>open the settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stop watching until --resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>resume watching</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>show screenshots or recordings on the card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dismiss the card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>move the keyboard focus to the card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>open the screenshots folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>show two sample captures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quit Vantle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print the status of Vantle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print the version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print this text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>include everything that a bug report needs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>include paths as well</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try &quot;vantle --help&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 needs at least one file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usage: vantle [OPTION]

Starts Vantle, or brings the running copy to the front. Options control the running
copy; --settings, --show and --sample start Vantle if it is not running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FILE…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit status: 0 on success, 1 on failure, 2 for an invalid command line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bring back what left the card lately</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Compositor</name>
    <message>
        <source>On Wayland, your desktop decides which windows appear in the taskbar.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DismissSlider</name>
    <message>
        <source>Otherwise dismiss after</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DoneStep</name>
    <message>
        <source>You&apos;re all set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show me a sample</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DraggableThumbnail</name>
    <message>
        <source>Drag into any app, or click to open. ⌘-click to select.</source>
        <translation>Drag into any app, or click to open. Ctrl-click to select.</translation>
    </message>
</context>
<context>
    <name>FolderAccessRow</name>
    <message>
        <source>macOS asks once for Desktop, Documents and Downloads. Pictures needs no permission.</source>
        <translation>Vantle works with any folder that you can read.</translation>
    </message>
    <message>
        <source>Grant access</source>
        <translation>Check access</translation>
    </message>
    <message>
        <source>Folder access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantle can read this folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>macOS is blocking access to this folder</source>
        <translation>Vantle cannot read this folder</translation>
    </message>
    <message>
        <source>Allow Vantle under Privacy &amp; Security → Files and Folders, then check again.</source>
        <translation>Make sure that the folder exists and that you can read it, then check again.</translation>
    </message>
    <message>
        <source>Open Privacy Settings</source>
        <translation>Show Permissions</translation>
    </message>
</context>
<context>
    <name>FolderPicker</name>
    <message>
        <source>Change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Desktop (macOS default)</source>
        <translation>Your desktop&apos;s default</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use This Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose where macOS should save screenshots and screen recordings.</source>
        <translation>Choose where to save screenshots.</translation>
    </message>
</context>
<context>
    <name>LoginItem</name>
    <message>
        <source>Keeps each new screenshot at hand</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuLine</name>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Submenu</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MissingTrayAdvice</name>
    <message>
        <source>The installed extension “%1” provides a tray. Turn it on in Extensions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The extension “%1” provides a tray. Install the package %2, log out and in again, then turn it on in Extensions.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NewName</name>
    <message>
        <source>The name cannot contain “/”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A name that begins with a full stop would hide the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name cannot contain line breaks or other control characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OnboardingSteps</name>
    <message>
        <source>Start Using Vantle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OnboardingSummary</name>
    <message>
        <source>Saving to %1 folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stays for %1 seconds unless pinned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stays until dismissed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Panel in the %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>macOS thumbnail hidden</source>
        <translation>The desktop&apos;s own preview is hidden</translation>
    </message>
    <message>
        <source>macOS thumbnail still shown</source>
        <translation>The desktop&apos;s own preview is still shown</translation>
    </message>
    <message>
        <source>Take a screenshot and it will slide into the %1 corner. Take another and they line up together. Your desktop has no tray for Vantle&apos;s icon. To open the settings, start Vantle again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantle lives in your menu bar. Take a screenshot with ⇧⌘4 and it will slide into the %1 corner. Take another and they line up together.</source>
        <translation>Vantle lives in your tray. Take a screenshot, usually with the Print key, and it will slide into the %1 corner. Take another and they line up together.</translation>
    </message>
</context>
<context>
    <name>OnboardingView</name>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OpenWith</name>
    <message>
        <source>The program could not be started.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program is not installed any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program does not respond.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OpeningFailure</name>
    <message>
        <source>The file is gone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not be opened</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageDots</name>
    <message>
        <source>Step %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PanelCorner</name>
    <message>
        <source>Bottom Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Preview</name>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>page %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PreviewBar</name>
    <message>
        <source>Previous page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show real pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PreviewPicture</name>
    <message>
        <source>This file cannot be shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PreviewView</name>
    <message>
        <source>Previous capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next capture</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <extracomment>Not shown. &quot;LTR&quot; for languages written from left to right, &quot;RTL&quot; for those from right to left.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RelativeDate</name>
    <message numerus="yes">
        <source>%n yr. ago</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n yr.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n mo. ago</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n mo.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n wk. ago</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n wk.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days ago</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n days</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n day ago</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n day</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hr. ago</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n hr.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n min. ago</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n min.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sec. ago</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n sec.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>now</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RenameField</name>
    <message>
        <source>New name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Renaming</name>
    <message>
        <source>A file of this name exists already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder cannot be changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is gone.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Requests</name>
    <message>
        <source>Vantle is shutting down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown action &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the card is not visible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no such file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a supported image or recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantle is not running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the running copy does not respond</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantle is not ready yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing has left the card lately</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScreenshotTool</name>
    <message>
        <source>The desktop does not allow its setting &quot;%1&quot; to be changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Xfce&apos;s screenshot tool has no preview.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This desktop&apos;s screenshot tool has no preview.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MATE&apos;s screenshot tool always opens a window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ScreenGrab always shows a notification after saving.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GNOME always saves screenshots in this folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GNOME always shows its own preview.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tool&apos;s settings file %1 cannot be read: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tool&apos;s settings file %1 is read-only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SelectionBar</name>
    <message numerus="yes">
        <source>%n selected</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Copy selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move selected to Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dismiss selected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>Your desktop saves them in %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show panel in</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsStep</name>
    <message>
        <source>Set up Vantle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recommended settings are already selected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>SCREENSHOTS ARE SAVED TO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantle %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test with a sample</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Vantle Settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShareButton</name>
    <message>
        <source>Share</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SharingServicePicker</name>
    <message>
        <source>Copy file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reveal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bluetooth…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mail…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SoundPlayer</name>
    <message>
        <source>New capture</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatusBarController</name>
    <message>
        <source>No captures yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume Vantle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause Vantle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Vantle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent Captures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Screenshots Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bring back</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TextCopy</name>
    <message>
        <source>Copied 1 word</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copied %1 words</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No text found</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TextCopyButton</name>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TextCopyStop</name>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TextReader</name>
    <message>
        <source>The picture cannot be opened, or it is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program that recognizes text cannot be started.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recognizing the text took too long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program that recognizes text ended unexpectedly.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory to recognize the text.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TileActions</name>
    <message>
        <source>Unpin (dismiss on timer again)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pin (ignore the timer)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation>Show in file manager</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TileRow</name>
    <message>
        <source>Captures</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TrashNotice</name>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moved to Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not be moved to the Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not be put back</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdateProgram</name>
    <message>
        <source>The update program does not respond.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update program failed: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>Vantle Update</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>The update was refused: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it contains a file without a name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it contains too many files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it contains the unexpected path &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a file nor a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it contains &quot;%1&quot; twice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its archive is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a sparse file, which is not allowed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its unpacked files are too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not an archive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1 needs a newer system (C library %2; this system has %3).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1 is not signed, so it was refused.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1 has no length in the update feed, so it was refused.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1 is too large for an update, so it was refused.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantle %1 is newer than the latest available version, %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A newer version exists, but not for this system (%1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantle %1 is the latest version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update feed is damaged: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update feed is damaged: there is no list of versions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update feed is damaged: it has no date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updates are downloaded only over HTTPS, so the address &quot;%1&quot; was refused.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server sent more than the expected maximum of %1 bytes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server is too slow or does not respond. Try again later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection was lost during the download. Try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server could not be reached: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server reported error %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server redirected too many times.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The system could not install the package: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it gave no reason.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantle&apos;s folder cannot be replaced in one step: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantle %1 did not start in time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantle %1 crashed when it started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantle %1 quit when it started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantle %1 cannot be started: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update could not be installed: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, and the previous version could not be restored: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, so the previous version was restored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update feed is not signed, so it was refused.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The signature of the update feed is wrong, so the feed was refused.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a folder that only you can access. Remove or rename it, then try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another update is already in progress.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it contains version &quot;%2&quot; instead of %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it was not built for this system (%1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is missing or damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it contains the unexpected file %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantle&apos;s folder %1 contains &quot;%2&quot;, which is not part of Vantle. Move it elsewhere, then try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The downloaded file is shorter than expected, so it was refused.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The signature of the update is wrong, so it was refused.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This copy of Vantle cannot be updated, because it was built without the key that updates are signed with.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update feed is older than the last one received, so it was refused.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This copy of Vantle cannot update itself.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Welcome to Vantle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screenshots shouldn&apos;t vanish before you can use them.
Vantle keeps your latest screenshots and recordings in a glass panel in the corner until you&apos;re done with them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag a preview straight into Slack, Mail, Figma or anywhere else</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take several in a row and they line up side by side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stays until you dismiss it, or on a timer if you prefer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vantle::UpdateModel</name>
    <message>
        <source>Checking for updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantle %1 is available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading Vantle %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installing Vantle %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantle is up to date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantle could not be updated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You have version %1. Download the new one from Vantle&apos;s website.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You have version %1. Would you like to install the new one now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your system may ask for your permission.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantle will restart in a moment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2 per second</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Download Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
