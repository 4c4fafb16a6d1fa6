<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>ArgumentsText</name>
    <message>
        <source>NAME</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Print to this queue or preset (queue/preset).</source>
        <translation>このキューまたはプリセット (キュー/プリセット) に印刷します。</translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation>数</translation>
    </message>
    <message>
        <source>Number of copies.</source>
        <translation>部数。</translation>
    </message>
    <message>
        <source>LIST</source>
        <translation>リスト</translation>
    </message>
    <message>
        <source>Pages to print, for example 1-3,8.</source>
        <translation>印刷するページ (例: 1-3,8)。</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Title of the job.</source>
        <translation>ジョブのタイトル。</translation>
    </message>
    <message>
        <source>HOST</source>
        <translation>ホスト</translation>
    </message>
    <message>
        <source>Print server to use, HOST or HOST:PORT.</source>
        <translation>使用するプリントサーバー (ホストまたはホスト:ポート)。</translation>
    </message>
    <message>
        <source>KEY=VALUE</source>
        <translation>キー=値</translation>
    </message>
    <message>
        <source>Set an option of the printer, or a key of a panel such as departmentCode.</source>
        <translation>プリンターのオプション、または departmentCode などパネルのキーを設定します。</translation>
    </message>
    <message>
        <source>KEY=FILE</source>
        <translation>キー=ファイル</translation>
    </message>
    <message>
        <source>NAME=VALUE</source>
        <translation>名前=値</translation>
    </message>
    <message>
        <source>Like --set, but unknown names are passed to the print system as job options.</source>
        <translation>--set と同様ですが、不明な名前はジョブのオプションとして印刷システムに渡されます。</translation>
    </message>
    <message>
        <source>Print without opening a window.</source>
        <translation>ウィンドウを開かずに印刷します。</translation>
    </message>
    <message>
        <source>Accept the proposal when settings cannot be used together.</source>
        <translation>設定が併用できないときは提案を受け入れます。</translation>
    </message>
    <message>
        <source>Write the summary of the settings.</source>
        <translation>設定の一覧を出力します。</translation>
    </message>
    <message>
        <source>Write the options of the printer and their choices.</source>
        <translation>プリンターのオプションと選択肢を出力します。</translation>
    </message>
    <message>
        <source>Write results and errors as JSON.</source>
        <translation>結果とエラーを JSON で出力します。</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Take the options from this PPD file instead of a queue.</source>
        <translation>キューの代わりにこの PPD ファイルのオプションを使います。</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Load the panels of this bundle instead of the installed ones.</source>
        <translation>インストール済みの代わりにこのバンドルのパネルを読み込みます。</translation>
    </message>
    <message>
        <source>Open the dialog at this pane: general, more, job, summary, or a panel&apos;s name or kind.</source>
        <translation>このペインでダイアログを開きます: general、more、job、summary、またはパネルの名前か種類。</translation>
    </message>
    <message>
        <source>Save a screenshot of the dialog and exit.</source>
        <translation>ダイアログの画像を書き出して終了します。</translation>
    </message>
    <message>
        <source>Colors of the dialog: light or dark.</source>
        <translation>ダイアログの配色: light (明) または dark (暗)。</translation>
    </message>
    <message>
        <source>Open the dialog, write the start-up time and exit.</source>
        <translation>ダイアログを開き、所要時間を出力して終了します。</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>このヘルプを表示します。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>バージョンを表示します。</translation>
    </message>
    <message>
        <source>Documents to print; “-” is the standard input.</source>
        <translation>印刷する文書。「-」は標準入力です。</translation>
    </message>
    <message>
        <source>[FILE...]</source>
        <translation>[ファイル...]</translation>
    </message>
    <message>
        <source>--color-scheme takes light or dark.</source>
        <translation>--color-scheme には light または dark を指定してください。</translation>
    </message>
    <message>
        <source>--batch needs a printer to print to; --ppd alone names none.</source>
        <translation>--batch にはプリンターが必要です。--ppd だけでは指定されません。</translation>
    </message>
    <message>
        <source>--batch and --screenshot cannot be used together.</source>
        <translation>--batch と --screenshot は併用できません。</translation>
    </message>
    <message>
        <source>Usage: kelmar-print [OPTION...] [FILE...]
Print documents, with a dialog for the settings or without one.

</source>
        <translation>使い方: kelmar-print [オプション...] [ファイル...]
設定のダイアログを使って、または使わずに文書を印刷します。

</translation>
    </message>
    <message>
        <source>Like --set, with the value from the first line of a file; “-” is the standard input.</source>
        <translation>--set と同様で、値はファイルの 1 行目から読み込みます。「-」は標準入力です。</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Like --set, with the value asked for on the terminal, which does not show it.</source>
        <translation>--set と同様で、値は端末で入力します。入力した値は表示されません。</translation>
    </message>
    <message>
        <source>--ask takes a key alone; the value is asked for.</source>
        <translation>--ask にはキーだけを指定してください。値は後で入力します。</translation>
    </message>
    <message>
        <source>-o takes NAME=VALUE or NAME.</source>
        <translation>-o には「名前=値」または「名前」を指定してください。</translation>
    </message>
    <message>
        <source>--%1 takes %2; there is no “=” after the key.</source>
        <translation>--%1 には「%2」を指定してください。キーの後に「=」がありません。</translation>
    </message>
    <message>
        <source>The standard input cannot be both a value and a document.</source>
        <translation>標準入力を値と文書の両方に使うことはできません。</translation>
    </message>
    <message>
        <source>Unknown option on the command line; --help lists the options.</source>
        <translation>コマンドラインに不明なオプションがあります。オプションの一覧は --help で表示できます。</translation>
    </message>
    <message>
        <source>Unknown option “%1”; --help lists the options.</source>
        <translation>不明なオプション「%1」です。オプションの一覧は --help で表示できます。</translation>
    </message>
    <message>
        <source>
Exit codes: 0 success, 1 failure, 2 wrong usage, 3 settings that cannot be used together,
4 canceled, 5 not known whether the job was accepted. See the manual page kelmar-print(1) for details.
</source>
        <translation>
終了コード: 0 成功、1 失敗、2 使い方の誤り、3 併用できない設定、
4 キャンセル、5 ジョブが受け付けられたかどうか不明。詳しくはマニュアル kelmar-print(1) を参照してください。
</translation>
    </message>
    <message>
        <source>With --batch: write the pages into this PDF file instead of printing them.</source>
        <translation>--batch と併用: ページを印刷せず、この PDF ファイルに書き出します。</translation>
    </message>
    <message>
        <source>Write the presets of the printer.</source>
        <translation>プリンターのプリセットを出力します。</translation>
    </message>
    <message>
        <source>Save the settings as a preset of the printer, without passwords and codes.</source>
        <translation>設定をプリンターのプリセットとして保存します。パスワードとコードは保存しません。</translation>
    </message>
    <message>
        <source>Delete a preset of the printer.</source>
        <translation>プリンターのプリセットを削除します。</translation>
    </message>
    <message>
        <source>--output requires --batch.</source>
        <translation>--output には --batch が必要です。</translation>
    </message>
    <message>
        <source>Presets belong to a printer; --ppd alone names none.</source>
        <translation>プリセットはプリンターごとのものです。--ppd だけではプリンターが指定されません。</translation>
    </message>
    <message>
        <source>--resolve requires --batch, --summary or --save-preset.</source>
        <translation>--resolve には --batch、--summary、--save-preset のいずれかが必要です。</translation>
    </message>
    <message>
        <source>--json requires --batch, --summary, --list-options or an option for presets.</source>
        <translation>--json には --batch、--summary、--list-options、またはプリセットのオプションが必要です。</translation>
    </message>
    <message>
        <source>Print even if a password or a department code is missing.</source>
        <translation>パスワードまたは部門コードがなくても印刷します。</translation>
    </message>
    <message>
        <source>--allow-no-password requires --batch.</source>
        <translation>--allow-no-password には --batch が必要です。</translation>
    </message>
</context>
<context>
    <name>AttributesText</name>
    <message>
        <source>The print server did not accept “%1”.</source>
        <translation>プリントサーバーは「%1」を受け付けませんでした。</translation>
    </message>
    <message>
        <source>The print server uses a different value for “%1” than the one that was sent.</source>
        <translation>プリントサーバーは「%1」に送信した値とは別の値を採用しました。</translation>
    </message>
</context>
<context>
    <name>BatchText</name>
    <message>
        <source>--list-options lists the settings.</source>
        <translation>設定の一覧は --list-options で表示できます。</translation>
    </message>
    <message>
        <source>No resolution keeps “%1”; change one of the settings.</source>
        <translation>「%1」を維持できる解決方法がありません。設定のいずれかを変更してください。</translation>
    </message>
    <message>
        <source>Passwords and codes are not saved in the preset; enter them each time.</source>
        <translation>パスワードとコードはプリセットに保存されません。毎回指定してください。</translation>
    </message>
    <message>
        <source>Only a part of the code for “%1” has been given.</source>
        <translation>「%1」のコードの一部しか指定されていません。</translation>
    </message>
</context>
<context>
    <name>CarryOverText</name>
    <message>
        <source>The password has been removed: the job will not be protected. %1</source>
        <translation>パスワードを削除しました。ジョブは保護されません。%1</translation>
    </message>
    <message>
        <source>This printer does not have “%1”: the job will not be protected.</source>
        <translation>このプリンターには「%1」がありません。ジョブは保護されません。</translation>
    </message>
    <message>
        <source>Not available on this printer: %1.</source>
        <translation>このプリンターでは使用できない設定: %1。</translation>
    </message>
</context>
<context>
    <name>ChangeText</name>
    <message>
        <source>“%1” was reset to “%2”.</source>
        <translation>「%1」は「%2」に戻されました。</translation>
    </message>
    <message>
        <source>“%1” was changed to “%2”.</source>
        <translation>「%1」は「%2」に変更されました。</translation>
    </message>
    <message>
        <source>These were reset to “%2”: %1.</source>
        <comment>a list of options, a choice</comment>
        <translation>次の項目は「%2」に戻されました: %1。</translation>
    </message>
    <message>
        <source>These were changed to “%2”: %1.</source>
        <comment>a list of options, a choice</comment>
        <translation>次の項目は「%2」に変更されました: %1。</translation>
    </message>
    <message>
        <source>The reason: “%1” is “%2”.</source>
        <translation>理由:「%1」が「%2」になっています。</translation>
    </message>
</context>
<context>
    <name>ChosenText</name>
    <message>
        <source>the code for “%1”</source>
        <translation>「%1」のコード</translation>
    </message>
    <message>
        <source>settings of “%1”</source>
        <translation>「%1」の設定</translation>
    </message>
</context>
<context>
    <name>ControlText</name>
    <message>
        <source>Not available while “%1” is “%2”.</source>
        <translation>「%1」が「%2」のときは使用できません。</translation>
    </message>
</context>
<context>
    <name>DocumentText</name>
    <message>
        <source>The document cannot be stored in the folder “%1”: %2.</source>
        <translation>文書をフォルダー「%1」に保存できません: %2。</translation>
    </message>
    <message>
        <source>There is no file “%1”.</source>
        <translation>ファイル「%1」がありません。</translation>
    </message>
    <message>
        <source>“%1” is a folder, not a document.</source>
        <translation>「%1」は文書ではなくフォルダーです。</translation>
    </message>
    <message>
        <source>“%1” is a device, not a document.</source>
        <translation>「%1」は文書ではなくデバイスです。</translation>
    </message>
    <message>
        <source>The file “%1” cannot be read: %2.</source>
        <translation>ファイル「%1」を読み込めません: %2。</translation>
    </message>
    <message>
        <source>The file “%1” is empty.</source>
        <translation>ファイル「%1」は空です。</translation>
    </message>
    <message>
        <source>The standard input cannot be read: %1.</source>
        <translation>標準入力を読み込めません: %1。</translation>
    </message>
    <message>
        <source>Nothing came from the standard input.</source>
        <translation>標準入力から何も届きませんでした。</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>標準入力</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>印刷を取り消しました。</translation>
    </message>
    <message>
        <source>Nothing was written into “%1”.</source>
        <translation>「%1」には何も書き込まれませんでした。</translation>
    </message>
</context>
<context>
    <name>Explanation</name>
    <message>
        <source>The number of copies to print.</source>
        <translation>印刷する部数です。</translation>
    </message>
    <message>
        <source>Prints each complete copy before the next one, so that the pages need no sorting.</source>
        <translation>1 部ずつ最後のページまで印刷するので、ページを並べ替える必要がありません。</translation>
    </message>
    <message>
        <source>The pages to print. Separate single pages and ranges with commas, for example 1-3, 8.</source>
        <translation>印刷するページです。ページやページ範囲はコンマで区切ります (例: 1-3, 8)。</translation>
    </message>
    <message>
        <source>The size of the paper to print on. Paper of this size must be loaded in one of the printer’s trays.</source>
        <translation>印刷に使う用紙のサイズです。このサイズの用紙がプリンターのトレイのどれかに入っている必要があります。</translation>
    </message>
    <message>
        <source>The type of paper. The printer feeds and heats heavy or coated paper differently.</source>
        <translation>用紙の種類です。厚紙やコート紙では、給紙と加熱のしかたが変わります。</translation>
    </message>
    <message>
        <source>The tray that the paper is taken from.</source>
        <translation>用紙を給紙するトレイです。</translation>
    </message>
    <message>
        <source>Prints on both sides of the paper. Choose the long edge for pages that turn like those of a book, the short edge for pages that turn like those of a wall calendar.</source>
        <translation>用紙の両面に印刷します。本のようにめくるときは長辺、壁掛けカレンダーのようにめくるときは短辺を選びます。</translation>
    </message>
    <message>
        <source>The number of document pages on one side of the paper. The pages are scaled down to fit.</source>
        <translation>用紙の片面に配置するページ数です。ページは収まるように縮小されます。</translation>
    </message>
    <message>
        <source>The order in which several pages are arranged on one side.</source>
        <translation>片面に複数のページを配置するときの並び順です。</translation>
    </message>
    <message>
        <source>A line around each page on the paper.</source>
        <translation>用紙上の各ページを囲む線です。</translation>
    </message>
    <message>
        <source>Prints the pages upright or sideways. “As in the document” keeps the orientation of each page.</source>
        <translation>ページを縦または横に印刷します。「文書のとおり」では各ページの向きを保ちます。</translation>
    </message>
    <message>
        <source>Scales the pages to fit the paper, or keeps their size. At actual size, whatever does not fit on the paper is cut off.</source>
        <translation>ページを用紙に合わせて拡大・縮小するか、元のサイズのまま印刷します。実際のサイズでは、用紙に収まらない部分は切れます。</translation>
    </message>
    <message>
        <source>Enlarges or reduces each page about its center, in percent of its natural size. Whatever does not fit on the page is cut off.</source>
        <translation>各ページをその中心から拡大・縮小します。値は元のサイズに対するパーセントです。ページに収まらない部分は切れます。</translation>
    </message>
    <message>
        <source>Prints only every other page, for example to print on both sides by hand: first the odd pages, then the even pages.</source>
        <translation>1 ページおきに印刷します。たとえば手動で両面に印刷するときは、先に奇数ページ、次に偶数ページを印刷します。</translation>
    </message>
    <message>
        <source>Prints the last page first, so that the pages are in order when the printer stacks them face up.</source>
        <translation>最後のページから印刷します。印刷面を上にして排紙されるとき、ページが順番に並びます。</translation>
    </message>
    <message>
        <source>Prints the whole document.</source>
        <translation>文書全体を印刷します。</translation>
    </message>
    <message>
        <source>Prints only the page that the application shows.</source>
        <translation>アプリケーションに表示されているページだけを印刷します。</translation>
    </message>
    <message>
        <source>Prints only what is selected in the application.</source>
        <translation>アプリケーションで選択されている部分だけを印刷します。</translation>
    </message>
    <message>
        <source>The files to print, in this order. Clear the check box of a file to leave it out.</source>
        <translation>印刷するファイルです。この順に印刷されます。印刷しないファイルはチェックを外します。</translation>
    </message>
    <message>
        <source>Saves the pages to a PDF file as they would be printed. Nothing is sent to the printer.</source>
        <translation>印刷されるとおりのページを PDF ファイルに保存します。プリンターには何も送信されません。</translation>
    </message>
    <message>
        <source>Shows the pages as they will be printed. Select a thumbnail to show its page.</source>
        <translation>印刷されるとおりにページを表示します。縮小版を選ぶと、そのページが表示されます。</translation>
    </message>
    <message>
        <source>A value that you enter yourself. The line below shows what the printer accepts.</source>
        <translation>値を自分で入力します。プリンターで使える値は下の行に示されます。</translation>
    </message>
    <message>
        <source>The printer that the document is sent to. You can search the list by name or location.</source>
        <translation>文書の送信先のプリンターです。一覧では名前や場所で検索できます。</translation>
    </message>
    <message>
        <source>Applies a preset, the settings used last or the printer’s defaults, and saves the current settings as a preset.</source>
        <translation>プリセット、前回使った設定、プリンターの既定値を適用したり、現在の設定をプリセットとして保存したりします。</translation>
    </message>
    <message>
        <source>The pages of this dialog. A diamond marks each page with changed settings.</source>
        <translation>このダイアログのページです。ひし形は、設定が変更されたページを示します。</translation>
    </message>
    <message>
        <source>Closes this window. Nothing more is sent to the printer.</source>
        <translation>このウィンドウを閉じます。プリンターにはこれ以上何も送信されません。</translation>
    </message>
    <message>
        <source>Sends the document to the printer with the settings of all pages.</source>
        <translation>すべてのページの設定で文書をプリンターに送ります。</translation>
    </message>
    <message>
        <source>Cancels the job. Pages that are printed already remain in the printer.</source>
        <translation>ジョブをキャンセルします。すでに印刷されたページはプリンターに残ります。</translation>
    </message>
    <message>
        <source>Keeps the job at the print server until you release it.</source>
        <translation>解除するまで、ジョブをプリントサーバーで保留します。</translation>
    </message>
    <message>
        <source>Sends the same documents again with the same settings.</source>
        <translation>同じ文書を同じ設定でもう一度送信します。</translation>
    </message>
    <message>
        <source>The name of the preset. Other programs offer the preset under this name as well.</source>
        <translation>プリセットの名前です。ほかのプログラムでもこの名前で選べます。</translation>
    </message>
    <message>
        <source>Saves passwords and codes with the preset, so that you need not enter them each time. Do not use this on a computer that you share with others.</source>
        <translation>パスワードとコードをプリセットと一緒に保存し、毎回の入力を省きます。ほかの人と共有するコンピューターでは使わないでください。</translation>
    </message>
    <message>
        <source>Saves the settings of all pages as a preset. A preset of the same name is replaced.</source>
        <translation>すべてのページの設定をプリセットとして保存します。同じ名前のプリセットは置き換えられます。</translation>
    </message>
    <message>
        <source>Renames the preset, in other programs as well.</source>
        <translation>プリセットの名前を変更します。ほかのプログラムでも変わります。</translation>
    </message>
    <message>
        <source>Deletes the preset, in other programs as well. The current settings do not change.</source>
        <translation>プリセットを削除します。ほかのプログラムからも削除されます。現在の設定は変わりません。</translation>
    </message>
    <message>
        <source>Closes this dialog without changing any preset.</source>
        <translation>プリセットを変更せずにこのダイアログを閉じます。</translation>
    </message>
    <message>
        <source>Your user name on the print server. It may differ from your user name on this computer.</source>
        <translation>プリントサーバーでのユーザー名です。このコンピューターのユーザー名と異なることがあります。</translation>
    </message>
    <message>
        <source>Your password on the print server.</source>
        <translation>プリントサーバーでのパスワードです。</translation>
    </message>
    <message>
        <source>Logs in to the print server.</source>
        <translation>プリントサーバーにログインします。</translation>
    </message>
    <message>
        <source>Continues without a password. The print server may then refuse the request.</source>
        <translation>パスワードなしで続けます。プリントサーバーに要求を拒否されることがあります。</translation>
    </message>
    <message>
        <source>Shows only the settings that differ from the printer’s defaults or the preset, with their previous values.</source>
        <translation>プリンターの既定値またはプリセットと異なる設定だけを、変更前の値とともに表示します。</translation>
    </message>
    <message>
        <source>Further options of this printer, with the names that its manufacturer gave them.</source>
        <translation>このプリンターのその他のオプションです。名称は製造元によるものです。</translation>
    </message>
    <message>
        <source>Stops waiting. Your settings are kept.</source>
        <translation>待つのをやめます。設定はそのまま残ります。</translation>
    </message>
    <message>
        <source>Asks the printer or the print server again.</source>
        <translation>プリンターまたはプリントサーバーにもう一度問い合わせます。</translation>
    </message>
    <message>
        <source>Goes back to the settings.</source>
        <translation>設定に戻ります。</translation>
    </message>
    <message>
        <source>Finds a setting on any page by its name.</source>
        <translation>すべてのページから設定を名前で検索します。</translation>
    </message>
    <message>
        <source>Explains the settings of this page.</source>
        <translation>このページの設定について説明します。</translation>
    </message>
    <message>
        <source>Whether the pages are printed in color or in black and white.</source>
        <translation>ページをカラーで印刷するか白黒で印刷するかを選びます。</translation>
    </message>
    <message>
        <source>What the job is called at the printer and in lists of jobs.</source>
        <translation>プリンターやジョブの一覧に表示されるジョブの名前です。</translation>
    </message>
    <message>
        <source>When the print server sends the job to the printer. A job that waits for its release is released in the list of jobs.</source>
        <translation>プリントサーバーがジョブをプリンターに送る時期です。解放を待つジョブは、ジョブの一覧で解放します。</translation>
    </message>
    <message>
        <source>Jobs of a higher priority are printed first.</source>
        <translation>優先度の高いジョブから先に印刷されます。</translation>
    </message>
    <message>
        <source>A sheet with the names of the job and its owner, printed before or after the document.</source>
        <translation>ジョブ名と所有者名を記した用紙で、文書の前または後に印刷されます。</translation>
    </message>
    <message>
        <source>A text that is recorded with the job, for example a project or a customer.</source>
        <translation>プロジェクト名や顧客名など、ジョブとともに記録される文字列です。</translation>
    </message>
    <message>
        <source>The printer keeps the job until this password is entered at its control panel. It is not stored.</source>
        <translation>操作パネルでこのパスワードが入力されるまで、ジョブはプリンターに保留されます。パスワードは保存されません。</translation>
    </message>
    <message>
        <source>The account that the printer charges for the job. It is not stored.</source>
        <translation>プリンターがジョブを課金するアカウントです。保存されません。</translation>
    </message>
    <message>
        <source>Your name or number for the account. It is not stored.</source>
        <translation>アカウントで使用する名前または番号です。保存されません。</translation>
    </message>
    <message>
        <source>Arranges the pages for sheets that are folded together in the middle: two pages on each side, four on each sheet.</source>
        <translation>重ねて中央で折る用紙に合わせてページを配置します。片面に 2 ページ、用紙 1 枚に 4 ページです。</translation>
    </message>
    <message>
        <source>Folds the sheets of a booklet and staples them in the fold.</source>
        <translation>小冊子の用紙を折り、折り目をステープルでとじます。</translation>
    </message>
    <message>
        <source>Prints each page reversed from left to right, for example on transfer paper.</source>
        <translation>各ページを左右反転して印刷します。転写紙などに使います。</translation>
    </message>
</context>
<context>
    <name>ExtensionsText</name>
    <message>
        <source>The print extension cannot be used: %1</source>
        <translation>印刷拡張機能を使用できません: %1</translation>
    </message>
</context>
<context>
    <name>JobSettingText</name>
    <message>
        <source>Now</source>
        <translation>今すぐ</translation>
    </message>
    <message>
        <source>During the day</source>
        <translation>日中</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>夕方以降</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>夜間</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>第 2 シフト</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>第 3 シフト</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>週末</translation>
    </message>
    <message>
        <source>When it is released</source>
        <translation>解放されたとき</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>緊急</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>機密指定なし</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>機密</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>社外秘</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>極秘</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>最高機密</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>優先度</translation>
    </message>
    <message>
        <source>Cover sheets</source>
        <translation>表紙</translation>
    </message>
    <message>
        <source>Billing information</source>
        <translation>課金情報</translation>
    </message>
    <message>
        <source>%1 before, %2 after</source>
        <comment>cover sheets</comment>
        <translation>前: %1、後: %2</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>アカウント</translation>
    </message>
    <message>
        <source>Account user</source>
        <translation>アカウントのユーザー</translation>
    </message>
    <message>
        <source>%1 takes a number from 1 to %2.</source>
        <translation>%1 には 1 から %2 までの数を指定してください。</translation>
    </message>
    <message>
        <source>%1 takes %2, or a time in UTC such as 20:15.</source>
        <translation>%1 には %2、または 20:15 のような UTC の時刻を指定してください。</translation>
    </message>
</context>
<context>
    <name>JobText</name>
    <message>
        <source>waiting: the printer has been stopped</source>
        <translation>待機中: プリンターは停止しています</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>on hold</source>
        <translation>保留中</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>キャンセル済み</translation>
    </message>
    <message>
        <source>aborted by the print system</source>
        <translation>印刷システムが中止しました</translation>
    </message>
    <message>
        <source>done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>the print server no longer knows it. It may have been printed; look at the printer.</source>
        <translation>プリントサーバーにこのジョブの記録がありません。印刷された可能性があります。プリンターを確認してください。</translation>
    </message>
</context>
<context>
    <name>LayoutText</name>
    <message>
        <source>Left to right, then down</source>
        <translation>左から右、上から下 (横方向)</translation>
    </message>
    <message>
        <source>Left to right, then up</source>
        <translation>左から右、下から上 (横方向)</translation>
    </message>
    <message>
        <source>Right to left, then down</source>
        <translation>右から左、上から下 (横方向)</translation>
    </message>
    <message>
        <source>Right to left, then up</source>
        <translation>右から左、下から上 (横方向)</translation>
    </message>
    <message>
        <source>Down, then left to right</source>
        <translation>上から下、左から右 (縦方向)</translation>
    </message>
    <message>
        <source>Down, then right to left</source>
        <translation>上から下、右から左 (縦方向)</translation>
    </message>
    <message>
        <source>Up, then left to right</source>
        <translation>下から上、左から右 (縦方向)</translation>
    </message>
    <message>
        <source>Up, then right to left</source>
        <translation>下から上、右から左 (縦方向)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Thin line</source>
        <translation>細線</translation>
    </message>
    <message>
        <source>Thick line</source>
        <translation>太線</translation>
    </message>
    <message>
        <source>Two thin lines</source>
        <translation>二重の細線</translation>
    </message>
    <message>
        <source>Two thick lines</source>
        <translation>二重の太線</translation>
    </message>
    <message>
        <source>As in the document</source>
        <translation>文書のとおり</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>縦</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横</translation>
    </message>
    <message>
        <source>Landscape, turned around</source>
        <translation>横 (逆向き)</translation>
    </message>
    <message>
        <source>Portrait, turned around</source>
        <translation>縦 (逆向き)</translation>
    </message>
    <message>
        <source>Odd and even pages</source>
        <translation>奇数ページと偶数ページ</translation>
    </message>
    <message>
        <source>Odd pages only</source>
        <translation>奇数ページのみ</translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation>偶数ページのみ</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Shrink to the page or cut off</source>
        <translation>ページに合わせて縮小または切り取り</translation>
    </message>
    <message>
        <source>Shrink to the page</source>
        <translation>ページに合わせて縮小</translation>
    </message>
    <message>
        <source>Fit to the page</source>
        <translation>ページに合わせる</translation>
    </message>
    <message>
        <source>Fill the page</source>
        <translation>ページ全体に拡大</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>実際のサイズ</translation>
    </message>
    <message>
        <source>True or False</source>
        <translation>True または False</translation>
    </message>
    <message>
        <source>whole numbers from %1 to %2</source>
        <translation>%1 から %2 までの整数</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Pages per side</source>
        <translation>1 面あたりのページ数</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>並び順</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>枠線</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>向き</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>拡大/縮小</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>倍率</translation>
    </message>
    <message>
        <source>Odd or even</source>
        <translation>奇数/偶数ページ</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>最終ページから印刷</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>小冊子</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>左右反転</translation>
    </message>
</context>
<context>
    <name>LoadedText</name>
    <message>
        <source>Nothing is loaded in “%1”.</source>
        <translation>「%1」には何もセットされていません。</translation>
    </message>
    <message>
        <source>“%1” is not loaded in “%2”.</source>
        <translation>「%1」は「%2」にセットされていません。</translation>
    </message>
    <message>
        <source>“%1” is not loaded in any tray.</source>
        <translation>「%1」はどのトレイにもセットされていません。</translation>
    </message>
    <message>
        <source>“%1” is loaded, but not as “%2”.</source>
        <translation>「%1」はセットされていますが、「%2」ではありません。</translation>
    </message>
</context>
<context>
    <name>LoginText</name>
    <message>
        <source>Log In</source>
        <translation>ログイン</translation>
    </message>
    <message>
        <source>The user name or the password was not accepted.</source>
        <translation>ユーザー名またはパスワードが受け付けられませんでした。</translation>
    </message>
    <message>
        <source>The print server %1 requires a user name and a password.</source>
        <translation>プリントサーバー %1 にはユーザー名とパスワードが必要です。</translation>
    </message>
    <message>
        <source>&amp;User name:</source>
        <translation>ユーザー名(&amp;U):</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>パスワード(&amp;P):</translation>
    </message>
    <message>
        <source>The password will cross the network without encryption.</source>
        <translation>パスワードは暗号化されずにネットワークを流れます。</translation>
    </message>
</context>
<context>
    <name>MainText</name>
    <message>
        <source>There is no display to open the dialog on. Use --batch to print without it.</source>
        <translation>ダイアログを表示する画面がありません。--batch を使うとダイアログなしで印刷できます。</translation>
    </message>
</context>
<context>
    <name>OpenText</name>
    <message>
        <source>No printer has been set up.</source>
        <translation>プリンターが設定されていません。</translation>
    </message>
</context>
<context>
    <name>PageRangesText</name>
    <message>
        <source>“%1” is not a page or a range of pages; write for example 1-3, 8.</source>
        <translation>「%1」はページまたはページ範囲ではありません。例: 1-3, 8</translation>
    </message>
</context>
<context>
    <name>PagesText</name>
    <message>
        <source>Documents reach the printer unchanged. They cannot be scaled.</source>
        <translation>文書はそのままプリンターに送られます。拡大・縮小はできません。</translation>
    </message>
    <message>
        <source>%1 Set “%2” to %3.</source>
        <translation>%1「%2」を %3 にしてください。</translation>
    </message>
</context>
<context>
    <name>PanelValueText</name>
    <message>
        <source>takes a whole number from %1 to %2</source>
        <translation>%1 から %2 までの整数を指定してください</translation>
    </message>
    <message>
        <source>takes True or False</source>
        <translation>True または False を指定してください</translation>
    </message>
    <message>
        <source>cannot be set by a text</source>
        <translation>テキストでは設定できません</translation>
    </message>
    <message>
        <source>takes %1 digits</source>
        <translation>%1 桁の数字を指定してください</translation>
    </message>
    <message>
        <source>takes %1 characters</source>
        <translation>%1 文字で指定してください</translation>
    </message>
    <message>
        <source>does not take this value</source>
        <translation>この値は指定できません</translation>
    </message>
    <message>
        <source>does not take this value: %1 has only %2</source>
        <translation>この値は指定できません (%1 の選択肢は %2 だけです)</translation>
    </message>
    <message>
        <source>%1 %2.</source>
        <comment>a key, and what it takes</comment>
        <translation>%1: %2。</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
</context>
<context>
    <name>PasswordText</name>
    <message>
        <source>a digit from 0 to 9</source>
        <translation>0～9 の数字</translation>
    </message>
    <message>
        <source>a letter from A to Z</source>
        <translation>A～Z の英字</translation>
    </message>
    <message>
        <source>a letter from A to Z or a digit from 0 to 9</source>
        <translation>A～Z の英字または 0～9 の数字</translation>
    </message>
    <message>
        <source>a printable ASCII character</source>
        <translation>印刷可能な ASCII 文字</translation>
    </message>
    <message>
        <source>a digit</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>a letter</source>
        <translation>文字（数字と記号を除く）</translation>
    </message>
    <message>
        <source>a printable character</source>
        <translation>印刷可能な文字</translation>
    </message>
    <message>
        <source>Character %1 of the password has to be %2.</source>
        <translation>パスワードの %1 文字目は%2でなければなりません。</translation>
    </message>
</context>
<context>
    <name>PolicySystemText</name>
    <message>
        <source>The printer “%1” is not offered here. %2</source>
        <translation>プリンター「%1」はここでは使用できません。%2</translation>
    </message>
    <message>
        <source>“%1” has to be “%2”.</source>
        <translation>「%1」は「%2」にする必要があります。</translation>
    </message>
    <message>
        <source>“%1” has to be “%2”, with a code.</source>
        <translation>「%1」は「%2」にして、コードを指定する必要があります。</translation>
    </message>
    <message>
        <source>The rules in %1 offer none of the printers that have been set up. %2</source>
        <translation>%1 の規則では、設定されているプリンターのどれも使えません。%2</translation>
    </message>
    <message>
        <source>“%1” cannot be used, since settings of this printer are fixed.</source>
        <translation>このプリンターには固定された設定があるため、「%1」は使用できません。</translation>
    </message>
</context>
<context>
    <name>PolicyText</name>
    <message>
        <source>it is not a JSON object</source>
        <translation>JSON オブジェクトではありません</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4</source>
        <translation>%1、%2 行 %3 列: %4</translation>
    </message>
    <message>
        <source>“%1” is not known here; known are %2</source>
        <translation>「%1」はここでは使えません。使えるのは %2 です</translation>
    </message>
    <message>
        <source>“%1” takes a list of names</source>
        <translation>「%1」には名前のリストを指定してください</translation>
    </message>
    <message>
        <source>“%1” takes an object of options and choices</source>
        <translation>「%1」にはオプションと選択肢からなるオブジェクトを指定してください</translation>
    </message>
    <message>
        <source>“%1” takes a choice in quotes</source>
        <translation>「%1」には引用符で囲んだ選択肢を指定してください</translation>
    </message>
    <message>
        <source>“contact” takes a text</source>
        <translation>「contact」にはテキストを指定してください</translation>
    </message>
    <message>
        <source>“rules” takes a list</source>
        <translation>「rules」にはリストを指定してください</translation>
    </message>
    <message>
        <source>“rules” takes JSON objects</source>
        <translation>「rules」には JSON オブジェクトを指定してください</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 を読み込めません: %2</translation>
    </message>
    <message>
        <source>%1 is larger than 1 MB.</source>
        <translation>%1 が 1 MB を超えています。</translation>
    </message>
    <message>
        <source>The administrator&apos;s rules for printing are not in force, since they cannot be read. Please tell your administrator: %1</source>
        <translation>管理者が定めた印刷ルールを読み込めないため、ルールは適用されていません。管理者に次の内容を伝えてください: %1</translation>
    </message>
    <message>
        <source>Set by the administrator.</source>
        <translation>管理者が設定しています。</translation>
    </message>
    <message>
        <source>Set by the administrator (%1).</source>
        <translation>管理者が設定しています (%1)。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>file, problem</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, rule %2: %3</source>
        <comment>file, number, problem</comment>
        <translation>%1、規則 %2: %3</translation>
    </message>
</context>
<context>
    <name>PortalText</name>
    <message>
        <source>The document of an application cannot be printed.</source>
        <translation>アプリケーションの文書を印刷できません。</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>文書が空です。</translation>
    </message>
    <message>
        <source>It is larger than 2 GB.</source>
        <translation>文書が 2 GB を超えています。</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>文書を読み込めません: %1。</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Print “%1”</source>
        <translation>「%1」の印刷</translation>
    </message>
    <message>
        <source>The document has not been printed on “%1”.</source>
        <translation>文書は「%1」で印刷されませんでした。</translation>
    </message>
    <message>
        <source>The document was sent to “%1”, but with different settings.</source>
        <translation>文書を「%1」に送信しましたが、設定の一部が異なります。</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>文書</translation>
    </message>
    <message>
        <source>It is larger than 256 MB.</source>
        <translation>文書が 256 MB を超えています。</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>文書がファイルではありません。</translation>
    </message>
    <message>
        <source>The application that opened the print dialog has been closed. Nothing has been printed.</source>
        <translation>印刷ダイアログを開いたアプリケーションが終了しました。何も印刷されていません。</translation>
    </message>
    <message>
        <source>The application has changed it since the print dialog was opened.</source>
        <translation>印刷ダイアログを開いた後に、アプリケーションが文書を変更しました。</translation>
    </message>
</context>
<context>
    <name>PpdCustomText</name>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>%1 から %2 までの整数</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>%1 から %2 までの数</translation>
    </message>
    <message>
        <source>a length from %1 to %2 pt</source>
        <translation>%1 から %2 pt までの長さ</translation>
    </message>
    <message>
        <source>%1 to %2 digits</source>
        <translation>%1 から %2 桁の数字</translation>
    </message>
    <message>
        <source>a password of %1 to %2 characters</source>
        <translation>%1 から %2 文字のパスワード</translation>
    </message>
    <message>
        <source>a text of %1 to %2 characters</source>
        <translation>%1 から %2 文字のテキスト</translation>
    </message>
    <message>
        <source>%1 takes %2.</source>
        <translation>%1 には %2 を指定してください。</translation>
    </message>
    <message>
        <source>%1 × %2 %3</source>
        <comment>width, height, unit</comment>
        <translation>%1 × %2 %3</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>name and value</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>Custom (100 × 200 mm)</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>sizes from %1 × %2 to %3 × %4 pt, such as Custom.%5 (units: pt, mm, cm, m, in, ft)</source>
        <translation>%1 × %2 から %3 × %4 pt までのサイズ (例: Custom.%5、単位: pt、mm、cm、m、in、ft)</translation>
    </message>
    <message>
        <source>Custom. followed by %1</source>
        <translation>Custom. に続けて %1</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <translation>%1 は %2</translation>
    </message>
    <message>
        <source>{%1}, where %2</source>
        <translation>{%1} (%2)</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
</context>
<context>
    <name>PpdDocumentText</name>
    <message>
        <source>%1: %2</source>
        <comment>option and its choice</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>There is no PPD file “%1”.</source>
        <translation>PPD ファイル「%1」がありません。</translation>
    </message>
    <message>
        <source>You are not allowed to read the PPD file “%1”.</source>
        <translation>PPD ファイル「%1」を読む権限がありません。</translation>
    </message>
    <message>
        <source>The PPD file “%1”</source>
        <translation>PPD ファイル「%1」</translation>
    </message>
    <message>
        <source>The PPD of “%1”</source>
        <translation>「%1」の PPD</translation>
    </message>
    <message>
        <source>%1 is broken: line %2: %3.</source>
        <translation>%1は壊れています: %2 行目: %3。</translation>
    </message>
    <message>
        <source>%1 is too large: more than %2 MB.</source>
        <translation>%1は大きすぎます (%2 MB を超えています)。</translation>
    </message>
    <message>
        <source>There is not enough memory for the PPD of “%1”: %2.</source>
        <translation>「%1」の PPD に使うメモリーが足りません: %2。</translation>
    </message>
</context>
<context>
    <name>PpdTexts</name>
    <message>
        <source>Two-Sided Printing</source>
        <translation>両面印刷</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Long Edge</source>
        <translation>長辺とじ</translation>
    </message>
    <message>
        <source>Short Edge</source>
        <translation>短辺とじ</translation>
    </message>
    <message>
        <source>Print Quality</source>
        <translation>印刷品質</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>下書き</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高品質</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>カラーモード</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>グレースケール</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Manual Feed</source>
        <translation>手差し</translation>
    </message>
    <message>
        <source>Bypass Tray</source>
        <translation>手差しトレイ</translation>
    </message>
    <message>
        <source>Plain Paper</source>
        <translation>普通紙</translation>
    </message>
    <message>
        <source>Glossy Photo Paper</source>
        <translation>光沢写真用紙</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>封筒</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>ラベル</translation>
    </message>
    <message>
        <source>Output Tray</source>
        <translation>排紙トレイ</translation>
    </message>
    <message>
        <source>Face Down</source>
        <translation>フェイスダウン</translation>
    </message>
    <message>
        <source>Face Up</source>
        <translation>フェイスアップ</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>ステープル</translation>
    </message>
    <message>
        <source>One, Top Left</source>
        <translation>1 か所、左上</translation>
    </message>
    <message>
        <source>One, Bottom Left</source>
        <translation>1 か所、左下</translation>
    </message>
    <message>
        <source>Two, Left</source>
        <translation>2 か所、左</translation>
    </message>
    <message>
        <source>Two, Top</source>
        <translation>2 か所、上</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>パンチ</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>折り</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>仕上げ</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
</context>
<context>
    <name>PresetText</name>
    <message>
        <source>A preset cannot store the value of “%1”: it contains a tab, a line break or another character that cannot be written to the preset file.</source>
        <translation>「%1」の値はプリセットに保存できません。タブ、改行など、プリセットのファイルに書き込めない文字が含まれています。</translation>
    </message>
    <message>
        <source>A preset cannot store this many settings; the limit is %1 bytes.</source>
        <translation>設定が多すぎてプリセットに保存できません。上限は %1 バイトです。</translation>
    </message>
    <message>
        <source>This printer does not support these settings: %1.</source>
        <translation>このプリンターは次の設定に対応していません: %1。</translation>
    </message>
</context>
<context>
    <name>PrintSystemText</name>
    <message>
        <source>No default printer has been set; choose a printer by name.</source>
        <translation>既定のプリンターが設定されていません。プリンターを名前で指定してください。</translation>
    </message>
    <message>
        <source>“%1” opens the print dialog and prints nothing itself; choose another printer.</source>
        <translation>「%1」は印刷ダイアログを開くためのもので、印刷はできません。別のプリンターを選んでください。</translation>
    </message>
    <message>
        <source>There is no printer called “%1”.</source>
        <translation>「%1」という名前のプリンターはありません。</translation>
    </message>
    <message>
        <source>Your own defaults for this printer are not used. %1</source>
        <translation>このプリンターのユーザー既定値は使用されません。%1</translation>
    </message>
    <message>
        <source>“%1” has no preset called “%2”.</source>
        <translation>「%1」に「%2」というプリセットはありません。</translation>
    </message>
</context>
<context>
    <name>PrinterText</name>
    <message>
        <source>Stopped: jobs wait until it is started again</source>
        <translation>停止中: 再開されるまでジョブは待機します</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>ジョブを受け付けていません</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>Found on the network</source>
        <translation>ネットワークで検出</translation>
    </message>
    <message>
        <source>State not known</source>
        <translation>状態不明</translation>
    </message>
    <message>
        <source>%1: level not known</source>
        <comment>a toner</comment>
        <translation>%1: 残量不明</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <comment>a toner and its level</comment>
        <translation>%1 %2%</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a tray and the paper in it</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Reported by the printer at %1</source>
        <translation>プリンターからの情報（%1）</translation>
    </message>
</context>
<context>
    <name>ProtectionText</name>
    <message>
        <source>“%1” has been chosen, but no password has been given for it.</source>
        <translation>「%1」が選択されていますが、パスワードが指定されていません。</translation>
    </message>
    <message>
        <source>“%1” has been chosen, but no code has been given for it.</source>
        <translation>「%1」が選択されていますが、コードが指定されていません。</translation>
    </message>
    <message>
        <source>A password has been given, but not “%1”: the job is not protected.</source>
        <translation>パスワードは指定されていますが、「%1」が選択されていません。ジョブは保護されません。</translation>
    </message>
    <message>
        <source>This printer does not have “%1”: the job will not be protected.</source>
        <translation>このプリンターには「%1」がありません。ジョブは保護されません。</translation>
    </message>
</context>
<context>
    <name>ResultText</name>
    <message>
        <source>These settings cannot be used together.</source>
        <translation>次の設定は併用できません。</translation>
    </message>
    <message>
        <source>Changed to resolve a conflict: %1</source>
        <translation>競合を解消するため変更しました: %1</translation>
    </message>
    <message>
        <source>Keys of the panels</source>
        <translation>パネルのキー</translation>
    </message>
    <message>
        <source>Give passwords and codes with --ask or --set-file: other users can read the command line.</source>
        <translation>パスワードとコードは --ask または --set-file で指定してください。コマンドラインは他のユーザーも読み取れます。</translation>
    </message>
    <message>
        <source>request id is %1-%2 (%3 file(s))</source>
        <translation>リクエスト ID は %1-%2 です (%3 個のファイル)</translation>
    </message>
    <message>
        <source>Job %1: %2.</source>
        <translation>ジョブ %1: %2。</translation>
    </message>
    <message>
        <source>These settings cannot be used together:</source>
        <translation>次の設定は併用できません:</translation>
    </message>
    <message>
        <source>Proposal (accepted with --resolve):</source>
        <translation>提案 (--resolve で受け入れます):</translation>
    </message>
    <message>
        <source>The result cannot be written: %1.</source>
        <translation>結果を出力できません: %1。</translation>
    </message>
    <message>
        <source>and %1</source>
        <translation>および %1</translation>
    </message>
    <message>
        <source>“%1” has been written.</source>
        <translation>「%1」を書き出しました。</translation>
    </message>
    <message>
        <source>The preset “%1” has been deleted.</source>
        <translation>プリセット「%1」を削除しました。</translation>
    </message>
    <message>
        <source>The settings have been saved as the preset “%1”.</source>
        <translation>設定をプリセット「%1」として保存しました。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a setting and its value</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>RunText</name>
    <message>
        <source>The picture “%1” cannot be written.</source>
        <translation>画像「%1」を書き出せません。</translation>
    </message>
    <message>
        <source>request id is %1</source>
        <translation>リクエスト ID は %1 です</translation>
    </message>
</context>
<context>
    <name>ServerText</name>
    <message>
        <source>The print server %1 requires a user name and a password.</source>
        <translation>プリントサーバー %1 にはユーザー名とパスワードが必要です。</translation>
    </message>
    <message>
        <source>The printer “%1” requires a user name and a password.</source>
        <translation>プリンター「%1」にはユーザー名とパスワードが必要です。</translation>
    </message>
    <message>
        <source>The print server %1 cannot be reached.</source>
        <translation>プリントサーバー %1 に接続できません。</translation>
    </message>
    <message>
        <source>The print server %1 sent a response that cannot be interpreted.</source>
        <translation>プリントサーバー %1 からの応答を解釈できません。</translation>
    </message>
    <message>
        <source>The connection to the print server %1 was lost.</source>
        <translation>プリントサーバー %1 との接続が切れました。</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>印刷はキャンセルされました。</translation>
    </message>
    <message>
        <source>The print server %1 does not allow this (%2).</source>
        <translation>プリントサーバー %1 でこの操作を行う権限がありません (%2)。</translation>
    </message>
    <message>
        <source>The print server %1 refused the request (%2).</source>
        <translation>プリントサーバー %1 は要求を拒否しました (%2)。</translation>
    </message>
    <message>
        <source>There is no printer called “%1”.</source>
        <translation>「%1」という名前のプリンターはありません。</translation>
    </message>
    <message>
        <source>No printer has been set up.</source>
        <translation>プリンターが設定されていません。</translation>
    </message>
    <message>
        <source>The printer “%1” is not accepting jobs at the moment.</source>
        <translation>プリンター「%1」は現在ジョブを受け付けていません。</translation>
    </message>
    <message>
        <source>You are not allowed to print to “%1” (%2).</source>
        <translation>「%1」に印刷する権限がありません (%2)。</translation>
    </message>
    <message>
        <source>The printer “%1” cannot print documents of this type.</source>
        <translation>プリンター「%1」はこの種類の文書を印刷できません。</translation>
    </message>
    <message>
        <source>The print server reports: %1</source>
        <translation>プリントサーバーからの報告: %1</translation>
    </message>
    <message>
        <source>The print server %1 sends a file of more than %2 megabytes.</source>
        <translation>プリントサーバー %1 から届くファイルが %2 メガバイトを超えています。</translation>
    </message>
    <message>
        <source>The print server %1 has stopped answering.</source>
        <translation>プリントサーバー %1 が応答しなくなりました。</translation>
    </message>
</context>
<context>
    <name>SettingText</name>
    <message>
        <source>A stored setting is not used: %1</source>
        <translation>保存済みの設定を使用しません: %1</translation>
    </message>
    <message>
        <source>%1 has no choice “%2”; it has %3.</source>
        <translation>%1 に選択肢「%2」はありません。選択肢: %3。</translation>
    </message>
    <message>
        <source>This printer has no option or setting called “%1”.</source>
        <translation>このプリンターに「%1」というオプションや設定はありません。</translation>
    </message>
    <message>
        <source>copies takes a number from 1 to %1.</source>
        <translation>copies には 1 から %1 までの数を指定してください。</translation>
    </message>
    <message>
        <source>%1 takes True or False.</source>
        <translation>%1 には True または False を指定してください。</translation>
    </message>
    <message>
        <source>%1 is not sent with the job: %2</source>
        <translation>%1 はジョブと一緒に送信されません: %2</translation>
    </message>
    <message>
        <source>%1 takes %2.</source>
        <translation>%1 には %2 を指定してください。</translation>
    </message>
    <message>
        <source>“%1” cannot be changed here. %2</source>
        <translation>「%1」はここでは変更できません。%2</translation>
    </message>
    <message>
        <source>%1 does not take this value.</source>
        <translation>%1 にこの値は指定できません。</translation>
    </message>
    <message>
        <source>%1: this printer has no “%2”.</source>
        <translation>%1: このプリンターには「%2」がありません。</translation>
    </message>
    <message>
        <source>The printer “%1” does not take %2.</source>
        <translation>プリンター「%1」は %2 を受け付けません。</translation>
    </message>
    <message>
        <source>%1 takes at most %2 characters.</source>
        <translation>%1 に指定できるのは %2 文字までです。</translation>
    </message>
    <message>
        <source>“%1” is not available for a booklet, whose sheets are turned on the short edge.</source>
        <translation>小冊子の用紙は短辺で裏返すため、“%1” は選べません。</translation>
    </message>
</context>
<context>
    <name>StoreText</name>
    <message>
        <source>The presets in “%1” cannot be read or changed: %2.</source>
        <translation>「%1」のプリセットを読み込みまたは変更できません: %2。</translation>
    </message>
    <message>
        <source>There is no preset called “%1”.</source>
        <translation>「%1」という名前のプリセットはありません。</translation>
    </message>
    <message>
        <source>There is already a preset called “%1”.</source>
        <translation>「%1」という名前のプリセットはすでにあります。</translation>
    </message>
    <message>
        <source>“%1” is available to all users of this computer; only an administrator can change it.</source>
        <translation>「%1」はこのコンピューターの全ユーザー共通のプリセットです。変更できるのは管理者だけです。</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>プリセットには名前が必要です。</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>名前が長すぎます。</translation>
    </message>
    <message>
        <source>The name of a preset cannot contain spaces; use for example “%1”.</source>
        <translation>プリセットの名前に空白は使えません。たとえば「%1」としてください。</translation>
    </message>
    <message>
        <source>The name of a preset cannot contain control characters.</source>
        <translation>プリセットの名前に制御文字は使えません。</translation>
    </message>
    <message>
        <source>The name of a preset cannot contain any of these characters: / \ # &quot; &apos; =</source>
        <translation>プリセットの名前に次の文字は使えません: / \ # &quot; &apos; =</translation>
    </message>
</context>
<context>
    <name>SubmitText</name>
    <message>
        <source>The printer “%1” is not accepting jobs at the moment.</source>
        <translation>プリンター「%1」は現在ジョブを受け付けていません。</translation>
    </message>
    <message>
        <source>“%1” cannot be printed: the printer “%2” does not accept documents of the type %3.</source>
        <translation>「%1」は印刷できません: プリンター「%2」は種類 %3 の文書に対応していません。</translation>
    </message>
    <message>
        <source>The file “%1” cannot be read: %2.</source>
        <translation>ファイル「%1」を読み込めません: %2。</translation>
    </message>
    <message>
        <source>The unfinished job %1 could not be canceled.</source>
        <translation>未完了のジョブ %1 をキャンセルできませんでした。</translation>
    </message>
    <message>
        <source>Nothing was printed.</source>
        <translation>何も印刷されませんでした。</translation>
    </message>
    <message>
        <source>It is not known whether the job was accepted. It may print; look at the queue before printing again.</source>
        <translation>ジョブが受け付けられたかどうかは不明です。印刷される可能性がありますので、もう一度印刷する前にキューを確認してください。</translation>
    </message>
    <message>
        <source>The print server did not report the settings that it accepted.</source>
        <translation>プリントサーバーから、受け付けた設定の報告がありませんでした。</translation>
    </message>
    <message>
        <source>The job %1 could not be canceled.</source>
        <translation>ジョブ %1 をキャンセルできませんでした。</translation>
    </message>
    <message>
        <source>Some of it may have been printed.</source>
        <translation>一部が印刷された可能性があります。</translation>
    </message>
    <message>
        <source>An unfinished job may have been left at the print server.</source>
        <translation>未完了のジョブがプリントサーバーに残っている可能性があります。</translation>
    </message>
    <message>
        <source>Look at the queue before printing again.</source>
        <translation>もう一度印刷する前に、キューを確認してください。</translation>
    </message>
</context>
<context>
    <name>SummaryText</name>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>部数</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>部単位で印刷</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>現在のページ</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>選択範囲</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>その他のオプション</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>ジョブ</translation>
    </message>
    <message>
        <source>Print Mode</source>
        <translation>印刷モード</translation>
    </message>
</context>
<context>
    <name>TaskText</name>
    <message>
        <source>“%1”</source>
        <translation>「%1」</translation>
    </message>
</context>
<context>
    <name>TerminalText</name>
    <message>
        <source>The user name or the password was not accepted.</source>
        <translation>ユーザー名またはパスワードが受け付けられませんでした。</translation>
    </message>
    <message>
        <source>User name for %1 [%2]: </source>
        <translation>%1 のユーザー名 [%2]: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>パスワード: </translation>
    </message>
    <message>
        <source>The password will cross the network without encryption.</source>
        <translation>パスワードは暗号化されずにネットワークを流れます。</translation>
    </message>
</context>
<context>
    <name>TitleField</name>
    <message>
        <source>Title:</source>
        <translation>タイトル:</translation>
    </message>
</context>
<context>
    <name>ValueSourceText</name>
    <message>
        <source>The value of %1 cannot be read: %2.</source>
        <translation>%1 の値を読み込めません: %2。</translation>
    </message>
    <message>
        <source>its first line is longer than %1 bytes</source>
        <translation>1 行目が %1 バイトを超えています</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>値がありません</translation>
    </message>
    <message>
        <source>it is not text</source>
        <translation>テキストではありません</translation>
    </message>
    <message>
        <source>there is no terminal to ask on; --set-file takes it from a file or, as %1=-, from the standard input</source>
        <translation>入力できる端末がありません。--set-file を使うとファイルから、%1=- とすると標準入力から値を読み込みます</translation>
    </message>
    <message>
        <source>%1: </source>
        <comment>prompt for a value</comment>
        <translation>%1: </translation>
    </message>
</context>
<context>
    <name>host::ChangeMark</name>
    <message>
        <source>Back to What It Was</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Back to “%1”</source>
        <translation>「%1」に戻す</translation>
    </message>
    <message>
        <source>Changed. %1</source>
        <translation>変更済み。%1</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>変更済み</translation>
    </message>
    <message>
        <source>Changed; it was “%1”</source>
        <translation>変更済み (元の値:「%1」)</translation>
    </message>
</context>
<context>
    <name>host::ConflictQuestion</name>
    <message>
        <source>App&amp;ly Suggestion</source>
        <translation>提案を適用(&amp;L)</translation>
    </message>
    <message>
        <source>Use An&amp;yway</source>
        <translation>それでも使用(&amp;Y)</translation>
    </message>
    <message>
        <source>Print An&amp;yway</source>
        <translation>それでも印刷(&amp;Y)</translation>
    </message>
    <message>
        <source>Keep and Re&amp;view</source>
        <translation>そのまま確認(&amp;V)</translation>
    </message>
    <message>
        <source>No resolution keeps “%1”; change one of the settings.</source>
        <translation>「%1」を維持できる解決方法がありません。設定のいずれかを変更してください。</translation>
    </message>
    <message>
        <source>Suggestion: %1</source>
        <translation>提案: %1</translation>
    </message>
    <message>
        <source>“%1” protects your document. If you print anyway, the printer may print without it.</source>
        <translation>「%1」は文書を保護する設定です。このまま印刷すると、保護されずに印刷される可能性があります。</translation>
    </message>
    <message>
        <source>These settings cannot be used together</source>
        <translation>次の設定は併用できません</translation>
    </message>
    <message>
        <source>“%1” cannot be changed. If you print anyway, the printer may print without it.</source>
        <translation>「%1」は変更できません。このまま印刷すると、この設定なしで印刷される可能性があります。</translation>
    </message>
</context>
<context>
    <name>host::CustomEditor</name>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>inches</comment>
        <translation>インチ</translation>
    </message>
    <message>
        <source>pt</source>
        <comment>points</comment>
        <translation>pt</translation>
    </message>
    <message>
        <source>Unit of the paper size</source>
        <translation>用紙サイズの単位</translation>
    </message>
    <message>
        <source>%1:</source>
        <comment>label of a field</comment>
        <translation>%1:</translation>
    </message>
    <message>
        <source> pt</source>
        <comment>points, behind a number</comment>
        <translation> pt</translation>
    </message>
    <message>
        <source>From %1 to %2 %3</source>
        <comment>smallest size, largest size, unit</comment>
        <translation>%1 から %2 %3 まで</translation>
    </message>
    <message>
        <source>a length from %1 to %2 %3</source>
        <comment>smallest, largest, unit</comment>
        <translation>%1 から %2 %3 までの長さ</translation>
    </message>
    <message>
        <source>%1: %2 is out of range; enter %3.</source>
        <comment>setting, value, such as: a number from 1 to 9</comment>
        <translation>%1: %2 は範囲外です。%3を入力してください。</translation>
    </message>
</context>
<context>
    <name>host::DialogPreview</name>
    <message>
        <source>Preview…</source>
        <translation>プレビュー…</translation>
    </message>
    <message>
        <source>Show the pages in a separate window</source>
        <translation>ページを別のウィンドウに表示します</translation>
    </message>
</context>
<context>
    <name>host::DialogSession</name>
    <message>
        <source>A page of the printer&apos;s settings cannot be shown: %1</source>
        <translation>プリンターの設定のページを表示できません: %1</translation>
    </message>
    <message>
        <source>Your defaults for this printer contain choices that it does not have: %1.</source>
        <translation>このプリンターに対するユーザーの既定値に、プリンターにない選択肢が含まれています: %1。</translation>
    </message>
    <message>
        <source>Stored settings of “%1” are not sent with the job (%2): %3</source>
        <translation>「%1」の保存済みの設定はジョブと一緒に送信されません (%2): %3</translation>
    </message>
    <message>
        <source>“%1” stays “%2”. %3</source>
        <translation>「%1」は「%2」のままです。%3</translation>
    </message>
</context>
<context>
    <name>host::DocumentBox</name>
    <message>
        <source>Documents to print</source>
        <translation>印刷する文書</translation>
    </message>
</context>
<context>
    <name>host::DocumentChoice</name>
    <message>
        <source>Standard input</source>
        <translation>標準入力</translation>
    </message>
</context>
<context>
    <name>host::EarlierJobs</name>
    <message>
        <source>Job %1: %2</source>
        <translation>ジョブ %1: %2</translation>
    </message>
    <message>
        <source>Jobs %1: %2</source>
        <translation>ジョブ %1: %2</translation>
    </message>
</context>
<context>
    <name>host::GeneralPage</name>
    <message>
        <source>C&amp;ollate</source>
        <translation>部単位で印刷(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>すべて(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Range:</source>
        <translation>範囲(&amp;R):</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>部数(&amp;C):</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>部数</translation>
    </message>
    <message>
        <source>Print each complete copy before the next one</source>
        <translation>1 部ずつ最後のページまで印刷します</translation>
    </message>
    <message>
        <source>for example 1-3, 8</source>
        <translation>例: 1-3, 8</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>印刷するページ</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>ページ:</translation>
    </message>
    <message>
        <source>Enter the pages to print, or choose all pages.</source>
        <translation>印刷するページを入力するか、すべてのページを選んでください。</translation>
    </message>
    <message>
        <source>Documents:</source>
        <translation>文書:</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>PDF として保存…</translation>
    </message>
    <message>
        <source>Save the pages to a file instead of printing them</source>
        <translation>印刷する代わりにページをファイルに保存します</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>現在のページ</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>選択範囲</translation>
    </message>
    <message>
        <source>The numbers refer to printed sides with %1 pages each.</source>
        <translation>番号は、%1 ページずつ配置された印刷面の番号です。</translation>
    </message>
    <message>
        <source>Choose at least one document.</source>
        <translation>文書を 1 つ以上選んでください。</translation>
    </message>
</context>
<context>
    <name>host::GreyedChoices</name>
    <message>
        <source>To use it, other settings have to change:</source>
        <translation>使用するには、ほかの設定の変更が必要です:</translation>
    </message>
    <message>
        <source>“%1” instead of “%2”</source>
        <comment>an option with its choice, and another choice</comment>
        <translation>「%1」(現在は「%2」)</translation>
    </message>
    <message>
        <source>This gives up “%1”, which protects your document.</source>
        <translation>文書を保護する「%1」が解除されます。</translation>
    </message>
    <message>
        <source>Change and &amp;Use It</source>
        <translation>変更して使用(&amp;U)</translation>
    </message>
    <message>
        <source>Give Up Protection and &amp;Use It</source>
        <translation>保護を解除して使用(&amp;U)</translation>
    </message>
    <message>
        <source>Leave &amp;As It Is</source>
        <translation>そのままにする(&amp;A)</translation>
    </message>
    <message>
        <source>“%1” conflicts with this choice, and no resolution was found.</source>
        <translation>「%1」はこの選択肢と競合します。解決方法は見つかりませんでした。</translation>
    </message>
    <message>
        <source>“%1” is not available now</source>
        <translation>「%1」は現在使用できません</translation>
    </message>
    <message>
        <source>“%1” cannot be changed.</source>
        <translation>「%1」は変更できません。</translation>
    </message>
</context>
<context>
    <name>host::GuideButtons</name>
    <message>
        <source>%1 (%2)</source>
        <comment>what a button does, and its key</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>検索(&amp;F)…</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>設定を検索</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Help on this page</source>
        <translation>このページのヘルプ</translation>
    </message>
</context>
<context>
    <name>host::HelpPage</name>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Close &amp;Help</source>
        <translation>ヘルプを閉じる(&amp;H)</translation>
    </message>
</context>
<context>
    <name>host::JobCostLabel</name>
    <message numerus="yes">
        <source>%n sheets</source>
        <translation>
            <numerusform>用紙 %n 枚</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sides</source>
        <translation>
            <numerusform>%n 面</numerusform>
        </translation>
    </message>
    <message>
        <source>black and white</source>
        <translation>白黒</translation>
    </message>
    <message>
        <source>color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>、</translation>
    </message>
    <message>
        <source>pages of different sizes</source>
        <translation>サイズの異なるページあり</translation>
    </message>
</context>
<context>
    <name>host::JobDesk</name>
    <message>
        <source>Sending the document to the print server…</source>
        <translation>文書をプリントサーバーに送信しています…</translation>
    </message>
    <message>
        <source>Canceling the job…</source>
        <translation>ジョブをキャンセルしています…</translation>
    </message>
    <message>
        <source>Ca&amp;ncel Printing</source>
        <translation>印刷をキャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>文書を読み込んでいます…</translation>
    </message>
</context>
<context>
    <name>host::JobPage</name>
    <message>
        <source>Priority:</source>
        <translation>優先度:</translation>
    </message>
    <message>
        <source>Cover sheet before:</source>
        <translation>先頭の表紙:</translation>
    </message>
    <message>
        <source>Cover sheet after:</source>
        <translation>末尾の表紙:</translation>
    </message>
    <message>
        <source>Print:</source>
        <translation>印刷:</translation>
    </message>
    <message>
        <source>At a time of day</source>
        <translation>指定した時刻</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Billing information:</source>
        <translation>課金情報:</translation>
    </message>
</context>
<context>
    <name>host::JobSender</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>印刷を取り消しました。</translation>
    </message>
</context>
<context>
    <name>host::LayoutForm</name>
    <message>
        <source>Page layout</source>
        <translation>ページレイアウト</translation>
    </message>
    <message>
        <source>Pages per side:</source>
        <translation>1 面あたりのページ数:</translation>
    </message>
    <message>
        <source>Order:</source>
        <translation>並び順:</translation>
    </message>
    <message>
        <source>Border:</source>
        <translation>枠線:</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>向き:</translation>
    </message>
    <message>
        <source>Scaling:</source>
        <translation>拡大/縮小:</translation>
    </message>
    <message>
        <source>Scale:</source>
        <translation>倍率:</translation>
    </message>
    <message>
        <source>Odd or even:</source>
        <translation>奇数/偶数ページ:</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>最終ページから印刷</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>小冊子</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>Saddle stitching</source>
        <translation>中とじ</translation>
    </message>
</context>
<context>
    <name>host::LimitedProcess</name>
    <message>
        <source>it took too long</source>
        <translation>時間がかかりすぎました</translation>
    </message>
    <message>
        <source>it ended unexpectedly</source>
        <translation>予期せず終了しました</translation>
    </message>
    <message>
        <source>it cannot be started: %1</source>
        <translation>起動できません: %1</translation>
    </message>
    <message>
        <source>it wrote too much</source>
        <translation>出力が多すぎました</translation>
    </message>
    <message>
        <source>the document is too large</source>
        <translation>文書が大きすぎます</translation>
    </message>
</context>
<context>
    <name>host::LinkLabel</name>
    <message>
        <source>Go to this setting</source>
        <translation>この設定に移動します</translation>
    </message>
</context>
<context>
    <name>host::MessageBar</name>
    <message>
        <source>C&amp;lose</source>
        <translation>閉じる(&amp;L)</translation>
    </message>
</context>
<context>
    <name>host::OptionForm</name>
    <message>
        <source>%1:</source>
        <comment>label of a field</comment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1…</source>
        <comment>Custom, whose values are asked for</comment>
        <translation>%1…</translation>
    </message>
</context>
<context>
    <name>host::PageBook</name>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>その他のオプション</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>設定一覧</translation>
    </message>
    <message>
        <source>These settings cannot be changed. %1</source>
        <translation>これらの設定は変更できません。%1</translation>
    </message>
    <message>
        <source>Fixed: %1. %2</source>
        <translation>固定: %1。%2</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>ジョブ</translation>
    </message>
    <message>
        <source>Print Mode</source>
        <translation>印刷モード</translation>
    </message>
</context>
<context>
    <name>host::PageCounter</name>
    <message>
        <source>it is damaged, not complete or protected</source>
        <translation>破損しているか、不完全であるか、保護されています</translation>
    </message>
    <message>
        <source>it needs a password</source>
        <translation>パスワードが必要です</translation>
    </message>
    <message>
        <source>its author does not allow it to be printed</source>
        <translation>作成者が印刷を許可していません</translation>
    </message>
    <message>
        <source>it is damaged or not complete</source>
        <translation>破損しているか、不完全です</translation>
    </message>
    <message>
        <source>“%1” cannot be printed: %2.</source>
        <translation>“%1” を印刷できません: %2。</translation>
    </message>
    <message>
        <source>“%1” cannot be scaled: %2.</source>
        <translation>「%1」を拡大・縮小できません: %2。</translation>
    </message>
    <message>
        <source>The settings leave no page of any document to print.</source>
        <translation>この設定では、どの文書にも印刷するページがありません。</translation>
    </message>
    <message>
        <source>The settings leave no page to print: there is only one printed side.</source>
        <translation>この設定では、印刷するページがありません。印刷面は 1 面しかありません。</translation>
    </message>
    <message>
        <source>The settings leave no page to print: the document has only one page.</source>
        <translation>この設定では、印刷するページがありません。文書は 1 ページしかありません。</translation>
    </message>
    <message>
        <source>The settings leave no page to print: there are only %1 printed sides.</source>
        <translation>この設定では、印刷するページがありません。印刷面は %1 面しかありません。</translation>
    </message>
    <message>
        <source>The settings leave no page to print: the document has only %1 pages.</source>
        <translation>この設定では、印刷するページがありません。文書は %1 ページしかありません。</translation>
    </message>
    <message>
        <source>the print server cannot arrange PostScript documents as a booklet</source>
        <translation>プリントサーバーは PostScript 文書を小冊子に配置できません</translation>
    </message>
</context>
<context>
    <name>host::PageList</name>
    <message>
        <source>Pages of the dialog</source>
        <translation>ダイアログのページ</translation>
    </message>
    <message>
        <source>has changed settings</source>
        <translation>変更された設定があります</translation>
    </message>
    <message>
        <source>%1: has changed settings</source>
        <comment>a page</comment>
        <translation>%1: 変更された設定があります</translation>
    </message>
</context>
<context>
    <name>host::PageMaker</name>
    <message>
        <source>there is no program here that shows this kind of document (%1)</source>
        <translation>この種類の文書 (%1) を表示できるプログラムがありません</translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 がインストールされていません</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>メモリーが足りません</translation>
    </message>
    <message>
        <source>%1 cannot read the document</source>
        <translation>%1 で文書を読み込めません</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <translation>%1 が失敗しました: %2</translation>
    </message>
    <message>
        <source>the settings leave no page of the document</source>
        <translation>この設定では、印刷するページがありません</translation>
    </message>
</context>
<context>
    <name>host::PdfSaver</name>
    <message>
        <source>Save as PDF</source>
        <translation>PDF として保存</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>PDF ファイル (*.pdf)</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>文書</translation>
    </message>
    <message>
        <source>The PDF file has been written</source>
        <translation>PDF ファイルを書き出しました</translation>
    </message>
</context>
<context>
    <name>host::PdfWriter</name>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>「%1」を書き出せません: %2。</translation>
    </message>
    <message>
        <source>it is a link to another file</source>
        <translation>別のファイルへのリンクです</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>%1 cannot read the document</source>
        <translation>%1 で文書を読み込めません</translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 がインストールされていません</translation>
    </message>
    <message>
        <source>The PDF file cannot be created: %1.</source>
        <translation>PDF ファイルを作成できません: %1。</translation>
    </message>
    <message>
        <source>“%1” cannot be converted to PDF: %2.</source>
        <translation>「%1」を PDF ファイルにできません: %2。</translation>
    </message>
</context>
<context>
    <name>host::PresetDialog</name>
    <message>
        <source>Keep &amp;passwords and codes as well</source>
        <translation>パスワードとコードも保存する(&amp;P)</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>設定の保存</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>プリセットの名前の変更</translation>
    </message>
    <message>
        <source>&amp;Name of the preset:</source>
        <translation>プリセットの名前(&amp;N):</translation>
    </message>
    <message>
        <source>Other users of this computer may be able to read them in the preset file.</source>
        <translation>このコンピューターのほかのユーザーが、プリセットのファイルから読み取る可能性があります。</translation>
    </message>
    <message>
        <source>The preset of this name will be replaced.</source>
        <translation>この名前の既存のプリセットは置き換えられます。</translation>
    </message>
    <message>
        <source>There is already a preset of this name.</source>
        <translation>この名前のプリセットはすでにあります。</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>置き換え(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>名前を変更(&amp;R)</translation>
    </message>
</context>
<context>
    <name>host::PresetMenu</name>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直し(&amp;R)</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>既定値</translation>
    </message>
    <message>
        <source>Printer’s Defaults</source>
        <translation>プリンターの既定値</translation>
    </message>
    <message>
        <source>My Defaults</source>
        <translation>ユーザーの既定値</translation>
    </message>
    <message>
        <source>Last Used</source>
        <translation>前回の設定</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <comment>the name of settings</comment>
        <translation>%1 (変更あり)</translation>
    </message>
    <message>
        <source>&amp;Settings: %1</source>
        <translation>設定(&amp;S): %1</translation>
    </message>
    <message>
        <source>Save “%1”</source>
        <translation>「%1」を保存</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>名前を付けて保存(&amp;A)…</translation>
    </message>
    <message>
        <source>Rename “%1”…</source>
        <translation>「%1」の名前を変更…</translation>
    </message>
    <message>
        <source>Delete “%1”…</source>
        <translation>「%1」を削除…</translation>
    </message>
    <message>
        <source>Use as My &amp;Default for This Printer</source>
        <translation>このプリンターのユーザーの既定値にする(&amp;D)</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>プリセットの削除</translation>
    </message>
    <message>
        <source>Delete the preset “%1”? Other programs use it as well.</source>
        <translation>プリセット「%1」を削除しますか? このプリセットはほかのプログラムでも使用されます。</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
</context>
<context>
    <name>host::Preview</name>
    <message>
        <source>the document is read when it is printed</source>
        <translation>文書は印刷時に読み込まれます</translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 がインストールされていません</translation>
    </message>
    <message>
        <source>the pages cannot be counted</source>
        <translation>ページ数を確認できません</translation>
    </message>
    <message>
        <source>%1 cannot read the document</source>
        <translation>%1 で文書を読み込めません</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <translation>%1 が失敗しました: %2</translation>
    </message>
</context>
<context>
    <name>host::PreviewDialog</name>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
</context>
<context>
    <name>host::PreviewPane</name>
    <message>
        <source>Previous page</source>
        <translation>前のページ</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>次のページ</translation>
    </message>
    <message>
        <source>No preview: %1.</source>
        <translation>プレビューなし: %1。</translation>
    </message>
    <message>
        <source>This page cannot be shown.</source>
        <translation>このページは表示できません。</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>ページ %1 / %2</translation>
    </message>
    <message>
        <source>Sheet %1, front</source>
        <translation>%1 枚目 表</translation>
    </message>
    <message>
        <source>Sheet %1, back</source>
        <translation>%1 枚目 裏</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>Shown as in the document</source>
        <translation>文書のとおりに表示しています</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>印刷されません</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>The size relative to the whole page</source>
        <translation>ページ全体の表示を 1 とする倍率</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>action, keys</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1×</source>
        <comment>magnification</comment>
        <translation>%1 倍</translation>
    </message>
</context>
<context>
    <name>host::PreviewSheet</name>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
</context>
<context>
    <name>host::PreviewStrip</name>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Click the check box to leave this page out</source>
        <translation>チェックボックスをクリックすると、このページを除外します</translation>
    </message>
    <message>
        <source>This page is not printed</source>
        <translation>このページは印刷されません</translation>
    </message>
</context>
<context>
    <name>host::PrintModePage</name>
    <message>
        <source>Password:</source>
        <translation>パスワード：</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>アカウント：</translation>
    </message>
    <message>
        <source>Account user:</source>
        <translation>アカウントのユーザー：</translation>
    </message>
    <message>
        <source>The printer keeps a job with a password until the password is entered at its control panel. Password and account are sent with the job, and not stored.</source>
        <translation>パスワード付きのジョブは、操作パネルでパスワードが入力されるまでプリンターに保留されます。パスワードとアカウントはジョブと一緒に送信され、保存されません。</translation>
    </message>
</context>
<context>
    <name>host::PrintWindow</name>
    <message>
        <source>Cance&amp;l</source>
        <translation>キャンセル(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>印刷(&amp;P)</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>There is no pane called “%1”.</source>
        <translation>「%1」という名前のペインはありません。</translation>
    </message>
    <message>
        <source>There is no document or no printer to print it on</source>
        <translation>印刷する文書またはプリンターがありません</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>%1の印刷</translation>
    </message>
    <message>
        <source>Asking the print server…</source>
        <translation>プリントサーバーに問い合わせています…</translation>
    </message>
    <message>
        <source>Do &amp;Not Wait</source>
        <translation>待機をやめる(&amp;E)</translation>
    </message>
    <message>
        <source>The print server has not responded yet.</source>
        <translation>プリントサーバーからまだ応答がありません。</translation>
    </message>
    <message>
        <source>The document will be printed when the printer has responded.</source>
        <translation>プリンターが応答したら文書を印刷します。</translation>
    </message>
</context>
<context>
    <name>host::PrinterBox</name>
    <message>
        <source>Search by name or location</source>
        <translation>名前または場所で検索</translation>
    </message>
    <message>
        <source>Search printers</source>
        <translation>プリンターを検索</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>Looking for printers on the network…</source>
        <translation>ネットワーク上のプリンターを探しています…</translation>
    </message>
    <message>
        <source>&amp;Add Printer…</source>
        <translation>プリンターを追加(&amp;A)…</translation>
    </message>
</context>
<context>
    <name>host::PrinterPicker</name>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>Pri&amp;nter:</source>
        <translation>プリンター(&amp;N):</translation>
    </message>
    <message>
        <source>Options of a PPD file; there is no printer to print on</source>
        <translation>PPD ファイルのオプションです。印刷できるプリンターはありません</translation>
    </message>
    <message>
        <source>The printer settings of the desktop cannot be opened</source>
        <translation>デスクトップのプリンター設定を開けません</translation>
    </message>
</context>
<context>
    <name>host::RangeCheck</name>
    <message numerus="yes">
        <source>The longest document, “%1”, has only %n printed sides.</source>
        <translation>
            <numerusform>最も長い文書「%1」の印刷面は %n 面だけです。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The longest document, “%1”, has only %n pages.</source>
        <translation>
            <numerusform>最も長い文書「%1」は %n ページだけです。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are only %n printed sides.</source>
        <translation>
            <numerusform>印刷面は %n 面だけです。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The document has only %n pages.</source>
        <translation>
            <numerusform>文書は %n ページだけです。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::ReasonText</name>
    <message>
        <source>The printer is out of paper.</source>
        <translation>プリンターの用紙がなくなりました。</translation>
    </message>
    <message>
        <source>The paper is running low.</source>
        <translation>用紙が残りわずかです。</translation>
    </message>
    <message>
        <source>Paper is jammed in the printer.</source>
        <translation>プリンターで用紙が詰まっています。</translation>
    </message>
    <message>
        <source>The printer is out of toner.</source>
        <translation>プリンターのトナーがなくなりました。</translation>
    </message>
    <message>
        <source>The toner is running low.</source>
        <translation>トナーが残りわずかです。</translation>
    </message>
    <message>
        <source>A cover of the printer is open.</source>
        <translation>プリンターのカバーが開いています。</translation>
    </message>
    <message>
        <source>A paper tray is missing.</source>
        <translation>給紙トレイがありません。</translation>
    </message>
    <message>
        <source>The output tray is full.</source>
        <translation>排紙トレイがいっぱいです。</translation>
    </message>
    <message>
        <source>The printer is switched off or not connected.</source>
        <translation>プリンターの電源が入っていないか、接続されていません。</translation>
    </message>
    <message>
        <source>The printer does not respond.</source>
        <translation>プリンターが応答しません。</translation>
    </message>
    <message>
        <source>Connecting to the printer.</source>
        <translation>プリンターに接続しています。</translation>
    </message>
    <message>
        <source>The print server is out of space.</source>
        <translation>プリントサーバーの空き容量がありません。</translation>
    </message>
    <message>
        <source>The print server lacks a program for this printer.</source>
        <translation>プリントサーバーに、このプリンターに必要なプログラムがありません。</translation>
    </message>
    <message>
        <source>The print server does not trust a program for this printer.</source>
        <translation>プリントサーバーは、このプリンター用のプログラムを信頼していません。</translation>
    </message>
</context>
<context>
    <name>host::ResultPage</name>
    <message>
        <source>Sent to “%1”</source>
        <translation>「%1」に送信しました</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>ジョブ %1: %2</translation>
    </message>
    <message>
        <source>Perhaps sent to “%1”</source>
        <translation>「%1」に送信した可能性があります</translation>
    </message>
    <message>
        <source>A private job is printed once you enter its password at the printer “%1”.</source>
        <translation>プライベート印刷のジョブは、プリンター「%1」でパスワードを入力すると印刷されます。</translation>
    </message>
    <message>
        <source>Cancel &amp;Job</source>
        <translation>ジョブをキャンセル(&amp;J)</translation>
    </message>
    <message>
        <source>Print &amp;Again</source>
        <translation>もう一度印刷(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Hold</source>
        <translation>保留(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Release</source>
        <translation>保留を解除(&amp;R)</translation>
    </message>
    <message>
        <source>Pages printed so far: %1</source>
        <translation>印刷済みのページ数: %1</translation>
    </message>
    <message>
        <source>Sent before:</source>
        <translation>前に送ったもの:</translation>
    </message>
    <message>
        <source>Pages printed: %1</source>
        <translation>印刷したページ数: %1</translation>
    </message>
    <message>
        <source>Print: %1</source>
        <comment>a time of day, or words such as: at night</comment>
        <translation>印刷: %1</translation>
    </message>
</context>
<context>
    <name>host::SearchBar</name>
    <message>
        <source>Find a setting</source>
        <translation>設定を検索</translation>
    </message>
    <message>
        <source>Type the name of a setting, in your own words or as the printer driver has it. Press Return to go to the setting.</source>
        <translation>設定の名前を入力します。自分の言葉でも、プリンタードライバーでの名称でもかまいません。Enter キーを押すとその設定に移動します。</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>見つかりませんでした</translation>
    </message>
    <message>
        <source>Close the search</source>
        <translation>検索を閉じる</translation>
    </message>
    <message>
        <source>Settings found</source>
        <translation>見つかった設定</translation>
    </message>
    <message numerus="yes">
        <source>%n settings found</source>
        <translation>
            <numerusform>%n 個の設定が見つかりました</numerusform>
        </translation>
    </message>
    <message>
        <source>Closes the search. The settings do not change.</source>
        <translation>検索を閉じます。設定は変わりません。</translation>
    </message>
    <message>
        <source>The settings that were found, each with its page. Press Return to go to the setting.</source>
        <translation>見つかった設定とそのページです。Enter キーを押すとその設定に移動します。</translation>
    </message>
</context>
<context>
    <name>host::SessionMessages</name>
    <message>
        <source>Please note</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>Password missing</source>
        <translation>パスワードが入力されていません</translation>
    </message>
    <message>
        <source>Code missing</source>
        <translation>コードが入力されていません</translation>
    </message>
    <message>
        <source>Use Without Pass&amp;word</source>
        <translation>パスワードなしで使用(&amp;W)</translation>
    </message>
    <message>
        <source>Use &amp;Without Code</source>
        <translation>コードなしで使用(&amp;W)</translation>
    </message>
    <message>
        <source>Print Without Pass&amp;word</source>
        <translation>パスワードなしで印刷(&amp;W)</translation>
    </message>
    <message>
        <source>Print &amp;Without Code</source>
        <translation>コードなしで印刷(&amp;W)</translation>
    </message>
    <message>
        <source>Keep and Re&amp;view</source>
        <translation>そのまま確認(&amp;V)</translation>
    </message>
    <message>
        <source>Paper not loaded in the printer</source>
        <translation>プリンターにセットされていない用紙</translation>
    </message>
</context>
<context>
    <name>host::SessionPanels</name>
    <message>
        <source>“%1” could not be prepared: %2</source>
        <translation>「%1」を準備できませんでした: %2</translation>
    </message>
    <message>
        <source>The settings of “%1” could not be saved: %2</source>
        <translation>「%1」の設定を保存できませんでした: %2</translation>
    </message>
</context>
<context>
    <name>host::SummaryPage</name>
    <message>
        <source>S&amp;how changes only</source>
        <translation>変更のみ表示(&amp;H)</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <comment>what it was, what it is</comment>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>変更済み</translation>
    </message>
    <message>
        <source>Nothing has been changed.</source>
        <translation>変更された設定はありません。</translation>
    </message>
</context>
<context>
    <name>host::UnavailablePage</name>
    <message>
        <source>&amp;Try Again</source>
        <translation>再試行(&amp;T)</translation>
    </message>
</context>
<context>
    <name>host::WaitSign</name>
    <message>
        <source>Do &amp;Not Wait</source>
        <translation>待機をやめる(&amp;E)</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
</context>
<context>
    <name>host::WaitingPage</name>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>an amount of data, of the whole</comment>
        <translation>%1 / %2</translation>
    </message>
</context>
</TS>
