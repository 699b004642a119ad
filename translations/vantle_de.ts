<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AppDelegate</name>
    <message>
        <source>Vantle is running</source>
        <translation>Vantle läuft</translation>
    </message>
    <message>
        <source>This desktop has no tray for Vantle&apos;s icon. New captures still appear on the card. To open the settings, start Vantle again. To pause it or to open your screenshots, use the actions of its launcher.</source>
        <translation>Dieser Desktop hat keinen Infobereich für das Symbol von Vantle. Neue Aufnahmen erscheinen trotzdem auf der Karte. Um die Einstellungen zu öffnen, starten Sie Vantle noch einmal. Um es anzuhalten oder Ihre Bildschirmfotos zu öffnen, verwenden Sie die Aktionen des Starters.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Sample screenshot</source>
        <translation>Beispielfoto</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Vantle needs access to your screenshot folder</source>
        <translation>Vantle braucht Zugriff auf Ihren Ordner für Bildschirmfotos</translation>
    </message>
    <message>
        <source>macOS is blocking Vantle from reading %1. Allow Vantle under System Settings → Privacy &amp; Security → Files and Folders, then click Retry.</source>
        <translation>Vantle darf „%1“ nicht lesen. Erlauben Sie sich das Lesen in den Eigenschaften des Ordners und klicken Sie dann auf „Erneut versuchen“.</translation>
    </message>
    <message>
        <source>Open Privacy Settings</source>
        <translation>Zugriffsrechte zeigen</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Vantle can&apos;t find your screenshot folder</source>
        <translation>Vantle findet Ihren Ordner für Bildschirmfotos nicht</translation>
    </message>
    <message>
        <source>%1 is missing and could not be recreated. Choose another folder in Settings.</source>
        <translation>„%1“ fehlt und konnte nicht neu angelegt werden. Wählen Sie in den Einstellungen einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Vantle can&apos;t watch your screenshot folder</source>
        <translation>Vantle kann Ihren Ordner für Bildschirmfotos nicht beobachten</translation>
    </message>
</context>
<context>
    <name>BehaviorControls</name>
    <message>
        <source>Captures</source>
        <translation>Aufnahmen</translation>
    </message>
    <message>
        <source>Keep captures until dismissed (recommended)</source>
        <translation>Aufnahmen behalten, bis ich sie schließe (empfohlen)</translation>
    </message>
    <message>
        <source>Pin a capture to keep it past the timer.</source>
        <translation>Angeheftete Aufnahmen bleiben auch nach Ablauf der Zeit.</translation>
    </message>
    <message>
        <source>After I use a capture</source>
        <translation>Nach dem Verwenden</translation>
    </message>
    <message>
        <source>Using = dragging, opening, copying, sharing or revealing.</source>
        <translation>Verwenden = ziehen, öffnen, kopieren, teilen oder im Ordner zeigen.</translation>
    </message>
    <message>
        <source>Remove it from Vantle</source>
        <translation>Aus Vantle entfernen</translation>
    </message>
    <message>
        <source>Keep it in Vantle</source>
        <translation>In Vantle behalten</translation>
    </message>
    <message>
        <source>Move the file to the Trash after I use it</source>
        <translation>Datei nach dem Verwenden in den Papierkorb legen</translation>
    </message>
    <message>
        <source>After dragging or copying. Recoverable from the Trash.</source>
        <translation>Nach Ziehen oder Kopieren. Wiederherstellbar.</translation>
    </message>
    <message>
        <source>Also show screen recordings</source>
        <translation>Auch Bildschirmaufzeichnungen zeigen</translation>
    </message>
    <message>
        <source>Copy screenshot to clipboard automatically</source>
        <translation>Automatisch in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Panel &amp; app</source>
        <translation>Karte &amp; App</translation>
    </message>
    <message>
        <source>Show panel in</source>
        <translation>Karte zeigen</translation>
    </message>
    <message>
        <source>Hide the built-in macOS thumbnail</source>
        <translation>Vorschau des Desktops ausblenden</translation>
    </message>
    <message>
        <source>Recommended. Captures reach Vantle instantly instead of after Apple&apos;s preview.</source>
        <translation>Empfohlen. Aufnahmen erscheinen ohne Wartezeit.</translation>
    </message>
    <message>
        <source>Open Vantle at login</source>
        <translation>Vantle beim Anmelden öffnen</translation>
    </message>
    <message>
        <source>Also show Vantle in the Dock</source>
        <translation>Vantle auch in der Taskleiste zeigen</translation>
    </message>
    <message>
        <source>Useful if the menu bar icon is hidden under the notch.</source>
        <translation>Seine Fenster stehen dann in der Taskleiste und beim Fensterwechsel.</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 Sekunden</translation>
    </message>
</context>
<context>
    <name>CaptureTile</name>
    <message>
        <source>%1, recording, %2</source>
        <translation>%1, Aufzeichnung, %2</translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation>Angeheftet</translation>
    </message>
    <message>
        <source>Copying text</source>
        <translation>Text wird kopiert</translation>
    </message>
</context>
<context>
    <name>CardMenus</name>
    <message>
        <source>Card</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>Pfad kopieren</translation>
    </message>
    <message>
        <source>Share…</source>
        <translation>Teilen …</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation>In der Dateiverwaltung zeigen</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Umbenennen …</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
    <message>
        <source>%1 selected</source>
        <translation>%1 ausgewählt</translation>
    </message>
    <message>
        <source>Copy Paths</source>
        <translation>Pfade kopieren</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Open With</source>
        <translation>Öffnen mit</translation>
    </message>
    <message>
        <source>Other...</source>
        <translation>Andere …</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>Lösen</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Anheften</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>Copy Text</source>
        <translation>Text kopieren</translation>
    </message>
</context>
<context>
    <name>ClearAllPill</name>
    <message>
        <source>Clear all</source>
        <translation>Alle schließen</translation>
    </message>
</context>
<context>
    <name>CloseButton</name>
    <message>
        <source>Dismiss</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>open the settings</source>
        <translation>öffnet die Einstellungen</translation>
    </message>
    <message>
        <source>stop watching until --resume</source>
        <translation>hält die Beobachtung bis --resume an</translation>
    </message>
    <message>
        <source>resume watching</source>
        <translation>beobachtet wieder</translation>
    </message>
    <message>
        <source>show screenshots or recordings on the card</source>
        <translation>zeigt Bildschirmfotos oder Aufzeichnungen auf der Karte</translation>
    </message>
    <message>
        <source>dismiss the card</source>
        <translation>schließt die Karte</translation>
    </message>
    <message>
        <source>move the keyboard focus to the card</source>
        <translation>setzt den Tastaturfokus auf die Karte</translation>
    </message>
    <message>
        <source>open the screenshots folder</source>
        <translation>öffnet den Ordner für Bildschirmfotos</translation>
    </message>
    <message>
        <source>show two sample captures</source>
        <translation>zeigt zwei Beispielaufnahmen</translation>
    </message>
    <message>
        <source>quit Vantle</source>
        <translation>beendet Vantle</translation>
    </message>
    <message>
        <source>print the status of Vantle</source>
        <translation>gibt den Status von Vantle aus</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>gibt die Version aus</translation>
    </message>
    <message>
        <source>print this text</source>
        <translation>gibt diesen Text aus</translation>
    </message>
    <message>
        <source>Try &quot;vantle --help&quot;.</source>
        <translation>Hilfe gibt „vantle --help“.</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>unerwartetes Argument „%1“</translation>
    </message>
    <message>
        <source>Usage: vantle [OPTION]

Starts Vantle, or brings the running copy to the front. Options control the running
copy; --settings, --show and --sample start Vantle if it is not running.</source>
        <translation>Aufruf: vantle [OPTION]

Startet Vantle oder holt das laufende nach vorn. Optionen steuern das laufende Vantle;
--settings, --show und --sample starten Vantle, wenn es nicht läuft.</translation>
    </message>
    <message>
        <source>Exit status: 0 on success, 1 on failure, 2 for an invalid command line.</source>
        <translation>Exit-Status: 0 bei Erfolg, 1 bei einem Fehler, 2 bei falschem Aufruf.</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>unbekannte Option „%1“</translation>
    </message>
    <message>
        <source>%1 needs at least one file</source>
        <translation>%1 braucht mindestens eine Datei</translation>
    </message>
    <message>
        <source>include everything that a bug report needs</source>
        <translation>mit allem, was ein Fehlerbericht braucht</translation>
    </message>
    <message>
        <source>include paths as well</source>
        <translation>auch mit den Pfaden</translation>
    </message>
    <message>
        <source>FILE…</source>
        <translation>DATEI …</translation>
    </message>
    <message>
        <source>bring back what left the card lately</source>
        <translation>zurückholen, was die Karte zuletzt verlassen hat</translation>
    </message>
</context>
<context>
    <name>Compositor</name>
    <message>
        <source>On Wayland, your desktop decides which windows appear in the taskbar.</source>
        <translation>Unter Wayland entscheidet Ihr Desktop, welche Fenster in der Taskleiste erscheinen.</translation>
    </message>
</context>
<context>
    <name>DismissSlider</name>
    <message>
        <source>Otherwise dismiss after</source>
        <translation>Sonst schließen nach</translation>
    </message>
</context>
<context>
    <name>DoneStep</name>
    <message>
        <source>You&apos;re all set</source>
        <translation>Alles bereit</translation>
    </message>
    <message>
        <source>Show me a sample</source>
        <translation>Beispiel zeigen</translation>
    </message>
</context>
<context>
    <name>DraggableThumbnail</name>
    <message>
        <source>Drag into any app, or click to open. ⌘-click to select.</source>
        <translation>In Apps ziehen, klicken öffnet. Strg-Klick wählt aus.</translation>
    </message>
</context>
<context>
    <name>FolderAccessRow</name>
    <message>
        <source>macOS asks once for Desktop, Documents and Downloads. Pictures needs no permission.</source>
        <translation>Jeder Ordner geht, den Sie lesen dürfen.</translation>
    </message>
    <message>
        <source>Grant access</source>
        <translation>Zugriff prüfen</translation>
    </message>
    <message>
        <source>Folder access</source>
        <translation>Zugriff auf den Ordner</translation>
    </message>
    <message>
        <source>Vantle can read this folder</source>
        <translation>Vantle kann diesen Ordner lesen</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Erneut prüfen</translation>
    </message>
    <message>
        <source>macOS is blocking access to this folder</source>
        <translation>Vantle kann diesen Ordner nicht lesen</translation>
    </message>
    <message>
        <source>Allow Vantle under Privacy &amp; Security → Files and Folders, then check again.</source>
        <translation>Sorgen Sie dafür, dass es ihn gibt und Sie ihn lesen dürfen, und prüfen Sie erneut.</translation>
    </message>
    <message>
        <source>Open Privacy Settings</source>
        <translation>Zugriffsrechte zeigen</translation>
    </message>
</context>
<context>
    <name>FolderPicker</name>
    <message>
        <source>Change</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Desktop (macOS default)</source>
        <translation>Standard des Desktops</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Auswählen&#xa0;…</translation>
    </message>
    <message>
        <source>Restore %1</source>
        <translation>%1 wiederherstellen</translation>
    </message>
    <message>
        <source>Use This Folder</source>
        <translation>Diesen Ordner verwenden</translation>
    </message>
    <message>
        <source>Choose where macOS should save screenshots and screen recordings.</source>
        <translation>Wo sollen Bildschirmfotos gespeichert werden?</translation>
    </message>
</context>
<context>
    <name>LoginItem</name>
    <message>
        <source>Keeps each new screenshot at hand</source>
        <translation>Hält jedes neue Bildschirmfoto griffbereit</translation>
    </message>
</context>
<context>
    <name>MenuLine</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Submenu</source>
        <translation>Untermenü</translation>
    </message>
</context>
<context>
    <name>MissingTrayAdvice</name>
    <message>
        <source>The installed extension “%1” provides a tray. Turn it on in Extensions.</source>
        <translation>Die installierte Erweiterung „%1“ stellt einen Infobereich bereit. Schalten Sie sie unter „Erweiterungen“ ein.</translation>
    </message>
    <message>
        <source>The extension “%1” provides a tray. Install the package %2, log out and in again, then turn it on in Extensions.</source>
        <translation>Die Erweiterung „%1“ stellt einen Infobereich bereit. Installieren Sie das Paket %2, melden Sie sich ab und wieder an, und schalten Sie sie dann unter „Erweiterungen“ ein.</translation>
    </message>
</context>
<context>
    <name>NewName</name>
    <message>
        <source>The name cannot contain “/”.</source>
        <translation>Der Name darf kein „/“ enthalten.</translation>
    </message>
    <message>
        <source>A name that begins with a full stop would hide the file.</source>
        <translation>Ein Name, der mit einem Punkt beginnt, würde die Datei verstecken.</translation>
    </message>
    <message>
        <source>The name cannot contain line breaks or other control characters.</source>
        <translation>Der Name darf keine Zeilenumbrüche oder anderen Steuerzeichen enthalten.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Der Name ist zu lang.</translation>
    </message>
</context>
<context>
    <name>OnboardingSteps</name>
    <message>
        <source>Start Using Vantle</source>
        <translation>Vantle verwenden</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Los geht’s</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
</context>
<context>
    <name>OnboardingSummary</name>
    <message>
        <source>Saving to %1 folder</source>
        <translation>Gespeichert wird im Ordner „%1“</translation>
    </message>
    <message>
        <source>Stays for %1 seconds unless pinned</source>
        <translation>Bleibt %1 Sekunden, angeheftet länger</translation>
    </message>
    <message>
        <source>Stays until dismissed</source>
        <translation>Bleibt bis zum Schließen</translation>
    </message>
    <message>
        <source>Panel in the %1</source>
        <translation>Karte: %1</translation>
    </message>
    <message>
        <source>macOS thumbnail hidden</source>
        <translation>Vorschau des Desktops ausgeblendet</translation>
    </message>
    <message>
        <source>macOS thumbnail still shown</source>
        <translation>Vorschau des Desktops wird noch gezeigt</translation>
    </message>
    <message>
        <source>Vantle lives in your menu bar. Take a screenshot with ⇧⌘4 and it will slide into the %1 corner. Take another and they line up together.</source>
        <translation>Vantle wartet in Ihrem Infobereich. Machen Sie ein Bildschirmfoto, meist mit der Druck-Taste, und es gleitet in die Ecke „%1“. Machen Sie noch eines, und beide stehen nebeneinander.</translation>
    </message>
    <message>
        <source>Take a screenshot and it will slide into the %1 corner. Take another and they line up together. Your desktop has no tray for Vantle&apos;s icon. To open the settings, start Vantle again.</source>
        <translation>Machen Sie ein Bildschirmfoto, und es gleitet in die Ecke „%1“. Machen Sie noch eines, und beide stehen nebeneinander. Ihr Desktop hat keinen Infobereich für das Symbol von Vantle. Um die Einstellungen zu öffnen, starten Sie Vantle noch einmal.</translation>
    </message>
</context>
<context>
    <name>OnboardingView</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>OpenWith</name>
    <message>
        <source>The program could not be started.</source>
        <translation>Das Programm konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>The program is not installed any more.</source>
        <translation>Das Programm ist nicht mehr installiert.</translation>
    </message>
    <message>
        <source>The program does not respond.</source>
        <translation>Das Programm antwortet nicht.</translation>
    </message>
</context>
<context>
    <name>OpeningFailure</name>
    <message>
        <source>The file is gone</source>
        <translation>Die Datei ist nicht mehr da</translation>
    </message>
    <message>
        <source>Could not be opened</source>
        <translation>Konnte nicht geöffnet werden</translation>
    </message>
</context>
<context>
    <name>PageDots</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Schritt %1 von %2</translation>
    </message>
</context>
<context>
    <name>PanelCorner</name>
    <message>
        <source>Bottom Right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>Oben links</translation>
    </message>
</context>
<context>
    <name>Preview</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
</context>
<context>
    <name>PreviewBar</name>
    <message>
        <source>Previous page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>Ganzes Bild zeigen</translation>
    </message>
    <message>
        <source>Show real pixels</source>
        <translation>Echte Pixel zeigen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>In die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>PreviewPicture</name>
    <message>
        <source>This file cannot be shown</source>
        <translation>Diese Datei kann nicht gezeigt werden</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
</context>
<context>
    <name>PreviewView</name>
    <message>
        <source>Previous capture</source>
        <translation>Vorige Aufnahme</translation>
    </message>
    <message>
        <source>Next capture</source>
        <translation>Nächste Aufnahme</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <extracomment>Not shown. &quot;LTR&quot; for languages written from left to right, &quot;RTL&quot; for those from right to left.</extracomment>
        <translation>LTR</translation>
    </message>
</context>
<context>
    <name>RelativeDate</name>
    <message numerus="yes">
        <source>%n yr. ago</source>
        <translation>
            <numerusform>vor %n Jahr</numerusform>
            <numerusform>vor %n Jahren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n yr.</source>
        <translation>
            <numerusform>in %n Jahr</numerusform>
            <numerusform>in %n Jahren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n mo. ago</source>
        <translation>
            <numerusform>vor %n Monat</numerusform>
            <numerusform>vor %n Monaten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n mo.</source>
        <translation>
            <numerusform>in %n Monat</numerusform>
            <numerusform>in %n Monaten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n wk. ago</source>
        <translation>
            <numerusform>vor %n Woche</numerusform>
            <numerusform>vor %n Wochen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n wk.</source>
        <translation>
            <numerusform>in %n Woche</numerusform>
            <numerusform>in %n Wochen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days ago</source>
        <translation>
            <numerusform>vor %n Tag</numerusform>
            <numerusform>vor %n Tagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n days</source>
        <translation>
            <numerusform>in %n Tag</numerusform>
            <numerusform>in %n Tagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n day ago</source>
        <translation>
            <numerusform>vor %n Tag</numerusform>
            <numerusform>vor %n Tagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n day</source>
        <translation>
            <numerusform>in %n Tag</numerusform>
            <numerusform>in %n Tagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hr. ago</source>
        <translation>
            <numerusform>vor %n Std.</numerusform>
            <numerusform>vor %n Std.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n hr.</source>
        <translation>
            <numerusform>in %n Std.</numerusform>
            <numerusform>in %n Std.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n min. ago</source>
        <translation>
            <numerusform>vor %n Min.</numerusform>
            <numerusform>vor %n Min.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n min.</source>
        <translation>
            <numerusform>in %n Min.</numerusform>
            <numerusform>in %n Min.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sec. ago</source>
        <translation>
            <numerusform>vor %n Sek.</numerusform>
            <numerusform>vor %n Sek.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n sec.</source>
        <translation>
            <numerusform>in %n Sek.</numerusform>
            <numerusform>in %n Sek.</numerusform>
        </translation>
    </message>
    <message>
        <source>now</source>
        <translation>jetzt</translation>
    </message>
</context>
<context>
    <name>RenameField</name>
    <message>
        <source>New name</source>
        <translation>Neuer Name</translation>
    </message>
</context>
<context>
    <name>Renaming</name>
    <message>
        <source>A file of this name exists already.</source>
        <translation>Eine Datei mit diesem Namen gibt es schon.</translation>
    </message>
    <message>
        <source>The folder cannot be changed.</source>
        <translation>Der Ordner kann nicht geändert werden.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Der Name ist zu lang.</translation>
    </message>
    <message>
        <source>The file is gone.</source>
        <translation>Die Datei ist weg.</translation>
    </message>
</context>
<context>
    <name>Requests</name>
    <message>
        <source>Vantle is shutting down</source>
        <translation>Vantle wird gerade beendet</translation>
    </message>
    <message>
        <source>unknown action &quot;%1&quot;</source>
        <translation>unbekannte Aktion „%1“</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>not a supported image or recording</source>
        <translation>kein unterstütztes Bild und keine unterstützte Aufzeichnung</translation>
    </message>
    <message>
        <source>Vantle is not running</source>
        <translation>Vantle läuft nicht</translation>
    </message>
    <message>
        <source>the running copy does not respond</source>
        <translation>das laufende Vantle antwortet nicht</translation>
    </message>
    <message>
        <source>Vantle is not ready yet</source>
        <translation>Vantle ist noch nicht bereit</translation>
    </message>
    <message>
        <source>the card is not visible</source>
        <translation>die Karte ist nicht zu sehen</translation>
    </message>
    <message>
        <source>nothing has left the card lately</source>
        <translation>zuletzt hat nichts die Karte verlassen</translation>
    </message>
</context>
<context>
    <name>ScreenshotTool</name>
    <message>
        <source>The desktop does not allow its setting &quot;%1&quot; to be changed.</source>
        <translation>Der Desktop erlaubt nicht, seine Einstellung „%1“ zu ändern.</translation>
    </message>
    <message>
        <source>Xfce&apos;s screenshot tool has no preview.</source>
        <translation>Das Bildschirmfoto-Programm von Xfce hat keine Vorschau.</translation>
    </message>
    <message>
        <source>This desktop&apos;s screenshot tool has no preview.</source>
        <translation>Das Bildschirmfoto-Programm dieses Desktops hat keine Vorschau.</translation>
    </message>
    <message>
        <source>MATE&apos;s screenshot tool always opens a window.</source>
        <translation>Das Bildschirmfoto-Programm von MATE öffnet immer ein Fenster.</translation>
    </message>
    <message>
        <source>ScreenGrab always shows a notification after saving.</source>
        <translation>ScreenGrab zeigt nach dem Speichern immer eine Benachrichtigung.</translation>
    </message>
    <message>
        <source>GNOME always saves screenshots in this folder.</source>
        <translation>GNOME speichert Bildschirmfotos immer in diesem Ordner.</translation>
    </message>
    <message>
        <source>GNOME always shows its own preview.</source>
        <translation>GNOME zeigt immer seine eigene Vorschau.</translation>
    </message>
    <message>
        <source>The tool&apos;s settings file %1 cannot be read: %2.</source>
        <translation>Die Einstellungsdatei %1 des Programms ist nicht lesbar: %2.</translation>
    </message>
    <message>
        <source>The tool&apos;s settings file %1 is read-only.</source>
        <translation>Die Einstellungsdatei %1 des Programms ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>sie ist beschädigt</translation>
    </message>
</context>
<context>
    <name>SelectionBar</name>
    <message numerus="yes">
        <source>%n selected</source>
        <translation>
            <numerusform>%n ausgewählt</numerusform>
            <numerusform>%n ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>Copy selected</source>
        <translation>Auswahl kopieren</translation>
    </message>
    <message>
        <source>Move selected to Trash</source>
        <translation>Auswahl in den Papierkorb</translation>
    </message>
    <message>
        <source>Dismiss selected</source>
        <translation>Auswahl schließen</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>Show panel in</source>
        <translation>Karte zeigen</translation>
    </message>
    <message>
        <source>Your desktop saves them in %1.</source>
        <translation>Ihr Desktop speichert sie in %1.</translation>
    </message>
</context>
<context>
    <name>SettingsStep</name>
    <message>
        <source>Set up Vantle</source>
        <translation>Vantle einrichten</translation>
    </message>
    <message>
        <source>Recommended settings are already selected</source>
        <translation>Die empfohlenen Einstellungen sind schon gewählt</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>SCREENSHOTS ARE SAVED TO</source>
        <translation>BILDSCHIRMFOTOS LANDEN IN</translation>
    </message>
    <message>
        <source>Vantle %1</source>
        <translation>Vantle %1</translation>
    </message>
    <message>
        <source>Test with a sample</source>
        <translation>Beispiel ausprobieren</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Vantle Settings</source>
        <translation>Vantle-Einstellungen</translation>
    </message>
</context>
<context>
    <name>ShareButton</name>
    <message>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
</context>
<context>
    <name>SharingServicePicker</name>
    <message>
        <source>Copy file</source>
        <translation>Datei kopieren</translation>
    </message>
    <message>
        <source>Reveal</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>Bluetooth…</source>
        <translation>Bluetooth&#xa0;…</translation>
    </message>
    <message>
        <source>Mail…</source>
        <translation>E-Mail&#xa0;…</translation>
    </message>
</context>
<context>
    <name>SoundPlayer</name>
    <message>
        <source>New capture</source>
        <translation>Neue Aufnahme</translation>
    </message>
</context>
<context>
    <name>StatusBarController</name>
    <message>
        <source>No captures yet</source>
        <translation>Noch keine Aufnahmen</translation>
    </message>
    <message>
        <source>Resume Vantle</source>
        <translation>Vantle fortsetzen</translation>
    </message>
    <message>
        <source>Pause Vantle</source>
        <translation>Vantle anhalten</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Updates suchen&#xa0;…</translation>
    </message>
    <message>
        <source>Quit Vantle</source>
        <translation>Vantle beenden</translation>
    </message>
    <message>
        <source>Recent Captures</source>
        <translation>Letzte Aufnahmen</translation>
    </message>
    <message>
        <source>Open Screenshots Folder</source>
        <translation>Ordner für Bildschirmfotos öffnen</translation>
    </message>
    <message>
        <source>Bring back</source>
        <translation>Zurückholen</translation>
    </message>
</context>
<context>
    <name>TextCopy</name>
    <message>
        <source>Copied 1 word</source>
        <translation>1 Wort kopiert</translation>
    </message>
    <message>
        <source>Copied %1 words</source>
        <translation>%1 Wörter kopiert</translation>
    </message>
    <message>
        <source>No text found</source>
        <translation>Kein Text gefunden</translation>
    </message>
</context>
<context>
    <name>TextCopyButton</name>
    <message>
        <source>Stop</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Copy Text</source>
        <translation>Text kopieren</translation>
    </message>
</context>
<context>
    <name>TextCopyStop</name>
    <message>
        <source>Stop</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>TextReader</name>
    <message>
        <source>The picture cannot be opened, or it is damaged.</source>
        <translation>Das Bild lässt sich nicht öffnen, oder es ist beschädigt.</translation>
    </message>
    <message>
        <source>The program that recognizes text cannot be started.</source>
        <translation>Das Programm zur Texterkennung lässt sich nicht starten.</translation>
    </message>
    <message>
        <source>Recognizing the text took too long.</source>
        <translation>Die Texterkennung hat zu lange gedauert.</translation>
    </message>
    <message>
        <source>The program that recognizes text ended unexpectedly.</source>
        <translation>Das Programm zur Texterkennung wurde unerwartet beendet.</translation>
    </message>
    <message>
        <source>There is not enough memory to recognize the text.</source>
        <translation>Für die Texterkennung reicht der Speicher nicht aus.</translation>
    </message>
</context>
<context>
    <name>TileActions</name>
    <message>
        <source>Unpin (dismiss on timer again)</source>
        <translation>Lösen (schließt wieder nach Zeit)</translation>
    </message>
    <message>
        <source>Pin (ignore the timer)</source>
        <translation>Anheften (bleibt über die Zeit)</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>In die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Share…</source>
        <translation>Teilen&#xa0;…</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
</context>
<context>
    <name>TileRow</name>
    <message>
        <source>Captures</source>
        <translation>Aufnahmen</translation>
    </message>
</context>
<context>
    <name>TrashNotice</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Moved to Trash</source>
        <translation>Im Papierkorb</translation>
    </message>
    <message>
        <source>Could not be moved to the Trash</source>
        <translation>Konnte nicht in den Papierkorb gelegt werden</translation>
    </message>
    <message>
        <source>Could not be put back</source>
        <translation>Konnte nicht zurückgelegt werden</translation>
    </message>
</context>
<context>
    <name>UpdateProgram</name>
    <message>
        <source>The update program does not respond.</source>
        <translation>Das Update-Programm antwortet nicht.</translation>
    </message>
    <message>
        <source>The update program failed: %1.</source>
        <translation>Das Update-Programm ist fehlgeschlagen: %1.</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>Vantle Update</source>
        <translation>Vantle-Update</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>The update was refused: %1</source>
        <translation>Das Update wurde abgelehnt: %1</translation>
    </message>
    <message>
        <source>it contains a file without a name.</source>
        <translation>Es enthält eine Datei ohne Namen.</translation>
    </message>
    <message>
        <source>it contains too many files.</source>
        <translation>Es enthält zu viele Dateien.</translation>
    </message>
    <message>
        <source>it contains the unexpected path &quot;%1&quot;.</source>
        <translation>Es enthält den unerwarteten Pfad „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a file nor a folder.</source>
        <translation>„%1“ ist weder Datei noch Ordner.</translation>
    </message>
    <message>
        <source>it contains &quot;%1&quot; twice.</source>
        <translation>Es enthält „%1“ doppelt.</translation>
    </message>
    <message>
        <source>its archive is damaged.</source>
        <translation>Sein Archiv ist beschädigt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a sparse file, which is not allowed.</source>
        <translation>„%1“ ist eine Sparse-Datei; das ist nicht erlaubt.</translation>
    </message>
    <message>
        <source>its unpacked files are too large.</source>
        <translation>Seine entpackten Dateien sind zu groß.</translation>
    </message>
    <message>
        <source>it is not an archive.</source>
        <translation>Es ist kein Archiv.</translation>
    </message>
    <message>
        <source>Version %1 needs a newer system (C library %2; this system has %3).</source>
        <translation>Version %1 braucht ein neueres System (C-Bibliothek %2; dieses System hat %3).</translation>
    </message>
    <message>
        <source>Version %1 is not signed, so it was refused.</source>
        <translation>Version %1 ist nicht signiert und wurde abgelehnt.</translation>
    </message>
    <message>
        <source>Version %1 has no length in the update feed, so it was refused.</source>
        <translation>Für Version %1 nennt der Update-Feed keine Länge; sie wurde abgelehnt.</translation>
    </message>
    <message>
        <source>Version %1 is too large for an update, so it was refused.</source>
        <translation>Version %1 ist zu groß für ein Update und wurde abgelehnt.</translation>
    </message>
    <message>
        <source>Vantle %1 is newer than the latest available version, %2.</source>
        <translation>Vantle %1 ist neuer als die neueste verfügbare Version, %2.</translation>
    </message>
    <message>
        <source>A newer version exists, but not for this system (%1).</source>
        <translation>Es gibt eine neuere Version, aber nicht für dieses System (%1).</translation>
    </message>
    <message>
        <source>Vantle %1 is the latest version.</source>
        <translation>Vantle %1 ist die neueste Version.</translation>
    </message>
    <message>
        <source>The update feed is damaged: %1.</source>
        <translation>Der Update-Feed ist beschädigt: %1.</translation>
    </message>
    <message>
        <source>The update feed is damaged: there is no list of versions.</source>
        <translation>Der Update-Feed ist beschädigt: Die Liste der Versionen fehlt.</translation>
    </message>
    <message>
        <source>The update feed is damaged: it has no date.</source>
        <translation>Der Update-Feed ist beschädigt: Das Datum fehlt.</translation>
    </message>
    <message>
        <source>Updates are downloaded only over HTTPS, so the address &quot;%1&quot; was refused.</source>
        <translation>Updates werden nur über HTTPS geladen; die Adresse „%1“ wurde abgelehnt.</translation>
    </message>
    <message>
        <source>The server sent more than the expected maximum of %1 bytes.</source>
        <translation>Der Server hat mehr als die höchstens erwarteten %1 Byte gesendet.</translation>
    </message>
    <message>
        <source>The server is too slow or does not respond. Try again later.</source>
        <translation>Der Server ist zu langsam oder antwortet nicht. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>The connection was lost during the download. Try again.</source>
        <translation>Die Verbindung ist beim Herunterladen abgebrochen. Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The server could not be reached: %1.</source>
        <translation>Der Server war nicht zu erreichen: %1.</translation>
    </message>
    <message>
        <source>The server reported error %1.</source>
        <translation>Der Server hat den Fehler %1 gemeldet.</translation>
    </message>
    <message>
        <source>The server redirected too many times.</source>
        <translation>Der Server hat zu oft umgeleitet.</translation>
    </message>
    <message>
        <source>The system could not install the package: %1</source>
        <translation>Das System konnte das Paket nicht installieren: %1</translation>
    </message>
    <message>
        <source>it gave no reason.</source>
        <translation>Es hat keinen Grund genannt.</translation>
    </message>
    <message>
        <source>Vantle&apos;s folder cannot be replaced in one step: %1</source>
        <translation>Der Ordner von Vantle lässt sich nicht in einem Schritt ersetzen: %1</translation>
    </message>
    <message>
        <source>Vantle %1 did not start in time</source>
        <translation>Vantle %1 ist nicht rechtzeitig gestartet</translation>
    </message>
    <message>
        <source>Vantle %1 crashed when it started</source>
        <translation>Vantle %1 ist beim Start abgestürzt</translation>
    </message>
    <message>
        <source>Vantle %1 quit when it started</source>
        <translation>Vantle %1 hat sich beim Start beendet</translation>
    </message>
    <message>
        <source>Vantle %1 cannot be started: %2</source>
        <translation>Vantle %1 lässt sich nicht starten: %2</translation>
    </message>
    <message>
        <source>The update could not be installed: %1.</source>
        <translation>Das Update konnte nicht installiert werden: %1.</translation>
    </message>
    <message>
        <source>%1, and the previous version could not be restored: %2.</source>
        <translation>%1, und die vorherige Version konnte nicht wiederhergestellt werden: %2.</translation>
    </message>
    <message>
        <source>%1, so the previous version was restored.</source>
        <translation>%1; darum wurde die vorherige Version wiederhergestellt.</translation>
    </message>
    <message>
        <source>The update feed is not signed, so it was refused.</source>
        <translation>Der Update-Feed ist nicht signiert und wurde abgelehnt.</translation>
    </message>
    <message>
        <source>The signature of the update feed is wrong, so the feed was refused.</source>
        <translation>Die Signatur des Update-Feeds ist falsch; er wurde abgelehnt.</translation>
    </message>
    <message>
        <source>%1 is not a folder that only you can access. Remove or rename it, then try again.</source>
        <translation>%1 ist kein Ordner, auf den nur Sie zugreifen können. Löschen Sie ihn oder benennen Sie ihn um, und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>Another update is already in progress.</source>
        <translation>Ein anderes Update läuft bereits.</translation>
    </message>
    <message>
        <source>it contains version &quot;%2&quot; instead of %1.</source>
        <translation>Es enthält Version „%2“ statt %1.</translation>
    </message>
    <message>
        <source>it was not built for this system (%1).</source>
        <translation>Es ist nicht für dieses System (%1) gebaut.</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>%1 fehlt.</translation>
    </message>
    <message>
        <source>%1 is missing or damaged.</source>
        <translation>%1 fehlt oder ist beschädigt.</translation>
    </message>
    <message>
        <source>it contains the unexpected file %1.</source>
        <translation>Es enthält die unerwartete Datei %1.</translation>
    </message>
    <message>
        <source>Vantle&apos;s folder %1 contains &quot;%2&quot;, which is not part of Vantle. Move it elsewhere, then try again.</source>
        <translation>Der Ordner %1 von Vantle enthält „%2“, das nicht zu Vantle gehört. Verschieben Sie es an einen anderen Ort, und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>The downloaded file is shorter than expected, so it was refused.</source>
        <translation>Die geladene Datei ist kürzer als erwartet und wurde abgelehnt.</translation>
    </message>
    <message>
        <source>The signature of the update is wrong, so it was refused.</source>
        <translation>Die Signatur des Updates ist falsch; es wurde abgelehnt.</translation>
    </message>
    <message>
        <source>This copy of Vantle cannot be updated, because it was built without the key that updates are signed with.</source>
        <translation>Diese Kopie von Vantle lässt sich nicht aktualisieren: Sie wurde ohne den Schlüssel gebaut, mit dem Updates signiert werden.</translation>
    </message>
    <message>
        <source>The update feed is older than the last one received, so it was refused.</source>
        <translation>Der Update-Feed ist älter als der zuletzt empfangene und wurde abgelehnt.</translation>
    </message>
    <message>
        <source>This copy of Vantle cannot update itself.</source>
        <translation>Diese Kopie von Vantle kann sich nicht selbst aktualisieren.</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Welcome to Vantle</source>
        <translation>Willkommen bei Vantle</translation>
    </message>
    <message>
        <source>Screenshots shouldn&apos;t vanish before you can use them.
Vantle keeps your latest screenshots and recordings in a glass panel in the corner until you&apos;re done with them.</source>
        <translation>Bildschirmfotos sollten nicht verschwinden, bevor man sie nutzen kann.
Vantle hält die neuesten auf einer Glaskarte in der Ecke bereit, bis Sie fertig sind.</translation>
    </message>
    <message>
        <source>Drag a preview straight into Slack, Mail, Figma or anywhere else</source>
        <translation>Direkt in Slack, Mail, Figma oder sonst wohin ziehen</translation>
    </message>
    <message>
        <source>Take several in a row and they line up side by side</source>
        <translation>Mehrere hintereinander stehen nebeneinander</translation>
    </message>
    <message>
        <source>Stays until you dismiss it, or on a timer if you prefer</source>
        <translation>Bleibt bis zum Schließen oder auf Zeit, wie Sie mögen</translation>
    </message>
</context>
<context>
    <name>vantle::UpdateModel</name>
    <message>
        <source>Checking for updates…</source>
        <translation>Suche nach Updates&#xa0;…</translation>
    </message>
    <message>
        <source>Vantle %1 is available</source>
        <translation>Vantle %1 ist verfügbar</translation>
    </message>
    <message>
        <source>Downloading Vantle %1…</source>
        <translation>Vantle %1 wird geladen&#xa0;…</translation>
    </message>
    <message>
        <source>Installing Vantle %1…</source>
        <translation>Vantle %1 wird installiert&#xa0;…</translation>
    </message>
    <message>
        <source>Vantle is up to date</source>
        <translation>Vantle ist aktuell</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>Die Suche nach Updates ist gescheitert</translation>
    </message>
    <message>
        <source>Vantle could not be updated</source>
        <translation>Vantle konnte nicht aktualisiert werden</translation>
    </message>
    <message>
        <source>You have version %1. Download the new one from Vantle&apos;s website.</source>
        <translation>Sie haben Version %1. Die neue können Sie von der Website von Vantle laden.</translation>
    </message>
    <message>
        <source>You have version %1. Would you like to install the new one now?</source>
        <translation>Sie haben Version %1. Möchten Sie die neue jetzt installieren?</translation>
    </message>
    <message>
        <source>Your system may ask for your permission.</source>
        <translation>Ihr System fragt vielleicht um Erlaubnis.</translation>
    </message>
    <message>
        <source>Vantle will restart in a moment.</source>
        <translation>Vantle startet gleich neu.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1, %2 per second</source>
        <translation>%1, %2 pro Sekunde</translation>
    </message>
    <message>
        <source>Open Download Page</source>
        <translation>Download-Seite öffnen</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>Installieren und neu starten</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Überspringen</translation>
    </message>
</context>
</TS>
