<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>DialogAbout</name>
    <message>
        <source>About</source>
        <translation>Informazioni su</translation>
    </message>
    <message>
        <source>Kelvo</source>
        <translation>Kelvo</translation>
    </message>
    <message>
        <source>Made by &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</source>
        <translation>Realizzato da &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Leave Feedback</source>
        <translation>Lascia un commento</translation>
    </message>
    <message>
        <source>version %1</source>
        <translation>versione %1</translation>
    </message>
</context>
<context>
    <name>DialogPreferences</name>
    <message>
        <source>Kelvo Preferences</source>
        <translation>Preferenze di Kelvo</translation>
    </message>
    <message>
        <source>Main Window Style</source>
        <translation>Stile della finestra principale</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Classico</translation>
    </message>
    <message>
        <source>Dark &amp;&amp; Translucent</source>
        <translation>Scuro e traslucido</translation>
    </message>
    <message>
        <source>Do not show window title bar</source>
        <translation>Non mostrare la barra del titolo della finestra</translation>
    </message>
    <message>
        <source>Update frequency</source>
        <translation>Intervallo di aggiornamento</translation>
    </message>
    <message>
        <source>2 seconds</source>
        <translation>2 secondi</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 secondi</translation>
    </message>
    <message>
        <source>Keep main window on top of other windows</source>
        <translation>Mantieni la finestra principale sopra le altre finestre</translation>
    </message>
    <message>
        <source>Show pie chart on menubar</source>
        <translation>Mostra il grafico a torta nella barra dei menu</translation>
    </message>
    <message>
        <source>Monocolor pie chart</source>
        <translation>Grafico a torta monocromatico</translation>
    </message>
    <message>
        <source>Automatically launch Kelvo when I log in</source>
        <translation>Avvia automaticamente Kelvo all’accesso</translation>
    </message>
    <message>
        <source>Hide main window when Kelvo starts up</source>
        <translation>Nascondi la finestra principale all’avvio di Kelvo</translation>
    </message>
    <message>
        <source>Automatically hide main window after freeing is completed</source>
        <translation>Nascondi automaticamente la finestra principale dopo aver liberato la memoria</translation>
    </message>
    <message>
        <source>Remind me to free memory when inactive memory </source>
        <translation>Ricordami di liberare la memoria quando la memoria inattiva </translation>
    </message>
    <message>
        <source>reaches over</source>
        <translation>supera</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>On Wayland, a program cannot keep its window on top.</source>
        <translation>In Wayland un programma non può mantenere la propria finestra sopra le altre.</translation>
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
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Do Not Remind Me</source>
        <translation>Non ricordarmelo più</translation>
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
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;NOTA&lt;/span&gt;: a partire da questa versione, Kelvo si trova solo nella barra dei menu e non mostra alcuna icona nel Dock. Se non l’hai ancora notata, cerca l’icona &lt;img src=&quot;:/app16.png&quot; /&gt; o &lt;img src=&quot;:/piechart.png&quot; /&gt; nella barra dei menu.&lt;/p&gt;
&lt;p&gt;Questo messaggio non verrà più mostrato.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
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
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Nota&lt;/span&gt;: mentre la memoria viene liberata, il sistema potrebbe sembrare bloccato per un breve periodo. È normale durante la riorganizzazione della memoria. Si consiglia di non avviare altre applicazioni nel frattempo. &lt;/p&gt;
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;L’operazione può richiedere fino a un minuto. A volte può essere necessario usare «Libera memoria» più volte per ridurre al minimo la memoria inattiva.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Do not show this message again.</source>
        <translation>Non mostrare più questo messaggio.</translation>
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
        <translation>Libera:</translation>
    </message>
    <message>
        <source>Wired:</source>
        <translation>Riservata:</translation>
    </message>
    <message>
        <source>Active:</source>
        <translation>Attiva:</translation>
    </message>
    <message>
        <source>Inactive:</source>
        <translation>Inattiva:</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>Usata:</translation>
    </message>
    <message>
        <source>Just freed:</source>
        <translation>Memoria liberata:</translation>
    </message>
    <message>
        <source>Free Memory</source>
        <translation>Libera memoria</translation>
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
        <translation>%1 byte</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Operazione non riuscita</translation>
    </message>
    <message>
        <source>Failed to free memory.</source>
        <translation>Impossibile liberare la memoria.</translation>
    </message>
    <message>
        <source>Memory pie chart</source>
        <translation>Grafico a torta della memoria</translation>
    </message>
    <message>
        <source>Freeing memory</source>
        <translation>Liberazione della memoria</translation>
    </message>
</context>
<context>
    <name>MyApp</name>
    <message>
        <source>Free:</source>
        <translation>Libera:</translation>
    </message>
    <message>
        <source>Your inactive memory has reached %1. Do you want to free memory now?</source>
        <translation>La memoria inattiva ha raggiunto %1. Vuoi liberare memoria adesso?</translation>
    </message>
    <message>
        <source>Free Memory Now!</source>
        <translation>Libera memoria adesso!</translation>
    </message>
    <message>
        <source>Kelvo Preferences...</source>
        <translation>Preferenze di Kelvo…</translation>
    </message>
    <message>
        <source>About Kelvo</source>
        <translation>Informazioni su Kelvo</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Free: </source>
        <translation>Libera: </translation>
    </message>
    <message>
        <source>Active: </source>
        <translation>Attiva: </translation>
    </message>
    <message>
        <source>Inactive: </source>
        <translation>Inattiva: </translation>
    </message>
    <message>
        <source>Wired: </source>
        <translation>Riservata: </translation>
    </message>
</context>
</TS>
