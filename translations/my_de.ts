<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>DialogAbout</name>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Kelvo</source>
        <translation>Kelvo</translation>
    </message>
    <message>
        <source>Made by &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</source>
        <translation>Entwickelt von &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Leave Feedback</source>
        <translation>Feedback geben</translation>
    </message>
    <message>
        <source>version %1</source>
        <translation>Version %1</translation>
    </message>
</context>
<context>
    <name>DialogPreferences</name>
    <message>
        <source>Kelvo Preferences</source>
        <translation>Kelvo-Einstellungen</translation>
    </message>
    <message>
        <source>Main Window Style</source>
        <translation>Stil des Hauptfensters</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Klassisch</translation>
    </message>
    <message>
        <source>Dark &amp;&amp; Translucent</source>
        <translation>Dunkel und durchscheinend</translation>
    </message>
    <message>
        <source>Do not show window title bar</source>
        <translation>Titelleiste des Fensters nicht anzeigen</translation>
    </message>
    <message>
        <source>Update frequency</source>
        <translation>Aktualisierungsintervall</translation>
    </message>
    <message>
        <source>2 seconds</source>
        <translation>2 Sekunden</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 Sekunden</translation>
    </message>
    <message>
        <source>Keep main window on top of other windows</source>
        <translation>Hauptfenster immer im Vordergrund halten</translation>
    </message>
    <message>
        <source>Show pie chart on menubar</source>
        <translation>Kreisdiagramm in der Menüleiste anzeigen</translation>
    </message>
    <message>
        <source>Monocolor pie chart</source>
        <translation>Einfarbiges Kreisdiagramm</translation>
    </message>
    <message>
        <source>Automatically launch Kelvo when I log in</source>
        <translation>Kelvo beim Anmelden automatisch starten</translation>
    </message>
    <message>
        <source>Hide main window when Kelvo starts up</source>
        <translation>Hauptfenster beim Start von Kelvo ausblenden</translation>
    </message>
    <message>
        <source>Automatically hide main window after freeing is completed</source>
        <translation>Hauptfenster nach der Speicherfreigabe automatisch ausblenden</translation>
    </message>
    <message>
        <source>Remind me to free memory when inactive memory </source>
        <translation>An das Freigeben von Speicher erinnern, wenn der inaktive Speicher </translation>
    </message>
    <message>
        <source>reaches over</source>
        <translation>größer wird als</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>On Wayland, a program cannot keep its window on top.</source>
        <translation>Unter Wayland kann ein Programm sein Fenster nicht im Vordergrund halten.</translation>
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
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Do Not Remind Me</source>
        <translation>Nicht mehr erinnern</translation>
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
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;HINWEIS&lt;/span&gt;: Ab dieser Version ist Kelvo nur noch in der Menüleiste zu finden und zeigt kein Symbol mehr im Dock. Falls Sie es noch nicht bemerkt haben: Suchen Sie in der Menüleiste nach dem Symbol &lt;img src=&quot;:/app16.png&quot; /&gt; oder &lt;img src=&quot;:/piechart.png&quot; /&gt;.&lt;/p&gt;
&lt;p&gt;Diese Meldung wird nicht wieder angezeigt.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
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
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Hinweis&lt;/span&gt;: Während Speicher freigegeben wird, kann es sein, dass Ihr System kurze Zeit nicht reagiert. Das ist bei der Neuordnung des Speichers normal. Es wird empfohlen, in dieser Zeit keine anderen Programme zu starten. &lt;/p&gt;
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;Der Vorgang kann bis zu einer Minute dauern. Gelegentlich muss „Speicher freigeben“ einige Male ausgeführt werden, bis der inaktive Speicher so klein wie möglich ist.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Do not show this message again.</source>
        <translation>Diese Meldung nicht mehr anzeigen.</translation>
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
        <translation>Frei:</translation>
    </message>
    <message>
        <source>Wired:</source>
        <translation>Reserviert:</translation>
    </message>
    <message>
        <source>Active:</source>
        <translation>Aktiv:</translation>
    </message>
    <message>
        <source>Inactive:</source>
        <translation>Inaktiv:</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>Belegt:</translation>
    </message>
    <message>
        <source>Just freed:</source>
        <translation>Soeben freigegeben:</translation>
    </message>
    <message>
        <source>Free Memory</source>
        <translation>Speicher freigeben</translation>
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
        <translation>%1 Byte</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Failed to free memory.</source>
        <translation>Der Speicher konnte nicht freigegeben werden.</translation>
    </message>
    <message>
        <source>Memory pie chart</source>
        <translation>Speicher-Kreisdiagramm</translation>
    </message>
    <message>
        <source>Freeing memory</source>
        <translation>Speicher wird freigegeben</translation>
    </message>
</context>
<context>
    <name>MyApp</name>
    <message>
        <source>Free:</source>
        <translation>Frei:</translation>
    </message>
    <message>
        <source>Your inactive memory has reached %1. Do you want to free memory now?</source>
        <translation>Ihr inaktiver Speicher hat %1 erreicht. Möchten Sie jetzt Speicher freigeben?</translation>
    </message>
    <message>
        <source>Free Memory Now!</source>
        <translation>Speicher jetzt freigeben!</translation>
    </message>
    <message>
        <source>Kelvo Preferences...</source>
        <translation>Kelvo-Einstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>About Kelvo</source>
        <translation>Über Kelvo</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Free: </source>
        <translation>Frei: </translation>
    </message>
    <message>
        <source>Active: </source>
        <translation>Aktiv: </translation>
    </message>
    <message>
        <source>Inactive: </source>
        <translation>Inaktiv: </translation>
    </message>
    <message>
        <source>Wired: </source>
        <translation>Reserviert: </translation>
    </message>
</context>
</TS>
