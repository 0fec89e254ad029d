<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>DialogAbout</name>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>Kelvo</source>
        <translation>Kelvo</translation>
    </message>
    <message>
        <source>Made by &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</source>
        <translation>Twórca: &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Leave Feedback</source>
        <translation>Zostaw opinię</translation>
    </message>
    <message>
        <source>version %1</source>
        <translation>wersja %1</translation>
    </message>
</context>
<context>
    <name>DialogPreferences</name>
    <message>
        <source>Kelvo Preferences</source>
        <translation>Preferencje Kelvo</translation>
    </message>
    <message>
        <source>Main Window Style</source>
        <translation>Styl głównego okna</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Klasyczny</translation>
    </message>
    <message>
        <source>Dark &amp;&amp; Translucent</source>
        <translation>Ciemny i półprzezroczysty</translation>
    </message>
    <message>
        <source>Do not show window title bar</source>
        <translation>Nie pokazuj paska tytułu okna</translation>
    </message>
    <message>
        <source>Update frequency</source>
        <translation>Okres odświeżania</translation>
    </message>
    <message>
        <source>2 seconds</source>
        <translation>2 sekundy</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 sekund</translation>
    </message>
    <message>
        <source>Keep main window on top of other windows</source>
        <translation>Utrzymuj główne okno zawsze na wierzchu</translation>
    </message>
    <message>
        <source>Show pie chart on menubar</source>
        <translation>Pokazuj wykres kołowy na pasku menu</translation>
    </message>
    <message>
        <source>Monocolor pie chart</source>
        <translation>Jednobarwny wykres kołowy</translation>
    </message>
    <message>
        <source>Automatically launch Kelvo when I log in</source>
        <translation>Uruchamiaj Kelvo automatycznie po zalogowaniu</translation>
    </message>
    <message>
        <source>Hide main window when Kelvo starts up</source>
        <translation>Ukrywaj główne okno przy uruchamianiu Kelvo</translation>
    </message>
    <message>
        <source>Automatically hide main window after freeing is completed</source>
        <translation>Automatycznie ukrywaj główne okno po zwolnieniu pamięci</translation>
    </message>
    <message>
        <source>Remind me to free memory when inactive memory </source>
        <translation>Przypominaj o zwolnieniu pamięci, gdy pamięć nieaktywna </translation>
    </message>
    <message>
        <source>reaches over</source>
        <translation>przekroczy</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>On Wayland, a program cannot keep its window on top.</source>
        <translation>W środowisku Wayland program nie może utrzymywać swojego okna na wierzchu.</translation>
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
        <translation>Tak</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Do Not Remind Me</source>
        <translation>Nie przypominaj więcej</translation>
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
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;UWAGA&lt;/span&gt;: od tej wersji Kelvo działa wyłącznie na pasku menu i nie pokazuje ikony w Docku. Jeśli jeszcze jej nie zauważono, należy poszukać na pasku menu ikony &lt;img src=&quot;:/app16.png&quot; /&gt; lub &lt;img src=&quot;:/piechart.png&quot; /&gt;.&lt;/p&gt;
&lt;p&gt;Ten komunikat nie pojawi się ponownie.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
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
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Uwaga&lt;/span&gt;: podczas zwalniania pamięci system może przez krótki czas wydawać się zawieszony. To normalne w trakcie reorganizacji pamięci. Zaleca się, aby w tym czasie nie uruchamiać innych programów. &lt;/p&gt;
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;Operacja może potrwać do jednej minuty. Czasami trzeba kilka razy użyć polecenia „Zwolnij pamięć”, aby zmniejszyć pamięć nieaktywną do minimum.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Do not show this message again.</source>
        <translation>Nie pokazuj więcej tego komunikatu.</translation>
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
        <translation>Wolna:</translation>
    </message>
    <message>
        <source>Wired:</source>
        <translation>Zarezerwowana:</translation>
    </message>
    <message>
        <source>Active:</source>
        <translation>Aktywna:</translation>
    </message>
    <message>
        <source>Inactive:</source>
        <translation>Nieaktywna:</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>Zajęta:</translation>
    </message>
    <message>
        <source>Just freed:</source>
        <translation>Właśnie zwolniono:</translation>
    </message>
    <message>
        <source>Free Memory</source>
        <translation>Zwolnij pamięć</translation>
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
        <translation>%1 bajtów</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Niepowodzenie</translation>
    </message>
    <message>
        <source>Failed to free memory.</source>
        <translation>Nie udało się zwolnić pamięci.</translation>
    </message>
    <message>
        <source>Memory pie chart</source>
        <translation>Wykres kołowy pamięci</translation>
    </message>
    <message>
        <source>Freeing memory</source>
        <translation>Zwalnianie pamięci</translation>
    </message>
</context>
<context>
    <name>MyApp</name>
    <message>
        <source>Free:</source>
        <translation>Wolna:</translation>
    </message>
    <message>
        <source>Your inactive memory has reached %1. Do you want to free memory now?</source>
        <translation>Ilość pamięci nieaktywnej osiągnęła %1. Czy zwolnić pamięć teraz?</translation>
    </message>
    <message>
        <source>Free Memory Now!</source>
        <translation>Zwolnij pamięć teraz!</translation>
    </message>
    <message>
        <source>Kelvo Preferences...</source>
        <translation>Preferencje Kelvo…</translation>
    </message>
    <message>
        <source>About Kelvo</source>
        <translation>O programie Kelvo</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Free: </source>
        <translation>Wolna: </translation>
    </message>
    <message>
        <source>Active: </source>
        <translation>Aktywna: </translation>
    </message>
    <message>
        <source>Inactive: </source>
        <translation>Nieaktywna: </translation>
    </message>
    <message>
        <source>Wired: </source>
        <translation>Zarezerwowana: </translation>
    </message>
</context>
</TS>
