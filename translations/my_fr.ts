<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>DialogAbout</name>
    <message>
        <source>About</source>
        <translation>À propos de</translation>
    </message>
    <message>
        <source>Kelvo</source>
        <translation>Kelvo</translation>
    </message>
    <message>
        <source>Made by &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</source>
        <translation>Développé par &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Leave Feedback</source>
        <translation>Donner votre avis</translation>
    </message>
    <message>
        <source>version %1</source>
        <translation>version %1</translation>
    </message>
</context>
<context>
    <name>DialogPreferences</name>
    <message>
        <source>Kelvo Preferences</source>
        <translation>Préférences de Kelvo</translation>
    </message>
    <message>
        <source>Main Window Style</source>
        <translation>Style de la fenêtre principale</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Classique</translation>
    </message>
    <message>
        <source>Dark &amp;&amp; Translucent</source>
        <translation>Sombre et translucide</translation>
    </message>
    <message>
        <source>Do not show window title bar</source>
        <translation>Ne pas afficher la barre de titre</translation>
    </message>
    <message>
        <source>Update frequency</source>
        <translation>Intervalle d’actualisation</translation>
    </message>
    <message>
        <source>2 seconds</source>
        <translation>2 secondes</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 secondes</translation>
    </message>
    <message>
        <source>Keep main window on top of other windows</source>
        <translation>Garder la fenêtre principale au premier plan</translation>
    </message>
    <message>
        <source>Show pie chart on menubar</source>
        <translation>Afficher le diagramme dans la barre de menus</translation>
    </message>
    <message>
        <source>Monocolor pie chart</source>
        <translation>Diagramme monochrome</translation>
    </message>
    <message>
        <source>Automatically launch Kelvo when I log in</source>
        <translation>Lancer Kelvo automatiquement à l’ouverture de session</translation>
    </message>
    <message>
        <source>Hide main window when Kelvo starts up</source>
        <translation>Masquer la fenêtre principale au démarrage de Kelvo</translation>
    </message>
    <message>
        <source>Automatically hide main window after freeing is completed</source>
        <translation>Masquer automatiquement la fenêtre principale une fois la mémoire libérée</translation>
    </message>
    <message>
        <source>Remind me to free memory when inactive memory </source>
        <translation>Me rappeler de libérer la mémoire quand la mémoire inactive </translation>
    </message>
    <message>
        <source>reaches over</source>
        <translation>dépasse</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>Go</translation>
    </message>
    <message>
        <source>On Wayland, a program cannot keep its window on top.</source>
        <translation>Sous Wayland, un programme ne peut pas garder sa fenêtre au premier plan.</translation>
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
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Do Not Remind Me</source>
        <translation>Ne plus me le rappeler</translation>
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
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;REMARQUE&lt;/span&gt;&#xa0;: à partir de cette version, Kelvo se trouve uniquement dans la barre de menus et n’affiche plus d’icône dans le Dock. Si vous ne l’avez pas encore remarquée, cherchez l’icône &lt;img src=&quot;:/app16.png&quot; /&gt; ou &lt;img src=&quot;:/piechart.png&quot; /&gt; dans la barre de menus.&lt;/p&gt;
&lt;p&gt;Ce message ne s’affichera plus.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
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
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Remarque&lt;/span&gt;&#xa0;: pendant la libération de la mémoire, votre système peut sembler ne plus répondre durant un court moment. C’est normal lors de la réorganisation de la mémoire. Il est recommandé de ne lancer aucune autre application pendant ce temps. &lt;/p&gt;
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;L’opération peut prendre jusqu’à une minute. Il est parfois nécessaire d’exécuter «&#xa0;Libérer la mémoire&#xa0;» plusieurs fois pour réduire la mémoire inactive au minimum.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Do not show this message again.</source>
        <translation>Ne plus afficher ce message.</translation>
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
        <translation>Libre&#xa0;:</translation>
    </message>
    <message>
        <source>Wired:</source>
        <translation>Réservée&#xa0;:</translation>
    </message>
    <message>
        <source>Active:</source>
        <translation>Active&#xa0;:</translation>
    </message>
    <message>
        <source>Inactive:</source>
        <translation>Inactive&#xa0;:</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>Utilisée&#xa0;:</translation>
    </message>
    <message>
        <source>Just freed:</source>
        <translation>Mémoire libérée&#xa0;:</translation>
    </message>
    <message>
        <source>Free Memory</source>
        <translation>Libérer la mémoire</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 To</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 Go</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mo</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 Ko</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 octets</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Failed to free memory.</source>
        <translation>La mémoire n’a pas pu être libérée.</translation>
    </message>
    <message>
        <source>Memory pie chart</source>
        <translation>Diagramme circulaire de la mémoire</translation>
    </message>
    <message>
        <source>Freeing memory</source>
        <translation>Libération de la mémoire</translation>
    </message>
</context>
<context>
    <name>MyApp</name>
    <message>
        <source>Free:</source>
        <translation>Libre&#xa0;:</translation>
    </message>
    <message>
        <source>Your inactive memory has reached %1. Do you want to free memory now?</source>
        <translation>Votre mémoire inactive a atteint %1. Voulez-vous libérer la mémoire maintenant&#xa0;?</translation>
    </message>
    <message>
        <source>Free Memory Now!</source>
        <translation>Libérer la mémoire maintenant&#xa0;!</translation>
    </message>
    <message>
        <source>Kelvo Preferences...</source>
        <translation>Préférences de Kelvo…</translation>
    </message>
    <message>
        <source>About Kelvo</source>
        <translation>À propos de Kelvo</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Free: </source>
        <translation>Libre&#xa0;: </translation>
    </message>
    <message>
        <source>Active: </source>
        <translation>Active&#xa0;: </translation>
    </message>
    <message>
        <source>Inactive: </source>
        <translation>Inactive&#xa0;: </translation>
    </message>
    <message>
        <source>Wired: </source>
        <translation>Réservée&#xa0;: </translation>
    </message>
</context>
</TS>
