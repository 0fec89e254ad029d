<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>DialogAbout</name>
    <message>
        <source>About</source>
        <translation>バージョン情報:</translation>
    </message>
    <message>
        <source>Kelvo</source>
        <translation>Kelvo</translation>
    </message>
    <message>
        <source>Made by &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</source>
        <translation>開発元: &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Leave Feedback</source>
        <translation>フィードバックを送る</translation>
    </message>
    <message>
        <source>version %1</source>
        <translation>バージョン %1</translation>
    </message>
</context>
<context>
    <name>DialogPreferences</name>
    <message>
        <source>Kelvo Preferences</source>
        <translation>Kelvo の設定</translation>
    </message>
    <message>
        <source>Main Window Style</source>
        <translation>メインウィンドウのスタイル</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>クラシック</translation>
    </message>
    <message>
        <source>Dark &amp;&amp; Translucent</source>
        <translation>ダーク (半透明)</translation>
    </message>
    <message>
        <source>Do not show window title bar</source>
        <translation>ウィンドウのタイトルバーを表示しない</translation>
    </message>
    <message>
        <source>Update frequency</source>
        <translation>更新間隔</translation>
    </message>
    <message>
        <source>2 seconds</source>
        <translation>2 秒</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 秒</translation>
    </message>
    <message>
        <source>Keep main window on top of other windows</source>
        <translation>メインウィンドウを常に手前に表示する</translation>
    </message>
    <message>
        <source>Show pie chart on menubar</source>
        <translation>メニューバーに円グラフを表示する</translation>
    </message>
    <message>
        <source>Monocolor pie chart</source>
        <translation>単色の円グラフ</translation>
    </message>
    <message>
        <source>Automatically launch Kelvo when I log in</source>
        <translation>ログイン時に Kelvo を自動的に起動する</translation>
    </message>
    <message>
        <source>Hide main window when Kelvo starts up</source>
        <translation>Kelvo の起動時にメインウィンドウを隠す</translation>
    </message>
    <message>
        <source>Automatically hide main window after freeing is completed</source>
        <translation>メモリの解放が完了したらメインウィンドウを自動的に隠す</translation>
    </message>
    <message>
        <source>Remind me to free memory when inactive memory </source>
        <translation>次の場合にメモリの解放を促す: </translation>
    </message>
    <message>
        <source>reaches over</source>
        <translation>非アクティブメモリが</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB を超えたとき</translation>
    </message>
    <message>
        <source>On Wayland, a program cannot keep its window on top.</source>
        <translation>Wayland では、アプリは自分のウィンドウを常に手前に表示することができません。</translation>
    </message>
</context>
<context>
    <name>DialogReminder</name>
    <message>
        <source>Kelvo</source>
        <translation>Kelvo</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Do Not Remind Me</source>
        <translation>今後は通知しない</translation>
    </message>
</context>
<context>
    <name>DialogStartUpInfo</name>
    <message>
        <source>Kelvo</source>
        <translation>Kelvo</translation>
    </message>
    <message>
        <source>&lt;!DOCTYPE HTML PUBLIC &quot;-//W3C//DTD HTML 4.0//EN&quot; &quot;http://www.w3.org/TR/REC-html40/strict.dtd&quot;&gt;
&lt;html&gt;&lt;head&gt;&lt;meta name=&quot;qrichtext&quot; content=&quot;1&quot; /&gt;&lt;style type=&quot;text/css&quot;&gt;
p, li { white-space: pre-wrap; }
&lt;/style&gt;&lt;/head&gt;&lt;body style=&quot; font-family:&apos;Lucida Grande&apos;; font-size:13pt; font-weight:400; font-style:normal;&quot;&gt;
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;NOTE&lt;/span&gt;: From this version on, Kelvo will be a menubar-only app and will not show icon on the Dock.  Look for icon &lt;img src=&quot;:/app16.png&quot; /&gt; or &lt;img src=&quot;:/piechart.png&quot; /&gt; on the menubar if you have not noticed it.&lt;/p&gt;
&lt;p&gt;This message will not show up again.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;!DOCTYPE HTML PUBLIC &quot;-//W3C//DTD HTML 4.0//EN&quot; &quot;http://www.w3.org/TR/REC-html40/strict.dtd&quot;&gt;
&lt;html&gt;&lt;head&gt;&lt;meta name=&quot;qrichtext&quot; content=&quot;1&quot; /&gt;&lt;style type=&quot;text/css&quot;&gt;
p, li { white-space: pre-wrap; }
&lt;/style&gt;&lt;/head&gt;&lt;body style=&quot; font-family:&apos;Lucida Grande&apos;; font-size:13pt; font-weight:400; font-style:normal;&quot;&gt;
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;注意&lt;/span&gt;: このバージョンから Kelvo はメニューバー専用のアプリになり、Dock にはアイコンが表示されません。まだお気づきでない場合は、メニューバーの &lt;img src=&quot;:/app16.png&quot; /&gt; または &lt;img src=&quot;:/piechart.png&quot; /&gt; アイコンを探してください。&lt;/p&gt;
&lt;p&gt;このメッセージは今後表示されません。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
</context>
<context>
    <name>DialogWarning</name>
    <message>
        <source>Kelvo</source>
        <translation>Kelvo</translation>
    </message>
    <message>
        <source>&lt;!DOCTYPE HTML PUBLIC &quot;-//W3C//DTD HTML 4.0//EN&quot; &quot;http://www.w3.org/TR/REC-html40/strict.dtd&quot;&gt;
&lt;html&gt;&lt;head&gt;&lt;meta name=&quot;qrichtext&quot; content=&quot;1&quot; /&gt;&lt;style type=&quot;text/css&quot;&gt;
p, li { white-space: pre-wrap; }
&lt;/style&gt;&lt;/head&gt;&lt;body style=&quot; font-family:&apos;Lucida Grande&apos;; font-size:13pt; font-weight:400; font-style:normal;&quot;&gt;
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Note&lt;/span&gt;: During memory freeing process, your system may appear to be non-responsive for a short period of time. This is normal behavior during memory re-organization process. It is recommended you do not start any other applications during that time. &lt;/p&gt;
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;The process may take up to one minute. In some occasion, you may need to run &amp;quot;Free Memory&amp;quot; a few times to shrink inactive memory to minimal size.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;!DOCTYPE HTML PUBLIC &quot;-//W3C//DTD HTML 4.0//EN&quot; &quot;http://www.w3.org/TR/REC-html40/strict.dtd&quot;&gt;
&lt;html&gt;&lt;head&gt;&lt;meta name=&quot;qrichtext&quot; content=&quot;1&quot; /&gt;&lt;style type=&quot;text/css&quot;&gt;
p, li { white-space: pre-wrap; }
&lt;/style&gt;&lt;/head&gt;&lt;body style=&quot; font-family:&apos;Lucida Grande&apos;; font-size:13pt; font-weight:400; font-style:normal;&quot;&gt;
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;注意&lt;/span&gt;: メモリの解放中は、しばらくの間システムが応答していないように見えることがあります。これはメモリの再編成中の正常な動作です。その間は他のアプリを起動しないことをお勧めします。 &lt;/p&gt;
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;処理には最大 1 分ほどかかることがあります。非アクティブメモリを最小にするには、「メモリを解放」を数回実行する必要がある場合もあります。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Do not show this message again.</source>
        <translation>今後このメッセージを表示しない</translation>
    </message>
</context>
<context>
    <name>MainDialog</name>
    <message>
        <source>Kelvo</source>
        <translation>Kelvo</translation>
    </message>
    <message>
        <source>Free:</source>
        <translation>空き:</translation>
    </message>
    <message>
        <source>Wired:</source>
        <translation>固定中:</translation>
    </message>
    <message>
        <source>Active:</source>
        <translation>アクティブ:</translation>
    </message>
    <message>
        <source>Inactive:</source>
        <translation>非アクティブ:</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>使用中:</translation>
    </message>
    <message>
        <source>Just freed:</source>
        <translation>解放されたメモリ:</translation>
    </message>
    <message>
        <source>Free Memory</source>
        <translation>メモリを解放</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 バイト</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Failed to free memory.</source>
        <translation>メモリを解放できませんでした。</translation>
    </message>
    <message>
        <source>Memory pie chart</source>
        <translation>メモリの円グラフ</translation>
    </message>
    <message>
        <source>Freeing memory</source>
        <translation>メモリを解放しています</translation>
    </message>
</context>
<context>
    <name>MyApp</name>
    <message>
        <source>Free:</source>
        <translation>空き:</translation>
    </message>
    <message>
        <source>Your inactive memory has reached %1. Do you want to free memory now?</source>
        <translation>非アクティブメモリが %1 に達しました。今すぐメモリを解放しますか？</translation>
    </message>
    <message>
        <source>Free Memory Now!</source>
        <translation>今すぐメモリを解放！</translation>
    </message>
    <message>
        <source>Kelvo Preferences...</source>
        <translation>Kelvo の設定…</translation>
    </message>
    <message>
        <source>About Kelvo</source>
        <translation>Kelvo のバージョン情報</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Free: </source>
        <translation>空き: </translation>
    </message>
    <message>
        <source>Active: </source>
        <translation>アクティブ: </translation>
    </message>
    <message>
        <source>Inactive: </source>
        <translation>非アクティブ: </translation>
    </message>
    <message>
        <source>Wired: </source>
        <translation>固定中: </translation>
    </message>
</context>
</TS>
