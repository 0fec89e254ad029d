<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>DialogAbout</name>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Kelvo</source>
        <translation>Kelvo</translation>
    </message>
    <message>
        <source>Made by &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</source>
        <translation>Creado por &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Leave Feedback</source>
        <translation>Dejar un comentario</translation>
    </message>
    <message>
        <source>version %1</source>
        <translation>versión %1</translation>
    </message>
</context>
<context>
    <name>DialogPreferences</name>
    <message>
        <source>Kelvo Preferences</source>
        <translation>Preferencias de Kelvo</translation>
    </message>
    <message>
        <source>Main Window Style</source>
        <translation>Estilo de la ventana principal</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Clásico</translation>
    </message>
    <message>
        <source>Dark &amp;&amp; Translucent</source>
        <translation>Oscuro y translúcido</translation>
    </message>
    <message>
        <source>Do not show window title bar</source>
        <translation>No mostrar la barra de título de la ventana</translation>
    </message>
    <message>
        <source>Update frequency</source>
        <translation>Intervalo de actualización</translation>
    </message>
    <message>
        <source>2 seconds</source>
        <translation>2 segundos</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 segundos</translation>
    </message>
    <message>
        <source>Keep main window on top of other windows</source>
        <translation>Mantener la ventana principal encima de las demás</translation>
    </message>
    <message>
        <source>Show pie chart on menubar</source>
        <translation>Mostrar el gráfico circular en la barra de menús</translation>
    </message>
    <message>
        <source>Monocolor pie chart</source>
        <translation>Gráfico circular monocromo</translation>
    </message>
    <message>
        <source>Automatically launch Kelvo when I log in</source>
        <translation>Abrir Kelvo automáticamente al iniciar sesión</translation>
    </message>
    <message>
        <source>Hide main window when Kelvo starts up</source>
        <translation>Ocultar la ventana principal al iniciar Kelvo</translation>
    </message>
    <message>
        <source>Automatically hide main window after freeing is completed</source>
        <translation>Ocultar la ventana principal automáticamente al terminar de liberar memoria</translation>
    </message>
    <message>
        <source>Remind me to free memory when inactive memory </source>
        <translation>Recordarme que libere memoria cuando la memoria inactiva </translation>
    </message>
    <message>
        <source>reaches over</source>
        <translation>supere los</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>On Wayland, a program cannot keep its window on top.</source>
        <translation>En Wayland, un programa no puede mantener su ventana encima de las demás.</translation>
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
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Do Not Remind Me</source>
        <translation>No recordármelo más</translation>
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
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;NOTA&lt;/span&gt;: a partir de esta versión, Kelvo solo está en la barra de menús y no muestra ningún icono en el Dock. Si todavía no lo ha visto, busque el icono &lt;img src=&quot;:/app16.png&quot; /&gt; o &lt;img src=&quot;:/piechart.png&quot; /&gt; en la barra de menús.&lt;/p&gt;
&lt;p&gt;Este mensaje no volverá a aparecer.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
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
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Nota&lt;/span&gt;: mientras se libera memoria, puede parecer que el sistema no responde durante un breve periodo. Es lo normal mientras se reorganiza la memoria. Se recomienda no iniciar otras aplicaciones durante ese tiempo. &lt;/p&gt;
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;El proceso puede tardar hasta un minuto. En ocasiones puede ser necesario usar «Liberar memoria» varias veces para reducir la memoria inactiva al mínimo.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Do not show this message again.</source>
        <translation>No volver a mostrar este mensaje.</translation>
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
        <translation>Libre:</translation>
    </message>
    <message>
        <source>Wired:</source>
        <translation>Reservada:</translation>
    </message>
    <message>
        <source>Active:</source>
        <translation>Activa:</translation>
    </message>
    <message>
        <source>Inactive:</source>
        <translation>Inactiva:</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>Usada:</translation>
    </message>
    <message>
        <source>Just freed:</source>
        <translation>Memoria liberada:</translation>
    </message>
    <message>
        <source>Free Memory</source>
        <translation>Liberar memoria</translation>
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
        <translation>%1 bytes</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Failed to free memory.</source>
        <translation>No se pudo liberar la memoria.</translation>
    </message>
    <message>
        <source>Memory pie chart</source>
        <translation>Gráfico circular de la memoria</translation>
    </message>
    <message>
        <source>Freeing memory</source>
        <translation>Liberando memoria</translation>
    </message>
</context>
<context>
    <name>MyApp</name>
    <message>
        <source>Free:</source>
        <translation>Libre:</translation>
    </message>
    <message>
        <source>Your inactive memory has reached %1. Do you want to free memory now?</source>
        <translation>La memoria inactiva ha alcanzado %1. ¿Quiere liberar memoria ahora?</translation>
    </message>
    <message>
        <source>Free Memory Now!</source>
        <translation>¡Liberar memoria ahora!</translation>
    </message>
    <message>
        <source>Kelvo Preferences...</source>
        <translation>Preferencias de Kelvo…</translation>
    </message>
    <message>
        <source>About Kelvo</source>
        <translation>Acerca de Kelvo</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Free: </source>
        <translation>Libre: </translation>
    </message>
    <message>
        <source>Active: </source>
        <translation>Activa: </translation>
    </message>
    <message>
        <source>Inactive: </source>
        <translation>Inactiva: </translation>
    </message>
    <message>
        <source>Wired: </source>
        <translation>Reservada: </translation>
    </message>
</context>
</TS>
