<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>DialogAbout</name>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Kelvo</source>
        <translation>Kelvo</translation>
    </message>
    <message>
        <source>Made by &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</source>
        <translation>Разработчик: &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Leave Feedback</source>
        <translation>Оставить отзыв</translation>
    </message>
    <message>
        <source>version %1</source>
        <translation>версия %1</translation>
    </message>
</context>
<context>
    <name>DialogPreferences</name>
    <message>
        <source>Kelvo Preferences</source>
        <translation>Настройки Kelvo</translation>
    </message>
    <message>
        <source>Main Window Style</source>
        <translation>Стиль главного окна</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Классический</translation>
    </message>
    <message>
        <source>Dark &amp;&amp; Translucent</source>
        <translation>Тёмный и полупрозрачный</translation>
    </message>
    <message>
        <source>Do not show window title bar</source>
        <translation>Не показывать заголовок окна</translation>
    </message>
    <message>
        <source>Update frequency</source>
        <translation>Период обновления</translation>
    </message>
    <message>
        <source>2 seconds</source>
        <translation>2 секунды</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 секунд</translation>
    </message>
    <message>
        <source>Keep main window on top of other windows</source>
        <translation>Держать главное окно поверх других окон</translation>
    </message>
    <message>
        <source>Show pie chart on menubar</source>
        <translation>Показывать диаграмму в строке меню</translation>
    </message>
    <message>
        <source>Monocolor pie chart</source>
        <translation>Одноцветная диаграмма</translation>
    </message>
    <message>
        <source>Automatically launch Kelvo when I log in</source>
        <translation>Автоматически запускать Kelvo при входе в систему</translation>
    </message>
    <message>
        <source>Hide main window when Kelvo starts up</source>
        <translation>Скрывать главное окно при запуске Kelvo</translation>
    </message>
    <message>
        <source>Automatically hide main window after freeing is completed</source>
        <translation>Автоматически скрывать главное окно после освобождения памяти</translation>
    </message>
    <message>
        <source>Remind me to free memory when inactive memory </source>
        <translation>Напоминать об освобождении памяти, когда неактивная память </translation>
    </message>
    <message>
        <source>reaches over</source>
        <translation>превысит</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>ГБ</translation>
    </message>
    <message>
        <source>On Wayland, a program cannot keep its window on top.</source>
        <translation>В Wayland программа не может держать своё окно поверх других.</translation>
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
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Do Not Remind Me</source>
        <translation>Больше не напоминать</translation>
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
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;ПРИМЕЧАНИЕ&lt;/span&gt;: начиная с этой версии, Kelvo находится только в строке меню и не показывает значок в Dock. Если вы его ещё не заметили, найдите в строке меню значок &lt;img src=&quot;:/app16.png&quot; /&gt; или &lt;img src=&quot;:/piechart.png&quot; /&gt;.&lt;/p&gt;
&lt;p&gt;Это сообщение больше не появится.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
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
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Примечание&lt;/span&gt;: во время освобождения памяти система может некоторое время не отвечать. Это нормально при перераспределении памяти. Не рекомендуется запускать в это время другие программы. &lt;/p&gt;
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;Это может занять до одной минуты. Иногда требуется выполнить «Освободить память» несколько раз, чтобы уменьшить неактивную память до минимума.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Do not show this message again.</source>
        <translation>Больше не показывать это сообщение.</translation>
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
        <translation>Свободно:</translation>
    </message>
    <message>
        <source>Wired:</source>
        <translation>Зарезервировано:</translation>
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
        <translation>Занято:</translation>
    </message>
    <message>
        <source>Just freed:</source>
        <translation>Только что освобождено:</translation>
    </message>
    <message>
        <source>Free Memory</source>
        <translation>Освободить память</translation>
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
        <translation>%1 байт</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Failed to free memory.</source>
        <translation>Не удалось освободить память.</translation>
    </message>
    <message>
        <source>Memory pie chart</source>
        <translation>Круговая диаграмма памяти</translation>
    </message>
    <message>
        <source>Freeing memory</source>
        <translation>Освобождение памяти</translation>
    </message>
</context>
<context>
    <name>MyApp</name>
    <message>
        <source>Free:</source>
        <translation>Свободно:</translation>
    </message>
    <message>
        <source>Your inactive memory has reached %1. Do you want to free memory now?</source>
        <translation>Неактивная память достигла %1. Освободить память сейчас?</translation>
    </message>
    <message>
        <source>Free Memory Now!</source>
        <translation>Освободить память сейчас!</translation>
    </message>
    <message>
        <source>Kelvo Preferences...</source>
        <translation>Настройки Kelvo…</translation>
    </message>
    <message>
        <source>About Kelvo</source>
        <translation>О программе Kelvo</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выйти</translation>
    </message>
    <message>
        <source>Free: </source>
        <translation>Свободно: </translation>
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
        <translation>Зарезервировано: </translation>
    </message>
</context>
</TS>
