<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en">
<context>
    <name>DialogAbout</name>
    <message>
        <source>About</source>
        <translation>Про програму</translation>
    </message>
    <message>
        <source>Kelvo</source>
        <translation>Kelvo</translation>
    </message>
    <message>
        <source>Made by &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</source>
        <translation>Розробник: &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Leave Feedback</source>
        <translation>Залишити відгук</translation>
    </message>
    <message>
        <source>version %1</source>
        <translation>версія %1</translation>
    </message>
</context>
<context>
    <name>DialogPreferences</name>
    <message>
        <source>Kelvo Preferences</source>
        <translation>Налаштування Kelvo</translation>
    </message>
    <message>
        <source>Main Window Style</source>
        <translation>Стиль головного вікна</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Класичний</translation>
    </message>
    <message>
        <source>Dark &amp;&amp; Translucent</source>
        <translation>Темний і напівпрозорий</translation>
    </message>
    <message>
        <source>Do not show window title bar</source>
        <translation>Не показувати заголовок вікна</translation>
    </message>
    <message>
        <source>Update frequency</source>
        <translation>Період оновлення</translation>
    </message>
    <message>
        <source>2 seconds</source>
        <translation>2 секунди</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 секунд</translation>
    </message>
    <message>
        <source>Keep main window on top of other windows</source>
        <translation>Тримати головне вікно поверх інших вікон</translation>
    </message>
    <message>
        <source>Show pie chart on menubar</source>
        <translation>Показувати діаграму на панелі меню</translation>
    </message>
    <message>
        <source>Monocolor pie chart</source>
        <translation>Одноколірна діаграма</translation>
    </message>
    <message>
        <source>Automatically launch Kelvo when I log in</source>
        <translation>Автоматично запускати Kelvo під час входу в систему</translation>
    </message>
    <message>
        <source>Hide main window when Kelvo starts up</source>
        <translation>Приховувати головне вікно під час запуску Kelvo</translation>
    </message>
    <message>
        <source>Automatically hide main window after freeing is completed</source>
        <translation>Автоматично приховувати головне вікно після звільнення пам’яті</translation>
    </message>
    <message>
        <source>Remind me to free memory when inactive memory </source>
        <translation>Нагадувати про звільнення пам’яті, коли неактивна пам’ять </translation>
    </message>
    <message>
        <source>reaches over</source>
        <translation>перевищить</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>ГБ</translation>
    </message>
    <message>
        <source>On Wayland, a program cannot keep its window on top.</source>
        <translation>У Wayland програма не може тримати своє вікно поверх інших.</translation>
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
        <translation>Так</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ні</translation>
    </message>
    <message>
        <source>Do Not Remind Me</source>
        <translation>Більше не нагадувати</translation>
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
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;ПРИМІТКА&lt;/span&gt;: починаючи з цієї версії, Kelvo міститься лише на панелі меню й не показує значок у Dock. Якщо ви його ще не помітили, знайдіть на панелі меню значок &lt;img src=&quot;:/app16.png&quot; /&gt; або &lt;img src=&quot;:/piechart.png&quot; /&gt;.&lt;/p&gt;
&lt;p&gt;Це повідомлення більше не з’явиться.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
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
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Примітка&lt;/span&gt;: під час звільнення пам’яті система може деякий час не відповідати. Це нормально, поки пам’ять перерозподіляється. Не рекомендується запускати в цей час інші програми. &lt;/p&gt;
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;Це може тривати до однієї хвилини. Іноді потрібно виконати «Звільнити пам’ять» кілька разів, щоб зменшити неактивну пам’ять до мінімуму.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Do not show this message again.</source>
        <translation>Більше не показувати це повідомлення.</translation>
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
        <translation>Вільно:</translation>
    </message>
    <message>
        <source>Wired:</source>
        <translation>Зарезервовано:</translation>
    </message>
    <message>
        <source>Active:</source>
        <translation>Активно:</translation>
    </message>
    <message>
        <source>Inactive:</source>
        <translation>Неактивно:</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>Зайнято:</translation>
    </message>
    <message>
        <source>Just freed:</source>
        <translation>Щойно звільнено:</translation>
    </message>
    <message>
        <source>Free Memory</source>
        <translation>Звільнити пам’ять</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 ТБ</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 ГБ</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 МБ</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 КБ</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 байтів</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Помилка</translation>
    </message>
    <message>
        <source>Failed to free memory.</source>
        <translation>Не вдалося звільнити пам’ять.</translation>
    </message>
    <message>
        <source>Memory pie chart</source>
        <translation>Кругова діаграма пам’яті</translation>
    </message>
    <message>
        <source>Freeing memory</source>
        <translation>Звільнення пам’яті</translation>
    </message>
</context>
<context>
    <name>MyApp</name>
    <message>
        <source>Free:</source>
        <translation>Вільно:</translation>
    </message>
    <message>
        <source>Your inactive memory has reached %1. Do you want to free memory now?</source>
        <translation>Неактивна пам’ять досягла %1. Звільнити пам’ять зараз?</translation>
    </message>
    <message>
        <source>Free Memory Now!</source>
        <translation>Звільнити пам’ять зараз!</translation>
    </message>
    <message>
        <source>Kelvo Preferences...</source>
        <translation>Налаштування Kelvo…</translation>
    </message>
    <message>
        <source>About Kelvo</source>
        <translation>Про програму Kelvo</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Вийти</translation>
    </message>
    <message>
        <source>Free: </source>
        <translation>Вільно: </translation>
    </message>
    <message>
        <source>Active: </source>
        <translation>Активно: </translation>
    </message>
    <message>
        <source>Inactive: </source>
        <translation>Неактивно: </translation>
    </message>
    <message>
        <source>Wired: </source>
        <translation>Зарезервовано: </translation>
    </message>
</context>
</TS>
