<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>DialogAbout</name>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>Kelvo</source>
        <translation>Kelvo</translation>
    </message>
    <message>
        <source>Made by &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</source>
        <translation>由 &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt; 開發</translation>
    </message>
    <message>
        <source>Leave Feedback</source>
        <translation>提供意見</translation>
    </message>
    <message>
        <source>version %1</source>
        <translation>版本 %1</translation>
    </message>
</context>
<context>
    <name>DialogPreferences</name>
    <message>
        <source>Kelvo Preferences</source>
        <translation>Kelvo 偏好設定</translation>
    </message>
    <message>
        <source>Main Window Style</source>
        <translation>主視窗樣式</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>經典</translation>
    </message>
    <message>
        <source>Dark &amp;&amp; Translucent</source>
        <translation>深色半透明</translation>
    </message>
    <message>
        <source>Do not show window title bar</source>
        <translation>不顯示視窗標題列</translation>
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
        <translation>將主視窗保持在其他視窗之上</translation>
    </message>
    <message>
        <source>Show pie chart on menubar</source>
        <translation>在選單列顯示圓餅圖</translation>
    </message>
    <message>
        <source>Monocolor pie chart</source>
        <translation>單色圓餅圖</translation>
    </message>
    <message>
        <source>Automatically launch Kelvo when I log in</source>
        <translation>登入時自動啟動 Kelvo</translation>
    </message>
    <message>
        <source>Hide main window when Kelvo starts up</source>
        <translation>Kelvo 啟動時隱藏主視窗</translation>
    </message>
    <message>
        <source>Automatically hide main window after freeing is completed</source>
        <translation>記憶體釋放完成後自動隱藏主視窗</translation>
    </message>
    <message>
        <source>Remind me to free memory when inactive memory </source>
        <translation>在下列情況提醒我釋放記憶體：</translation>
    </message>
    <message>
        <source>reaches over</source>
        <translation>非作用中記憶體超過</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>On Wayland, a program cannot keep its window on top.</source>
        <translation>在 Wayland 上，程式無法將自己的視窗保持在其他視窗之上。</translation>
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
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Do Not Remind Me</source>
        <translation>不再提醒</translation>
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
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;注意&lt;/span&gt;：從此版本起，Kelvo 只會出現在選單列，不再於 Dock 顯示圖示。如果您還沒注意到，請在選單列尋找圖示 &lt;img src=&quot;:/app16.png&quot; /&gt; 或 &lt;img src=&quot;:/piechart.png&quot; /&gt;。&lt;/p&gt;
&lt;p&gt;此訊息不會再次顯示。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
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
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;注意&lt;/span&gt;：釋放記憶體時，系統可能會短暫沒有回應。這是重新整理記憶體時的正常現象。建議您在這段時間不要啟動其他應用程式。 &lt;/p&gt;
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;此過程最多需要一分鐘。有時需要執行「釋放記憶體」數次，才能將非作用中記憶體減到最少。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Do not show this message again.</source>
        <translation>不再顯示此訊息</translation>
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
        <translation>空閒：</translation>
    </message>
    <message>
        <source>Wired:</source>
        <translation>固定：</translation>
    </message>
    <message>
        <source>Active:</source>
        <translation>作用中：</translation>
    </message>
    <message>
        <source>Inactive:</source>
        <translation>非作用中：</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>已使用：</translation>
    </message>
    <message>
        <source>Just freed:</source>
        <translation>剛剛釋放：</translation>
    </message>
    <message>
        <source>Free Memory</source>
        <translation>釋放記憶體</translation>
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
        <translation>%1 位元組</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Failed to free memory.</source>
        <translation>無法釋放記憶體。</translation>
    </message>
    <message>
        <source>Memory pie chart</source>
        <translation>記憶體圓餅圖</translation>
    </message>
    <message>
        <source>Freeing memory</source>
        <translation>正在釋放記憶體</translation>
    </message>
</context>
<context>
    <name>MyApp</name>
    <message>
        <source>Free:</source>
        <translation>空閒：</translation>
    </message>
    <message>
        <source>Your inactive memory has reached %1. Do you want to free memory now?</source>
        <translation>您的非作用中記憶體已達到 %1。要立即釋放記憶體嗎？</translation>
    </message>
    <message>
        <source>Free Memory Now!</source>
        <translation>立即釋放記憶體！</translation>
    </message>
    <message>
        <source>Kelvo Preferences...</source>
        <translation>Kelvo 偏好設定…</translation>
    </message>
    <message>
        <source>About Kelvo</source>
        <translation>關於 Kelvo</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Free: </source>
        <translation>空閒：</translation>
    </message>
    <message>
        <source>Active: </source>
        <translation>作用中：</translation>
    </message>
    <message>
        <source>Inactive: </source>
        <translation>非作用中：</translation>
    </message>
    <message>
        <source>Wired: </source>
        <translation>固定：</translation>
    </message>
</context>
</TS>
