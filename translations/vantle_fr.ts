<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AppDelegate</name>
    <message>
        <source>Vantle is running</source>
        <translation>Vantle est en cours d’exécution</translation>
    </message>
    <message>
        <source>This desktop has no tray for Vantle&apos;s icon. New captures still appear on the card. To open the settings, start Vantle again. To pause it or to open your screenshots, use the actions of its launcher.</source>
        <translation>Ce bureau n’a pas de zone de notification pour l’icône de Vantle. Les nouvelles captures apparaissent quand même sur la carte. Pour ouvrir les réglages, relancez Vantle. Pour le mettre en pause ou ouvrir vos captures d’écran, utilisez les actions de son lanceur.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Sample screenshot</source>
        <translation>Capture d’exemple</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Ouvrir les réglages</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Vantle needs access to your screenshot folder</source>
        <translation>Vantle a besoin d’accéder à votre dossier de captures d’écran</translation>
    </message>
    <message>
        <source>macOS is blocking Vantle from reading %1. Allow Vantle under System Settings → Privacy &amp; Security → Files and Folders, then click Retry.</source>
        <translation>Vantle n’a pas le droit de lire « %1 ». Accordez-vous la lecture dans les propriétés du dossier, puis cliquez sur Réessayer.</translation>
    </message>
    <message>
        <source>Open Privacy Settings</source>
        <translation>Afficher les permissions</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Vantle can&apos;t find your screenshot folder</source>
        <translation>Vantle ne trouve pas votre dossier de captures d’écran</translation>
    </message>
    <message>
        <source>%1 is missing and could not be recreated. Choose another folder in Settings.</source>
        <translation>«&#xa0;%1&#xa0;» est introuvable et n’a pas pu être recréé. Choisissez un autre dossier dans les réglages.</translation>
    </message>
    <message>
        <source>Vantle can&apos;t watch your screenshot folder</source>
        <translation>Vantle ne peut pas surveiller votre dossier de captures d’écran</translation>
    </message>
</context>
<context>
    <name>BehaviorControls</name>
    <message>
        <source>Captures</source>
        <translation>Captures</translation>
    </message>
    <message>
        <source>Keep captures until dismissed (recommended)</source>
        <translation>Garder les captures jusqu’à leur fermeture (recommandé)</translation>
    </message>
    <message>
        <source>Pin a capture to keep it past the timer.</source>
        <translation>Une capture épinglée reste après la fin du minuteur.</translation>
    </message>
    <message>
        <source>After I use a capture</source>
        <translation>Après utilisation</translation>
    </message>
    <message>
        <source>Using = dragging, opening, copying, sharing or revealing.</source>
        <translation>Utiliser = glisser, ouvrir, copier, partager ou afficher.</translation>
    </message>
    <message>
        <source>Remove it from Vantle</source>
        <translation>Retirer de Vantle</translation>
    </message>
    <message>
        <source>Keep it in Vantle</source>
        <translation>Garder dans Vantle</translation>
    </message>
    <message>
        <source>Move the file to the Trash after I use it</source>
        <translation>Placer le fichier dans la corbeille après utilisation</translation>
    </message>
    <message>
        <source>After dragging or copying. Recoverable from the Trash.</source>
        <translation>Après un glissement ou une copie. Récupérable dans la corbeille.</translation>
    </message>
    <message>
        <source>Also show screen recordings</source>
        <translation>Afficher aussi les enregistrements d’écran</translation>
    </message>
    <message>
        <source>Copy screenshot to clipboard automatically</source>
        <translation>Copie automatique dans le presse-papiers</translation>
    </message>
    <message>
        <source>Panel &amp; app</source>
        <translation>Carte et app</translation>
    </message>
    <message>
        <source>Show panel in</source>
        <translation>Afficher la carte</translation>
    </message>
    <message>
        <source>Hide the built-in macOS thumbnail</source>
        <translation>Masquer l’aperçu du bureau</translation>
    </message>
    <message>
        <source>Recommended. Captures reach Vantle instantly instead of after Apple&apos;s preview.</source>
        <translation>Recommandé. Les captures arrivent sans attendre l’aperçu.</translation>
    </message>
    <message>
        <source>Open Vantle at login</source>
        <translation>Ouvrir Vantle à l’ouverture de session</translation>
    </message>
    <message>
        <source>Also show Vantle in the Dock</source>
        <translation>Afficher aussi Vantle dans la barre des tâches</translation>
    </message>
    <message>
        <source>Useful if the menu bar icon is hidden under the notch.</source>
        <translation>Ses fenêtres figurent alors dans la barre des tâches et le sélecteur.</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 secondes</translation>
    </message>
</context>
<context>
    <name>CaptureTile</name>
    <message>
        <source>%1, recording, %2</source>
        <translation>%1, enregistrement, %2</translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation>Épinglée</translation>
    </message>
    <message>
        <source>Copying text</source>
        <translation>Copie du texte</translation>
    </message>
</context>
<context>
    <name>CardMenus</name>
    <message>
        <source>Card</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Tout retirer</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Réglages…</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>Copier le chemin</translation>
    </message>
    <message>
        <source>Share…</source>
        <translation>Partager…</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation>Afficher dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Renommer…</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Placer dans la corbeille</translation>
    </message>
    <message>
        <source>%1 selected</source>
        <translation>%1 sélectionnés</translation>
    </message>
    <message>
        <source>Copy Paths</source>
        <translation>Copier les chemins</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Open With</source>
        <translation>Ouvrir avec</translation>
    </message>
    <message>
        <source>Other...</source>
        <translation>Autre…</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>Détacher</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Épingler</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Copy Text</source>
        <translation>Copier le texte</translation>
    </message>
</context>
<context>
    <name>ClearAllPill</name>
    <message>
        <source>Clear all</source>
        <translation>Tout fermer</translation>
    </message>
</context>
<context>
    <name>CloseButton</name>
    <message>
        <source>Dismiss</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>open the settings</source>
        <translation>ouvre les réglages</translation>
    </message>
    <message>
        <source>stop watching until --resume</source>
        <translation>suspend la surveillance jusqu’à --resume</translation>
    </message>
    <message>
        <source>resume watching</source>
        <translation>reprend la surveillance</translation>
    </message>
    <message>
        <source>show screenshots or recordings on the card</source>
        <translation>montre des captures ou enregistrements sur la carte</translation>
    </message>
    <message>
        <source>dismiss the card</source>
        <translation>ferme la carte</translation>
    </message>
    <message>
        <source>move the keyboard focus to the card</source>
        <translation>donne le focus du clavier à la carte</translation>
    </message>
    <message>
        <source>open the screenshots folder</source>
        <translation>ouvre le dossier des captures d’écran</translation>
    </message>
    <message>
        <source>show two sample captures</source>
        <translation>montre deux captures d’exemple</translation>
    </message>
    <message>
        <source>quit Vantle</source>
        <translation>quitte Vantle</translation>
    </message>
    <message>
        <source>print the status of Vantle</source>
        <translation>affiche l’état de Vantle</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>affiche la version</translation>
    </message>
    <message>
        <source>print this text</source>
        <translation>affiche ce texte</translation>
    </message>
    <message>
        <source>Try &quot;vantle --help&quot;.</source>
        <translation>Essayez «&#xa0;vantle --help&#xa0;».</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>argument inattendu «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Usage: vantle [OPTION]

Starts Vantle, or brings the running copy to the front. Options control the running
copy; --settings, --show and --sample start Vantle if it is not running.</source>
        <translation>Utilisation : vantle [OPTION]

Lance Vantle, ou ramène au premier plan la copie en cours d’exécution. Les options
commandent cette copie ; --settings, --show et --sample lancent Vantle au besoin.</translation>
    </message>
    <message>
        <source>Exit status: 0 on success, 1 on failure, 2 for an invalid command line.</source>
        <translation>Code de sortie : 0 en cas de succès, 1 en cas d’échec, 2 pour une ligne de commande invalide.</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>option inconnue «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1 needs at least one file</source>
        <translation>%1 demande au moins un fichier</translation>
    </message>
    <message>
        <source>include everything that a bug report needs</source>
        <translation>avec tout ce qu’il faut pour signaler un problème</translation>
    </message>
    <message>
        <source>include paths as well</source>
        <translation>avec aussi les chemins</translation>
    </message>
    <message>
        <source>FILE…</source>
        <translation>FICHIER…</translation>
    </message>
    <message>
        <source>bring back what left the card lately</source>
        <translation>ramène ce qui a quitté la carte récemment</translation>
    </message>
</context>
<context>
    <name>Compositor</name>
    <message>
        <source>On Wayland, your desktop decides which windows appear in the taskbar.</source>
        <translation>Sous Wayland, votre bureau décide quelles fenêtres figurent dans la barre des tâches.</translation>
    </message>
</context>
<context>
    <name>DismissSlider</name>
    <message>
        <source>Otherwise dismiss after</source>
        <translation>Sinon fermer après</translation>
    </message>
</context>
<context>
    <name>DoneStep</name>
    <message>
        <source>You&apos;re all set</source>
        <translation>Tout est prêt</translation>
    </message>
    <message>
        <source>Show me a sample</source>
        <translation>Voir un exemple</translation>
    </message>
</context>
<context>
    <name>DraggableThumbnail</name>
    <message>
        <source>Drag into any app, or click to open. ⌘-click to select.</source>
        <translation>Glissez dans une app, ou cliquez pour ouvrir. Ctrl-clic pour sélectionner.</translation>
    </message>
</context>
<context>
    <name>FolderAccessRow</name>
    <message>
        <source>macOS asks once for Desktop, Documents and Downloads. Pictures needs no permission.</source>
        <translation>Tout dossier que vous pouvez lire convient.</translation>
    </message>
    <message>
        <source>Grant access</source>
        <translation>Vérifier l’accès</translation>
    </message>
    <message>
        <source>Folder access</source>
        <translation>Accès au dossier</translation>
    </message>
    <message>
        <source>Vantle can read this folder</source>
        <translation>Vantle peut lire ce dossier</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Vérifier à nouveau</translation>
    </message>
    <message>
        <source>macOS is blocking access to this folder</source>
        <translation>Vantle ne peut pas lire ce dossier</translation>
    </message>
    <message>
        <source>Allow Vantle under Privacy &amp; Security → Files and Folders, then check again.</source>
        <translation>Assurez-vous qu’il existe et que vous pouvez le lire, puis vérifiez à nouveau.</translation>
    </message>
    <message>
        <source>Open Privacy Settings</source>
        <translation>Afficher les permissions</translation>
    </message>
</context>
<context>
    <name>FolderPicker</name>
    <message>
        <source>Change</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Desktop (macOS default)</source>
        <translation>Défaut du bureau</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Restore %1</source>
        <translation>Rétablir %1</translation>
    </message>
    <message>
        <source>Use This Folder</source>
        <translation>Utiliser ce dossier</translation>
    </message>
    <message>
        <source>Choose where macOS should save screenshots and screen recordings.</source>
        <translation>Choisissez où enregistrer les captures d’écran.</translation>
    </message>
</context>
<context>
    <name>LoginItem</name>
    <message>
        <source>Keeps each new screenshot at hand</source>
        <translation>Garde chaque nouvelle capture d’écran à portée de main</translation>
    </message>
</context>
<context>
    <name>MenuLine</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Submenu</source>
        <translation>Sous-menu</translation>
    </message>
</context>
<context>
    <name>MissingTrayAdvice</name>
    <message>
        <source>The installed extension “%1” provides a tray. Turn it on in Extensions.</source>
        <translation>L’extension installée « %1 » fournit une zone de notification. Activez-la dans Extensions.</translation>
    </message>
    <message>
        <source>The extension “%1” provides a tray. Install the package %2, log out and in again, then turn it on in Extensions.</source>
        <translation>L’extension « %1 » fournit une zone de notification. Installez le paquet %2, fermez puis rouvrez votre session, et activez-la dans Extensions.</translation>
    </message>
</context>
<context>
    <name>NewName</name>
    <message>
        <source>The name cannot contain “/”.</source>
        <translation>Le nom ne peut pas contenir « / ».</translation>
    </message>
    <message>
        <source>A name that begins with a full stop would hide the file.</source>
        <translation>Un nom qui commence par un point masquerait le fichier.</translation>
    </message>
    <message>
        <source>The name cannot contain line breaks or other control characters.</source>
        <translation>Le nom ne peut pas contenir de sauts de ligne ni d’autres caractères de contrôle.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Le nom est trop long.</translation>
    </message>
</context>
<context>
    <name>OnboardingSteps</name>
    <message>
        <source>Start Using Vantle</source>
        <translation>Commencer</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>C’est parti</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
</context>
<context>
    <name>OnboardingSummary</name>
    <message>
        <source>Saving to %1 folder</source>
        <translation>Enregistrement dans le dossier «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Stays for %1 seconds unless pinned</source>
        <translation>Reste %1 secondes, sauf si épinglée</translation>
    </message>
    <message>
        <source>Stays until dismissed</source>
        <translation>Reste jusqu’à sa fermeture</translation>
    </message>
    <message>
        <source>Panel in the %1</source>
        <translation>Carte&#xa0;: %1</translation>
    </message>
    <message>
        <source>macOS thumbnail hidden</source>
        <translation>Aperçu du bureau masqué</translation>
    </message>
    <message>
        <source>macOS thumbnail still shown</source>
        <translation>Aperçu du bureau encore affiché</translation>
    </message>
    <message>
        <source>Vantle lives in your menu bar. Take a screenshot with ⇧⌘4 and it will slide into the %1 corner. Take another and they line up together.</source>
        <translation>Vantle vit dans votre zone de notification. Faites une capture, le plus souvent avec la touche Impr. écran : elle glisse dans le coin « %1 ». Faites-en une autre, et elles s’alignent.</translation>
    </message>
    <message>
        <source>Take a screenshot and it will slide into the %1 corner. Take another and they line up together. Your desktop has no tray for Vantle&apos;s icon. To open the settings, start Vantle again.</source>
        <translation>Faites une capture : elle glisse dans le coin « %1 ». Faites-en une autre, et elles s’alignent. Votre bureau n’a pas de zone de notification pour l’icône de Vantle. Pour ouvrir les réglages, relancez Vantle.</translation>
    </message>
</context>
<context>
    <name>OnboardingView</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>OpenWith</name>
    <message>
        <source>The program could not be started.</source>
        <translation>Impossible de démarrer le programme.</translation>
    </message>
    <message>
        <source>The program is not installed any more.</source>
        <translation>Le programme n’est plus installé.</translation>
    </message>
    <message>
        <source>The program does not respond.</source>
        <translation>Le programme ne répond pas.</translation>
    </message>
</context>
<context>
    <name>OpeningFailure</name>
    <message>
        <source>The file is gone</source>
        <translation>Le fichier n’existe plus</translation>
    </message>
    <message>
        <source>Could not be opened</source>
        <translation>Impossible à ouvrir</translation>
    </message>
</context>
<context>
    <name>PageDots</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Étape %1 sur %2</translation>
    </message>
</context>
<context>
    <name>PanelCorner</name>
    <message>
        <source>Bottom Right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>En haut à gauche</translation>
    </message>
</context>
<context>
    <name>Preview</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>page %1 of %2</source>
        <translation>page %1 sur %2</translation>
    </message>
</context>
<context>
    <name>PreviewBar</name>
    <message>
        <source>Previous page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>Afficher l’image entière</translation>
    </message>
    <message>
        <source>Show real pixels</source>
        <translation>Afficher les pixels réels</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>Copier dans le presse-papiers</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Placer dans la corbeille</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>PreviewPicture</name>
    <message>
        <source>This file cannot be shown</source>
        <translation>Ce fichier ne peut pas être affiché</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
</context>
<context>
    <name>PreviewView</name>
    <message>
        <source>Previous capture</source>
        <translation>Capture précédente</translation>
    </message>
    <message>
        <source>Next capture</source>
        <translation>Capture suivante</translation>
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
            <numerusform>il y a %n an</numerusform>
            <numerusform>il y a %n ans</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n yr.</source>
        <translation>
            <numerusform>dans %n an</numerusform>
            <numerusform>dans %n ans</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n mo. ago</source>
        <translation>
            <numerusform>il y a %n mois</numerusform>
            <numerusform>il y a %n mois</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n mo.</source>
        <translation>
            <numerusform>dans %n mois</numerusform>
            <numerusform>dans %n mois</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n wk. ago</source>
        <translation>
            <numerusform>il y a %n sem.</numerusform>
            <numerusform>il y a %n sem.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n wk.</source>
        <translation>
            <numerusform>dans %n sem.</numerusform>
            <numerusform>dans %n sem.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days ago</source>
        <translation>
            <numerusform>il y a %n jour</numerusform>
            <numerusform>il y a %n jours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n days</source>
        <translation>
            <numerusform>dans %n jour</numerusform>
            <numerusform>dans %n jours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n day ago</source>
        <translation>
            <numerusform>il y a %n jour</numerusform>
            <numerusform>il y a %n jours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n day</source>
        <translation>
            <numerusform>dans %n jour</numerusform>
            <numerusform>dans %n jours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hr. ago</source>
        <translation>
            <numerusform>il y a %n h</numerusform>
            <numerusform>il y a %n h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n hr.</source>
        <translation>
            <numerusform>dans %n h</numerusform>
            <numerusform>dans %n h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n min. ago</source>
        <translation>
            <numerusform>il y a %n min</numerusform>
            <numerusform>il y a %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n min.</source>
        <translation>
            <numerusform>dans %n min</numerusform>
            <numerusform>dans %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sec. ago</source>
        <translation>
            <numerusform>il y a %n s</numerusform>
            <numerusform>il y a %n s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n sec.</source>
        <translation>
            <numerusform>dans %n s</numerusform>
            <numerusform>dans %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>now</source>
        <translation>maintenant</translation>
    </message>
</context>
<context>
    <name>RenameField</name>
    <message>
        <source>New name</source>
        <translation>Nouveau nom</translation>
    </message>
</context>
<context>
    <name>Renaming</name>
    <message>
        <source>A file of this name exists already.</source>
        <translation>Un fichier porte déjà ce nom.</translation>
    </message>
    <message>
        <source>The folder cannot be changed.</source>
        <translation>Le dossier ne peut pas être modifié.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Le nom est trop long.</translation>
    </message>
    <message>
        <source>The file is gone.</source>
        <translation>Le fichier a disparu.</translation>
    </message>
</context>
<context>
    <name>Requests</name>
    <message>
        <source>Vantle is shutting down</source>
        <translation>Vantle est en train de quitter</translation>
    </message>
    <message>
        <source>unknown action &quot;%1&quot;</source>
        <translation>action inconnue « %1 »</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>fichier introuvable</translation>
    </message>
    <message>
        <source>not a supported image or recording</source>
        <translation>ni une image ni un enregistrement pris en charge</translation>
    </message>
    <message>
        <source>Vantle is not running</source>
        <translation>Vantle n’est pas lancé</translation>
    </message>
    <message>
        <source>the running copy does not respond</source>
        <translation>la copie en cours d’exécution ne répond pas</translation>
    </message>
    <message>
        <source>Vantle is not ready yet</source>
        <translation>Vantle n’est pas encore prêt</translation>
    </message>
    <message>
        <source>the card is not visible</source>
        <translation>la carte n’est pas visible</translation>
    </message>
    <message>
        <source>nothing has left the card lately</source>
        <translation>rien n’a quitté la carte récemment</translation>
    </message>
</context>
<context>
    <name>ScreenshotTool</name>
    <message>
        <source>The desktop does not allow its setting &quot;%1&quot; to be changed.</source>
        <translation>Le bureau ne permet pas de modifier son réglage «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Xfce&apos;s screenshot tool has no preview.</source>
        <translation>L’outil de capture de Xfce n’a pas d’aperçu.</translation>
    </message>
    <message>
        <source>This desktop&apos;s screenshot tool has no preview.</source>
        <translation>L’outil de capture de ce bureau n’a pas d’aperçu.</translation>
    </message>
    <message>
        <source>MATE&apos;s screenshot tool always opens a window.</source>
        <translation>L’outil de capture de MATE ouvre toujours une fenêtre.</translation>
    </message>
    <message>
        <source>ScreenGrab always shows a notification after saving.</source>
        <translation>ScreenGrab affiche toujours une notification après l’enregistrement.</translation>
    </message>
    <message>
        <source>GNOME always saves screenshots in this folder.</source>
        <translation>GNOME enregistre toujours les captures dans ce dossier.</translation>
    </message>
    <message>
        <source>GNOME always shows its own preview.</source>
        <translation>GNOME affiche toujours son propre aperçu.</translation>
    </message>
    <message>
        <source>The tool&apos;s settings file %1 cannot be read: %2.</source>
        <translation>Le fichier de réglages %1 de l’outil est illisible&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The tool&apos;s settings file %1 is read-only.</source>
        <translation>Le fichier de réglages %1 de l’outil est en lecture seule.</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>il est endommagé</translation>
    </message>
</context>
<context>
    <name>SelectionBar</name>
    <message numerus="yes">
        <source>%n selected</source>
        <translation>
            <numerusform>%n sélectionnée</numerusform>
            <numerusform>%n sélectionnées</numerusform>
        </translation>
    </message>
    <message>
        <source>Copy selected</source>
        <translation>Copier la sélection</translation>
    </message>
    <message>
        <source>Move selected to Trash</source>
        <translation>Placer la sélection dans la corbeille</translation>
    </message>
    <message>
        <source>Dismiss selected</source>
        <translation>Fermer la sélection</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>Show panel in</source>
        <translation>Afficher la carte</translation>
    </message>
    <message>
        <source>Your desktop saves them in %1.</source>
        <translation>Votre bureau les enregistre dans %1.</translation>
    </message>
</context>
<context>
    <name>SettingsStep</name>
    <message>
        <source>Set up Vantle</source>
        <translation>Configurer Vantle</translation>
    </message>
    <message>
        <source>Recommended settings are already selected</source>
        <translation>Les réglages recommandés sont déjà choisis</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>SCREENSHOTS ARE SAVED TO</source>
        <translation>DOSSIER DES CAPTURES D’ÉCRAN</translation>
    </message>
    <message>
        <source>Vantle %1</source>
        <translation>Vantle %1</translation>
    </message>
    <message>
        <source>Test with a sample</source>
        <translation>Essayer avec un exemple</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Vantle Settings</source>
        <translation>Réglages de Vantle</translation>
    </message>
</context>
<context>
    <name>ShareButton</name>
    <message>
        <source>Share</source>
        <translation>Partager</translation>
    </message>
</context>
<context>
    <name>SharingServicePicker</name>
    <message>
        <source>Copy file</source>
        <translation>Copier le fichier</translation>
    </message>
    <message>
        <source>Reveal</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Partager</translation>
    </message>
    <message>
        <source>Bluetooth…</source>
        <translation>Bluetooth…</translation>
    </message>
    <message>
        <source>Mail…</source>
        <translation>E-mail…</translation>
    </message>
</context>
<context>
    <name>SoundPlayer</name>
    <message>
        <source>New capture</source>
        <translation>Nouvelle capture</translation>
    </message>
</context>
<context>
    <name>StatusBarController</name>
    <message>
        <source>No captures yet</source>
        <translation>Aucune capture</translation>
    </message>
    <message>
        <source>Resume Vantle</source>
        <translation>Reprendre Vantle</translation>
    </message>
    <message>
        <source>Pause Vantle</source>
        <translation>Mettre Vantle en pause</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Réglages…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Rechercher les mises à jour…</translation>
    </message>
    <message>
        <source>Quit Vantle</source>
        <translation>Quitter Vantle</translation>
    </message>
    <message>
        <source>Recent Captures</source>
        <translation>Captures récentes</translation>
    </message>
    <message>
        <source>Open Screenshots Folder</source>
        <translation>Ouvrir le dossier des captures</translation>
    </message>
    <message>
        <source>Bring back</source>
        <translation>Ramener</translation>
    </message>
</context>
<context>
    <name>TextCopy</name>
    <message>
        <source>Copied 1 word</source>
        <translation>1 mot copié</translation>
    </message>
    <message>
        <source>Copied %1 words</source>
        <translation>%1 mots copiés</translation>
    </message>
    <message>
        <source>No text found</source>
        <translation>Aucun texte trouvé</translation>
    </message>
</context>
<context>
    <name>TextCopyButton</name>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Copy Text</source>
        <translation>Copier le texte</translation>
    </message>
</context>
<context>
    <name>TextCopyStop</name>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
</context>
<context>
    <name>TextReader</name>
    <message>
        <source>The picture cannot be opened, or it is damaged.</source>
        <translation>L’image ne peut pas être ouverte, ou elle est endommagée.</translation>
    </message>
    <message>
        <source>The program that recognizes text cannot be started.</source>
        <translation>Le programme de reconnaissance de texte ne peut pas être lancé.</translation>
    </message>
    <message>
        <source>Recognizing the text took too long.</source>
        <translation>La reconnaissance du texte a pris trop de temps.</translation>
    </message>
    <message>
        <source>The program that recognizes text ended unexpectedly.</source>
        <translation>Le programme de reconnaissance de texte s’est arrêté de façon inattendue.</translation>
    </message>
    <message>
        <source>There is not enough memory to recognize the text.</source>
        <translation>La mémoire est insuffisante pour reconnaître le texte.</translation>
    </message>
</context>
<context>
    <name>TileActions</name>
    <message>
        <source>Unpin (dismiss on timer again)</source>
        <translation>Détacher (se fermera avec le minuteur)</translation>
    </message>
    <message>
        <source>Pin (ignore the timer)</source>
        <translation>Épingler (ignore le minuteur)</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>Copier dans le presse-papiers</translation>
    </message>
    <message>
        <source>Share…</source>
        <translation>Partager…</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Placer dans la corbeille</translation>
    </message>
</context>
<context>
    <name>TileRow</name>
    <message>
        <source>Captures</source>
        <translation>Captures</translation>
    </message>
</context>
<context>
    <name>TrashNotice</name>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Moved to Trash</source>
        <translation>Placé dans la corbeille</translation>
    </message>
    <message>
        <source>Could not be moved to the Trash</source>
        <translation>N’a pas pu être placé dans la corbeille</translation>
    </message>
    <message>
        <source>Could not be put back</source>
        <translation>N’a pas pu être restauré</translation>
    </message>
</context>
<context>
    <name>UpdateProgram</name>
    <message>
        <source>The update program does not respond.</source>
        <translation>Le programme de mise à jour ne répond pas.</translation>
    </message>
    <message>
        <source>The update program failed: %1.</source>
        <translation>Le programme de mise à jour a échoué&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>Vantle Update</source>
        <translation>Mise à jour de Vantle</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>The update was refused: %1</source>
        <translation>La mise à jour a été refusée&#xa0;: %1</translation>
    </message>
    <message>
        <source>it contains a file without a name.</source>
        <translation>elle contient un fichier sans nom.</translation>
    </message>
    <message>
        <source>it contains too many files.</source>
        <translation>elle contient trop de fichiers.</translation>
    </message>
    <message>
        <source>it contains the unexpected path &quot;%1&quot;.</source>
        <translation>elle contient le chemin inattendu « %1 ».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a file nor a folder.</source>
        <translation>«&#xa0;%1&#xa0;» n’est ni un fichier ni un dossier.</translation>
    </message>
    <message>
        <source>it contains &quot;%1&quot; twice.</source>
        <translation>elle contient «&#xa0;%1&#xa0;» deux fois.</translation>
    </message>
    <message>
        <source>its archive is damaged.</source>
        <translation>son archive est endommagée.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a sparse file, which is not allowed.</source>
        <translation>« %1 » est un fichier creux, ce qui n’est pas autorisé.</translation>
    </message>
    <message>
        <source>its unpacked files are too large.</source>
        <translation>ses fichiers décompressés sont trop volumineux.</translation>
    </message>
    <message>
        <source>it is not an archive.</source>
        <translation>ce n’est pas une archive.</translation>
    </message>
    <message>
        <source>Version %1 needs a newer system (C library %2; this system has %3).</source>
        <translation>La version %1 demande un système plus récent (bibliothèque C %2 ; ce système a %3).</translation>
    </message>
    <message>
        <source>Version %1 is not signed, so it was refused.</source>
        <translation>La version %1 n’est pas signée&#xa0;; elle a été refusée.</translation>
    </message>
    <message>
        <source>Version %1 has no length in the update feed, so it was refused.</source>
        <translation>Le flux de mises à jour ne donne pas la taille de la version %1&#xa0;; elle a été refusée.</translation>
    </message>
    <message>
        <source>Version %1 is too large for an update, so it was refused.</source>
        <translation>La version %1 est trop grande pour une mise à jour&#xa0;; elle a été refusée.</translation>
    </message>
    <message>
        <source>Vantle %1 is newer than the latest available version, %2.</source>
        <translation>Vantle %1 est plus récent que la dernière version disponible, %2.</translation>
    </message>
    <message>
        <source>A newer version exists, but not for this system (%1).</source>
        <translation>Une version plus récente existe, mais pas pour ce système (%1).</translation>
    </message>
    <message>
        <source>Vantle %1 is the latest version.</source>
        <translation>Vantle %1 est la version la plus récente.</translation>
    </message>
    <message>
        <source>The update feed is damaged: %1.</source>
        <translation>Le flux de mises à jour est endommagé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The update feed is damaged: there is no list of versions.</source>
        <translation>Le flux de mises à jour est endommagé&#xa0;: il n’y a pas de liste de versions.</translation>
    </message>
    <message>
        <source>The update feed is damaged: it has no date.</source>
        <translation>Le flux de mises à jour est endommagé&#xa0;: il n’a pas de date.</translation>
    </message>
    <message>
        <source>Updates are downloaded only over HTTPS, so the address &quot;%1&quot; was refused.</source>
        <translation>Les mises à jour ne sont téléchargées que par HTTPS ; l’adresse « %1 » a donc été refusée.</translation>
    </message>
    <message>
        <source>The server sent more than the expected maximum of %1 bytes.</source>
        <translation>Le serveur a envoyé plus que les %1 octets attendus au maximum.</translation>
    </message>
    <message>
        <source>The server is too slow or does not respond. Try again later.</source>
        <translation>Le serveur est trop lent ou ne répond pas. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The connection was lost during the download. Try again.</source>
        <translation>La connexion a été perdue pendant le téléchargement. Réessayez.</translation>
    </message>
    <message>
        <source>The server could not be reached: %1.</source>
        <translation>Le serveur n’a pas pu être joint&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The server reported error %1.</source>
        <translation>Le serveur a signalé l’erreur %1.</translation>
    </message>
    <message>
        <source>The server redirected too many times.</source>
        <translation>Le serveur a redirigé trop de fois.</translation>
    </message>
    <message>
        <source>The system could not install the package: %1</source>
        <translation>Le système n’a pas pu installer le paquet : %1</translation>
    </message>
    <message>
        <source>it gave no reason.</source>
        <translation>il n’a donné aucune raison.</translation>
    </message>
    <message>
        <source>Vantle&apos;s folder cannot be replaced in one step: %1</source>
        <translation>Le dossier de Vantle ne peut pas être remplacé en une seule étape&#xa0;: %1</translation>
    </message>
    <message>
        <source>Vantle %1 did not start in time</source>
        <translation>Vantle %1 n’a pas démarré à temps</translation>
    </message>
    <message>
        <source>Vantle %1 crashed when it started</source>
        <translation>Vantle %1 a planté au démarrage</translation>
    </message>
    <message>
        <source>Vantle %1 quit when it started</source>
        <translation>Vantle %1 s’est arrêté au démarrage</translation>
    </message>
    <message>
        <source>Vantle %1 cannot be started: %2</source>
        <translation>Vantle %1 ne peut pas être lancé&#xa0;: %2</translation>
    </message>
    <message>
        <source>The update could not be installed: %1.</source>
        <translation>La mise à jour n’a pas pu être installée : %1.</translation>
    </message>
    <message>
        <source>%1, and the previous version could not be restored: %2.</source>
        <translation>%1, et la version précédente n’a pas pu être remise&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1, so the previous version was restored.</source>
        <translation>%1&#xa0;; la version précédente a donc été remise.</translation>
    </message>
    <message>
        <source>The update feed is not signed, so it was refused.</source>
        <translation>Le flux de mises à jour n’est pas signé&#xa0;; il a été refusé.</translation>
    </message>
    <message>
        <source>The signature of the update feed is wrong, so the feed was refused.</source>
        <translation>La signature du flux de mises à jour est fausse&#xa0;; il a été refusé.</translation>
    </message>
    <message>
        <source>%1 is not a folder that only you can access. Remove or rename it, then try again.</source>
        <translation>%1 n’est pas un dossier auquel vous seul avez accès. Supprimez-le ou renommez-le, puis réessayez.</translation>
    </message>
    <message>
        <source>Another update is already in progress.</source>
        <translation>Une autre mise à jour est déjà en cours.</translation>
    </message>
    <message>
        <source>it contains version &quot;%2&quot; instead of %1.</source>
        <translation>elle contient la version « %2 » au lieu de %1.</translation>
    </message>
    <message>
        <source>it was not built for this system (%1).</source>
        <translation>elle n’a pas été compilée pour ce système (%1).</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>%1 manque.</translation>
    </message>
    <message>
        <source>%1 is missing or damaged.</source>
        <translation>%1 manque ou est endommagé.</translation>
    </message>
    <message>
        <source>it contains the unexpected file %1.</source>
        <translation>elle contient le fichier inattendu %1.</translation>
    </message>
    <message>
        <source>Vantle&apos;s folder %1 contains &quot;%2&quot;, which is not part of Vantle. Move it elsewhere, then try again.</source>
        <translation>Le dossier de Vantle, %1, contient « %2 », qui n’en fait pas partie. Déplacez-le ailleurs, puis réessayez.</translation>
    </message>
    <message>
        <source>The downloaded file is shorter than expected, so it was refused.</source>
        <translation>Le fichier téléchargé est plus court que prévu ; il a été refusé.</translation>
    </message>
    <message>
        <source>The signature of the update is wrong, so it was refused.</source>
        <translation>La signature de la mise à jour est fausse&#xa0;; elle a été refusée.</translation>
    </message>
    <message>
        <source>This copy of Vantle cannot be updated, because it was built without the key that updates are signed with.</source>
        <translation>Cette copie de Vantle ne peut pas être mise à jour&#xa0;: elle a été construite sans la clé qui signe les mises à jour.</translation>
    </message>
    <message>
        <source>The update feed is older than the last one received, so it was refused.</source>
        <translation>Le flux de mises à jour est plus ancien que le dernier reçu ; il a été refusé.</translation>
    </message>
    <message>
        <source>This copy of Vantle cannot update itself.</source>
        <translation>Cette copie de Vantle ne peut pas se mettre à jour elle-même.</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Welcome to Vantle</source>
        <translation>Bienvenue dans Vantle</translation>
    </message>
    <message>
        <source>Screenshots shouldn&apos;t vanish before you can use them.
Vantle keeps your latest screenshots and recordings in a glass panel in the corner until you&apos;re done with them.</source>
        <translation>Une capture ne devrait pas disparaître avant d’avoir servi.
Vantle garde vos dernières captures et vos enregistrements sur une carte de verre, dans un coin, le temps qu’il vous faut.</translation>
    </message>
    <message>
        <source>Drag a preview straight into Slack, Mail, Figma or anywhere else</source>
        <translation>Glissez un aperçu dans Slack, Mail, Figma ou ailleurs</translation>
    </message>
    <message>
        <source>Take several in a row and they line up side by side</source>
        <translation>Prenez-en plusieurs&#xa0;: elles s’alignent côte à côte</translation>
    </message>
    <message>
        <source>Stays until you dismiss it, or on a timer if you prefer</source>
        <translation>Reste jusqu’à sa fermeture, ou selon un minuteur</translation>
    </message>
</context>
<context>
    <name>vantle::UpdateModel</name>
    <message>
        <source>Checking for updates…</source>
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message>
        <source>Vantle %1 is available</source>
        <translation>Vantle %1 est disponible</translation>
    </message>
    <message>
        <source>Downloading Vantle %1…</source>
        <translation>Téléchargement de Vantle %1…</translation>
    </message>
    <message>
        <source>Installing Vantle %1…</source>
        <translation>Installation de Vantle %1…</translation>
    </message>
    <message>
        <source>Vantle is up to date</source>
        <translation>Vantle est à jour</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>La recherche de mises à jour a échoué</translation>
    </message>
    <message>
        <source>Vantle could not be updated</source>
        <translation>Vantle n’a pas pu être mis à jour</translation>
    </message>
    <message>
        <source>You have version %1. Download the new one from Vantle&apos;s website.</source>
        <translation>Vous avez la version %1. Vous pouvez télécharger la nouvelle sur le site de Vantle.</translation>
    </message>
    <message>
        <source>You have version %1. Would you like to install the new one now?</source>
        <translation>Vous avez la version %1. Voulez-vous installer la nouvelle maintenant&#xa0;?</translation>
    </message>
    <message>
        <source>Your system may ask for your permission.</source>
        <translation>Votre système peut vous demander votre autorisation.</translation>
    </message>
    <message>
        <source>Vantle will restart in a moment.</source>
        <translation>Vantle redémarre dans un instant.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1, %2 per second</source>
        <translation>%1, %2 par seconde</translation>
    </message>
    <message>
        <source>Open Download Page</source>
        <translation>Ouvrir la page</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>Installer et relancer</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Ignorer cette version</translation>
    </message>
</context>
</TS>
