<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>DialogAbout</name>
    <message>
        <source>About</source>
        <translation>Sobre o</translation>
    </message>
    <message>
        <source>Kelvo</source>
        <translation>Kelvo</translation>
    </message>
    <message>
        <source>Made by &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</source>
        <translation>Criado por &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Leave Feedback</source>
        <translation>Deixar um comentário</translation>
    </message>
    <message>
        <source>version %1</source>
        <translation>versão %1</translation>
    </message>
</context>
<context>
    <name>DialogPreferences</name>
    <message>
        <source>Kelvo Preferences</source>
        <translation>Preferências do Kelvo</translation>
    </message>
    <message>
        <source>Main Window Style</source>
        <translation>Estilo da janela principal</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Clássico</translation>
    </message>
    <message>
        <source>Dark &amp;&amp; Translucent</source>
        <translation>Escuro e translúcido</translation>
    </message>
    <message>
        <source>Do not show window title bar</source>
        <translation>Não mostrar a barra de título da janela</translation>
    </message>
    <message>
        <source>Update frequency</source>
        <translation>Intervalo de atualização</translation>
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
        <translation>Manter a janela principal acima das outras janelas</translation>
    </message>
    <message>
        <source>Show pie chart on menubar</source>
        <translation>Mostrar o gráfico de pizza na barra de menus</translation>
    </message>
    <message>
        <source>Monocolor pie chart</source>
        <translation>Gráfico de pizza monocromático</translation>
    </message>
    <message>
        <source>Automatically launch Kelvo when I log in</source>
        <translation>Abrir o Kelvo automaticamente ao iniciar a sessão</translation>
    </message>
    <message>
        <source>Hide main window when Kelvo starts up</source>
        <translation>Ocultar a janela principal ao iniciar o Kelvo</translation>
    </message>
    <message>
        <source>Automatically hide main window after freeing is completed</source>
        <translation>Ocultar a janela principal automaticamente após a liberação da memória</translation>
    </message>
    <message>
        <source>Remind me to free memory when inactive memory </source>
        <translation>Lembrar-me de liberar memória quando a memória inativa </translation>
    </message>
    <message>
        <source>reaches over</source>
        <translation>passar de</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>On Wayland, a program cannot keep its window on top.</source>
        <translation>No Wayland, um programa não pode manter sua janela acima das outras.</translation>
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
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Do Not Remind Me</source>
        <translation>Não me lembrar mais</translation>
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
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;NOTA&lt;/span&gt;: a partir desta versão, o Kelvo fica somente na barra de menus e não mostra nenhum ícone no Dock. Se você ainda não o viu, procure o ícone &lt;img src=&quot;:/app16.png&quot; /&gt; ou &lt;img src=&quot;:/piechart.png&quot; /&gt; na barra de menus.&lt;/p&gt;
&lt;p&gt;Esta mensagem não aparecerá novamente.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
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
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Nota&lt;/span&gt;: durante a liberação de memória, o sistema pode parecer não responder por um curto período. Isso é normal durante a reorganização da memória. Recomenda-se não iniciar outros aplicativos nesse período. &lt;/p&gt;
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;O processo pode levar até um minuto. Às vezes é preciso usar “Liberar memória” algumas vezes para reduzir a memória inativa ao mínimo.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Do not show this message again.</source>
        <translation>Não mostrar esta mensagem novamente.</translation>
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
        <translation>Livre:</translation>
    </message>
    <message>
        <source>Wired:</source>
        <translation>Reservada:</translation>
    </message>
    <message>
        <source>Active:</source>
        <translation>Ativa:</translation>
    </message>
    <message>
        <source>Inactive:</source>
        <translation>Inativa:</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>Usada:</translation>
    </message>
    <message>
        <source>Just freed:</source>
        <translation>Memória liberada:</translation>
    </message>
    <message>
        <source>Free Memory</source>
        <translation>Liberar memória</translation>
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
        <translation>Falha</translation>
    </message>
    <message>
        <source>Failed to free memory.</source>
        <translation>Não foi possível liberar a memória.</translation>
    </message>
    <message>
        <source>Memory pie chart</source>
        <translation>Gráfico de pizza da memória</translation>
    </message>
    <message>
        <source>Freeing memory</source>
        <translation>Liberando memória</translation>
    </message>
</context>
<context>
    <name>MyApp</name>
    <message>
        <source>Free:</source>
        <translation>Livre:</translation>
    </message>
    <message>
        <source>Your inactive memory has reached %1. Do you want to free memory now?</source>
        <translation>A memória inativa atingiu %1. Deseja liberar memória agora?</translation>
    </message>
    <message>
        <source>Free Memory Now!</source>
        <translation>Liberar memória agora!</translation>
    </message>
    <message>
        <source>Kelvo Preferences...</source>
        <translation>Preferências do Kelvo…</translation>
    </message>
    <message>
        <source>About Kelvo</source>
        <translation>Sobre o Kelvo</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Free: </source>
        <translation>Livre: </translation>
    </message>
    <message>
        <source>Active: </source>
        <translation>Ativa: </translation>
    </message>
    <message>
        <source>Inactive: </source>
        <translation>Inativa: </translation>
    </message>
    <message>
        <source>Wired: </source>
        <translation>Reservada: </translation>
    </message>
</context>
</TS>
