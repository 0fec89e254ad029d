<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>DialogAbout</name>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Kelvo</source>
        <translation>Kelvo</translation>
    </message>
    <message>
        <source>Made by &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</source>
        <translation>由 &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt; 开发</translation>
    </message>
    <message>
        <source>Leave Feedback</source>
        <translation>提供反馈</translation>
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
        <translation>Kelvo 首选项</translation>
    </message>
    <message>
        <source>Main Window Style</source>
        <translation>主窗口样式</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>经典</translation>
    </message>
    <message>
        <source>Dark &amp;&amp; Translucent</source>
        <translation>深色半透明</translation>
    </message>
    <message>
        <source>Do not show window title bar</source>
        <translation>不显示窗口标题栏</translation>
    </message>
    <message>
        <source>Update frequency</source>
        <translation>更新间隔</translation>
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
        <translation>始终将主窗口置于其他窗口之上</translation>
    </message>
    <message>
        <source>Show pie chart on menubar</source>
        <translation>在菜单栏显示饼图</translation>
    </message>
    <message>
        <source>Monocolor pie chart</source>
        <translation>单色饼图</translation>
    </message>
    <message>
        <source>Automatically launch Kelvo when I log in</source>
        <translation>登录时自动启动 Kelvo</translation>
    </message>
    <message>
        <source>Hide main window when Kelvo starts up</source>
        <translation>Kelvo 启动时隐藏主窗口</translation>
    </message>
    <message>
        <source>Automatically hide main window after freeing is completed</source>
        <translation>内存释放完成后自动隐藏主窗口</translation>
    </message>
    <message>
        <source>Remind me to free memory when inactive memory </source>
        <translation>在以下情况下提醒我释放内存：</translation>
    </message>
    <message>
        <source>reaches over</source>
        <translation>非活跃内存超过</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>On Wayland, a program cannot keep its window on top.</source>
        <translation>在 Wayland 上，程序无法始终将自己的窗口置于其他窗口之上。</translation>
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
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;注意&lt;/span&gt;：从此版本起，Kelvo 只出现在菜单栏中，不再在程序坞中显示图标。如果您尚未注意到，请在菜单栏中查找图标 &lt;img src=&quot;:/app16.png&quot; /&gt; 或 &lt;img src=&quot;:/piechart.png&quot; /&gt;。&lt;/p&gt;
&lt;p&gt;此消息不会再次显示。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
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
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;注意&lt;/span&gt;：释放内存期间，系统可能会短时间没有响应。这是重新整理内存时的正常现象。建议您在此期间不要启动其他应用程序。 &lt;/p&gt;
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;此过程最多需要一分钟。有时需要多次运行“释放内存”才能将非活跃内存减到最少。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Do not show this message again.</source>
        <translation>不再显示此消息</translation>
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
        <translation>空闲：</translation>
    </message>
    <message>
        <source>Wired:</source>
        <translation>固定：</translation>
    </message>
    <message>
        <source>Active:</source>
        <translation>活跃：</translation>
    </message>
    <message>
        <source>Inactive:</source>
        <translation>非活跃：</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>已用：</translation>
    </message>
    <message>
        <source>Just freed:</source>
        <translation>刚刚释放：</translation>
    </message>
    <message>
        <source>Free Memory</source>
        <translation>释放内存</translation>
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
        <translation>%1 字节</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Failed to free memory.</source>
        <translation>释放内存失败。</translation>
    </message>
    <message>
        <source>Memory pie chart</source>
        <translation>内存饼图</translation>
    </message>
    <message>
        <source>Freeing memory</source>
        <translation>正在释放内存</translation>
    </message>
</context>
<context>
    <name>MyApp</name>
    <message>
        <source>Free:</source>
        <translation>空闲：</translation>
    </message>
    <message>
        <source>Your inactive memory has reached %1. Do you want to free memory now?</source>
        <translation>您的非活跃内存已达到 %1。要立即释放内存吗？</translation>
    </message>
    <message>
        <source>Free Memory Now!</source>
        <translation>立即释放内存！</translation>
    </message>
    <message>
        <source>Kelvo Preferences...</source>
        <translation>Kelvo 首选项…</translation>
    </message>
    <message>
        <source>About Kelvo</source>
        <translation>关于 Kelvo</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Free: </source>
        <translation>空闲：</translation>
    </message>
    <message>
        <source>Active: </source>
        <translation>活跃：</translation>
    </message>
    <message>
        <source>Inactive: </source>
        <translation>非活跃：</translation>
    </message>
    <message>
        <source>Wired: </source>
        <translation>固定：</translation>
    </message>
</context>
</TS>
