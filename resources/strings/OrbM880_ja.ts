<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>ColorSettings1</name>
    <message>
        <source>Color &amp;Mode:</source>
        <translation>カラーモード(&amp;M):</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>カラーモード</translation>
    </message>
    <message>
        <source>In which colors the job is printed</source>
        <translation>ジョブの印刷に使う色</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>解像度(&amp;R):</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>How fine the dots are</source>
        <translation>印刷ドットの細かさ</translation>
    </message>
    <message>
        <source>&amp;Halftone:</source>
        <translation>ハーフトーン(&amp;H):</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>ハーフトーン</translation>
    </message>
    <message>
        <source>How shades are made of dots</source>
        <translation>濃淡をドットで表す方法</translation>
    </message>
    <message>
        <source>Toner &amp;Save</source>
        <translation>トナーセーブ(&amp;S)</translation>
    </message>
    <message>
        <source>Prints paler to use less toner</source>
        <translation>薄めに印刷してトナーを節約します</translation>
    </message>
    <message>
        <source>&amp;Image Type:</source>
        <translation>画像タイプ(&amp;I):</translation>
    </message>
    <message>
        <source>Image Type</source>
        <translation>画像タイプ</translation>
    </message>
    <message>
        <source>What the pages mostly show</source>
        <translation>ページの主な内容</translation>
    </message>
    <message>
        <source>Color Pro&amp;files…</source>
        <translation>カラープロファイル(&amp;F)…</translation>
    </message>
    <message>
        <source>The printer’s color profiles</source>
        <translation>プリンターのカラープロファイル</translation>
    </message>
    <message>
        <source>Black &amp;Overprint:</source>
        <translation>ブラックオーバープリント(&amp;O):</translation>
    </message>
    <message>
        <source>Black Overprint</source>
        <translation>ブラックオーバープリント</translation>
    </message>
    <message>
        <source>Prints black text over colors instead of leaving them out below it</source>
        <translation>黒い文字の下の色を抜かずに重ねて印刷します</translation>
    </message>
    <message>
        <source>Pure Black and &amp;Gray:</source>
        <translation>ピュアブラック・グレー(&amp;G):</translation>
    </message>
    <message>
        <source>Pure Black and Gray</source>
        <translation>ピュアブラック・グレー</translation>
    </message>
    <message>
        <source>What is printed with black toner alone</source>
        <translation>黒トナーだけで印刷する対象</translation>
    </message>
    <message>
        <source>‹ &amp;Back</source>
        <translation>‹ 戻る(&amp;B)</translation>
    </message>
    <message>
        <source>Back to the basic color settings</source>
        <translation>基本のカラー設定に戻ります</translation>
    </message>
    <message>
        <source>Color Profiles</source>
        <translation>カラープロファイル</translation>
    </message>
    <message>
        <source>&amp;RGB source:</source>
        <translation>RGB ソース(&amp;R):</translation>
    </message>
    <message>
        <source>RGB source profile</source>
        <translation>RGB ソースプロファイル</translation>
    </message>
    <message>
        <source>How the job’s RGB colors are meant</source>
        <translation>ジョブの RGB カラーの解釈</translation>
    </message>
    <message>
        <source>Profile %1</source>
        <translation>プロファイル %1</translation>
    </message>
    <message>
        <source>&amp;CMYK source:</source>
        <translation>CMYK ソース(&amp;C):</translation>
    </message>
    <message>
        <source>CMYK source profile</source>
        <translation>CMYK ソースプロファイル</translation>
    </message>
    <message>
        <source>How the job’s CMYK colors are meant</source>
        <translation>ジョブの CMYK カラーの解釈</translation>
    </message>
    <message>
        <source>CMYK &amp;destination:</source>
        <translation>CMYK 出力先(&amp;D):</translation>
    </message>
    <message>
        <source>CMYK destination profile</source>
        <translation>CMYK 出力プロファイル</translation>
    </message>
    <message>
        <source>The paper and toners that the colors are converted for</source>
        <translation>色の変換先となる用紙とトナー</translation>
    </message>
    <message>
        <source>Rendering &amp;intent:</source>
        <translation>レンダリングインテント(&amp;I):</translation>
    </message>
    <message>
        <source>Rendering intent</source>
        <translation>レンダリングインテント</translation>
    </message>
    <message>
        <source>What happens to colors that the printer cannot print</source>
        <translation>プリンターで再現できない色の扱い</translation>
    </message>
    <message>
        <source>Intent %1</source>
        <translation>インテント %1</translation>
    </message>
    <message>
        <source>&amp;Apply to device colors only</source>
        <translation>デバイスカラーのみに適用(&amp;A)</translation>
    </message>
    <message>
        <source>Leaves colors alone that bring a profile of their own</source>
        <translation>独自のプロファイルを持つ色には適用しません</translation>
    </message>
    <message>
        <source>Re&amp;load from Printer</source>
        <translation>プリンターから再読み込み(&amp;L)</translation>
    </message>
    <message>
        <source>Asks the printer again for its profiles and defaults.</source>
        <translation>プロファイルと既定値をもう一度プリンターに問い合わせます。</translation>
    </message>
</context>
<context>
    <name>ColorSettings2</name>
    <message>
        <source>Color Balance</source>
        <translation>カラーバランス</translation>
    </message>
    <message>
        <source>Image Quality</source>
        <translation>画質</translation>
    </message>
    <message>
        <source>&amp;Cyan:</source>
        <translation>シアン(&amp;C):</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>シアン</translation>
    </message>
    <message>
        <source>Cyan back to neutral</source>
        <translation>シアンをニュートラルに戻す</translation>
    </message>
    <message>
        <source>&amp;Magenta:</source>
        <translation>マゼンタ(&amp;M):</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>マゼンタ</translation>
    </message>
    <message>
        <source>Magenta back to neutral</source>
        <translation>マゼンタをニュートラルに戻す</translation>
    </message>
    <message>
        <source>&amp;Yellow:</source>
        <translation>イエロー(&amp;Y):</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>イエロー</translation>
    </message>
    <message>
        <source>Yellow back to neutral</source>
        <translation>イエローをニュートラルに戻す</translation>
    </message>
    <message>
        <source>Blac&amp;k:</source>
        <translation>ブラック(&amp;K):</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>ブラック</translation>
    </message>
    <message>
        <source>Black back to neutral</source>
        <translation>ブラックをニュートラルに戻す</translation>
    </message>
    <message>
        <source>&amp;Sharpness:</source>
        <translation>シャープネス(&amp;S):</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>シャープネス</translation>
    </message>
    <message>
        <source>Sharpness back to neutral</source>
        <translation>シャープネスをニュートラルに戻す</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>明るさ(&amp;B):</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Brightness back to neutral</source>
        <translation>明るさをニュートラルに戻す</translation>
    </message>
    <message>
        <source>C&amp;ontrast:</source>
        <translation>コントラスト(&amp;O):</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>コントラスト</translation>
    </message>
    <message>
        <source>Contrast back to neutral</source>
        <translation>コントラストをニュートラルに戻す</translation>
    </message>
    <message>
        <source>Sat&amp;uration:</source>
        <translation>彩度(&amp;U):</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>Saturation back to neutral</source>
        <translation>彩度をニュートラルに戻す</translation>
    </message>
    <message>
        <source>Back&amp;ground:</source>
        <translation>背景(&amp;G):</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Background back to neutral</source>
        <translation>背景をニュートラルに戻す</translation>
    </message>
    <message>
        <source>Less or more cyan toner</source>
        <translation>シアントナーを減らす、または増やす</translation>
    </message>
    <message>
        <source>Less or more magenta toner</source>
        <translation>マゼンタトナーを減らす、または増やす</translation>
    </message>
    <message>
        <source>Less or more yellow toner</source>
        <translation>イエロートナーを減らす、または増やす</translation>
    </message>
    <message>
        <source>Less or more black toner</source>
        <translation>ブラックトナーを減らす、または増やす</translation>
    </message>
    <message>
        <source>Softer or sharper edges</source>
        <translation>輪郭をやわらかく、またはくっきりと</translation>
    </message>
    <message>
        <source>Darker or brighter</source>
        <translation>暗く、または明るく</translation>
    </message>
    <message>
        <source>Flatter or richer in contrast</source>
        <translation>コントラストを弱く、または強く</translation>
    </message>
    <message>
        <source>Paler or stronger colors</source>
        <translation>色を淡く、または鮮やかに</translation>
    </message>
    <message>
        <source>Lighter or darker page background</source>
        <translation>ページの背景を明るく、または暗く</translation>
    </message>
    <message>
        <source>Back to neutral</source>
        <translation>ニュートラルに戻す</translation>
    </message>
    <message>
        <source>&amp;Reset All</source>
        <translation>すべてリセット(&amp;R)</translation>
    </message>
    <message>
        <source>Takes every slider back to neutral</source>
        <translation>すべてのスライダーをニュートラルに戻します</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Print Mode</source>
        <translation>印刷モード</translation>
    </message>
    <message>
        <source>Color Settings 1</source>
        <translation>カラー設定 1</translation>
    </message>
    <message>
        <source>Color Settings 2</source>
        <translation>カラー設定 2</translation>
    </message>
    <message>
        <source>RenderingIntent:0</source>
        <translation>知覚的</translation>
    </message>
    <message>
        <source>RenderingIntent:1</source>
        <translation>相対的な色域を維持</translation>
    </message>
    <message>
        <source>RenderingIntent:2</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>RenderingIntent:3</source>
        <translation>絶対的な色域を維持</translation>
    </message>
    <message>
        <source>AskingPrinter</source>
        <translation>プリンターにカラープロファイルを問い合わせています…</translation>
    </message>
    <message>
        <source>SNMPCannotConnect</source>
        <translation>プリンターに接続できないため、カラープロファイルを取得できません。プリンターの電源と接続を確認してから、「プリンターから再読み込み」を選んでください。</translation>
    </message>
    <message>
        <source>SNMPArchMismatch</source>
        <translation>カラープロファイルの取得に必要なソフトウェア（net-snmp）がこのコンピューターで使用できません。管理者にインストールを依頼してください。</translation>
    </message>
    <message>
        <source>SNMPUnknownError</source>
        <translation>プリンターからの応答を解釈できないため、カラープロファイルを取得できません。「プリンターから再読み込み」を選んでください。解決しない場合は、管理者に問い合わせてください。</translation>
    </message>
    <message>
        <source>PrintMode</source>
        <translation>印刷モード</translation>
    </message>
    <message>
        <source>PrintMode:Normal</source>
        <translation>通常印刷</translation>
    </message>
    <message>
        <source>PrintMode:Private</source>
        <translation>プライベート印刷</translation>
    </message>
    <message>
        <source>PrintMode:Proof</source>
        <translation>試し印刷</translation>
    </message>
    <message>
        <source>PrintMode:Hold</source>
        <translation>ホールド印刷</translation>
    </message>
    <message>
        <source>DistinguishThinLines</source>
        <translation>細線を強調</translation>
    </message>
    <message>
        <source>DistinguishThinLines:False</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>DistinguishThinLines:True</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>BlankPage</source>
        <translation>白紙ページを印刷しない</translation>
    </message>
    <message>
        <source>BlankPage:False</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>BlankPage:True</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>DeptCode</source>
        <translation>部門コード</translation>
    </message>
    <message>
        <source>DeptCode:False</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>DeptCode:True</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>ColorType</source>
        <translation>カラーモード</translation>
    </message>
    <message>
        <source>ColorType:Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>ColorType:Color</source>
        <translation>フルカラー</translation>
    </message>
    <message>
        <source>ColorType:Mono</source>
        <translation>モノクロ</translation>
    </message>
    <message>
        <source>ColorType:Twin</source>
        <translation>2色カラー</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>ハーフトーン</translation>
    </message>
    <message>
        <source>Halftone:Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Halftone:Detail</source>
        <translation>精細</translation>
    </message>
    <message>
        <source>Halftone:Smooth</source>
        <translation>なめらか</translation>
    </message>
    <message>
        <source>TonerSave</source>
        <translation>トナーセーブ</translation>
    </message>
    <message>
        <source>TonerSave:False</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>TonerSave:True</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>ImageType</source>
        <translation>画像タイプ</translation>
    </message>
    <message>
        <source>ImageType:General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>ImageType:Photo</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>ImageType:Presentation</source>
        <translation>プレゼンテーション</translation>
    </message>
    <message>
        <source>ImageType:LineArt</source>
        <translation>線画</translation>
    </message>
    <message>
        <source>ImageType:Advanced</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>BlackOverPrint</source>
        <translation>ブラックオーバープリント</translation>
    </message>
    <message>
        <source>BlackOverPrint:False</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>BlackOverPrint:True</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>PureBlackGray</source>
        <translation>ピュアブラック・グレー</translation>
    </message>
    <message>
        <source>PureBlackGray:Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>PureBlackGray:BlackGray</source>
        <translation>黒とグレー</translation>
    </message>
    <message>
        <source>PureBlackGray:Black</source>
        <translation>黒のみ</translation>
    </message>
    <message>
        <source>PureBlackGray:Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Resolution:600dpi</source>
        <translation>600 dpi</translation>
    </message>
    <message>
        <source>Resolution:1200dpi</source>
        <translation>1200 dpi</translation>
    </message>
    <message>
        <source>ColorBalanceCyan</source>
        <translation>シアン</translation>
    </message>
    <message>
        <source>ColorBalanceMagenta</source>
        <translation>マゼンタ</translation>
    </message>
    <message>
        <source>ColorBalanceYellow</source>
        <translation>イエロー</translation>
    </message>
    <message>
        <source>ColorBalanceBlack</source>
        <translation>ブラック</translation>
    </message>
    <message>
        <source>SharpnessVRN</source>
        <translation>シャープネス</translation>
    </message>
    <message>
        <source>BrightnessVRN</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>ContrastVRN</source>
        <translation>コントラスト</translation>
    </message>
    <message>
        <source>SaturationVRN</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>BackgroundAdjustmentVRN</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>PrintMode?</source>
        <translation>届いたジョブをプリンターがどう扱うかを選びます。すぐに印刷する、パスワードが入力されるまで保管する、確認用に 1 部だけ印刷する、または保留します。</translation>
    </message>
    <message>
        <source>privatePassword?</source>
        <translation>好きな 5 桁の数字です。プリンターの操作パネルで同じ数字を入力するまで、ジョブはプリンターに保管されます。</translation>
    </message>
    <message>
        <source>DeptCode?</source>
        <translation>ページを部門に計上するかどうかを選びます。プリンターがコードを求める場合はオンにします。</translation>
    </message>
    <message>
        <source>departmentCode?</source>
        <translation>ページを計上する部門の 5 桁の数字です。管理者に確認してください。</translation>
    </message>
    <message>
        <source>DistinguishThinLines?</source>
        <translation>製図などのごく細い線を、かすれたりつながったりしないように印刷します。文字や画像は変わりません。</translation>
    </message>
    <message>
        <source>BlankPage?</source>
        <translation>何も印刷されていないページを飛ばし、用紙を節約します。</translation>
    </message>
    <message>
        <source>ColorType?</source>
        <translation>ジョブを何色で印刷するかを選びます。自動ではページごとに判断します。白黒が最も安価です。</translation>
    </message>
    <message>
        <source>Resolution?</source>
        <translation>ドットの細かさです。解像度を上げると小さな文字や線が鮮明になりますが、時間がかかることがあります。</translation>
    </message>
    <message>
        <source>Halftone?</source>
        <translation>色の濃淡を点でどう表すかを選びます。文字や線の細部には細かく、写真やグラデーションには滑らかに表します。</translation>
    </message>
    <message>
        <source>TonerSave?</source>
        <translation>薄く印刷してトナーの消費を抑えます。下書き向きで、保存する文書には向きません。</translation>
    </message>
    <message>
        <source>ImageType?</source>
        <translation>ページの主な内容です。それに合わせて色を調整します。「詳細」ではカラープロファイルを自分で選べます。</translation>
    </message>
    <message>
        <source>BlackOverPrint?</source>
        <translation>黒い文字を下の色に重ねて印刷します。文字の部分を白く抜かないので、明るい縁が出ません。</translation>
    </message>
    <message>
        <source>PureBlackGray?</source>
        <translation>黒、または黒とグレーを黒トナーだけで印刷します。文字や表に色味が付きません。</translation>
    </message>
    <message>
        <source>ColorBalanceCyan?</source>
        <translation>シアンを増減します。増やすと寒色寄りに、減らすと赤みが強くなります。</translation>
    </message>
    <message>
        <source>ColorBalanceMagenta?</source>
        <translation>マゼンタを増減します。増やすとピンク寄りに、減らすと緑みが強くなります。</translation>
    </message>
    <message>
        <source>ColorBalanceYellow?</source>
        <translation>イエローを増減します。増やすと暖色寄りに、減らすと青みが強くなります。</translation>
    </message>
    <message>
        <source>ColorBalanceBlack?</source>
        <translation>ブラックを増減します。増やすと暗部が濃く、減らすと明るくなります。</translation>
    </message>
    <message>
        <source>SharpnessVRN?</source>
        <translation>輪郭をどれだけはっきりさせるかです。強めると細部が出て、弱めると写真のノイズが目立たなくなります。</translation>
    </message>
    <message>
        <source>BrightnessVRN?</source>
        <translation>ページ全体を明るく、または暗くします。</translation>
    </message>
    <message>
        <source>ContrastVRN?</source>
        <translation>明るい部分と暗い部分の差です。強すぎると、最も明るい所と暗い所の細部が失われます。</translation>
    </message>
    <message>
        <source>SaturationVRN?</source>
        <translation>色の強さです。下げると灰色に近づき、上げると鮮やかになります。</translation>
    </message>
    <message>
        <source>BackgroundAdjustmentVRN?</source>
        <translation>色の付いた背景をどれだけ濃く印刷するかです。スキャンしたページの地色が灰色に写るときは下げます。</translation>
    </message>
    <message>
        <source>selectedRgbSourceProfile?</source>
        <translation>文書に含まれる画面やカメラの色を表すプロファイルです。プロファイルはプリンターに保存されています。</translation>
    </message>
    <message>
        <source>selectedCmykSourceProfile?</source>
        <translation>文書に含まれるインクの色を、印刷機での再現として表すプロファイルです。</translation>
    </message>
    <message>
        <source>selectedCmykDestinationProfile?</source>
        <translation>プリンターが使う用紙とトナーを表すプロファイルです。</translation>
    </message>
    <message>
        <source>renderingIntent?</source>
        <translation>プリンターで再現できない色の扱いです。画像全体を合わせるか、その色だけを合わせるかを選びます。</translation>
    </message>
    <message>
        <source>applyToDeviceColorOnly?</source>
        <translation>プロファイルを持たない色にだけ、これらのプロファイルを使います。</translation>
    </message>
</context>
<context>
    <name>PrintMode</name>
    <message>
        <source>Print &amp;Mode:</source>
        <translation>印刷モード(&amp;M):</translation>
    </message>
    <message>
        <source>Print Mode</source>
        <translation>印刷モード</translation>
    </message>
    <message>
        <source>How the printer treats the job</source>
        <translation>プリンターでのジョブの扱い方</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>パスワード(&amp;W):</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Five digits that you enter at the printer to release a private job</source>
        <translation>プライベート印刷を実行するときにプリンターで入力する5桁の数字</translation>
    </message>
    <message>
        <source>Enter it at the printer to release the job.</source>
        <translation>印刷を実行するときにプリンターで入力します。</translation>
    </message>
    <message>
        <source>&amp;Department Code:</source>
        <translation>部門コード(&amp;D):</translation>
    </message>
    <message>
        <source>Department Code</source>
        <translation>部門コード</translation>
    </message>
    <message>
        <source>Whether the job is charged to the department below</source>
        <translation>ジョブを下の部門に計上するかどうか</translation>
    </message>
    <message>
        <source>C&amp;ode:</source>
        <translation>コード(&amp;O):</translation>
    </message>
    <message>
        <source>Department code digits</source>
        <translation>部門コードの数字</translation>
    </message>
    <message>
        <source>Five digits of the department that the job is charged to</source>
        <translation>ジョブを計上する部門の5桁の数字</translation>
    </message>
    <message>
        <source>Distinguish &amp;Thin Lines:</source>
        <translation>細線を強調(&amp;T):</translation>
    </message>
    <message>
        <source>Distinguish Thin Lines</source>
        <translation>細線を強調</translation>
    </message>
    <message>
        <source>Keeps very thin lines apart and visible</source>
        <translation>ごく細い線を分離して見やすく印刷します</translation>
    </message>
    <message>
        <source>Skip &amp;Blank Pages:</source>
        <translation>白紙ページを印刷しない(&amp;B):</translation>
    </message>
    <message>
        <source>Skip Blank Pages</source>
        <translation>白紙ページを印刷しない</translation>
    </message>
    <message>
        <source>Leaves out pages that nothing is printed on</source>
        <translation>何も印刷されないページを省きます</translation>
    </message>
</context>
<context>
    <name>QVPDEColorSettings2_M880</name>
    <message>
        <source>Color balance is not available while &quot;%1&quot; is &quot;%2&quot;.</source>
        <translation>「%1」が「%2」のときは、カラーバランスを調整できません。</translation>
    </message>
</context>
<context>
    <name>QVPopUpButton_M880</name>
    <message>
        <source>Not available while &quot;%1&quot; is &quot;%2&quot;.</source>
        <translation>「%1」が「%2」のときは選択できません。</translation>
    </message>
</context>
</TS>
