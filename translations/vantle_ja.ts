<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AppDelegate</name>
    <message>
        <source>Vantle is running</source>
        <translation>Vantleは動作中です</translation>
    </message>
    <message>
        <source>This desktop has no tray for Vantle&apos;s icon. New captures still appear on the card. To open the settings, start Vantle again. To pause it or to open your screenshots, use the actions of its launcher.</source>
        <translation>このデスクトップにはVantleのアイコンを表示するトレイがありません。新しいキャプチャはこれまでどおりカードに表示されます。設定を開くにはVantleをもう一度起動してください。一時停止やスクリーンショットを開くには、ランチャーのアクションを使ってください。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Sample screenshot</source>
        <translation>サンプル</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>設定を開く</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>あとで</translation>
    </message>
    <message>
        <source>Vantle needs access to your screenshot folder</source>
        <translation>スクリーンショットのフォルダへのアクセス権が必要です</translation>
    </message>
    <message>
        <source>macOS is blocking Vantle from reading %1. Allow Vantle under System Settings → Privacy &amp; Security → Files and Folders, then click Retry.</source>
        <translation>Vantleは「%1」を読み取れません。フォルダのプロパティで読み取りを許可してから、「再試行」をクリックしてください。</translation>
    </message>
    <message>
        <source>Open Privacy Settings</source>
        <translation>アクセス権を表示</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Vantle can&apos;t find your screenshot folder</source>
        <translation>スクリーンショットのフォルダが見つかりません</translation>
    </message>
    <message>
        <source>%1 is missing and could not be recreated. Choose another folder in Settings.</source>
        <translation>「%1」が見つからず、作り直すこともできませんでした。設定で別のフォルダを選んでください。</translation>
    </message>
    <message>
        <source>Vantle can&apos;t watch your screenshot folder</source>
        <translation>スクリーンショットのフォルダを監視できません</translation>
    </message>
</context>
<context>
    <name>BehaviorControls</name>
    <message>
        <source>Captures</source>
        <translation>キャプチャ</translation>
    </message>
    <message>
        <source>Keep captures until dismissed (recommended)</source>
        <translation>閉じるまでキャプチャを残す（推奨）</translation>
    </message>
    <message>
        <source>Pin a capture to keep it past the timer.</source>
        <translation>ピンで留めたキャプチャは時間が過ぎても残ります。</translation>
    </message>
    <message>
        <source>After I use a capture</source>
        <translation>使ったあと</translation>
    </message>
    <message>
        <source>Using = dragging, opening, copying, sharing or revealing.</source>
        <translation>使う＝ドラッグ、開く、コピー、共有、フォルダに表示。</translation>
    </message>
    <message>
        <source>Remove it from Vantle</source>
        <translation>Vantleから外す</translation>
    </message>
    <message>
        <source>Keep it in Vantle</source>
        <translation>Vantleに残す</translation>
    </message>
    <message>
        <source>Move the file to the Trash after I use it</source>
        <translation>使ったあとファイルをゴミ箱に入れる</translation>
    </message>
    <message>
        <source>After dragging or copying. Recoverable from the Trash.</source>
        <translation>ドラッグまたはコピーのあと。ゴミ箱から戻せます。</translation>
    </message>
    <message>
        <source>Also show screen recordings</source>
        <translation>画面収録も表示する</translation>
    </message>
    <message>
        <source>Copy screenshot to clipboard automatically</source>
        <translation>スクリーンショットを自動でクリップボードにコピー</translation>
    </message>
    <message>
        <source>Panel &amp; app</source>
        <translation>カードとアプリ</translation>
    </message>
    <message>
        <source>Show panel in</source>
        <translation>カードの位置</translation>
    </message>
    <message>
        <source>Hide the built-in macOS thumbnail</source>
        <translation>デスクトップのプレビューを隠す</translation>
    </message>
    <message>
        <source>Recommended. Captures reach Vantle instantly instead of after Apple&apos;s preview.</source>
        <translation>推奨。システムのプレビューを待たず、すぐに表示されます。</translation>
    </message>
    <message>
        <source>Open Vantle at login</source>
        <translation>ログイン時にVantleを開く</translation>
    </message>
    <message>
        <source>Also show Vantle in the Dock</source>
        <translation>Vantleをタスクバーにも表示</translation>
    </message>
    <message>
        <source>Useful if the menu bar icon is hidden under the notch.</source>
        <translation>ウインドウがタスクバーと切り替え画面に表示されます。</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1秒</translation>
    </message>
</context>
<context>
    <name>CaptureTile</name>
    <message>
        <source>%1, recording, %2</source>
        <translation>%1、収録、%2</translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation>ピン留め</translation>
    </message>
    <message>
        <source>Copying text</source>
        <translation>テキストをコピー中</translation>
    </message>
</context>
<context>
    <name>CardMenus</name>
    <message>
        <source>Card</source>
        <translation>カード</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>すべて消す</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>パスをコピー</translation>
    </message>
    <message>
        <source>Share…</source>
        <translation>共有…</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation>ファイルマネージャーで表示</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>名前を変更…</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>ゴミ箱に入れる</translation>
    </message>
    <message>
        <source>%1 selected</source>
        <translation>%1 個を選択</translation>
    </message>
    <message>
        <source>Copy Paths</source>
        <translation>パスをコピー</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Open With</source>
        <translation>このアプリで開く</translation>
    </message>
    <message>
        <source>Other...</source>
        <translation>その他…</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>ピンを外す</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>ピンで留める</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Copy Text</source>
        <translation>テキストをコピー</translation>
    </message>
</context>
<context>
    <name>ClearAllPill</name>
    <message>
        <source>Clear all</source>
        <translation>すべて閉じる</translation>
    </message>
</context>
<context>
    <name>CloseButton</name>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>open the settings</source>
        <translation>設定を開きます</translation>
    </message>
    <message>
        <source>stop watching until --resume</source>
        <translation>--resumeまで監視を止めます</translation>
    </message>
    <message>
        <source>resume watching</source>
        <translation>監視を再開します</translation>
    </message>
    <message>
        <source>show screenshots or recordings on the card</source>
        <translation>スクリーンショットや収録をカードに表示します</translation>
    </message>
    <message>
        <source>dismiss the card</source>
        <translation>カードを閉じます</translation>
    </message>
    <message>
        <source>move the keyboard focus to the card</source>
        <translation>キーボード操作をカードに移します</translation>
    </message>
    <message>
        <source>open the screenshots folder</source>
        <translation>スクリーンショットのフォルダを開きます</translation>
    </message>
    <message>
        <source>show two sample captures</source>
        <translation>サンプルを2枚表示します</translation>
    </message>
    <message>
        <source>quit Vantle</source>
        <translation>Vantleを終了します</translation>
    </message>
    <message>
        <source>print the status of Vantle</source>
        <translation>Vantleの状態を表示します</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>バージョンを表示します</translation>
    </message>
    <message>
        <source>print this text</source>
        <translation>この説明を表示します</translation>
    </message>
    <message>
        <source>Try &quot;vantle --help&quot;.</source>
        <translation>「vantle --help」を参照してください。</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>予期しない引数「%1」</translation>
    </message>
    <message>
        <source>Usage: vantle [OPTION]

Starts Vantle, or brings the running copy to the front. Options control the running
copy; --settings, --show and --sample start Vantle if it is not running.</source>
        <translation>使い方: vantle [オプション]

Vantleを起動するか、動作中のものを前面に出します。オプションは動作中のVantleに送られます。
--settings、--show、--sampleは、動作していなければ起動します。</translation>
    </message>
    <message>
        <source>Exit status: 0 on success, 1 on failure, 2 for an invalid command line.</source>
        <translation>終了ステータス: 0は成功、1は失敗、2はコマンドラインの誤り。</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>不明なオプション「%1」</translation>
    </message>
    <message>
        <source>%1 needs at least one file</source>
        <translation>%1にはファイルが1つ以上必要です</translation>
    </message>
    <message>
        <source>include everything that a bug report needs</source>
        <translation>不具合の報告に必要な情報も表示します</translation>
    </message>
    <message>
        <source>include paths as well</source>
        <translation>パスも表示します</translation>
    </message>
    <message>
        <source>FILE…</source>
        <translation>ファイル…</translation>
    </message>
    <message>
        <source>bring back what left the card lately</source>
        <translation>最近カードから消えたものを元に戻します</translation>
    </message>
</context>
<context>
    <name>Compositor</name>
    <message>
        <source>On Wayland, your desktop decides which windows appear in the taskbar.</source>
        <translation>Wayland では、タスクバーに表示するウインドウはデスクトップが決めます。</translation>
    </message>
</context>
<context>
    <name>DismissSlider</name>
    <message>
        <source>Otherwise dismiss after</source>
        <translation>それ以外は閉じるまで</translation>
    </message>
</context>
<context>
    <name>DoneStep</name>
    <message>
        <source>You&apos;re all set</source>
        <translation>準備ができました</translation>
    </message>
    <message>
        <source>Show me a sample</source>
        <translation>サンプルを見る</translation>
    </message>
</context>
<context>
    <name>DraggableThumbnail</name>
    <message>
        <source>Drag into any app, or click to open. ⌘-click to select.</source>
        <translation>アプリへドラッグ、クリックで開く。Ctrlクリックで選択。</translation>
    </message>
</context>
<context>
    <name>FolderAccessRow</name>
    <message>
        <source>macOS asks once for Desktop, Documents and Downloads. Pictures needs no permission.</source>
        <translation>読み取れるフォルダならどこでも使えます。</translation>
    </message>
    <message>
        <source>Grant access</source>
        <translation>アクセスを確認</translation>
    </message>
    <message>
        <source>Folder access</source>
        <translation>フォルダへのアクセス</translation>
    </message>
    <message>
        <source>Vantle can read this folder</source>
        <translation>Vantleはこのフォルダを読み取れます</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>再確認</translation>
    </message>
    <message>
        <source>macOS is blocking access to this folder</source>
        <translation>Vantleはこのフォルダを読み取れません</translation>
    </message>
    <message>
        <source>Allow Vantle under Privacy &amp; Security → Files and Folders, then check again.</source>
        <translation>フォルダがあり、読み取れることを確かめてから、再確認してください。</translation>
    </message>
    <message>
        <source>Open Privacy Settings</source>
        <translation>アクセス権を表示</translation>
    </message>
</context>
<context>
    <name>FolderPicker</name>
    <message>
        <source>Change</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>Desktop (macOS default)</source>
        <translation>デスクトップの標準</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>選択…</translation>
    </message>
    <message>
        <source>Restore %1</source>
        <translation>%1に戻す</translation>
    </message>
    <message>
        <source>Use This Folder</source>
        <translation>このフォルダを使う</translation>
    </message>
    <message>
        <source>Choose where macOS should save screenshots and screen recordings.</source>
        <translation>スクリーンショットの保存先を選んでください。</translation>
    </message>
</context>
<context>
    <name>LoginItem</name>
    <message>
        <source>Keeps each new screenshot at hand</source>
        <translation>新しいスクリーンショットをいつも手元に</translation>
    </message>
</context>
<context>
    <name>MenuLine</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Submenu</source>
        <translation>サブメニュー</translation>
    </message>
</context>
<context>
    <name>MissingTrayAdvice</name>
    <message>
        <source>The installed extension “%1” provides a tray. Turn it on in Extensions.</source>
        <translation>拡張機能「%1」でトレイを表示できます。インストール済みなので、「拡張機能」で有効にしてください。</translation>
    </message>
    <message>
        <source>The extension “%1” provides a tray. Install the package %2, log out and in again, then turn it on in Extensions.</source>
        <translation>拡張機能「%1」でトレイを表示できます。パッケージ%2をインストールし、ログインし直してから、「拡張機能」で有効にしてください。</translation>
    </message>
</context>
<context>
    <name>NewName</name>
    <message>
        <source>The name cannot contain “/”.</source>
        <translation>名前に「/」は使用できません。</translation>
    </message>
    <message>
        <source>A name that begins with a full stop would hide the file.</source>
        <translation>ピリオドで始まる名前にすると、ファイルが隠されます。</translation>
    </message>
    <message>
        <source>The name cannot contain line breaks or other control characters.</source>
        <translation>名前に改行などの制御文字は使用できません。</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>名前が長すぎます。</translation>
    </message>
</context>
<context>
    <name>OnboardingSteps</name>
    <message>
        <source>Start Using Vantle</source>
        <translation>使い始める</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>はじめる</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
</context>
<context>
    <name>OnboardingSummary</name>
    <message>
        <source>Saving to %1 folder</source>
        <translation>「%1」フォルダに保存</translation>
    </message>
    <message>
        <source>Stays for %1 seconds unless pinned</source>
        <translation>ピン留めしなければ%1秒表示</translation>
    </message>
    <message>
        <source>Stays until dismissed</source>
        <translation>閉じるまで表示</translation>
    </message>
    <message>
        <source>Panel in the %1</source>
        <translation>カードの位置: %1</translation>
    </message>
    <message>
        <source>macOS thumbnail hidden</source>
        <translation>デスクトップのプレビューは非表示</translation>
    </message>
    <message>
        <source>macOS thumbnail still shown</source>
        <translation>デスクトップのプレビューも表示</translation>
    </message>
    <message>
        <source>Vantle lives in your menu bar. Take a screenshot with ⇧⌘4 and it will slide into the %1 corner. Take another and they line up together.</source>
        <translation>Vantleは通知領域にいます。スクリーンショットを撮ると（多くの場合Print Screenキー）、画面の%1に現れます。続けて撮ると横に並びます。</translation>
    </message>
    <message>
        <source>Take a screenshot and it will slide into the %1 corner. Take another and they line up together. Your desktop has no tray for Vantle&apos;s icon. To open the settings, start Vantle again.</source>
        <translation>スクリーンショットを撮ると、画面の%1に現れます。続けて撮ると横に並びます。このデスクトップにはVantleのアイコンを表示するトレイがありません。設定を開くにはVantleをもう一度起動してください。</translation>
    </message>
</context>
<context>
    <name>OnboardingView</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
</context>
<context>
    <name>OpenWith</name>
    <message>
        <source>The program could not be started.</source>
        <translation>プログラムを起動できませんでした。</translation>
    </message>
    <message>
        <source>The program is not installed any more.</source>
        <translation>プログラムはもうインストールされていません。</translation>
    </message>
    <message>
        <source>The program does not respond.</source>
        <translation>プログラムが応答しません。</translation>
    </message>
</context>
<context>
    <name>OpeningFailure</name>
    <message>
        <source>The file is gone</source>
        <translation>ファイルがありません</translation>
    </message>
    <message>
        <source>Could not be opened</source>
        <translation>開けませんでした</translation>
    </message>
</context>
<context>
    <name>PageDots</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>%2ステップ中%1番目</translation>
    </message>
</context>
<context>
    <name>PanelCorner</name>
    <message>
        <source>Bottom Right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>左上</translation>
    </message>
</context>
<context>
    <name>Preview</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1／%2</translation>
    </message>
    <message>
        <source>page %1 of %2</source>
        <translation>%1 / %2 ページ</translation>
    </message>
</context>
<context>
    <name>PreviewBar</name>
    <message>
        <source>Previous page</source>
        <translation>前のページ</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>次のページ</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>全体を表示</translation>
    </message>
    <message>
        <source>Show real pixels</source>
        <translation>実寸で表示</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>クリップボードにコピー</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>ゴミ箱に入れる</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>PreviewPicture</name>
    <message>
        <source>This file cannot be shown</source>
        <translation>このファイルは表示できません</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
</context>
<context>
    <name>PreviewView</name>
    <message>
        <source>Previous capture</source>
        <translation>前のキャプチャ</translation>
    </message>
    <message>
        <source>Next capture</source>
        <translation>次のキャプチャ</translation>
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
            <numerusform>%n年前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n yr.</source>
        <translation>
            <numerusform>%n年後</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n mo. ago</source>
        <translation>
            <numerusform>%nか月前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n mo.</source>
        <translation>
            <numerusform>%nか月後</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n wk. ago</source>
        <translation>
            <numerusform>%n週間前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n wk.</source>
        <translation>
            <numerusform>%n週間後</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days ago</source>
        <translation>
            <numerusform>%n日前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n days</source>
        <translation>
            <numerusform>%n日後</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n day ago</source>
        <translation>
            <numerusform>%n日前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n day</source>
        <translation>
            <numerusform>%n日後</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hr. ago</source>
        <translation>
            <numerusform>%n時間前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n hr.</source>
        <translation>
            <numerusform>%n時間後</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n min. ago</source>
        <translation>
            <numerusform>%n分前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n min.</source>
        <translation>
            <numerusform>%n分後</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sec. ago</source>
        <translation>
            <numerusform>%n秒前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n sec.</source>
        <translation>
            <numerusform>%n秒後</numerusform>
        </translation>
    </message>
    <message>
        <source>now</source>
        <translation>今</translation>
    </message>
</context>
<context>
    <name>RenameField</name>
    <message>
        <source>New name</source>
        <translation>新しい名前</translation>
    </message>
</context>
<context>
    <name>Renaming</name>
    <message>
        <source>A file of this name exists already.</source>
        <translation>この名前のファイルは既にあります。</translation>
    </message>
    <message>
        <source>The folder cannot be changed.</source>
        <translation>フォルダを変更できません。</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>名前が長すぎます。</translation>
    </message>
    <message>
        <source>The file is gone.</source>
        <translation>ファイルがなくなっています。</translation>
    </message>
</context>
<context>
    <name>Requests</name>
    <message>
        <source>Vantle is shutting down</source>
        <translation>Vantleは終了処理中です</translation>
    </message>
    <message>
        <source>unknown action &quot;%1&quot;</source>
        <translation>不明なアクション「%1」</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>ファイルがありません</translation>
    </message>
    <message>
        <source>not a supported image or recording</source>
        <translation>対応している画像や収録ではありません</translation>
    </message>
    <message>
        <source>Vantle is not running</source>
        <translation>Vantleは動作していません</translation>
    </message>
    <message>
        <source>the running copy does not respond</source>
        <translation>動作中のVantleが応答しません</translation>
    </message>
    <message>
        <source>Vantle is not ready yet</source>
        <translation>Vantleはまだ準備中です</translation>
    </message>
    <message>
        <source>the card is not visible</source>
        <translation>カードは表示されていません</translation>
    </message>
    <message>
        <source>nothing has left the card lately</source>
        <translation>最近カードから消えたものはありません</translation>
    </message>
</context>
<context>
    <name>ScreenshotTool</name>
    <message>
        <source>The desktop does not allow its setting &quot;%1&quot; to be changed.</source>
        <translation>デスクトップが設定「%1」の変更を許可していません。</translation>
    </message>
    <message>
        <source>Xfce&apos;s screenshot tool has no preview.</source>
        <translation>Xfceのスクリーンショットツールにはプレビューがありません。</translation>
    </message>
    <message>
        <source>This desktop&apos;s screenshot tool has no preview.</source>
        <translation>このデスクトップのスクリーンショットツールにはプレビューがありません。</translation>
    </message>
    <message>
        <source>MATE&apos;s screenshot tool always opens a window.</source>
        <translation>MATEのスクリーンショットツールは毎回ウインドウを開きます。</translation>
    </message>
    <message>
        <source>ScreenGrab always shows a notification after saving.</source>
        <translation>ScreenGrabは保存後に必ず通知します。</translation>
    </message>
    <message>
        <source>GNOME always saves screenshots in this folder.</source>
        <translation>GNOMEは常にこのフォルダに保存します。</translation>
    </message>
    <message>
        <source>GNOME always shows its own preview.</source>
        <translation>GNOMEは常に独自のプレビューを表示します。</translation>
    </message>
    <message>
        <source>The tool&apos;s settings file %1 cannot be read: %2.</source>
        <translation>ツールの設定ファイル%1を読み取れません: %2。</translation>
    </message>
    <message>
        <source>The tool&apos;s settings file %1 is read-only.</source>
        <translation>ツールの設定ファイル%1は読み取り専用です。</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>破損しています</translation>
    </message>
</context>
<context>
    <name>SelectionBar</name>
    <message numerus="yes">
        <source>%n selected</source>
        <translation>
            <numerusform>%n項目を選択</numerusform>
        </translation>
    </message>
    <message>
        <source>Copy selected</source>
        <translation>選択項目をコピー</translation>
    </message>
    <message>
        <source>Move selected to Trash</source>
        <translation>選択項目をゴミ箱に入れる</translation>
    </message>
    <message>
        <source>Dismiss selected</source>
        <translation>選択項目を閉じる</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>Show panel in</source>
        <translation>カードの位置</translation>
    </message>
    <message>
        <source>Your desktop saves them in %1.</source>
        <translation>デスクトップは%1に保存します。</translation>
    </message>
</context>
<context>
    <name>SettingsStep</name>
    <message>
        <source>Set up Vantle</source>
        <translation>Vantleの設定</translation>
    </message>
    <message>
        <source>Recommended settings are already selected</source>
        <translation>おすすめの設定が選択されています</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>SCREENSHOTS ARE SAVED TO</source>
        <translation>スクリーンショットの保存先</translation>
    </message>
    <message>
        <source>Vantle %1</source>
        <translation>Vantle %1</translation>
    </message>
    <message>
        <source>Test with a sample</source>
        <translation>サンプルで試す</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Vantle Settings</source>
        <translation>Vantleの設定</translation>
    </message>
</context>
<context>
    <name>ShareButton</name>
    <message>
        <source>Share</source>
        <translation>共有</translation>
    </message>
</context>
<context>
    <name>SharingServicePicker</name>
    <message>
        <source>Copy file</source>
        <translation>ファイルをコピー</translation>
    </message>
    <message>
        <source>Reveal</source>
        <translation>フォルダに表示</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>共有</translation>
    </message>
    <message>
        <source>Bluetooth…</source>
        <translation>Bluetooth…</translation>
    </message>
    <message>
        <source>Mail…</source>
        <translation>メール…</translation>
    </message>
</context>
<context>
    <name>SoundPlayer</name>
    <message>
        <source>New capture</source>
        <translation>新しいキャプチャ</translation>
    </message>
</context>
<context>
    <name>StatusBarController</name>
    <message>
        <source>No captures yet</source>
        <translation>キャプチャはまだありません</translation>
    </message>
    <message>
        <source>Resume Vantle</source>
        <translation>Vantleを再開</translation>
    </message>
    <message>
        <source>Pause Vantle</source>
        <translation>Vantleを一時停止</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>Quit Vantle</source>
        <translation>Vantleを終了</translation>
    </message>
    <message>
        <source>Recent Captures</source>
        <translation>最近のキャプチャ</translation>
    </message>
    <message>
        <source>Open Screenshots Folder</source>
        <translation>スクリーンショットのフォルダを開く</translation>
    </message>
    <message>
        <source>Bring back</source>
        <translation>元に戻す</translation>
    </message>
</context>
<context>
    <name>TextCopy</name>
    <message>
        <source>Copied 1 word</source>
        <translation>1語をコピーしました</translation>
    </message>
    <message>
        <source>Copied %1 words</source>
        <translation>%1語をコピーしました</translation>
    </message>
    <message>
        <source>No text found</source>
        <translation>テキストが見つかりません</translation>
    </message>
</context>
<context>
    <name>TextCopyButton</name>
    <message>
        <source>Stop</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Copy Text</source>
        <translation>テキストをコピー</translation>
    </message>
</context>
<context>
    <name>TextCopyStop</name>
    <message>
        <source>Stop</source>
        <translation>中止</translation>
    </message>
</context>
<context>
    <name>TextReader</name>
    <message>
        <source>The picture cannot be opened, or it is damaged.</source>
        <translation>画像を開けないか、画像が壊れています。</translation>
    </message>
    <message>
        <source>The program that recognizes text cannot be started.</source>
        <translation>文字認識プログラムを起動できません。</translation>
    </message>
    <message>
        <source>Recognizing the text took too long.</source>
        <translation>文字認識に時間がかかりすぎました。</translation>
    </message>
    <message>
        <source>The program that recognizes text ended unexpectedly.</source>
        <translation>文字認識プログラムが予期せず終了しました。</translation>
    </message>
    <message>
        <source>There is not enough memory to recognize the text.</source>
        <translation>文字認識に必要なメモリが足りません。</translation>
    </message>
</context>
<context>
    <name>TileActions</name>
    <message>
        <source>Unpin (dismiss on timer again)</source>
        <translation>ピンを外す（時間で閉じる）</translation>
    </message>
    <message>
        <source>Pin (ignore the timer)</source>
        <translation>ピンで留める（時間で閉じない）</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>クリップボードにコピー</translation>
    </message>
    <message>
        <source>Share…</source>
        <translation>共有…</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation>フォルダに表示</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>ゴミ箱に入れる</translation>
    </message>
</context>
<context>
    <name>TileRow</name>
    <message>
        <source>Captures</source>
        <translation>キャプチャ</translation>
    </message>
</context>
<context>
    <name>TrashNotice</name>
    <message>
        <source>Undo</source>
        <translation>取り消す</translation>
    </message>
    <message>
        <source>Moved to Trash</source>
        <translation>ゴミ箱に移動しました</translation>
    </message>
    <message>
        <source>Could not be moved to the Trash</source>
        <translation>ゴミ箱に移動できませんでした</translation>
    </message>
    <message>
        <source>Could not be put back</source>
        <translation>元に戻せませんでした</translation>
    </message>
</context>
<context>
    <name>UpdateProgram</name>
    <message>
        <source>The update program does not respond.</source>
        <translation>アップデート用プログラムが応答しません。</translation>
    </message>
    <message>
        <source>The update program failed: %1.</source>
        <translation>アップデート用プログラムが失敗しました: %1。</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>Vantle Update</source>
        <translation>Vantleのアップデート</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>The update was refused: %1</source>
        <translation>アップデートを拒否しました: %1</translation>
    </message>
    <message>
        <source>it contains a file without a name.</source>
        <translation>名前のないファイルが含まれています。</translation>
    </message>
    <message>
        <source>it contains too many files.</source>
        <translation>ファイルが多すぎます。</translation>
    </message>
    <message>
        <source>it contains the unexpected path &quot;%1&quot;.</source>
        <translation>予期しないパス「%1」が含まれています。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a file nor a folder.</source>
        <translation>「%1」はファイルでもフォルダでもありません。</translation>
    </message>
    <message>
        <source>it contains &quot;%1&quot; twice.</source>
        <translation>「%1」が2回含まれています。</translation>
    </message>
    <message>
        <source>its archive is damaged.</source>
        <translation>アーカイブが破損しています。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a sparse file, which is not allowed.</source>
        <translation>「%1」はスパースファイルです。これは許可されていません。</translation>
    </message>
    <message>
        <source>its unpacked files are too large.</source>
        <translation>展開すると大きすぎます。</translation>
    </message>
    <message>
        <source>it is not an archive.</source>
        <translation>アーカイブではありません。</translation>
    </message>
    <message>
        <source>Version %1 needs a newer system (C library %2; this system has %3).</source>
        <translation>バージョン%1にはより新しいシステムが必要です（Cライブラリ%2。このシステムは%3）。</translation>
    </message>
    <message>
        <source>Version %1 is not signed, so it was refused.</source>
        <translation>バージョン%1には署名がないため、拒否しました。</translation>
    </message>
    <message>
        <source>Version %1 has no length in the update feed, so it was refused.</source>
        <translation>フィードにバージョン%1のサイズがないため、拒否しました。</translation>
    </message>
    <message>
        <source>Version %1 is too large for an update, so it was refused.</source>
        <translation>バージョン%1は大きすぎるため、拒否しました。</translation>
    </message>
    <message>
        <source>Vantle %1 is newer than the latest available version, %2.</source>
        <translation>Vantle %1は、入手できる最新バージョン%2より新しいものです。</translation>
    </message>
    <message>
        <source>A newer version exists, but not for this system (%1).</source>
        <translation>新しいバージョンがありますが、このシステム（%1）用ではありません。</translation>
    </message>
    <message>
        <source>Vantle %1 is the latest version.</source>
        <translation>Vantle %1は最新バージョンです。</translation>
    </message>
    <message>
        <source>The update feed is damaged: %1.</source>
        <translation>アップデートのフィードが破損しています: %1。</translation>
    </message>
    <message>
        <source>The update feed is damaged: there is no list of versions.</source>
        <translation>アップデートのフィードが破損しています: バージョンの一覧がありません。</translation>
    </message>
    <message>
        <source>The update feed is damaged: it has no date.</source>
        <translation>アップデートのフィードが破損しています: 日付がありません。</translation>
    </message>
    <message>
        <source>Updates are downloaded only over HTTPS, so the address &quot;%1&quot; was refused.</source>
        <translation>アップデートはHTTPSでのみダウンロードするため、アドレス「%1」を拒否しました。</translation>
    </message>
    <message>
        <source>The server sent more than the expected maximum of %1 bytes.</source>
        <translation>サーバが上限の%1バイトを超えるデータを送ってきました。</translation>
    </message>
    <message>
        <source>The server is too slow or does not respond. Try again later.</source>
        <translation>サーバが遅すぎるか、応答していません。あとでもう一度試してください。</translation>
    </message>
    <message>
        <source>The connection was lost during the download. Try again.</source>
        <translation>ダウンロード中に接続が切れました。もう一度試してください。</translation>
    </message>
    <message>
        <source>The server could not be reached: %1.</source>
        <translation>サーバに接続できませんでした: %1。</translation>
    </message>
    <message>
        <source>The server reported error %1.</source>
        <translation>サーバがエラー%1を返しました。</translation>
    </message>
    <message>
        <source>The server redirected too many times.</source>
        <translation>サーバの転送回数が多すぎます。</translation>
    </message>
    <message>
        <source>The system could not install the package: %1</source>
        <translation>システムがパッケージをインストールできませんでした: %1</translation>
    </message>
    <message>
        <source>it gave no reason.</source>
        <translation>理由は示されませんでした。</translation>
    </message>
    <message>
        <source>Vantle&apos;s folder cannot be replaced in one step: %1</source>
        <translation>Vantleのフォルダを一度に置き換えられません: %1</translation>
    </message>
    <message>
        <source>Vantle %1 did not start in time</source>
        <translation>Vantle %1は時間内に起動しませんでした</translation>
    </message>
    <message>
        <source>Vantle %1 crashed when it started</source>
        <translation>Vantle %1は起動時にクラッシュしました</translation>
    </message>
    <message>
        <source>Vantle %1 quit when it started</source>
        <translation>Vantle %1は起動時に終了しました</translation>
    </message>
    <message>
        <source>Vantle %1 cannot be started: %2</source>
        <translation>Vantle %1を起動できません: %2</translation>
    </message>
    <message>
        <source>The update could not be installed: %1.</source>
        <translation>アップデートをインストールできませんでした: %1。</translation>
    </message>
    <message>
        <source>%1, and the previous version could not be restored: %2.</source>
        <translation>%1。前のバージョンにも戻せませんでした: %2。</translation>
    </message>
    <message>
        <source>%1, so the previous version was restored.</source>
        <translation>%1。前のバージョンに戻しました。</translation>
    </message>
    <message>
        <source>The update feed is not signed, so it was refused.</source>
        <translation>アップデートのフィードに署名がないため、拒否しました。</translation>
    </message>
    <message>
        <source>The signature of the update feed is wrong, so the feed was refused.</source>
        <translation>アップデートのフィードの署名が正しくないため、拒否しました。</translation>
    </message>
    <message>
        <source>%1 is not a folder that only you can access. Remove or rename it, then try again.</source>
        <translation>%1は、あなただけがアクセスできるフォルダではありません。削除するか名前を変更してから、もう一度試してください。</translation>
    </message>
    <message>
        <source>Another update is already in progress.</source>
        <translation>別のアップデートがすでに進行中です。</translation>
    </message>
    <message>
        <source>it contains version &quot;%2&quot; instead of %1.</source>
        <translation>バージョン%1ではなく「%2」が含まれています。</translation>
    </message>
    <message>
        <source>it was not built for this system (%1).</source>
        <translation>このシステム（%1）用にビルドされていません。</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>%1がありません。</translation>
    </message>
    <message>
        <source>%1 is missing or damaged.</source>
        <translation>%1がないか、破損しています。</translation>
    </message>
    <message>
        <source>it contains the unexpected file %1.</source>
        <translation>予期しないファイル%1が含まれています。</translation>
    </message>
    <message>
        <source>Vantle&apos;s folder %1 contains &quot;%2&quot;, which is not part of Vantle. Move it elsewhere, then try again.</source>
        <translation>Vantleのフォルダ%1に、Vantleの一部ではない「%2」があります。別の場所へ移してから、もう一度試してください。</translation>
    </message>
    <message>
        <source>The downloaded file is shorter than expected, so it was refused.</source>
        <translation>ダウンロードしたファイルが予定より短いため、拒否しました。</translation>
    </message>
    <message>
        <source>The signature of the update is wrong, so it was refused.</source>
        <translation>アップデートの署名が正しくないため、拒否しました。</translation>
    </message>
    <message>
        <source>This copy of Vantle cannot be updated, because it was built without the key that updates are signed with.</source>
        <translation>このVantleはアップデートの署名鍵なしでビルドされているため、アップデートできません。</translation>
    </message>
    <message>
        <source>The update feed is older than the last one received, so it was refused.</source>
        <translation>アップデートのフィードが前回受信したものより古いため、拒否しました。</translation>
    </message>
    <message>
        <source>This copy of Vantle cannot update itself.</source>
        <translation>このVantleは自分自身をアップデートできません。</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Welcome to Vantle</source>
        <translation>Vantleへようこそ</translation>
    </message>
    <message>
        <source>Screenshots shouldn&apos;t vanish before you can use them.
Vantle keeps your latest screenshots and recordings in a glass panel in the corner until you&apos;re done with them.</source>
        <translation>撮ったスクリーンショットが、使う前に消えてしまわないように。
最新のスクリーンショットと収録を、画面の隅のカードに残します。</translation>
    </message>
    <message>
        <source>Drag a preview straight into Slack, Mail, Figma or anywhere else</source>
        <translation>プレビューをSlackやメール、Figmaなどへ直接ドラッグ</translation>
    </message>
    <message>
        <source>Take several in a row and they line up side by side</source>
        <translation>続けて撮ると、横に並びます</translation>
    </message>
    <message>
        <source>Stays until you dismiss it, or on a timer if you prefer</source>
        <translation>閉じるまで表示、タイマーで消すこともできます</translation>
    </message>
</context>
<context>
    <name>vantle::UpdateModel</name>
    <message>
        <source>Checking for updates…</source>
        <translation>アップデートを確認中…</translation>
    </message>
    <message>
        <source>Vantle %1 is available</source>
        <translation>Vantle %1があります</translation>
    </message>
    <message>
        <source>Downloading Vantle %1…</source>
        <translation>Vantle %1をダウンロード中…</translation>
    </message>
    <message>
        <source>Installing Vantle %1…</source>
        <translation>Vantle %1をインストール中…</translation>
    </message>
    <message>
        <source>Vantle is up to date</source>
        <translation>Vantleは最新です</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>アップデートを確認できませんでした</translation>
    </message>
    <message>
        <source>Vantle could not be updated</source>
        <translation>Vantleをアップデートできませんでした</translation>
    </message>
    <message>
        <source>You have version %1. Download the new one from Vantle&apos;s website.</source>
        <translation>現在のバージョンは%1です。新しいものはVantleのWebサイトからダウンロードできます。</translation>
    </message>
    <message>
        <source>You have version %1. Would you like to install the new one now?</source>
        <translation>現在のバージョンは%1です。新しいものを今インストールしますか？</translation>
    </message>
    <message>
        <source>Your system may ask for your permission.</source>
        <translation>システムが許可を求めることがあります。</translation>
    </message>
    <message>
        <source>Vantle will restart in a moment.</source>
        <translation>まもなくVantleが再起動します。</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1／%2</translation>
    </message>
    <message>
        <source>%1, %2 per second</source>
        <translation>%1、毎秒%2</translation>
    </message>
    <message>
        <source>Open Download Page</source>
        <translation>ダウンロードページを開く</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>インストールして再起動</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>あとで通知</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>このバージョンをスキップ</translation>
    </message>
</context>
</TS>
