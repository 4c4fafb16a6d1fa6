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
        <source>The same with the value read from a file&apos;s first line.</source>
        <translation>同上。値はファイルの 1 行目から読み込みます。</translation>
    </message>
    <message>
        <source>NAME=VALUE</source>
        <translation>名前=値</translation>
    </message>
    <message>
        <source>The same; names unknown here are handed to the print system.</source>
        <translation>同上。ここで不明な名前は印刷システムに渡します。</translation>
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
        <source>Open the dialog at this pane: general, more, summary, or a panel&apos;s name or kind.</source>
        <translation>このペインでダイアログを開きます: general、more、summary、またはパネルの名前か種類。</translation>
    </message>
    <message>
        <source>Write a picture of the dialog and exit.</source>
        <translation>ダイアログの画像を書き出して終了します。</translation>
    </message>
    <message>
        <source>Colors of the dialog: light or dark.</source>
        <translation>ダイアログの配色: light (明) または dark (暗)。</translation>
    </message>
    <message>
        <source>Open the dialog, write how long it took and exit.</source>
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
        <source>The file “%1” cannot be read: %2.</source>
        <translation>ファイル「%1」を読み込めません: %2。</translation>
    </message>
    <message>
        <source>“%1” is not of the form KEY=VALUE.</source>
        <translation>「%1」は「キー=値」の形式ではありません。</translation>
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
        <source>--batch and --screenshot do not go together.</source>
        <translation>--batch と --screenshot は併用できません。</translation>
    </message>
    <message>
        <source>--resolve goes with --batch or --summary.</source>
        <translation>--resolve は --batch または --summary と併用します。</translation>
    </message>
    <message>
        <source>--json goes with --batch, --summary or --list-options.</source>
        <translation>--json は --batch、--summary、--list-options のいずれかと併用します。</translation>
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
        <source>
Exit codes: 0 success, 1 failure, 2 wrong usage, 3 settings that cannot be used together,
4 canceled. The manual page kelmar-print(1) tells more.
</source>
        <translation>
終了コード: 0 成功、1 失敗、2 使い方の誤り、3 併用できない設定、
4 キャンセル。詳しくはマニュアル kelmar-print(1) を参照してください。
</translation>
    </message>
</context>
<context>
    <name>BatchText</name>
    <message>
        <source>%1: this printer has no “%2”.</source>
        <translation>%1: このプリンターには「%2」がありません。</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>標準入力</translation>
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
</context>
<context>
    <name>ExtensionsText</name>
    <message>
        <source>The print extension cannot be used: %1</source>
        <translation>印刷拡張機能を使用できません: %1</translation>
    </message>
</context>
<context>
    <name>JobText</name>
    <message>
        <source>There is no file “%1”.</source>
        <translation>ファイル「%1」がありません。</translation>
    </message>
    <message>
        <source>“%1” is a folder, not a document.</source>
        <translation>「%1」は文書ではなくフォルダーです。</translation>
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
        <source>No temporary file can be made: %1.</source>
        <translation>一時ファイルを作成できません: %1。</translation>
    </message>
    <message>
        <source>The temporary file “%1” cannot be written: %2.</source>
        <translation>一時ファイル「%1」に書き込めません: %2。</translation>
    </message>
    <message>
        <source>Nothing came from the standard input.</source>
        <translation>標準入力から何も届きませんでした。</translation>
    </message>
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
</context>
<context>
    <name>MainText</name>
    <message>
        <source>There is no display to open the dialog on. Use --batch to print without it.</source>
        <translation>ダイアログを表示する画面がありません。--batch を使うとダイアログなしで印刷できます。</translation>
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
</context>
<context>
    <name>PrintErrorText</name>
    <message>
        <source>There is no printer called “%1”.</source>
        <translation>「%1」という名前のプリンターはありません。</translation>
    </message>
    <message>
        <source>No printer has been set up.</source>
        <translation>プリンターが設定されていません。</translation>
    </message>
    <message>
        <source>The print server %1 cannot be reached.</source>
        <translation>プリントサーバー %1 に接続できません。</translation>
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
</context>
<context>
    <name>PrintSystemText</name>
    <message>
        <source>No default printer has been set; choose a printer by name.</source>
        <translation>既定のプリンターが設定されていません。プリンターを名前で指定してください。</translation>
    </message>
</context>
<context>
    <name>ResultText</name>
    <message>
        <source>These settings cannot be used together.</source>
        <translation>次の設定は併用できません。</translation>
    </message>
    <message>
        <source>Changed to end a conflict: %1</source>
        <translation>競合を解消するため変更しました: %1</translation>
    </message>
    <message>
        <source>Keys of the panels</source>
        <translation>パネルのキー</translation>
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
</context>
<context>
    <name>RunText</name>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
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
    <name>SettingText</name>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>%1 has no choice “%2”; it has %3.</source>
        <translation>%1 に選択肢「%2」はありません。選択肢: %3。</translation>
    </message>
    <message>
        <source>%1 takes %2 digits.</source>
        <translation>%1 には %2 桁の数字を指定してください。</translation>
    </message>
    <message>
        <source>%1 takes %2 characters, not %3.</source>
        <translation>%1 には %3 文字ではなく %2 文字を指定してください。</translation>
    </message>
    <message>
        <source>%1 does not take this value.</source>
        <translation>%1 にこの値は指定できません。</translation>
    </message>
    <message>
        <source>%1 does not take this value: %2 has only %3.</source>
        <translation>%1 にこの値は指定できません。%2 の選択肢は %3 だけです。</translation>
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
</context>
<context>
    <name>SubmitText</name>
    <message>
        <source>The printer “%1” is not accepting jobs at the moment.</source>
        <translation>プリンター「%1」は現在ジョブを受け付けていません。</translation>
    </message>
    <message>
        <source>“%1” cannot be printed: the printer “%2” does not take documents of the type %3.</source>
        <translation>「%1」は印刷できません: プリンター「%2」は種類 %3 の文書に対応していません。</translation>
    </message>
    <message>
        <source>The file “%1” cannot be read: %2.</source>
        <translation>ファイル「%1」を読み込めません: %2。</translation>
    </message>
    <message>
        <source>The print server did not take “%1”.</source>
        <translation>プリントサーバーは「%1」を受け付けませんでした。</translation>
    </message>
    <message>
        <source>The print server took another value for “%1” than was sent.</source>
        <translation>プリントサーバーは「%1」に送信した値とは別の値を採用しました。</translation>
    </message>
</context>
<context>
    <name>host::DialogSession</name>
    <message>
        <source>A page of the printer&apos;s settings cannot be shown: %1</source>
        <translation>プリンターの設定のページを表示できません: %1</translation>
    </message>
    <message>
        <source>“%1” could not be prepared: %2</source>
        <translation>「%1」を準備できませんでした: %2</translation>
    </message>
    <message>
        <source>The settings of “%1” could not be saved: %2</source>
        <translation>「%1」の設定を保存できませんでした: %2</translation>
    </message>
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
        <source>&amp;Printer:</source>
        <translation>プリンター(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>印刷(&amp;P)</translation>
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
        <source>Print each copy whole before the next one begins</source>
        <translation>1 部ずつ最後まで印刷してから次の部を印刷します</translation>
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
        <source>Type which pages are to be printed, or choose all.</source>
        <translation>印刷するページを入力するか、「すべて」を選んでください。</translation>
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
    <name>host::MorePage</name>
    <message>
        <source>&amp;Printer:</source>
        <translation>プリンター(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>印刷(&amp;P)</translation>
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
        <source>Not together with %1</source>
        <translation>%1 とは併用できません</translation>
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
</context>
<context>
    <name>host::PageList</name>
    <message>
        <source>Pages of the dialog</source>
        <translation>ダイアログのページ</translation>
    </message>
</context>
<context>
    <name>host::PrintWindow</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
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
        <source>Print “%1”</source>
        <translation>「%1」の印刷</translation>
    </message>
    <message>
        <source>There is no pane called “%1”.</source>
        <translation>「%1」という名前のペインはありません。</translation>
    </message>
    <message>
        <source>No printer has been set up.</source>
        <translation>プリンターが設定されていません。</translation>
    </message>
    <message>
        <source>There is no document or no printer to print it on</source>
        <translation>印刷する文書またはプリンターがありません</translation>
    </message>
    <message>
        <source>Please note</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>Suggestion: %1</source>
        <translation>提案: %1</translation>
    </message>
    <message>
        <source>App&amp;ly Suggestion</source>
        <translation>提案を適用(&amp;L)</translation>
    </message>
    <message>
        <source>Keep and Re&amp;view</source>
        <translation>そのまま確認(&amp;V)</translation>
    </message>
    <message>
        <source>These settings cannot be used together</source>
        <translation>次の設定は併用できません</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>標準入力</translation>
    </message>
    <message>
        <source>Sending the document to the print server…</source>
        <translation>文書をプリントサーバーに送信しています…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
</context>
<context>
    <name>host::PrinterPicker</name>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>プリンター(&amp;N):</translation>
    </message>
    <message>
        <source>Options of a PPD file; there is no printer to print on</source>
        <translation>PPD ファイルのオプションです。印刷できるプリンターはありません</translation>
    </message>
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
</context>
<context>
    <name>host::UnavailablePage</name>
    <message>
        <source>&amp;Try Again</source>
        <translation>再試行(&amp;T)</translation>
    </message>
</context>
</TS>
